// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The user-function table of a document.
#include <algorithm>
#include <cstring>

#include "parser.h"

namespace quindar {

namespace {

bool holds_call_brackets(const char *name) {
    return (std::strchr(name, '[') || std::strchr(name, '(')) &&
           (std::strchr(name, ']') || std::strchr(name, ')'));
}

std::string with_round_brackets(std::string text) {
    Parser::replace_brackets(text.data(), 0);
    return text;
}

}  // namespace

Function *Parser::function_at(int index) {
    if (index == -1) index = functions.index();
    if (index < 0 || index >= functions.size()) return nullptr;
    return functions[index];
}

Function *Parser::function_named(const char *name) {
    if (name == nullptr) return function_at(-1);
    const int index = find_function(name);
    return index < 0 ? nullptr : functions[index];
}

void Parser::add_new_function(const char *fullName, const char *value) {
    functions.add(new Function(fullName, value));
}

// A name with brackets is compared with the full names (parentheses read as square
// brackets), any other name with the short names. Exact: f and F are two functions.
int Parser::find_function(const char *name) {
    if (name == nullptr || *name == '\0') return -1;
    const bool full = holds_call_brackets(name);
    std::string wanted = name;
    if (full) replace_brackets(wanted.data(), 1);
    const int index = full ? function_full_index.find(functions, wanted)
                           : function_short_index.find(functions, wanted);
    if (index >= 0) functions.reset(index);
    return index;
}

bool Parser::user_function_full_name(const char *name, std::string &fullName) {
    const Function *f = function_named(name);
    if (f == nullptr || name == nullptr) return false;
    fullName = f->full_name;
    return true;
}

int Parser::max_func_length() {
    std::size_t longest = 0;
    for (int i = 0; i < functions.size(); ++i)
        if (const Function *f = functions[i]) longest = std::max(longest, f->full_name.size());
    return static_cast<int>(longest);
}

bool Parser::is_function(const char *name) {
    return find_function(name) >= 0;
}
bool Parser::is_function(int index) {
    return function_at(index) != nullptr;
}

bool Parser::is_func_variable(const char *shortName, const char *variable) {
    const Function *f = function_named(shortName);
    return f != nullptr && f->IsFuncVariable(variable);
}

int Parser::get_num_func_vars(int index) {
    const Function *f = function_at(index);
    return f ? f->num_vars : 0;
}

const char *Parser::get_func_name(int index) {
    const Function *f = function_at(index);
    return f ? f->full_name.c_str() : nullptr;
}
const char *Parser::get_func_short_name(int index) {
    const Function *f = function_at(index);
    return f ? f->short_name.c_str() : nullptr;
}
const char *Parser::get_func_value(const char *name) {
    const Function *f = function_named(name);
    return f ? f->func_value.c_str() : nullptr;
}
const char *Parser::get_func_value(int index) {
    const Function *f = function_at(index);
    return f ? f->func_value.c_str() : nullptr;
}
const char *Parser::get_func_name_value(int index) {
    Function *f = function_at(index);
    return f ? f->GetFuncFullNameAndValue() : nullptr;
}
const char *Parser::get_func_modvalue(const char *name) {
    const Function *f = function_named(name);
    return f ? f->mod_value.c_str() : nullptr;
}
const char *Parser::get_func_modvalue(int index) {
    const Function *f = function_at(index);
    return f ? f->mod_value.c_str() : nullptr;
}

void Parser::set_func_value(const char *value, const char *name) {
    if (Function *f = function_named(name)) f->SetFuncValue(value);
}
void Parser::modify_func_value(int k, const char *text, const char *name) {
    if (Function *f = function_named(name)) f->ModFuncValue(k, text);
}
void Parser::modify_func_value(int k, const char *text, int index) {
    if (Function *f = function_at(index)) f->ModFuncValue(k, text);
}
void Parser::reset_func_modvalue(int index) {
    if (Function *f = function_at(index)) f->ResetModFuncValue();
}

const char *Parser::get_func_variable(const char *name, bool first) {
    Function *f = function_named(name);
    return f ? f->GetFuncVariable(first) : nullptr;
}
const char *Parser::get_func_variable(int index, bool first) {
    Function *f = function_at(index);
    return f ? f->GetFuncVariable(first) : nullptr;
}
void Parser::set_func_variables(const char *variables, const char *name) {
    if (Function *f = function_named(name)) f->SetFuncVariables(variables);
}

const char *Parser::get_func_str(int index) {
    const Function *f = function_at(index);
    if (f == nullptr) return nullptr;
    function_text = f->full_name + " = " + f->func_value;
    return function_text.c_str();
}
const char *Parser::get_func_name_ex(int index) {
    const Function *f = function_at(index);
    if (f == nullptr) return nullptr;
    function_text_ex = with_round_brackets(f->full_name);
    return function_text_ex.c_str();
}
const char *Parser::get_func_value_ex(const char *name) {
    const Function *f = function_named(name);
    if (f == nullptr) return nullptr;
    function_text_ex = with_round_brackets(f->func_value);
    return function_text_ex.c_str();
}
const char *Parser::get_func_str_ex(int index) {
    const char *text = get_func_str(index);
    if (text == nullptr) return nullptr;
    function_text_ex = with_round_brackets(text);
    return function_text_ex.c_str();
}

int Parser::get_func_value_len(const char *name) {
    const char *value = get_func_value(name);
    return value == nullptr || *value == '\0' ? 0 : static_cast<int>(std::strlen(value)) + 1;
}
int Parser::get_func_value_len(int index) {
    const char *value = get_func_value(index);
    return value == nullptr || *value == '\0' ? 0 : static_cast<int>(std::strlen(value)) + 1;
}
int Parser::get_tot_func_value_len() {
    int total = 0;
    for (int i = 0; i < functions.size(); ++i)
        if (functions[i] != nullptr) total += get_func_value_len(i);
    return total;
}

void Parser::switch_funcs(int a, int b) {
    functions.switcher(a, b);
}
void Parser::move_func(int from, int to) {
    functions.move(from, to);
}

bool Parser::delete_function(int index) {
    funcs_saved = false;
    return functions.remove(index);
}

void Parser::delete_all_funcs() {
    if (functions.count() > 0) funcs_saved = false;
    functions.flush();
}

void Parser::replace_brackets(char *text, int mode) {
    if (text == nullptr) return;
    for (char *p = text; *p != '\0'; ++p) {
        if (mode == 0 && *p == '[')
            *p = '(';
        else if (mode == 0 && *p == ']')
            *p = ')';
        else if (mode == 1 && *p == '(')
            *p = '[';
        else if (mode == 1 && *p == ')')
            *p = ']';
    }
}

}  // namespace quindar
