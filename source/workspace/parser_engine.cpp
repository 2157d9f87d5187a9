// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "editor_engine.h"
#include "parser.h"

namespace quindar {
namespace {

// The engine answers for variable names once its look-up is public; until then no name is
// a variable, and a plain name on the left of "=" is still told apart by its characters.
template <class Engine>
bool knows_variable(const Engine &engine, const char *name) {
    if constexpr (requires { engine.is_variable(name); })
        return engine.is_variable(name);
    else
        return false;
}

}  // namespace

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
    return knows_variable(parser, name.c_str());
}

bool ParserEngine::assignment_made() const {
    return parser.assignment_made;
}

bool ParserEngine::function_declared() const {
    return parser.function_declared;
}

}  // namespace quindar
