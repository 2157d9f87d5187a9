// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// What the numeric methods share: one sample of a map, their tests at 14 digits, and the
// checks that let the application breathe and stop them between samples.
#include "computation_hooks.h"
#include "parser.h"

namespace quindar {

void Parser::set_computation_hooks(ComputationHooks *hooks) {
    computation_hooks = hooks;
}

long double Parser::sample(int map, const char *var, long double x) {
    set_var_value(complex{static_cast<double>(x), 0.0}, var);
    return solve_equation(map, false, true).real;
}

// Convergence tests compare as the language does: both sides as doubles at 14 digits.
bool Parser::holds_at_or_below(long double a, long double b) {
    bool chain = true;
    _leseq(chain, complex{static_cast<double>(a), 0.0}, complex{static_cast<double>(b), 0.0});
    return chain;
}

bool Parser::holds_below(long double a, long double b) {
    bool chain = true;
    _less(chain, complex{static_cast<double>(a), 0.0}, complex{static_cast<double>(b), 0.0});
    return chain;
}

bool Parser::stop_requested() {
    return computation_hooks != nullptr && computation_hooks->stop_requested();
}

// The window messages that waited, and the Variables List showing the running variable.
void Parser::run_interface() {
    computation_hooks->pump_waiting_messages();
    computation_hooks->update_variable_list();
}

// The flag is read before the interface runs: a stop already pressed ends the loop at once.
bool Parser::application_check_stops() {
    if (computation_hooks == nullptr) return false;
    if (computation_hooks->stop_requested()) return true;
    run_interface();
    return false;
}

// The interface runs first, so a stop pressed during this very pump counts.
bool Parser::pump_then_stop_requested() {
    if (computation_hooks == nullptr) return false;
    run_interface();
    return computation_hooks->stop_requested();
}

}  // namespace quindar
