// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The look-ups of names. The tables of embedded functions, constants, variables and
// user and library functions answer here as they arrive; a table that is not there
// yet finds nothing.
#include "parser.h"
#include "parser_messages.h"

namespace quindar {

int Parser::is_internal_function(const char *) const { return -1; }

void Parser::internal_function(int, complex &, std::ostream &) { parser_exception(1); }

bool Parser::is_constant(const char *) const { return false; }

long double Parser::get_constant_value(const char *) const { return 0.0L; }

bool Parser::is_variable(const char *) const { return false; }

bool Parser::var_assigned(const char *) const { return false; }

bool Parser::is_var_locked(const char *) const { return false; }

complex Parser::get_var_value(const char *) const { return complex{}; }

bool Parser::is_library_function(const char *) { return false; }

bool Parser::user_function_full_name(const char *, std::string &) const { return false; }

void Parser::declare_variable(complex &, std::ostream &, const char *name) {
    special_exception(messages::kNotVariableOrConstant, name);
}

void Parser::declare_unassigned_variable(const char *) {}

void Parser::declare_function() { parser_exception(1); }

void Parser::insert_functions() {}

void Parser::insert_brackets(char *, int) {}

}  // namespace quindar
