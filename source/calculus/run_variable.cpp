// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Lending a variable to a run and taking it back.
#include "run_variable.h"

#include <utility>

namespace quindar::calculus {

RunVariable::RunVariable(Parser &engine, std::string name)
    : parser(engine), variable_name(std::move(name)) {}

bool RunVariable::take() {
    if (held) return true;
    const char *name = variable_name.c_str();
    if (parser.find_variable(name) < 0) {
        parser.variables.add(new Variable(name, complex{}, false));
        if (parser.find_variable(name) < 0) return false;
        declared = true;
    } else {
        saved_value = parser.get_var_value(name);
        saved_incremented = parser.var_incremented(name);
        if (saved_incremented) {
            saved_low = parser.get_var_lowlimit(name);
            saved_high = parser.get_var_hilimit(name);
            saved_points = parser.get_var_numpoints(name);
        }
    }
    held = true;
    return true;
}

Variable *RunVariable::get() const {
    const int index = parser.find_variable(variable_name.c_str());
    return index < 0 ? nullptr : parser.variables[index];
}

void RunVariable::set(long double value) {
    parser.set_var_value(complex{static_cast<double>(value), 0.0}, variable_name.c_str());
}

void RunVariable::lock() {
    parser.set_var_lock(variable_name.c_str(), true);
    locked = true;
}

bool RunVariable::restore() {
    if (!held) return true;
    held = false;
    const char *name = variable_name.c_str();
    if (locked) parser.set_var_lock(name, false);
    locked = false;
    const int index = parser.find_variable(name);
    if (declared) return index < 0 || parser.delete_variable(index);
    if (index < 0) return true;
    if (!saved_incremented) {
        parser.set_var_numpoints(0, name);
    } else {
        parser.set_var_hilimit(saved_high, name);
        parser.set_var_lowlimit(saved_low, name);
        parser.set_var_numpoints(saved_points, name);
    }
    parser.set_var_value(saved_value, name);
    return true;
}

}  // namespace quindar::calculus
