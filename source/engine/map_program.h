// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The fast road of the map solver. A map is read once into a program whose literals already
// carry their 14-digit decimal forms and whose names remember where their variable was found.
// Running it keeps each real value of the stack in the decimal form the next operator takes,
// so a chain of + - * / goes from integers to integers and reads a double only where someone
// needs one. Every other instruction runs through the instruction table as before, on the
// same stack, so what a map gives does not change by a bit.

#include <cstdint>
#include <vector>

#include "complex.h"
#include "equation.h"
#include "exact_arithmetic.h"

namespace quindar {

class Parser;
struct MapRun;

class MapProgram {
public:
    explicit MapProgram(const Equation &map);

    // True while the map still has the shape the program was read from.
    bool fits(const Equation &map) const;
    // Runs the map on `run`. False when the run is to return 0 (a failed parameter test, a
    // mapper error); otherwise the result is the top of the stack, or 0 on an empty one.
    bool run(Parser &p, MapRun &run);
    // Storage the runs lend their stacks, so that a run allocates nothing.
    std::vector<complex> &stack_storage() { return stack_storage_; }

private:
    enum class Step : std::uint8_t {
        Literal,
        Variable,
        Add,
        Subtract,
        Multiply,
        Divide,
        Negate,
        End,
        Sqrt,
        Other
    };
    // A literal's 14-digit form, made again only when the literal changes.
    struct Literal {
        double value = 0;
        exact::Decimal operand;
        bool exact = false;
        bool made = false;
    };
    // Where a name's variable was last found, and in which state of the variables.
    struct VariableSlot {
        std::uint64_t layout = 0;
        int count = 0;
        int slot = -1;
    };
    // What the program knows of a stack value beyond its double.
    struct Exact {
        enum State : std::uint8_t {
            Pending,  // a result whose double is not read yet; `operand` holds
            Known,    // the double and `operand` hold
            Unknown,  // the double holds; `operand` is not made yet
            Inexact,  // no decimal form: complex, or beyond what integers decide
        };
        exact::Decimal result;
        exact::Decimal operand;
        State state = Unknown;
    };

    void push_literal(MapRun &run);
    // The value of the variable the next name stands for, 0 for none, as the table reads it.
    const complex &variable_value(Parser &p, MapRun &run, VariableSlot &cache);
    bool operand_of(MapRun &run, std::size_t k);
    void settle(MapRun &run, std::size_t k);
    void settle_all(MapRun &run);
    // The result of an operator from its operands' decimals; false where the decimals do not
    // decide it and the operator's worker must run.
    bool exact_binary(MapRun &run, Step step);
    // The square root from the operand's decimal; false where the worker must run.
    bool exact_sqrt(MapRun &run);
    // The operator's worker on the doubles; false when it raised.
    bool worker_binary(Parser &p, MapRun &run, Step step);
    void negate(MapRun &run);
    // An instruction through the table; false when the run is to return 0.
    bool other(Parser &p, MapRun &run, Instruction op);

    std::size_t instruction_count_, literal_count_, name_count_;
    std::vector<Step> steps_;
    std::vector<Literal> literals_;
    std::vector<VariableSlot> variables_;  // by step
    std::vector<Exact> exact_;             // beside the stack, slot for slot
    std::vector<complex> stack_storage_;
    // The last double given a decimal form: a variable read twice is converted once.
    double last_converted_ = 0;
    exact::Decimal last_operand_;
    bool last_valid_ = false;
};

}  // namespace quindar
