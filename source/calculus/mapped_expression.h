// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// An expression recorded once as an equation map of a document's engine, over one variable.
// The variable is declared for the length of the run when it does not exist, locked while the
// map lives, and given back its value and range on every way out.

#include <string>

#include "parser.h"

namespace quindar::calculus {

class MappedExpression {
public:
    // Records `expression` with `variable` set to `start`. `assignMessage` is the text joined
    // behind the engine's own when the expression names something unknown.
    MappedExpression(Parser &parser, const std::string &expression, const std::string &variable,
                     long double start, int assignMessage);
    ~MappedExpression();
    MappedExpression(const MappedExpression &) = delete;
    MappedExpression &operator=(const MappedExpression &) = delete;

    bool ok() const { return error.empty(); }
    const std::string &error_text() const { return error; }
    // The map's 1-based position in the engine's list.
    int map() const { return map_index; }
    const char *variable_name() const { return variable.c_str(); }

private:
    void restore_variable();

    Parser &parser;
    std::string variable;
    std::string error;
    int map_index = 0;
    bool declared = false;
    bool locked = false;
    complex saved_value;
    bool saved_incremented = false;
    complex saved_low, saved_high;
    long saved_points = 0;
};

}  // namespace quindar::calculus
