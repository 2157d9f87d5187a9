// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quindar {

// A profile file taken apart into lines, with the offsets of each line kept so that a
// change can be spliced into the text and every other byte stays as it was.
//
// A line ends at CR LF, LF or a lone CR. A header is a line whose first non-blank character
// is "[" and that has a "]" behind it; its name is the text between them, blanks trimmed.
// A key line has a "=" and a non-empty name in front of it; name and value are trimmed.
// Comment lines (";" first) and everything else are kept but mean nothing. Lines in front
// of the first header belong to no section. Names compare without regard to case.
class ProfileText {
public:
    enum class Kind { Other, Header, Key };

    struct Line {
        std::size_t begin = 0;     // offset of the first byte
        std::size_t text_end = 0;  // offset of the line end
        std::size_t end = 0;       // offset behind the line end
        Kind kind = Kind::Other;
        std::string_view name;   // header or key name
        std::string_view value;  // key value
        bool has_line_end() const { return end > text_end; }
    };

    // Lines [header, end): the header line and the lines up to the next header.
    struct Section {
        std::size_t header = 0;
        std::size_t end = 0;
    };

    explicit ProfileText(std::string content);
    ProfileText(const ProfileText &) = delete;
    ProfileText &operator=(const ProfileText &) = delete;

    const std::string &content() const { return content_; }
    const std::vector<Line> &lines() const { return lines_; }
    const std::vector<Section> &sections() const { return sections_; }

    // The first section of that name, or null.
    const Section *find_section(std::string_view name) const;
    // The index of the first key of that name in the section, or npos.
    std::size_t find_key(const Section &section, std::string_view key) const;

    std::vector<std::string> section_names() const;
    std::vector<std::string> key_names(const Section &section) const;

    static constexpr std::size_t npos = static_cast<std::size_t>(-1);

private:
    std::string content_;
    std::vector<Line> lines_;
    std::vector<Section> sections_;
};

}  // namespace quindar
