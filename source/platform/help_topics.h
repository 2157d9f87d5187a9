// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The help topics: which page of the help folder answers each topic number.

#include <map>
#include <string>
#include <string_view>

namespace quindar {

inline constexpr const char *kHelpContentsPage = "index.html";

class HelpTopics {
public:
    // Reads lines "topic TAB page", where page may carry a "#anchor"; blank lines and lines
    // starting with "#" are skipped. Returns how many lines could not be read.
    int parse(std::string_view text);

    // The page of a topic, or the contents page for a topic with none.
    std::string page(unsigned topic) const;
    bool has(unsigned topic) const { return pages_.count(topic) != 0; }
    const std::map<unsigned, std::string> &all() const { return pages_; }

private:
    std::map<unsigned, std::string> pages_;
};

}  // namespace quindar
