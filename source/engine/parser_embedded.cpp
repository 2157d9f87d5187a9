// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The engine's side of the embedded tables: look-up by name and the call of a handler.
#include "embedded_calls.h"
#include "embedded_tables.h"
#include "map_solver.h"
#include "parser.h"

namespace quindar {

complex Parser::call_internal_function(int index, std::ostream &answer) {
    const EmbeddedCalls::Handler handler = EmbeddedCalls::handler(index);
    if (handler == nullptr) {
        mathlib_exception(29, index, nullptr);  // "not currently available"
        return complex{};
    }
    // The call leaves its instruction behind its parameters' code, so the map is postfix;
    // the form of the call picks the instruction among those of the function.
    const bool outer_took_list = call_took_list;
    call_took_list = false;
    const std::size_t recorded_before =
        mapping && current_equation != nullptr ? current_equation->instructions.size() : 0;
    const complex value = handler(*this, answer);
    if (mapping && current_equation != nullptr) {
        const bool no_values = current_equation->instructions.size() == recorded_before;
        if (const MapInstructionRow *row =
                MapSolver::row_for_call(index, call_took_list, no_values))
            record(row->op);
        if (call_took_list) record(Instruction::EndList);
    }
    call_took_list = outer_took_list;
    return value;
}

int Parser::internal_function(const char *name) const {
    return mathlib::function_index(name);
}

bool Parser::is_internal_function(const char *name) const {
    return internal_function(name) >= 0;
}

const char *Parser::get_function_name(int index) const {
    return index >= 0 && index < mathlib::kEmbeddedFunctionCount
               ? mathlib::kEmbeddedFunctions[index].name
               : nullptr;
}

int Parser::constant_index(const char *name) const {
    return mathlib::constant_index(name);
}

bool Parser::is_constant(const char *name) const {
    return constant_index(name) >= 0;
}

const char *Parser::get_constant_name(int index) const {
    return index >= 0 && index < mathlib::kConstantCount ? mathlib::kConstants[index].name : "";
}

long double Parser::get_constant_value(const char *name) const {
    const int index = constant_index(name);
    return index < 0 ? 0.0L : mathlib::kConstants[index].value;
}

}  // namespace quindar
