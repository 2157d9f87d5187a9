// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The instruction table by number, the choice of a call's instruction, and the step of one
// instruction on the solver's stack.
#include "map_solver.h"

#include <array>
#include <cstring>

#include "embedded_tables.h"
#include "parser.h"

namespace quindar {

namespace {
constexpr int kUnrecognized = 5, kNotAvailable = 29;
}  // namespace

// Every row once, with the rows by instruction number and the function index of each.
struct MapTableBuilder {
    std::vector<MapInstructionRow> rows;
    std::array<const MapInstructionRow *, 256> by_op{};
    std::array<int, 256> function_of{};

    MapTableBuilder() {
        MapSolver::append_general_rows(rows);
        MapSolver::append_statistics_rows(rows);
        function_of.fill(-1);
        for (const MapInstructionRow &row : rows) {
            const auto op = static_cast<std::size_t>(row.op);
            // An operator and a function may share an instruction (^ and POW): the first
            // row is the one that runs.
            if (by_op[op] != nullptr) continue;
            by_op[op] = &row;
            function_of[op] = row.function ? mathlib::function_index(row.function) : -1;
        }
    }
};

namespace {

const MapTableBuilder &table() {
    static const MapTableBuilder built;
    return built;
}

}  // namespace

const MapInstructionRow *MapSolver::row(Instruction op) {
    return table().by_op[static_cast<std::size_t>(op)];
}

const MapInstructionRow *MapSolver::row_for_call(int fn, bool tookList, bool noValues) {
    const char *name = fn >= 0 && fn < mathlib::kEmbeddedFunctionCount
                           ? mathlib::kEmbeddedFunctions[fn].name
                           : nullptr;
    if (name == nullptr) return nullptr;
    const MapForm wanted =
        tookList ? MapForm::List : (noValues ? MapForm::NoValues : MapForm::Values);
    const MapInstructionRow *fallback = nullptr;
    for (const MapInstructionRow &row : table().rows) {
        if (row.function == nullptr || std::strcmp(row.function, name) != 0) continue;
        if (row.form == MapForm::SelfRecorded) return nullptr;
        if (row.form == wanted) return &row;
        // A function with one form records it however it was called.
        if (fallback == nullptr && row.form != MapForm::NoValues) fallback = &row;
    }
    return fallback;
}

bool MapSolver::execute(Parser &p, MapRun &run, Instruction op) {
    const auto number = static_cast<std::size_t>(op);
    const MapInstructionRow *step = table().by_op[number];
    // Assignments and the start of a comparison read the top and leave it.
    const bool reads_top = (op >= Instruction::AssignValue && op <= Instruction::AssignPoints) ||
                           op == Instruction::StartComparison;
    if (step == nullptr || run.stack.size() < step->operands || (reads_top && run.stack.empty())) {
        p.mapper_exception(kUnrecognized, p.silent);
        return false;
    }
    run.fn = table().function_of[number];
    const complex *operands = run.stack.data() + (run.stack.size() - step->operands);
    if (step->check != nullptr && step->check(p, run.fn, operands)) return false;
    if (step->worker == nullptr) {
        p.mathlib_exception(kNotAvailable, run.fn, nullptr);
        return false;
    }
    const complex result = step->worker(p, run, operands);
    if (run.stop) return false;
    run.stack.resize(run.stack.size() - step->operands);
    if (step->yields) run.stack.push_back(result);
    return true;
}

}  // namespace quindar
