// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "var_fun_ini_file.h"

namespace quindar {

// A library function as its file holds it: the full name with its parameter list, and the
// body. The engine makes its Function from these two texts.
struct LibraryFunctionText {
    std::string fullName;
    std::string value;
};

// The look-up of one name in the current category of a library: nothing unless IsFunction
// finds it; then the full name and the value, each read into a buffer of the file's longest
// line. The value may come back empty.
std::optional<LibraryFunctionText> lib_function_text(VarFunIniFile &library, const char *name);

// The categories of a library in file order.
std::vector<std::string> library_categories(VarFunIniFile &library);

// The search of a whole library: each category in file order becomes the function flag in
// turn, and the first one that holds the name ends the search (that category stays set).
std::optional<LibraryFunctionText> find_library_function(VarFunIniFile &library, const char *name);

}  // namespace quindar
