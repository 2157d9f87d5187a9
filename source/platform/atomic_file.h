// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Whole-file reads and writes that never leave a half-written file behind.

#include <optional>
#include <string>
#include <string_view>

namespace quindar {

// The whole content of a file, or nothing when it cannot be read.
std::optional<std::string> read_whole_file(const std::string &path);

// Writes content to path through a temporary file beside it, renamed over the target; false,
// with the target unchanged and no temporary file left, on failure.
bool write_file_atomically(const std::string &path, std::string_view content);

// Writes content only when the file does not already hold exactly that, creating the folders
// on the way. Changed is set when the file was written.
bool write_file_if_changed(const std::string &path, std::string_view content, bool &changed);

}  // namespace quindar
