// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The three runs: checks of the variable and limits, the map, the numeric method.
#include "calculus_runs.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstring>
#include <sstream>

#include "calculus_format.h"
#include "calculus_messages.h"
#include "circular_functions.h"
#include "limit_text.h"
#include "mapped_expression.h"
#include "variable_checks.h"

namespace quindar::calculus {
namespace {

Outcome Failure(std::string text) {
    return Outcome{false, 0.0L, std::move(text)};
}

// Both ends of a range, the high one first as the pages read them.
bool EvaluateRange(Parser &parser, const std::string &lowText, const std::string &highText,
                   const std::string &variable, long double &low, long double &high,
                   std::string &error) {
    const LimitRules rules{kLimitMissing, kImaginaryLimit, variable};
    LimitFailure failure;
    if (EvaluateLimit(parser, highText, rules, high, failure) &&
        EvaluateLimit(parser, lowText, rules, low, failure))
        return true;
    error = failure.text;
    return false;
}

}  // namespace

Outcome Integrate(Parser &parser, const IntegralRequest &request) {
    if (request.variable.empty()) return Failure(message(kNoVariable));
    if (!VariableMatches(parser, request.expression, request.variable, true))
        return Failure(Format(message(kNotAFunctionOf), request.expression, request.variable));
    long double low = 0.0L;
    long double high = 0.0L;
    std::string error;
    if (!EvaluateRange(parser, request.low, request.high, request.variable, low, high, error))
        return Failure(error);
    if (low == high) return Failure(message(kEqualXLimits));
    if (low > high) std::swap(low, high);
    MappedExpression mapped(parser, request.expression, request.variable, low, kAssignOrIntegrate);
    if (!mapped.ok()) return Failure(mapped.error_text());
    const long double value = parser.RombIntegrate(mapped.map(), mapped.variable_name(), low, high,
                                                   request.accuracy, true);
    if (parser.IsAnError()) return Failure(TakeError(parser));
    return Outcome{true, value, {}};
}

Outcome Differentiate(Parser &parser, const DerivativeRequest &request) {
    if (request.variable.empty()) return Failure(message(kNoDifferentiationVariable));
    if (parser.angle_mode == 0) {
        const std::string circular = FindCircularFunction(
            parser, request.expression, parser.find_function(request.expression.c_str()));
        if (!circular.empty()) return Failure(Format(message(kDegreesTrigonometry), circular));
    }
    if (!VariableMatches(parser, request.expression, request.variable, false))
        return Failure(Format(message(kNotDifferentiable), request.expression, request.variable));
    if (parser.is_var_locked(request.variable.c_str()))
        return Failure(Format(message(kVariableLocked), request.variable));
    long double at = 0.0L;
    LimitFailure failure;
    if (!EvaluateLimit(parser, request.at,
                       {kLimitMissing, kImaginaryDifferentiationLimit, request.variable}, at,
                       failure))
        return Failure(failure.text);
    MappedExpression mapped(parser, request.expression, request.variable, at,
                            kAssignOrDifferentiate);
    if (!mapped.ok()) return Failure(mapped.error_text());
    long double tolerance = 0.0001L;
    const long double value = parser.Derivative(mapped.map(), mapped.variable_name(), at,
                                                request.step, request.order, tolerance, true);
    if (parser.IsAnError()) {
        std::ostringstream point;
        complex atValue{static_cast<double>(at), 0.0};
        parser.stream_variable(atValue, point, 14);
        const int failed = kFirstDifferentialFailed + std::clamp(request.order, 1, 3) - 1;
        return Failure(Format(message(failed), request.variable, point.str(), TakeError(parser)));
    }
    return Outcome{true, value, {}};
}

Outcome FindRoot(Parser &parser, const RootRequest &request) {
    if (request.variable.empty() ||
        !VariableMatches(parser, request.expression, request.variable, false))
        return Failure(Format(message(kRootVariable), request.expression, request.variable));
    long double low = 0.0L;
    long double high = 0.0L;
    std::string error;
    if (!EvaluateRange(parser, request.low, request.high, request.variable, low, high, error))
        return Failure(error);
    MappedExpression mapped(parser, request.expression, request.variable, low, kAssignOrIntegrate);
    if (!mapped.ok()) return Failure(mapped.error_text());
    long double root = 0.0L;
    const bool bracketed = parser.Root(mapped.map(), mapped.variable_name(), low, high,
                                       request.tolerance, request.max_iterations, root);
    // A failed sample leaves its error; the search would have run on a meaningless value.
    if (parser.IsAnError()) return Failure(TakeError(parser));
    if (!bracketed)
        return Failure(
            Format(message(kNoSignChange), request.expression, request.low, request.high));
    return Outcome{true, root, {}};
}

}  // namespace quindar::calculus
