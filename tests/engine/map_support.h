// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Recording a line as an equation map, the way a graph or a calculus utility does it.

#include <string>

#include "parser.h"

namespace quindar::testing {

// Records `line` into a new map and returns its position; 0 when the recording failed,
// in which case the incomplete map has been deleted as its owner must.
inline int record_map(Parser &parser, const char *line) {
    parser.current_equation = parser.equations.add();
    parser.ClearLastError();
    parser.mapping = true;
    const int number = parser.equations.count();
    parser.eval_exp(line, true, true);
    if (parser.IsAnError()) {
        parser.delete_equation(number);
        return 0;
    }
    return number;
}

// The error text of the last operation, or "" when there is none.
inline std::string error_of(const Parser &parser) {
    if (!parser.IsAnError()) return "";
    return parser.GetLastError() ? parser.GetLastError() : "(no text)";
}

}  // namespace quindar::testing
