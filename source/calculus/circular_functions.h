// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// In degrees a derivative of a circular function would be off by the degree's factor, so the
// differentiation refuses a text that reaches one: in itself, or inside the user and library
// functions it calls.

#include <string>

#include "parser.h"

namespace quindar::calculus {

// The first circular function's name (upper case, as the message shows it) standing in the
// text, or in the body of the user function `fn` when that is at least 0; empty when none.
std::string FindCircularFunction(Parser &parser, const std::string &text, int fn = -1);

}  // namespace quindar::calculus
