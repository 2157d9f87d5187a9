// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quindar {

// The whole content of a regular file, byte for byte; nothing when the path is not a
// readable regular file (missing, a folder, no permission, a read error).
std::optional<std::string> read_whole_file(const std::string &path);

// Replaces the file's content: the bytes go to a new file in the same folder, which then
// takes the file's place by a rename, so that a failure at any point leaves the old file
// as it was. An existing file keeps its permissions; a read-only file (one the process may not
// write, or one without any write permission) is refused.
bool replace_file_content(const std::string &path, std::string_view content);

}  // namespace quindar
