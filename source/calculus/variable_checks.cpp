// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Checking a run's variable name.
#include "variable_checks.h"

#include <cstring>

namespace quindar::calculus {

namespace {
constexpr const char *kRefusedCharacters = "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\ ";
}

bool VariableMatches(Parser &parser, const std::string &expression, const std::string &variable,
                     bool freeAxes) {
    if (freeAxes && variable.size() == 1 && std::strchr("xXyYzZ", variable[0]) != nullptr)
        return true;
    if (variable.empty() || expression.find(variable) == std::string::npos) return false;
    const int fn = parser.find_function(expression.c_str());
    if (fn < 0) return true;
    for (const char *name = parser.get_func_variable(fn, true); name != nullptr && *name != '\0';
         name = parser.get_func_variable(fn, false))
        if (variable == name) return true;
    return false;
}

bool HoldsRefusedCharacter(const std::string &name) {
    return name.find_first_of(kRefusedCharacters) != std::string::npos;
}

}  // namespace quindar::calculus
