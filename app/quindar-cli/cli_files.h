// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Reading the input and writing a file back without risking its old content.

#include <optional>
#include <string>
#include <string_view>

#include "file_io.h"

namespace quindar::cli {

// The whole content of a file, or of standard input for "-"; nullopt with the reason in
// error when it cannot be read.
std::optional<std::string> ReadInput(const std::string &path, std::string &error);

// Writes content to a temporary file in the same folder, then renames it over path, so a
// failed write leaves the old file as it was. The file keeps its permissions, and its owner
// and group where the system allows (warning says so when not). Under lock, a lock the
// caller holds on path.
bool ReplaceFile(const std::string &path, std::string_view content, std::string &error,
                 std::string &warning, const FileLock *lock = nullptr);

}  // namespace quindar::cli
