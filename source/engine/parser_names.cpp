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

bool Parser::is_library_function(const char *) { return false; }

}  // namespace quindar
