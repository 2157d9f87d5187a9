// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Recording a run's map and deleting it.
#include "run_map.h"

#include "calculus_format.h"
#include "calculus_messages.h"

namespace quindar::calculus {

namespace {
constexpr const char *kUnknownName = "can not be identified as a variable or a constant!";
}

bool RunMap::build(const std::string &expression, int assignMessage, std::string &error) {
    drop();
    const int fn = parser.find_function(expression.c_str());
    if (fn >= 0) parser.reset_func_modvalue(fn);
    parser.current_equation = parser.equations.add();
    parser.ClearLastError();
    parser.mapping = true;
    map_index = parser.equations.count();
    parser.eval_exp(expression.c_str(), true, false);
    if (!parser.IsAnError()) return true;
    const std::string engineText = parser.GetLastError() ? parser.GetLastError() : "";
    error = (engineText.find(kUnknownName) != std::string::npos && fn < 0)
                ? Format(message(kJoined), engineText, message(assignMessage))
                : engineText;
    parser.ClearLastError();
    return false;
}

void RunMap::drop() {
    if (map_index > 0) parser.delete_equation(map_index);
    map_index = 0;
}

}  // namespace quindar::calculus
