// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The checks of a run's variable name against the expression it runs over.

#include <string>

#include "parser.h"

namespace quindar::calculus {

// The variable must stand in the expression, and for a user function be one of its
// variables. With `freeAxes`, x, y and z pass unseen: the integral of "1" in x is allowed.
bool VariableMatches(Parser &parser, const std::string &expression, const std::string &variable,
                     bool freeAxes);

// A name holding a character that no variable name can hold.
bool HoldsRefusedCharacter(const std::string &name);

}  // namespace quindar::calculus
