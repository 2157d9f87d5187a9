// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Function Library's texts of the embedded functions and constants: name, prototype and
// description, and the embedded categories with their members. The dialog and the command
// line show the same texts. A function's position is its index in the function table; a
// constant's prototype is its name.

#include <span>
#include <string_view>
#include <vector>

namespace quindar::mathlib {

struct FunctionText {
    std::string_view name;
    std::string_view prototype;
    std::string_view description;
};

struct EmbeddedCategory {
    std::string_view name;
    std::span<const std::string_view> members;  // empty for "ALL", which holds everything
};

inline constexpr std::string_view kAllCategory = "ALL";
inline constexpr std::string_view kConstantsCategory = "CONSTANTS";

// The 91 functions in the order of the function table.
std::span<const FunctionText> embedded_function_texts();
// The 16 constants in the order of the constant table.
std::span<const FunctionText> constant_texts();
// The embedded categories in the order the dialog lists them, "ALL" first.
std::span<const EmbeddedCategory> embedded_categories();
// The embedded category of exactly this name, or null.
const EmbeddedCategory *find_embedded_category(std::string_view name);
// The names of an embedded category in order; for "ALL" every function, then every constant.
std::vector<std::string_view> embedded_category_names(std::string_view category);
// A function by its name without regard to case, or a constant by its exact name; null for
// neither.
const FunctionText *find_function_text(std::string_view name);
// Whether the text is a constant's, a function's or neither.
bool is_constant_text(const FunctionText *text);

}  // namespace quindar::mathlib
