// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// One run of a map on its fast road: literals, variables and the four operators in line,
// everything else through the instruction table.
#include "map_program.h"

#include <bit>

#include "equation.h"
#include "map_solver.h"
#include "name_index.h"
#include "parser.h"
#include "variable.h"

namespace quindar {

namespace {

bool same_bits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

const complex kNoVariable{};

// Part by part: a whole-record copy reads its parts in one wide load, which stalls until the
// separate stores that just wrote them have landed.
void copy_decimal(exact::Decimal &to, const exact::Decimal &from) {
    to.negative = from.negative;
    to.coefficient = from.coefficient;
    to.exponent = from.exponent;
}

}  // namespace

MapProgram::MapProgram(const Equation &map)
    : instruction_count_(map.instructions.size()),
      literal_count_(map.literals.size()),
      name_count_(map.names.size()) {
    // The instructions the program runs itself; every other one goes through the table.
    struct FastStep {
        Instruction op;
        Step step;
    };
    static constexpr FastStep kFastSteps[] = {
        {Instruction::Literal, Step::Literal},   {Instruction::Variable, Step::Variable},
        {Instruction::Add, Step::Add},           {Instruction::Subtract, Step::Subtract},
        {Instruction::Multiply, Step::Multiply}, {Instruction::Divide, Step::Divide},
        {Instruction::Negate, Step::Negate},     {Instruction::Sqrt, Step::Sqrt},
        {Instruction::End, Step::End},
    };
    steps_.reserve(map.instructions.size());
    for (const Instruction op : map.instructions) {
        Step step = Step::Other;
        for (const FastStep &fast : kFastSteps)
            if (fast.op == op) step = fast.step;
        steps_.push_back(step);
    }
    literals_.resize(map.literals.size());
    variables_.resize(map.instructions.size());
    exact_.reserve(16);
    stack_storage_.reserve(16);
}

bool MapProgram::fits(const Equation &map) const {
    return map.instructions.size() == instruction_count_ && map.literals.size() == literal_count_ &&
           map.names.size() == name_count_;
}

bool MapProgram::run(Parser &p, MapRun &run) {
    exact_.clear();
    const Instruction *ops = run.equation.instructions.data();
    for (std::size_t k = 0; k < steps_.size(); ++k) {
        bool goes_on = true;
        switch (steps_[k]) {
            case Step::Literal:
                push_literal(run);
                break;
            case Step::Variable:
                run.stack.push_back(variable_value(p, run, variables_[k]));
                exact_.emplace_back();
                break;
            case Step::End:
                break;
            case Step::Add:
            case Step::Subtract:
            case Step::Multiply:
            case Step::Divide:
                if (run.stack.size() < 2) {
                    if (!other(p, run, ops[k])) return false;
                    goes_on = !p.IsAnError();
                } else if (!exact_binary(run, steps_[k])) {
                    goes_on = worker_binary(p, run, steps_[k]);
                }
                break;
            case Step::Negate:
                if (run.stack.empty()) {
                    if (!other(p, run, ops[k])) return false;
                    goes_on = !p.IsAnError();
                } else {
                    negate(run);
                }
                break;
            case Step::Sqrt:
                if (run.stack.empty() || !exact_sqrt(run)) {
                    if (!other(p, run, ops[k])) return false;
                    goes_on = !p.IsAnError();
                }
                break;
            case Step::Other:
                if (!other(p, run, ops[k])) return false;
                goes_on = !p.IsAnError();
                break;
        }
        if (!goes_on) break;
    }
    if (!run.stack.empty()) settle(run, run.stack.size() - 1);
    return true;
}

void MapProgram::push_literal(MapRun &run) {
    const std::size_t index = run.literal;
    const complex value = run.next_literal();
    run.stack.push_back(value);
    // Written in place: a copied record would be read back before its parts are stored.
    Exact &state = exact_.emplace_back();
    if (index < literals_.size()) {
        // The form is made again only when the literal changed since it was made.
        Literal &literal = literals_[index];
        if (!literal.made || !same_bits(literal.value, value.real)) {
            literal.value = value.real;
            literal.exact = exact::operand(value.real, literal.operand);
            literal.made = true;
        }
        if (literal.exact && value.imag == 0) {
            state.operand = literal.operand;
            state.state = Exact::Known;
        }
    }
}

const complex &MapProgram::variable_value(Parser &p, MapRun &run, VariableSlot &cache) {
    const std::vector<std::string> &names = run.equation.names;
    if (run.name >= names.size()) return kNoVariable;
    const std::string &name = names[run.name++];
    DynArray<Variable, 10> &variables = p.variables;
    // Where the variable stood, while the list neither moved nor grew; the look-up would
    // find the same slot and leave the cursor on it.
    if (cache.slot >= 0 && cache.layout == variables.layout() && cache.count == variables.count() &&
        cache.slot < variables.size()) {
        if (const Variable *v = variables[cache.slot]; v != nullptr && same_name(v->name, name)) {
            variables.reset(cache.slot);
            return v->value;
        }
    }
    const int slot = p.find_variable(name.c_str());
    if (slot < 0) {
        cache.slot = -1;
        return kNoVariable;
    }
    cache = VariableSlot{variables.layout(), variables.count(), slot};
    return variables[slot]->value;
}

bool MapProgram::operand_of(MapRun &run, std::size_t k) {
    Exact &e = exact_[k];
    if (e.state != Exact::Unknown) return e.state != Exact::Inexact;
    const complex &v = run.stack[k];
    if (v.imag != 0) {
        e.state = Exact::Inexact;
        return false;
    }
    if (last_valid_ && same_bits(v.real, last_converted_)) {
        copy_decimal(e.operand, last_operand_);
    } else if (exact::operand(v.real, e.operand)) {
        last_converted_ = v.real;
        copy_decimal(last_operand_, e.operand);
        last_valid_ = true;
    } else {
        e.state = Exact::Inexact;
        return false;
    }
    e.state = Exact::Known;
    return true;
}

void MapProgram::settle(MapRun &run, std::size_t k) {
    Exact &e = exact_[k];
    if (e.state != Exact::Pending) return;
    // A pending result lies in the operand range, where its digits are always read.
    double value = 0;
    exact::value_of(e.result, value);
    run.stack[k] = complex{value, 0.0};
    e.state = Exact::Known;
}

void MapProgram::settle_all(MapRun &run) {
    for (std::size_t k = 0; k < run.stack.size(); ++k) settle(run, k);
}

bool MapProgram::exact_binary(MapRun &run, Step step) {
    const std::size_t b = run.stack.size() - 1, a = b - 1;
    if (!operand_of(run, a) || !operand_of(run, b)) return false;
    Exact &out = exact_[a];
    const exact::Decimal &x = out.operand, &y = exact_[b].operand;
    // Straight into the slot, unless a pending left operand must keep its digits for the
    // worker in case the decimals do not decide this result.
    exact::Decimal kept;
    exact::Decimal &r = out.state == Exact::Pending ? kept : out.result;
    bool decided = false;
    switch (step) {
        case Step::Add:
            decided = exact::add(x, y, r);
            break;
        case Step::Subtract:
            decided = exact::subtract(x, y, r);
            break;
        case Step::Multiply:
            decided = exact::multiply(x, y, r);
            break;
        default:
            decided = exact::divide(x, y, r);
            break;
    }
    if (!decided) return false;
    if (exact::operand_of_result(r, out.operand)) {
        if (&r != &out.result) copy_decimal(out.result, r);
        out.state = Exact::Pending;
    } else {
        // A tie, or a result beyond the operand range: its double decides what comes next.
        double value = 0;
        if (!exact::value_of(r, value)) return false;
        run.stack[a] = complex{value, 0.0};
        out.state = Exact::Unknown;
    }
    run.stack.pop_back();
    exact_.pop_back();
    return true;
}

bool MapProgram::exact_sqrt(MapRun &run) {
    const std::size_t k = run.stack.size() - 1;
    if (!operand_of(run, k)) return false;
    Exact &e = exact_[k];
    // The root of |x|, standing in the imaginary part for a negative x, as the worker has it.
    exact::Decimal magnitude, root;
    copy_decimal(magnitude, e.operand);
    const bool negative = magnitude.negative;
    magnitude.negative = false;
    if (!exact::square_root(magnitude, root)) return false;
    if (!negative && exact::operand_of_result(root, e.operand)) {
        copy_decimal(e.result, root);
        e.state = Exact::Pending;
        return true;
    }
    double value = 0;
    if (!exact::value_of(root, value)) return false;
    run.stack[k] = negative ? complex{0.0, value} : complex{value, 0.0};
    e.state = Exact::Unknown;
    return true;
}

bool MapProgram::worker_binary(Parser &p, MapRun &run, Step step) {
    const std::size_t b = run.stack.size() - 1, a = b - 1;
    settle(run, a);
    settle(run, b);
    const complex &x = run.stack[a], &y = run.stack[b];
    complex result;
    switch (step) {
        case Step::Add:
            result = p.complex_add(x, y);
            break;
        case Step::Subtract:
            result = p.complex_sub(x, y);
            break;
        case Step::Multiply:
            result = p.complex_mult(x, y);
            break;
        default:
            result = p.complex_div(x, y);
            break;
    }
    run.stack.pop_back();
    exact_.pop_back();
    run.stack[a] = result;
    exact_[a] = Exact{};
    return !p.IsAnError();
}

void MapProgram::negate(MapRun &run) {
    const std::size_t k = run.stack.size() - 1;
    // The sign goes on the double as the evaluator puts it, negative zeros included.
    settle(run, k);
    complex &v = run.stack[k];
    v = complex{-v.real, -v.imag};
    Exact &e = exact_[k];
    if (e.state == Exact::Known && e.operand.coefficient != 0)
        e.operand.negative = !e.operand.negative;
}

bool MapProgram::other(Parser &p, MapRun &run, Instruction op) {
    settle_all(run);
    const std::size_t before = run.stack.size();
    if (!MapSolver::execute(p, run, op)) return false;
    // The instruction replaced its operands by its value; what lies below them is unchanged.
    const MapInstructionRow *row = MapSolver::row(op);
    const std::size_t operands = row != nullptr ? row->operands : 0;
    const std::size_t first = before >= operands ? before - operands : 0;
    exact_.resize(run.stack.size());
    for (std::size_t k = first; k < exact_.size(); ++k) exact_[k] = Exact{};
    return true;
}

}  // namespace quindar
