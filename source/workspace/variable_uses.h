// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Which function a variable's delete would break: one whose body names the variable as a
// whole word, or that takes a parameter of that name.

#include <optional>
#include <string>
#include <string_view>

namespace quindar {

class Parser;

// Whether text names the variable as a whole word ("k" in "x*k", not in "kk" or "k_1").
bool NamesWholeWord(std::string_view text, std::string_view name);

// The full name of the first function, in the engine's order, that uses the variable.
std::optional<std::string> FunctionUsingVariable(Parser &parser, const std::string &name);

}  // namespace quindar
