// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Library functions come from the function library files; until those are read, no
// name is one.
#include "parser.h"

namespace quindar {

bool Parser::is_library_function(const char *) {
    return false;
}

}  // namespace quindar
