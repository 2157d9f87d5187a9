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

std::string library_folder(const std::string &fallback) {
    const std::string beside = program_folder();
    std::error_code ignored;
    if (!beside.empty() && std::filesystem::is_directory(beside + "Library", ignored))
        return beside + "Library/";
    return with_separator(fallback);
}

}  // namespace quindar
