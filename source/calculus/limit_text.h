// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A limit typed as an expression: trimmed, not empty, not holding its own variable (so it may
// use the outer variables of a multiple integral), with a real value.

#include <string>

#include "parser.h"

namespace quindar::calculus {

struct LimitFailure {
    int id = 0;  // 0: the engine's own text
    std::string text;
};

struct LimitRules {
    int missing = 0;          // the message of an empty text
    int imaginary = 0;        // the message of a value off the real axis
    std::string ownVariable;  // the variable the limit may not hold; empty: any
};

std::string Trimmed(const std::string &text);
// The engine's last error text, which is then cleared.
std::string TakeError(Parser &parser);

bool EvaluateLimit(Parser &parser, const std::string &text, const LimitRules &rules,
                   long double &value, LimitFailure &failure);

}  // namespace quindar::calculus
