// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The user function library "QuindarUser.lib": the user edits it with a text editor; the
// program only makes it, with instructions and a commented example, when it is missing.

#include <string>

namespace quindar {

inline constexpr const char *kSystemLibraryName = "Quindar.lib";
inline constexpr const char *kUserLibraryName = "QuindarUser.lib";

// The text of a fresh user library. Nothing in it is a category or a definition.
std::string user_library_template();

// Makes folder (and its parents) and, when folder holds no user library, writes the template
// there. folder ends in its separator. True if the file exists afterwards; a failure is not
// told here: the engine tells when it cannot open the file.
bool create_user_library(const std::string &folder);

}  // namespace quindar
