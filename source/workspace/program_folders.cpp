// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "program_folders.h"

#include <filesystem>

namespace quindar {

namespace {

std::string with_separator(std::string folder) {
    if (!folder.empty() && folder.back() != '/') folder += '/';
    return folder;
}

}  // namespace

std::string program_folder() {
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) return {};
    return with_separator(program.parent_path().string());
}

std::string folder_of_file(const std::string &path) {
    if (path.empty()) return {};
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? std::string() : absolute.parent_path().string();
}

std::string shipped_folder(const std::string &programDir) {
    if (programDir.empty()) return {};
    const std::string own = with_separator(programDir);
    std::error_code ignored;
    if (std::filesystem::is_directory(own + "Library", ignored)) return own;
    // Checked as written, so that a program folder that is not there has no share folder.
    const std::string shared = own + "../share/quindar/";
    if (!std::filesystem::is_directory(shared + "Library", ignored)) return {};
    return with_separator(std::filesystem::path(shared).lexically_normal().string());
}

std::string library_folder(const std::string &fallback) {
    const std::string shipped = shipped_folder(program_folder());
    return shipped.empty() ? with_separator(fallback) : shipped + "Library/";
}

}  // namespace quindar
