// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "multi_string.h"

#include <cstring>
#include <string_view>

namespace quindar {

std::size_t multi_string_size(const std::vector<std::string> &names) {
    std::size_t total = 1;
    for (const auto &name : names) total += name.size() + 1;
    return total;
}

int pack_while_they_fit(const std::vector<std::string> &names, char *buffer, long size) {
    if (buffer == nullptr || size <= 0) return 0;
    const std::size_t room = static_cast<std::size_t>(size) - 1;  // the final NUL's byte
    std::size_t used = 0;
    int stored = 0;
    for (const auto &name : names) {
        if (used + name.size() + 1 > room) break;
        std::memcpy(buffer + used, name.data(), name.size());
        used += name.size();
        buffer[used++] = '\0';
        ++stored;
    }
    buffer[used] = '\0';
    return stored;
}

std::size_t pack_profile_list(const std::vector<std::string> &names, char *buffer,
                              std::size_t size) {
    if (buffer == nullptr || size == 0) return 0;
    std::string list;
    for (const auto &name : names) {
        list += name;
        list += '\0';
    }
    list += '\0';
    if (list.size() <= size) {
        std::memcpy(buffer, list.data(), list.size());
        if (names.empty() && size >= 2) buffer[1] = '\0';
        return list.size() - 1;
    }
    if (size == 1) {
        buffer[0] = '\0';
        return 0;
    }
    std::memcpy(buffer, list.data(), size - 2);
    buffer[size - 2] = '\0';
    buffer[size - 1] = '\0';
    return size - 2;
}

std::size_t copy_cut(std::string_view value, char *buffer, std::size_t size) {
    if (buffer == nullptr || size == 0) return 0;
    std::size_t n = value.size() < size - 1 ? value.size() : size - 1;
    std::memcpy(buffer, value.data(), n);
    buffer[n] = '\0';
    return n;
}

std::vector<std::string> split_multi_string(const char *list, std::size_t size) {
    std::vector<std::string> names;
    if (list == nullptr) return names;
    std::size_t at = 0;
    while (at < size && list[at] != '\0') {
        std::size_t end = at;
        while (end < size && list[end] != '\0') ++end;
        names.emplace_back(list + at, end - at);
        at = end + 1;
    }
    return names;
}

}  // namespace quindar
