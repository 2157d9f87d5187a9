// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_file_section.h"

#include <cctype>
#include <cstdlib>

#include "graph_file.h"

namespace quindar {

namespace {

std::string_view trim(std::string_view text) {
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front())))
        text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back())))
        text.remove_suffix(1);
    return text;
}

bool same_key(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(a[i])) !=
            std::tolower(static_cast<unsigned char>(b[i])))
            return false;
    return true;
}

}  // namespace

GraphFileSection::GraphFileSection(std::string_view text) {
    bool inSection = false;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = trim(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (!line.empty() && line.front() == '[') {
            if (inSection) break;
            const std::size_t close = line.find(']');
            name_ = std::string(line.substr(
                1, close == std::string_view::npos ? std::string_view::npos : close - 1));
            if (name_.size() > kGraphFileTextLimit) name_.resize(kGraphFileTextLimit);
            inSection = true;
            continue;
        }
        const std::size_t equals = line.find('=');
        if (!inSection || equals == std::string_view::npos) continue;
        keys_.emplace_back(std::string(trim(line.substr(0, equals))),
                           std::string(trim(line.substr(equals + 1))));
    }
}

std::optional<std::string> GraphFileSection::text(std::string_view key) const {
    for (const auto &[name, value] : keys_)
        if (same_key(name, key))
            return value.size() > kGraphFileTextLimit ? value.substr(0, kGraphFileTextLimit)
                                                      : value;
    return std::nullopt;
}

int GraphFileSection::integer(std::string_view key, int deflt) const {
    const std::optional<std::string> value = text(key);
    if (!value || value->empty()) return deflt;
    return static_cast<int>(std::strtol(value->c_str(), nullptr, 10));
}

void write_graph_file_section(std::string &out, const std::string &name,
                              const std::vector<std::pair<std::string, std::string>> &keys) {
    out += "[" + name + "]\r\n";
    for (const auto &[key, value] : keys) out += key + "=" + value + "\r\n";
}

}  // namespace quindar
