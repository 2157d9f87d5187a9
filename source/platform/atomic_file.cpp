// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "atomic_file.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace quindar {

std::optional<std::string> read_whole_file(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream content;
    content << in.rdbuf();
    if (in.bad()) return std::nullopt;
    return content.str();
}

bool write_file_atomically(const std::string &path, std::string_view content) {
    const std::string temporary = path + ".part";
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    out.write(content.data(), static_cast<std::streamsize>(content.size()));
    out.close();
    std::error_code error;
    if (out) std::filesystem::rename(temporary, path, error);
    if (!out || error) {
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

bool write_file_if_changed(const std::string &path, std::string_view content, bool &changed) {
    changed = false;
    if (const auto old = read_whole_file(path); old && *old == content) return true;
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (error || !write_file_atomically(path, content)) return false;
    changed = true;
    return true;
}

}  // namespace quindar
