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

enum class CalculusKind { Integrate, Derivative, Root };

struct CalculusOptions {
    CalculusKind kind = CalculusKind::Integrate;
    std::vector<std::string> operands;  // EXPR VAR and the limits or the point
    std::optional<std::string> accuracy, order, step, precision;
};

// The option's name ("--integrate") and the number of operands it takes, or 0 when the
// argument names no numeric option.
int CalculusOperandCount(const std::string &argument, CalculusKind &kind);

// Runs the computation and writes the value to out, or the reason it failed to error.
// The exit status: 0 done, 1 the computation failed, 2 an option's value is wrong.
int RunCalculus(Parser &parser, const CalculusOptions &options, std::string &out,
                std::string &error);

}  // namespace quindar::cli
