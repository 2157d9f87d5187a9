// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Runs lines through one engine and compares each answer or error text.

#include <gtest/gtest.h>

#include <string>

#include "parser.h"

namespace quindar::testing {

struct LineCase {
    const char *line;
    const char *expected;  // " = answer", "" for a plain declaration, or the error text
};

inline std::string evaluate(Parser &parser, const char *line) {
    const char *answer = parser.eval_exp(line, true, true);
    if (parser.IsAnError()) return parser.GetLastError() ? parser.GetLastError() : "(no text)";
    return answer;
}

// The lines share one engine, in order, so a table can declare and then use.
template <std::size_t N>
void check_lines(Parser &parser, const LineCase (&table)[N]) {
    for (const LineCase &c : table) EXPECT_EQ(evaluate(parser, c.line), c.expected) << c.line;
}

template <std::size_t N>
void check_lines(const LineCase (&table)[N]) {
    Parser parser("", "");
    check_lines(parser, table);
}

}  // namespace quindar::testing
