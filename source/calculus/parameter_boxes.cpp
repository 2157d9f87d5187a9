// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Filling the parameter boxes and keeping their selections apart.
#include "parameter_boxes.h"

#include <algorithm>

namespace quindar::calculus {

namespace {
constexpr const char *kAxisLetters[] = {"x", "y", "z"};
}

std::string ParameterBoxes::name(int axis) const {
    if (axis < 0 || axis > 2) return {};
    const int index = selected[axis];
    return index >= 0 && index < static_cast<int>(entries.size()) ? entries[index] : std::string();
}

ParameterBoxes UpdateParamComboBoxes(Parser &parser, const std::string &expression, int type) {
    ParameterBoxes boxes;
    const int fn = parser.find_function(expression.c_str());
    if (fn >= 0)
        for (const char *name = parser.get_func_variable(fn, true);
             name != nullptr && *name != '\0'; name = parser.get_func_variable(fn, false))
            boxes.entries.emplace_back(name);
    const int variables = static_cast<int>(boxes.entries.size());
    boxes.type = type > 0 ? std::min(type, 3) : std::clamp(fn >= 0 ? variables : 1, 1, 3);
    for (int letter = variables; letter < boxes.type; ++letter)
        boxes.entries.emplace_back(kAxisLetters[letter]);
    for (int axis = 0; axis < boxes.type; ++axis) boxes.selected[axis] = axis;
    return boxes;
}

void SelectParameter(ParameterBoxes &boxes, int axis, int index) {
    if (axis < 0 || axis >= boxes.type || index < 0 ||
        index >= static_cast<int>(boxes.entries.size()))
        return;
    const int freed = boxes.selected[axis];
    for (int other = 0; other < boxes.type; ++other)
        if (other != axis && boxes.selected[other] == index) boxes.selected[other] = freed;
    boxes.selected[axis] = index;
}

}  // namespace quindar::calculus
