// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "help_topics.h"

#include <charconv>

namespace quindar {

int HelpTopics::parse(std::string_view text) {
    int bad = 0;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty() || line.front() == '#') continue;
        const std::size_t tab = line.find('\t');
        unsigned topic = 0;
        const std::string_view number = line.substr(0, tab);
        const auto [rest, error] =
            std::from_chars(number.data(), number.data() + number.size(), topic);
        if (tab == std::string_view::npos || tab + 1 == line.size() || error != std::errc() ||
            rest != number.data() + number.size()) {
            ++bad;
            continue;
        }
        pages_[topic] = std::string(line.substr(tab + 1));
    }
    return bad;
}

std::string HelpTopics::page(unsigned topic) const {
    const auto found = pages_.find(topic);
    return found == pages_.end() ? kHelpContentsPage : found->second;
}

}  // namespace quindar
