// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The language's embedded functions and constants, and the texts of the function
// library's errors. A function's position in the table is its index everywhere.

namespace quindar::mathlib {

struct EmbeddedFunctionRow {
    const char *name;    // upper case; matched without regard to case
    const char *syntax;  // as the Function Library shows it
};

struct ConstantRow {
    const char *name;  // matched exactly
    long double value;
};

inline constexpr int kEmbeddedFunctionCount = 91;
inline constexpr int kConstantCount = 16;
inline constexpr int kMathlibMessageCount = 48;

extern const EmbeddedFunctionRow kEmbeddedFunctions[kEmbeddedFunctionCount];
extern const ConstantRow kConstants[kConstantCount];

// Index of the function, ignoring case; -1 for none or a null name.
int function_index(const char *name);
// Index of the constant, exact; -1 for none.
int constant_index(const char *name);
// Message n of the function library's errors, or "".
const char *mathlib_message(int number);

}  // namespace quindar::mathlib
