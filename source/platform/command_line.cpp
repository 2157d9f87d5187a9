// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "command_line.h"

#include <cctype>

namespace quindar {

bool is_unregister_option(std::string_view word) {
    constexpr std::string_view kOption = "unregister";
    if (word.empty() || word.size() > kOption.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if (std::tolower(static_cast<unsigned char>(word[i])) != kOption[i]) return false;
    }
    return true;
}

CommandLineRequest parse_command_line(std::span<const std::string> words) {
    CommandLineRequest request;
    for (const std::string &word : words) {
        if (is_unregister_option(word)) {
            request.unregister = true;
            request.registerAssociation = false;
            return request;
        }
        if (request.file || word.empty()) continue;
        std::string_view name = word;
        if (name.size() >= 2 && name.front() == '"' && name.back() == '"') {
            name = name.substr(1, name.size() - 2);
        }
        if (!name.empty()) request.file = std::string(name);
    }
    return request;
}

}  // namespace quindar
