// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the Function Library offers: the embedded categories, then the categories of the
// system library and of the user library that are new; the names of a category; and the
// prototype and description of a name. The dialog and the command line both read it.

#include <string>
#include <string_view>
#include <vector>

#include "var_fun_ini_file.h"

namespace quindar {

enum class LibraryEntryKind {
    None,      // the name is not known: both texts are empty
    Embedded,  // an embedded function: Help and Solve are offered
    Constant,  // a constant: neither Help nor Solve
    Library,   // a function of a library file: Solve, no Help
};

struct LibraryEntry {
    LibraryEntryKind kind = LibraryEntryKind::None;
    int index = -1;         // the function's or constant's index, for the embedded kinds
    std::string prototype;  // a library function's is "F[x] = body"
    std::string description;
    std::string category;  // the library category the function was found in
};

class FunctionLibraryCatalog {
public:
    // Either file may be null; a file that cannot be read adds nothing.
    FunctionLibraryCatalog(VarFunIniFile *systemLibrary, VarFunIniFile *userLibrary)
        : library(systemLibrary), userLibrary(userLibrary) {}

    // The categories in the dialog's order; a library's category that an earlier one already
    // names (without regard to case) is not repeated.
    std::vector<std::string> Categories();
    // The names of a category. "ALL" holds every embedded function, the constants, then every
    // function of the libraries; a library category of exactly the category's name adds its
    // names behind the embedded ones.
    std::vector<std::string> Names(std::string_view category);
    // What the dialog shows for a name selected under a category.
    LibraryEntry Describe(std::string_view name, std::string_view category);

private:
    std::vector<std::string> LibraryNames(VarFunIniFile &file, const std::string &category);
    bool FindIn(VarFunIniFile *file, const std::string &name, const std::string *category,
                LibraryEntry &entry);

    VarFunIniFile *library;
    VarFunIniFile *userLibrary;
};

// The prototype as the dialog's static text shows it: every blank dropped, and a blank put
// after every width characters so that a long text can wrap.
std::string InsertFunctionPrototype(std::string_view text, std::size_t width = 45);

// The text Insert puts into the editor: the prototype cut at its first "=", or at the blank
// in front of that "=".
std::string CutPrototypeForInsert(std::string_view prototype);

// The parameter text of an inserted prototype, to be selected: behind the first "{" or,
// failing that, the first "[", up to the next closing "}" or "]". Returns false when there
// is none, or when the list begins with a second opening bracket.
bool ParameterRange(std::string_view text, std::size_t &begin, std::size_t &end);

}  // namespace quindar
