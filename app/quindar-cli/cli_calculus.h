// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The numeric options of quindar-cli: an integral, a derivative or a root of an expression,
// computed on the engine of the document given (or of an empty one).

#include <optional>
#include <string>
#include <vector>

#include "parser.h"

namespace quindar::cli {

enum class CalculusKind { Integrate, Derivative, Root, Differentiate };

struct CalculusOptions {
    CalculusKind kind = CalculusKind::Integrate;
    std::vector<std::string> operands;  // EXPR VAR and the limits or the point
    std::optional<std::string> accuracy, order, step, precision, slider, columns;
};

// The option's name ("--integrate") and the number of operands it takes, or 0 when the
// argument names no numeric option.
int CalculusOperandCount(const std::string &argument, CalculusKind &kind);

// The operands of an integral's second and third variable that follow the first four at
// `next`: three for each axis whose variable and limits stand there before any option, and
// not counting a last lone argument, which is the FILE.
int ExtraIntegralOperands(const std::vector<std::string> &arguments, std::size_t next);

// Runs the computation and writes the value to out (a line each), or the reason it failed to
// error. A table that fails at a point keeps the rows before in out.
// The exit status: 0 done, 1 the computation failed, 2 an option's value is wrong.
int RunCalculus(Parser &parser, const CalculusOptions &options, std::string &out,
                std::string &error);

}  // namespace quindar::cli
