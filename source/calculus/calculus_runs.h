// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One computation of the calculus utilities on a document's engine: the expression is mapped
// once and the numeric method solves the map; limits and points are expressions, evaluated
// as text. Variables come back as they were; maps are deleted.

#include <string>

#include "parser.h"

namespace quindar::calculus {

struct Outcome {
    bool ok = false;
    long double value = 0.0L;
    std::string error;  // the message to show when not ok
};

struct IntegralRequest {
    std::string expression;
    std::string variable;
    std::string low, high;
    long double accuracy = 0.0001L;  // relative
};

struct DerivativeRequest {
    std::string expression;
    std::string variable;
    std::string at;
    int order = 1;            // 1, 2 or 3
    long double step = 0.1L;  // the starting step
};

struct RootRequest {
    std::string expression;
    std::string variable;
    std::string low, high;
    long double tolerance = 1e-15L;
    int max_iterations = 200;
};

// Reversed limits are swapped in silence; equal ones are refused.
Outcome Integrate(Parser &parser, const IntegralRequest &request);
Outcome Differentiate(Parser &parser, const DerivativeRequest &request);
// Fails when the ends do not bracket a change of sign.
Outcome FindRoot(Parser &parser, const RootRequest &request);

}  // namespace quindar::calculus
