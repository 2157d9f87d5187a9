// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The variable table of a document and the line form `name = value` or
// `name = low, high, points`.
#include <algorithm>
#include <cstring>
#include <sstream>

#include "number_text.h"
#include "parser.h"
#include "parser_messages.h"

namespace quindar {

Variable *Parser::variable_at(int index) {
    if (index == -1) index = variables.index();
    if (index < 0 || index >= variables.size()) return nullptr;
    return variables[index];
}

Variable *Parser::variable_named(const char *name) {
    if (name == nullptr) return variable_at(-1);
    const int index = find_variable(name);
    return index < 0 ? nullptr : variables[index];
}

int Parser::find_variable(const char *name) {
    if (name == nullptr || *name == '\0') return -1;
    const int index = variable_index.find(variables, name);
    if (index >= 0) variables.reset(index);
    return index;
}

int Parser::max_var_length() {
    std::size_t longest = 0;
    variables.resetfirst();
    for (int i = 0; i < variables.size(); ++i)
        if (const Variable *v = variables[i]) longest = std::max(longest, v->name.size());
    return static_cast<int>(longest);
}

bool Parser::is_variable(const char *name) {
    return find_variable(name) >= 0;
}
bool Parser::is_variable(int index) {
    return variable_at(index) != nullptr;
}

bool Parser::var_assigned(const char *name) {
    const Variable *v = variable_named(name);
    return v != nullptr && v->assigned;
}
bool Parser::var_assigned(int index) {
    const Variable *v = variable_at(index);
    return v != nullptr && v->assigned;
}

bool Parser::var_incremented(const char *name) {
    const Variable *v = variable_named(name);
    return v != nullptr && v->incremented;
}
bool Parser::var_incremented(int index) {
    const Variable *v = variable_at(index);
    return v != nullptr && v->incremented;
}

complex Parser::get_var_lowlimit(const char *name) {
    const Variable *v = variable_named(name);
    return v ? v->low_limit : complex{};
}
complex Parser::get_var_lowlimit(int index) {
    const Variable *v = variable_at(index);
    return v ? v->low_limit : complex{};
}
complex Parser::get_var_hilimit(const char *name) {
    const Variable *v = variable_named(name);
    return v ? v->high_limit : complex{};
}
complex Parser::get_var_hilimit(int index) {
    const Variable *v = variable_at(index);
    return v ? v->high_limit : complex{};
}
complex Parser::get_var_increment(const char *name) {
    const Variable *v = variable_named(name);
    return v ? v->increment : complex{};
}
complex Parser::get_var_increment(int index) {
    const Variable *v = variable_at(index);
    return v ? v->increment : complex{};
}

void Parser::set_var_lowlimit(complex limit, const char *name) {
    if (Variable *v = variable_named(name)) v->SetVarLowLimit(limit);
}
void Parser::set_var_hilimit(complex limit, const char *name) {
    if (Variable *v = variable_named(name)) v->SetVarHiLimit(limit);
}

long Parser::get_var_numpoints(const char *name) {
    const Variable *v = variable_named(name);
    return v ? v->num_points : 0;
}
long Parser::get_var_numpoints(int index) {
    const Variable *v = variable_at(index);
    return v ? v->num_points : 0;
}
void Parser::set_var_numpoints(long points, const char *name) {
    if (Variable *v = variable_named(name)) v->SetVarNumPoints(points);
}

complex Parser::get_var_value(const char *name) {
    const Variable *v = variable_named(name);
    return v ? v->value : complex{};
}
const char *Parser::get_var_value(int index, int precision) {
    Variable *v = variable_at(index);
    return v ? v->GetVarValueStr(precision, false) : nullptr;
}
const char *Parser::get_var_value(const char *name, int precision) {
    Variable *v = variable_named(name);
    return v ? v->GetVarValueStr(precision, false) : nullptr;
}

// The value changes; limits and the range stay as they are.
void Parser::set_var_value(complex value, const char *name) {
    if (Variable *v = variable_named(name)) {
        v->value = value;
        v->assigned = true;
    }
}

bool Parser::is_var_locked(const char *name) {
    const Variable *v = variable_named(name);
    return v != nullptr && v->locked;
}
void Parser::set_var_lock(const char *name, bool lock) {
    if (Variable *v = variable_named(name)) v->locked = lock;
}

const char *Parser::get_var_inc_str_value(int index, int precision) {
    Variable *v = variable_at(index);
    return v ? v->GetVarIncValueStr(precision) : nullptr;
}

const char *Parser::variable_text_of(Variable *variable, int precision, bool definition) {
    if (variable == nullptr) return nullptr;
    std::ostringstream stream;
    init_number_stream(stream, *variable_format);
    if (definition)
        variable->GetVarDefStr(stream, precision, show_incrementals);
    else
        variable->GetVarValueStr(stream, precision, show_incrementals);
    variable_text = stream.str();
    return variable_text.c_str();
}

const char *Parser::get_var_str_value(const char *name, int precision, bool definition) {
    return variable_text_of(variable_named(name), precision, definition);
}
const char *Parser::get_var_str_value(int index, int precision, bool definition) {
    return variable_text_of(variable_at(index), precision, definition);
}

const char *Parser::get_var_str(int index, int precision, bool definition) {
    Variable *v = variable_at(index);
    if (v == nullptr) return nullptr;
    const std::string value = variable_text_of(v, precision, definition);
    variable_text = v->name + " = " + value;
    return variable_text.c_str();
}

int Parser::get_var_str_value_len(int index, int precision, bool definition) {
    const char *text = get_var_str(index, precision, definition);
    return text == nullptr || *text == '\0' ? 0 : static_cast<int>(std::strlen(text)) + 1;
}

const char *Parser::get_var_name(int index) {
    const Variable *v = variable_at(index);
    return v ? v->name.c_str() : nullptr;
}

// "2 (1,10,5,2.25)" reads back as "1,10,5": the definition of an incremental variable.
std::string Parser::get_var_dec_value(const char *text) {
    if (text == nullptr) return {};
    std::string result = text;
    const auto open = result.rfind('(');
    if (open == std::string::npos) return result;
    result.erase(0, open + 1);
    const auto comma = result.rfind(',');
    if (comma != std::string::npos) result.erase(comma);
    return result;
}

void Parser::switch_vars(int a, int b) {
    variables.switcher(a, b);
}
void Parser::move_var(int from, int to) {
    variables.move(from, to);
}

bool Parser::delete_variable(int index) {
    vars_saved = false;
    return variables.remove(index);
}

void Parser::delete_all_vars() {
    if (variables.count() > 0) vars_saved = false;
    variables.flush();
}

void Parser::declare_unassigned_variable(const char *name) {
    if (find_variable(name) < 0) variables.add(new Variable(name, complex{}, false));
}

void Parser::declare_variable(complex &value, std::ostream &answer, const char *name) {
    const char *rest = prog;
    while (*rest == ' ' || *rest == '\t') ++rest;
    if (*rest == '\0') parser_exception(7);
    bool plain_number = is_number(rest);
    const std::string variable_name = name;
    get_token();
    eval_exp1(value, answer);
    declare_unassigned_variable(variable_name.c_str());
    record(Instruction::DeclareVariable, {}, variable_name.c_str());
    if (!token_is(',')) {
        set_var_value(value, variable_name.c_str());
        record(Instruction::AssignValue, value, variable_name.c_str());
    } else {
        set_var_lowlimit(value, variable_name.c_str());
        record(Instruction::AssignLowLimit, value, variable_name.c_str());
        get_token();
        eval_exp1(value, answer);
        if (!token_is(',')) special_exception(messages::kCommaExpected, variable_name.c_str());
        set_var_hilimit(value, variable_name.c_str());
        record(Instruction::AssignHighLimit, value, variable_name.c_str());
        if (get_var_lowlimit(variable_name.c_str()) == get_var_hilimit(variable_name.c_str()))
            special_exception(messages::kEqualLimits, variable_name.c_str());
        get_token();
        eval_exp1(value, answer);
        if (value.imag != 0 || !is_integer(value.real))
            special_exception(messages::kPointsNotInteger, variable_name.c_str());
        set_var_numpoints(points_from_value(value.real), variable_name.c_str());
        record(Instruction::AssignPoints, value, variable_name.c_str());
        plain_number = true;
    }
    assignment_made = true;
    if (plain_number) answer << "FLAG";
}

}  // namespace quindar
