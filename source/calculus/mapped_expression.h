// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// An expression recorded once as an equation map of a document's engine, over one variable.
// The variable is declared for the length of the run when it does not exist, locked while the
// map lives, and given back its value and range on every way out.

#include <string>

#include "parser.h"
#include "run_map.h"
#include "run_variable.h"

namespace quindar::calculus {

class MappedExpression {
public:
    // Records `expression` with `variable` set to `start`. `assignMessage` is the text joined
    // behind the engine's own when the expression names something unknown.
    MappedExpression(Parser &parser, const std::string &expression, const std::string &variable,
                     long double start, int assignMessage);
    MappedExpression(const MappedExpression &) = delete;
    MappedExpression &operator=(const MappedExpression &) = delete;

    bool ok() const { return error.empty(); }
    const std::string &error_text() const { return error; }
    // The map's 1-based position in the engine's list.
    int map() const { return run_map.index(); }
    const char *variable_name() const { return variable.name().c_str(); }

private:
    // Declared first: the map goes before the variable is given back.
    RunVariable variable;
    RunMap run_map;
    std::string error;
};

}  // namespace quindar::calculus
