// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The functions a graph names, as the Functions page and the copy into the working copy see
// them: a row of text taken apart into full name and value, and the three kinds a name can
// be, tested in this order: declared in the Math Editor, embedded or library, undefined.

#include <string>

namespace quindar {

class Parser;

enum class FunctionKind { Declared, Embedded, Undefined };

struct FunctionRow {
    // Up to and including the first "]"; the whole row when it has none.
    std::string fullName;
    // Two characters behind the "=" that follows the name; empty without one.
    std::string value;
};

FunctionRow split_function_row(const std::string &row);
// The name cut at "[".
std::string function_short_name(const std::string &fullName);
FunctionKind function_kind(Parser &parser, const std::string &fullName);
// The row of a declared function: "name = value" as the parser gives it; empty when it has
// no such function.
std::string declared_function_row(Parser &parser, const std::string &fullName);
// The parser's value of a declared function; empty when it has none.
std::string declared_function_value(Parser &parser, const std::string &fullName);
// The parser's full name of a declared function (its own spelling of the brackets).
std::string declared_function_name(Parser &parser, const std::string &fullName);

// Exact comparison that ignores case, as the list boxes search.
bool same_text_ignoring_case(const std::string &a, const std::string &b);

}  // namespace quindar
