// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The instruction table of equation maps, shared by recording (which instruction a call of
// an embedded function leaves) and by the map solver (what each instruction does).

#include <cstdint>
#include <string>
#include <vector>

#include "complex.h"
#include "equation.h"

namespace quindar {

class Parser;

// The state of one solve: the value stack, the cursors of the literals and names, and the
// comparison chains in progress, innermost last.
struct MapRun {
    struct Chain {
        complex left;
        bool holds = true;
    };

    explicit MapRun(Equation &map) : equation(map) {}

    const char *next_name() {
        return name < equation.names.size() ? equation.names[name++].c_str() : "";
    }
    complex next_literal() {
        return literal < equation.literals.size() ? equation.literals[literal++] : complex{};
    }
    // The data list of the innermost list function, or null outside any.
    DynArray<long double, 10> *current_list() {
        const int level = equation.list_level;
        return level >= 0 && level < kMapDataLists ? &equation.data_lists[level] : nullptr;
    }

    Equation &equation;
    std::vector<complex> stack;
    std::size_t literal = 0, name = 0;
    std::vector<Chain> chains;
    int fn = -1;        // function index of the instruction that runs
    bool stop = false;  // the run returns at once (failed test, mapper error)
};

// What an instruction computes from its operands (the top `operands` values of the stack,
// deepest first). Instructions without a value act through the run and return nothing.
using MapWorker = complex (*)(Parser &, MapRun &, const complex *operands);
// A test of the parameters that the solver repeats at each run, because a variable may have
// changed since the handler tested them. True when it failed and has raised.
using MapCheck = bool (*)(Parser &, int fn, const complex *operands);

// Which call of a function an instruction stands for.
enum class MapForm : std::uint8_t {
    Values,        // parameters as values
    NoValues,      // called with no parameters
    List,          // a data list first
    SelfRecorded,  // the handler records between its parameters
    Language,      // not a function: operators, operands, declarations, lists
};

struct MapInstructionRow {
    Instruction op;
    const char *function;  // the embedded function, upper case; null for the language's own
    std::uint8_t operands;
    bool yields;  // leaves a value on the stack
    MapForm form;
    MapWorker worker;  // null: the function has not arrived yet
    MapCheck check;    // null: nothing to test
};

class MapSolver {
public:
    // The row of instruction `op`, or null when no instruction has that number.
    static const MapInstructionRow *row(Instruction op);
    // The instruction a call of function `fn` leaves in a map: the form it was called in
    // decides among the rows of the function. Null for a function that records itself.
    static const MapInstructionRow *row_for_call(int fn, bool tookList, bool noValues);
    // Runs one instruction; false when the run is to end.
    static bool execute(Parser &p, MapRun &run, Instruction op);

private:
    friend struct MapTableBuilder;
    static void append_general_rows(std::vector<MapInstructionRow> &rows);
    static void append_statistics_rows(std::vector<MapInstructionRow> &rows);
};

}  // namespace quindar
