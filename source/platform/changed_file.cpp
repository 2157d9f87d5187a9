// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "changed_file.h"

#include <filesystem>

#include "file_io.h"

namespace quindar {

bool write_file_if_changed(const std::string &path, std::string_view content, bool &changed) {
    changed = false;
    if (const auto old = read_whole_file(path); old && *old == content) return true;
    std::error_code error;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path(), error);
    if (error || !replace_file_content(path, content)) return false;
    changed = true;
    return true;
}

}  // namespace quindar
