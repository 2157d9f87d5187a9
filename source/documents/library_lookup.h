// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <unordered_set>
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

namespace quindar {

// Every name of every category of a library, read once, for a quick "no": the names of
// each function line in lower case, whole and in front of its "[". A name that is not here
// is found by no look-up in that category; one that is goes through lib_function_text,
// which decides as ever (the index holds every line of the category, a superset of what a
// look-up compares with).
class LibraryIndex {
public:
    // Reads the categories and their names from the file; false if any read failed.
    bool read(VarFunIniFile &library);
    const std::vector<std::string> &categories() const { return categoryNames; }
    // The categories whose functions may answer to name (none for most names); a look-up
    // in any other category finds nothing.
    const std::unordered_set<std::string> &holders(const char *name) const;

private:
    std::vector<std::string> categoryNames;
    std::unordered_map<std::string, std::unordered_set<std::string>> names;
    std::unordered_set<std::string> none;
};

// What a stat of a file says about its contents, to tell cheaply that it did not change.
class FileStamp {
public:
    // Stamps the file as it stands now; false if it cannot be stat'ed.
    bool take(const std::string &path);
    // Same file, size and times as the stamp, and modified long enough before the stamp was
    // taken that an edit since then must have moved its time (file times are coarser than
    // two quick writes: a fresh file is never trusted on its stamp alone).
    bool vouches_for(const FileStamp &earlier) const;

private:
    bool valid = false;
    unsigned long long device = 0, inode = 0;
    long long size = 0;
    long long modified = 0, changed = 0;  // nanoseconds
    long long taken = 0;                  // nanoseconds, the clock at the stamp
};

}  // namespace quindar
