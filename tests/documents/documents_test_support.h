// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Helpers of the documents tests: golden files, a fresh folder per test for anything that
// writes, and readers of multi-string lists.

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "multi_string.h"

namespace quindar::testing {

inline std::string data_file(std::string_view name) {
    return std::string(QUINDAR_TEST_DATA_DIR) + "/" + std::string(name);
}

inline std::string file_content(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void write_content(const std::string &path, std::string_view content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
}

// A new empty folder under the system's temporary directory, removed with what it holds.
class TempFolder {
public:
    TempFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "quindar-documents-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) ADD_FAILURE() << "mkdtemp failed";
        path_ = pattern;
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, ignored);
        std::filesystem::remove_all(path_, ignored);
    }

    std::string file(std::string_view name) const { return (path_ / name).string(); }
    const std::filesystem::path &path() const { return path_; }

    // The names in the folder, to show that no temporary file was left behind.
    std::vector<std::string> entries() const {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(path_)) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }

    // A copy of a golden file, for tests that change it.
    std::string copy_of(std::string_view golden) const {
        std::string target = file(golden);
        write_content(target, file_content(data_file(golden)));
        return target;
    }

private:
    std::filesystem::path path_;
};

// A multi-string list as "a|b|c", so that a table can state it in one cell.
inline std::string joined(const char *list, std::size_t size) {
    std::string text;
    for (const auto &name : split_multi_string(list, size)) {
        if (!text.empty()) text += '|';
        text += name;
    }
    return text;
}

}  // namespace quindar::testing
