// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "temp_files.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace quindar {

namespace {

bool equals_ignoring_case(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

}  // namespace

bool is_editor_temporary_name(std::string_view name) {
    return name.size() >= 7 && equals_ignoring_case(name.substr(0, 3), "qnd") &&
           equals_ignoring_case(name.substr(name.size() - 4), ".tmp");
}

int remove_stale_temporary_files(const std::string &folder) {
    namespace fs = std::filesystem;
    std::error_code error;
    int removed = 0;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const fs::directory_entry &entry = *it;
        std::error_code kindError;
        if (!entry.is_regular_file(kindError) ||
            !is_editor_temporary_name(entry.path().filename().string())) {
            continue;
        }
        std::error_code removeError;
        if (fs::remove(entry.path(), removeError)) ++removed;
    }
    return removed;
}

}  // namespace quindar
