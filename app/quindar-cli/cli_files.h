// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Reading the input and writing a file back without risking its old content.

#include <optional>
#include <string>
#include <string_view>

namespace quindar::cli {

// The whole content of a file, or of standard input for "-"; nullopt with the reason in
// error when it cannot be read.
std::optional<std::string> ReadInput(const std::string &path, std::string &error);

// Writes content to a temporary file in the same folder, then renames it over path, so a
// failed write leaves the old file as it was. The file keeps its permissions.
bool ReplaceFile(const std::string &path, std::string_view content, std::string &error);

}  // namespace quindar::cli
