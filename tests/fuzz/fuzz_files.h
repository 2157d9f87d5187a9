// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Files for the fuzz programs: the seed inputs that come with the sources, and a scratch folder
// that is removed at the end of the run.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quindar::fuzz {

inline std::string read_file(const std::filesystem::path &path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

inline void write_file(const std::string &path, const std::string &content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
}

// The files of folder whose names end in extension, read whole, in name order.
inline std::vector<std::string> seed_files(const std::string &folder,
                                           const std::string &extension) {
    std::vector<std::filesystem::path> paths;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(folder, error))
        if (entry.path().extension() == extension) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    std::vector<std::string> contents;
    for (const auto &path : paths) contents.push_back(read_file(path));
    return contents;
}

class ScratchFolder {
public:
    ScratchFolder() {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "quindar-fuzz-XXXXXX").string();
        if (::mkdtemp(pattern.data()) != nullptr) folder = pattern;
    }
    ~ScratchFolder() {
        std::error_code error;
        if (!folder.empty()) std::filesystem::remove_all(folder, error);
    }
    ScratchFolder(const ScratchFolder &) = delete;
    ScratchFolder &operator=(const ScratchFolder &) = delete;

    std::string file(const std::string &name) const { return folder + "/" + name; }

private:
    std::string folder;
};

}  // namespace quindar::fuzz
