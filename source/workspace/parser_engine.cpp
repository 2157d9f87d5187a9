// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "editor_engine.h"
#include "parser.h"

namespace quindar {

const char *ParserEngine::eval_exp(const char *statement, bool silent, bool showEquals) {
    return parser.eval_exp(statement, silent, showEquals);
}

bool ParserEngine::IsAnError() const {
    return parser.IsAnError();
}

void ParserEngine::ClearLastError() {
    parser.ClearLastError();
}

bool ParserEngine::is_variable(const std::string &name) const {
    return parser.is_variable(name.c_str());
}

bool ParserEngine::assignment_made() const {
    return parser.assignment_made;
}

bool ParserEngine::function_declared() const {
    return parser.function_declared;
}

}  // namespace quindar
