// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A fresh folder for one test, removed with everything in it afterwards.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace quindar::testing {

class TempFolder {
public:
    TempFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "quindar-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr) path_ = pattern;
    }
    ~TempFolder() {
        std::error_code ignored;
        if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    }
    TempFolder(const TempFolder &) = delete;
    TempFolder &operator=(const TempFolder &) = delete;

    const std::string &path() const { return path_; }

    // Writes a file in the folder, bytes as given; returns its full path.
    std::string write(const std::string &name, const std::string &content) const {
        const std::string file = path_ + "/" + name;
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

private:
    std::string path_;
};

}  // namespace quindar::testing
