// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Integration Utility's three parameter boxes: what they list for the function chosen, how
// many show, and the rule that keeps their three selections distinct.

#include <array>
#include <string>
#include <vector>

#include "parser.h"

namespace quindar::calculus {

struct ParameterBoxes {
    int type = 1;                             // 1 the X box shows, 2 X and Y, 3 all three
    std::vector<std::string> entries;         // the list of each shown box
    std::array<int, 3> selected{-1, -1, -1};  // an index into entries; -1 for a hidden box

    // The selected name of a box, or empty.
    std::string name(int axis) const;
};

// The boxes for `expression` (the function box's text as it will be integrated). `type` 0
// takes the type from the function: its number of variables, and 1 for an expression.
// A user function lists its variables, then as many of "x", "y", "z" as the type still needs.
ParameterBoxes UpdateParamComboBoxes(Parser &parser, const std::string &expression, int type);

// Box `axis` selects entry `index`; a box that held it takes the entry left free.
void SelectParameter(ParameterBoxes &boxes, int axis, int index);

}  // namespace quindar::calculus
