// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The engine's function libraries read by the documents layer: what the owner of a Parser
// installs so that lines can call library functions.

#include <string>

#include "function_library.h"
#include "warning_hook.h"

namespace quindar {

class Parser;

// Opens a library file as a VarFunIniFile; warn shows the reader's "File Access" box when
// the file cannot be read later on.
FunctionLibraryOpener library_file_opener(WarningHook warn = {});

// Opens the parser's system library "Quindar.lib" and user library "QuindarUser.lib", in the
// folders the parser was made with, through library_file_opener.
void install_function_libraries(Parser &parser, WarningHook warn = {});

}  // namespace quindar
