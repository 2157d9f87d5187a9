// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "start_request.h"

#include <cctype>
#include <string_view>

namespace quindar {
namespace {

constexpr std::string_view kUnregister = "unregister";

bool IsUnregister(std::string_view word) {
    if (word.empty() || word.size() > kUnregister.size()) return false;
    for (std::size_t at = 0; at < word.size(); ++at)
        if (std::tolower(static_cast<unsigned char>(word[at])) != kUnregister[at]) return false;
    return true;
}

std::string WithoutQuotes(const std::string &word) {
    if (word.size() >= 2 && word.front() == '"' && word.back() == '"')
        return word.substr(1, word.size() - 2);
    return word;
}

}  // namespace

StartRequest read_start_request(const std::vector<std::string> &words) {
    StartRequest request;
    for (const std::string &word : words) {
        if (IsUnregister(word)) {
            request.unregister = true;
            break;
        }
        if (request.file.empty() && !word.empty()) request.file = WithoutQuotes(word);
    }
    return request;
}

}  // namespace quindar
