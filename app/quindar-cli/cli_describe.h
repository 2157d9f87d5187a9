// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the Function Library shows, on the command line: --functions lists the categories or
// the names of one with their prototypes, --describe prints one name's prototype and
// description. Also the answers' precision that --precision sets outside a computation.

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "parser.h"

namespace quindar::cli {

struct DescribeOptions {
    bool listFunctions = false;
    std::optional<std::string> category;  // --functions CATEGORY
    std::optional<std::string> name;      // --describe NAME
    bool Wanted() const { return listFunctions || name.has_value(); }
};

// Reads --functions [CATEGORY] or --describe NAME at arguments[at]. Returns 0 when the
// argument is neither, 1 when it was read (at then stands on its last word), -1 with the
// reason in error.
int ParseDescribeOption(const std::vector<std::string> &arguments, std::size_t &at,
                        DescribeOptions &options, std::string &error);

// Prints what was asked, reading the shipped library in libraryFolder and the user's in
// userLibraryFolder. The exit status: 0 done, 1 the name is not known, 2 the category is not
// known.
int RunDescribe(const DescribeOptions &options, const std::string &libraryFolder,
                const std::string &userLibraryFolder, std::ostream &out, std::string &error);

// The digits of the answers written into a text, 1 to 14, from the text of --precision.
std::optional<int> ReadAnswerPrecision(const std::string &text, std::string &error);
// Sets them in the engine as the Options sheet does for the Math Editor.
void ApplyAnswerPrecision(Parser &parser, int precision);

}  // namespace quindar::cli
