// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <cstddef>
#include <string_view>

namespace quindar {

// The declaration scanners' view of a file. A line runs to the next CR, LF or the end of the
// file, and every CR and LF behind it is skipped, so that no line is blank. The section finder
// also skips NUL bytes between lines.
class LineScanner {
public:
    struct Line {
        std::string_view text;  // the line's bytes, its end not included
        std::size_t begin = 0;  // offset of its first byte
        char end = '\0';        // the byte that ended it: CR, LF, or NUL at the end of the file
    };

    explicit LineScanner(std::string_view content, bool skipNuls = false)
        : content_(content), skipNuls_(skipNuls) {
        SkipBreaks();
    }

    bool Next(Line &line) {
        if (at_ >= content_.size()) return false;
        std::size_t stop = content_.find_first_of("\r\n", at_);
        if (stop == std::string_view::npos) stop = content_.size();
        line.text = content_.substr(at_, stop - at_);
        line.begin = at_;
        line.end = stop < content_.size() ? content_[stop] : '\0';
        at_ = stop;
        SkipBreaks();
        return true;
    }

private:
    void SkipBreaks() {
        while (at_ < content_.size()) {
            char c = content_[at_];
            if (c != '\r' && c != '\n' && !(skipNuls_ && c == '\0')) break;
            ++at_;
        }
    }

    std::string_view content_;
    bool skipNuls_;
    std::size_t at_ = 0;
};

}  // namespace quindar
