// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Function Solver's list and its data files: entries read as texts by the engine's data
// file reader, and written one a line through a temporary file.

#include <string>

#include "parser.h"
#include "solver_form.h"

namespace quindar::calculus {

// Appends the file's entries behind the list's last one, or replaces the list. False with
// the reader's message, the list unchanged, also for a file without data.
bool LoadDataFile(Parser &parser, SolverForm &form, const std::string &name, bool replace,
                  std::string &error);

// Writes the list's entries in the kind the name tells (".prn" indents each by six blanks).
// False when the file can't be written; the old file then stays as it was.
bool SaveDataFile(const SolverForm &form, const std::string &name);

}  // namespace quindar::calculus
