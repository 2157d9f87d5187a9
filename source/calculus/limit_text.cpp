// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Evaluating a limit's text.
#include "limit_text.h"

#include "calculus_format.h"
#include "calculus_messages.h"

namespace quindar::calculus {

namespace {
constexpr double kImaginaryTolerance = 1e-14;
}  // namespace

std::string TakeError(Parser &parser) {
    std::string text = parser.GetLastError() ? parser.GetLastError() : "";
    parser.ClearLastError();
    return text;
}

std::string Trimmed(const std::string &text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

bool EvaluateLimit(Parser &parser, const std::string &text, const LimitRules &rules,
                   long double &value, LimitFailure &failure) {
    const std::string limit = Trimmed(text);
    if (limit.empty()) {
        failure = {rules.missing, message(rules.missing)};
        return false;
    }
    parser.SetSilentMode(true);
    if (!rules.ownVariable.empty()) {
        const bool holdsItself = parser.find_token(limit.c_str(), rules.ownVariable.c_str(), 1);
        if (parser.IsAnError()) {
            failure = {0, TakeError(parser)};
            return false;
        }
        if (holdsItself) {
            failure = {kLimitOfItsVariable,
                       Format(message(kLimitOfItsVariable), rules.ownVariable)};
            return false;
        }
    }
    complex result;
    parser.eval_exp(limit.c_str(), result, true, false);
    if (parser.IsAnError()) {
        failure = {0, TakeError(parser)};
        return false;
    }
    if (parser.real_abs(result.imag) > kImaginaryTolerance) {
        failure = {rules.imaginary, message(rules.imaginary)};
        return false;
    }
    value = result.real;
    return true;
}

}  // namespace quindar::calculus
