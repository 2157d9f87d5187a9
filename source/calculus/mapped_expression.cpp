// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Recording a run's map over its one variable.
#include "mapped_expression.h"

#include "calculus_format.h"
#include "calculus_messages.h"

namespace quindar::calculus {

MappedExpression::MappedExpression(Parser &parser, const std::string &expression,
                                   const std::string &variableName, long double start,
                                   int assignMessage)
    : variable(parser, variableName), run_map(parser) {
    if (!variable.take()) {
        error = Format(message(kVariableNotDefined), variableName);
        return;
    }
    variable.set(start);
    if (run_map.build(expression, assignMessage, error)) variable.lock();
}

}  // namespace quindar::calculus
