// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The maps of an engine by position, and the map solver: one pass over a map's
// instructions on a stack of values, with no text read.
#include <new>

#include "evaluation_abort.h"
#include "map_program.h"
#include "map_solver.h"
#include "mapm_complex.h"
#include "parser.h"
#include "parser_messages.h"

namespace quindar {

namespace {

constexpr int kNotMapped = 1, kUnrecognized = 5, kInvalidEquation = 19;

// The solving state of one run: set on entry, and on every way out the solving flag is
// cleared and the decimal layer stopped, whether the run ended, failed a test or returned
// early.
class SolvingRun {
public:
    explicit SolvingRun(Parser &parser, bool &mapRun) : parser_(parser), map_run_(mapRun) {
        m_apmc_init();
        outer_ = map_run_;
        map_run_ = true;
    }
    ~SolvingRun() {
        parser_.SetSolvingMap(false);
        map_run_ = outer_;
        m_apmc_done();
    }
    SolvingRun(const SolvingRun &) = delete;
    SolvingRun &operator=(const SolvingRun &) = delete;

private:
    Parser &parser_;
    bool &map_run_;
    bool outer_ = false;
};

// The run's stack borrows the program's storage and gives it back emptied, so a run allocates
// nothing once the program has seen its deepest stack.
class StackLoan {
public:
    StackLoan(std::vector<complex> &stack, std::vector<complex> &storage)
        : stack_(stack), storage_(storage) {
        stack_.swap(storage_);
        stack_.clear();
    }
    ~StackLoan() { stack_.swap(storage_); }
    StackLoan(const StackLoan &) = delete;
    StackLoan &operator=(const StackLoan &) = delete;

private:
    std::vector<complex> &stack_;
    std::vector<complex> &storage_;
};

}  // namespace

Equation *Parser::equation_at(int n) const {
    if (n < 1 || n > equations.count()) return nullptr;
    Equation *map = equations.gethead();
    for (int k = 1; k < n && map != nullptr; ++k) map = map->next;
    return map;
}

void Parser::delete_equation(int n) {
    if (n < 1) return;
    if (n > equations.count()) {
        parser_exception(kInvalidEquation);
        return;
    }
    Equation *map = equation_at(n);
    if (map == nullptr) {
        if (!silent)
            show_message(&message_hook_storage, messages::kMapNotDeleted,
                         messages::kEquationMapperCaption);
        return;
    }
    if (current_equation == map) current_equation = nullptr;
    equations.del(map);
}

void Parser::mapper_exception(int number, bool silentMode) {
    const char *text = messages::mapper_error(number);
    SetLastError(text, number);
    if (!silentMode) show_message(&message_hook_storage, text, messages::kSolverCaption);
    SetSolvingMap(false);
}

complex Parser::solve_equation(int map, bool /*restart*/, bool silentMode) {
    SolvingRun run_state(*this, map_run);
    silent = silentMode;
    ClearLastError();
    if (map != 0) {
        Equation *chosen = equation_at(map);
        if (chosen == nullptr) {
            mapper_exception(kNotMapped, silent);
            return complex{};
        }
        current_equation = chosen;
    }
    if (current_equation == nullptr) {
        mapper_exception(kNotMapped, silent);
        return complex{};
    }
    Equation &equation = *current_equation;
    // A map whose recording failed has no end and must not run.
    if (!equation.complete()) {
        mapper_exception(kUnrecognized, silent);
        return complex{};
    }
    equation.clear_data();
    MapProgram &program = equation.program();
    MapRun run(equation);
    const StackLoan loan(run.stack, program.stack_storage());
    SetSolvingMap(true);
    try {
        // A failed parameter test or a mapper error of the run returns 0 at once; a worker
        // that raised leaves its value on the top, as the run's result.
        if (!program.run(*this, run)) return complex{};
    } catch (const EvaluationAbort &) {
        // Only the containers can still jump here; their message is stored already.
        if (!IsAnError()) SetLastError(nullptr, -1);
    } catch (const std::bad_alloc &) {
        SetLastError(messages::parser_error(0), 0);
    }
    return run.stack.empty() ? complex{} : run.stack.back();
}

}  // namespace quindar
