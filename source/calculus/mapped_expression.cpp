// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Recording a run's map, and putting the run's variable back as the run found it.
#include "mapped_expression.h"

#include "calculus_format.h"
#include "calculus_messages.h"

namespace quindar::calculus {

namespace {
constexpr const char *kUnknownName = "can not be identified as a variable or a constant!";
}

MappedExpression::MappedExpression(Parser &engine, const std::string &expression,
                                   const std::string &variableName, long double start,
                                   int assignMessage)
    : parser(engine), variable(variableName) {
    const int fn = parser.find_function(expression.c_str());
    if (parser.find_variable(variable.c_str()) < 0) {
        parser.variables.add(new Variable(variable.c_str(), complex{}, false));
        if (parser.find_variable(variable.c_str()) < 0) {
            error = Format(message(kVariableNotDefined), variable);
            return;
        }
        declared = true;
        parser.set_var_value(complex{static_cast<double>(start), 0.0}, variable.c_str());
    } else {
        saved_value = parser.get_var_value(variable.c_str());
        saved_incremented = parser.var_incremented(variable.c_str());
        if (saved_incremented) {
            saved_low = parser.get_var_lowlimit(variable.c_str());
            saved_high = parser.get_var_hilimit(variable.c_str());
            saved_points = parser.get_var_numpoints(variable.c_str());
        }
        parser.set_var_value(complex{static_cast<double>(start), 0.0}, variable.c_str());
    }
    if (fn >= 0) parser.reset_func_modvalue(fn);
    parser.current_equation = parser.equations.add();
    parser.ClearLastError();
    parser.mapping = true;
    map_index = parser.equations.count();
    parser.eval_exp(expression.c_str(), true, false);
    if (parser.IsAnError()) {
        const std::string engineText = parser.GetLastError() ? parser.GetLastError() : "";
        error = (engineText.find(kUnknownName) != std::string::npos && fn < 0)
                    ? Format(message(kJoined), engineText, message(assignMessage))
                    : engineText;
        parser.ClearLastError();
        return;
    }
    parser.set_var_lock(variable.c_str(), true);
    locked = true;
}

MappedExpression::~MappedExpression() {
    if (map_index > 0) parser.delete_equation(map_index);
    restore_variable();
}

void MappedExpression::restore_variable() {
    const char *name = variable.c_str();
    if (locked) parser.set_var_lock(name, false);
    if (declared) {
        parser.delete_variable(parser.find_variable(name));
        return;
    }
    if (parser.find_variable(name) < 0) return;
    if (!saved_incremented) {
        parser.set_var_numpoints(0, name);
    } else {
        parser.set_var_hilimit(saved_high, name);
        parser.set_var_lowlimit(saved_low, name);
        parser.set_var_numpoints(saved_points, name);
    }
    parser.set_var_value(saved_value, name);
}

}  // namespace quindar::calculus
