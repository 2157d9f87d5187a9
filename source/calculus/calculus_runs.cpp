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
#include "mapped_expression.h"

namespace quindar::calculus {
namespace {

constexpr double kImaginaryTolerance = 1e-14;
constexpr const char *kCircularFunctions[] = {"SIN",  "COS", "TAN", "ASIN", "ACOS",
                                              "ATAN", "COT", "CSC", "SEC"};

Outcome Failure(std::string text) {
    return Outcome{false, 0.0L, std::move(text)};
}

// An infinity or a NaN is no answer to a numeric computation: it is reported, not printed.
Outcome Finished(long double value, const std::string &expression) {
    if (std::isfinite(value)) return Outcome{true, value, {}};
    const char *text = std::isnan(value) ? "nan" : (value < 0 ? "-inf" : "inf");
    return Failure(Format(message(kNotFinite), expression, text));
}

// The variable must stand in the expression, and for a user function be one of its variables.
// Integration lets x, y and z pass unseen: the integral of "1" in x is allowed.
bool VariableMatches(Parser &parser, const std::string &expression, const std::string &variable,
                     bool freeAxes) {
    if (freeAxes && variable.size() == 1 && std::strchr("xXyYzZ", variable[0]) != nullptr)
        return true;
    if (expression.find(variable) == std::string::npos) return false;
    const int fn = parser.find_function(expression.c_str());
    if (fn < 0) return true;
    for (const char *name = parser.get_func_variable(fn, true); name != nullptr;
         name = parser.get_func_variable(fn, false))
        if (variable == name) return true;
    return false;
}

// A limit: an expression that may not hold its own variable, with a real value.
bool EvaluateLimit(Parser &parser, const std::string &text, const std::string &variable,
                   int imaginaryMessage, long double &value, std::string &error) {
    if (text.find_first_not_of(" \t") == std::string::npos) {
        error = message(kLimitMissing);
        return false;
    }
    parser.SetSilentMode(true);
    if (parser.find_token(text.c_str(), variable.c_str())) {
        error = Format(message(kLimitOfItsVariable), variable);
        return false;
    }
    complex result;
    parser.eval_exp(text.c_str(), result, true, false);
    if (parser.IsAnError()) {
        error = parser.GetLastError() ? parser.GetLastError() : "";
        parser.ClearLastError();
        return false;
    }
    if (parser.real_abs(result.imag) > kImaginaryTolerance) {
        error = message(imaginaryMessage);
        return false;
    }
    value = result.real;
    return true;
}

// Both ends of a range, the high one first as the pages read them.
bool EvaluateRange(Parser &parser, const std::string &lowText, const std::string &highText,
                   const std::string &variable, long double &low, long double &high,
                   std::string &error) {
    return EvaluateLimit(parser, highText, variable, kImaginaryLimit, high, error) &&
           EvaluateLimit(parser, lowText, variable, kImaginaryLimit, low, error);
}

std::string TakeError(Parser &parser) {
    std::string text = parser.GetLastError() ? parser.GetLastError() : "";
    parser.ClearLastError();
    return text;
}

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

// In degrees a derivative of a circular function would be off by the degree's factor, so the
// run refuses it: the first circular function in the text or in a user function it calls.
std::string FindCircularFunction(Parser &parser, const std::string &text, int depth = 0) {
    const std::string upper = Upper(text);
    for (const char *name : kCircularFunctions)
        if (parser.find_token(upper.c_str(), name)) return name;
    if (depth > 16) return {};
    std::string token;
    char type = 0;
    for (const char *rest = parser.get_token(text.c_str(), token, type); rest != nullptr;
         rest = parser.get_token(rest, token, type)) {
        if (type != kName || !parser.is_function(token.c_str())) continue;
        const char *body = parser.get_func_value(token.c_str());
        if (body == nullptr || std::string(body).find(token) != std::string::npos) continue;
        std::string found = FindCircularFunction(parser, body, depth + 1);
        if (!found.empty()) return found;
    }
    return {};
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
    return Finished(value, request.expression);
}

Outcome Differentiate(Parser &parser, const DerivativeRequest &request) {
    if (request.variable.empty()) return Failure(message(kNoDifferentiationVariable));
    if (parser.angle_mode == 0) {
        const std::string circular = FindCircularFunction(parser, request.expression);
        if (!circular.empty()) return Failure(Format(message(kDegreesTrigonometry), circular));
    }
    if (!VariableMatches(parser, request.expression, request.variable, false))
        return Failure(Format(message(kNotDifferentiable), request.expression, request.variable));
    if (parser.is_var_locked(request.variable.c_str()))
        return Failure(Format(message(kVariableLocked), request.variable));
    long double at = 0.0L;
    std::string error;
    if (!EvaluateLimit(parser, request.at, request.variable, kImaginaryDifferentiationLimit, at,
                       error))
        return Failure(error);
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
    return Finished(value, request.expression);
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
    return Finished(root, request.expression);
}

}  // namespace quindar::calculus
