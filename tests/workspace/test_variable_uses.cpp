// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Which function a variable's delete would break.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "parser.h"
#include "variable_uses.h"

namespace quindar {
namespace {

struct WordCase {
    const char *text;
    const char *name;
    bool names;
};

constexpr WordCase kWordCases[] = {
    {"x*k", "k", true},          {"k", "k", true},         {"kk+1", "k", false},
    {"x*k_1", "k", false},       {"2k", "k", false},       {"SIN[k]^2", "k", true},
    {"rate*time", "rate", true}, {"irate", "rate", false}, {"x", "", false},
};

TEST(VariableUses, WholeWords) {
    for (const WordCase &c : kWordCases)
        EXPECT_EQ(NamesWholeWord(c.text, c.name), c.names) << c.text << " / " << c.name;
}

struct UseCase {
    std::vector<const char *> lines;
    const char *variable;
    std::optional<std::string> function;
};

TEST(VariableUses, FirstFunctionUsingTheVariable) {
    const UseCase cases[] = {
        {{"k = 2", "F[x] = x*k"}, "k", "F[x]"},
        {{"k = 2", "F[x] = x*kk"}, "k", std::nullopt},
        {{"k = 2", "G[x] = x", "H[y] = y+k", "J[z] = z*k"}, "k", "H[y]"},
        // A parameter of the same name counts, as the engine lists it among the function's.
        {{"x = 1", "P[x] = x^2"}, "x", "P[x]"},
        {{"a = 1", "b = 2", "Q[t] = t*b"}, "a", std::nullopt},
    };
    for (const UseCase &c : cases) {
        Parser parser("", "");
        for (const char *line : c.lines) parser.eval_exp(line, true, false);
        EXPECT_EQ(FunctionUsingVariable(parser, c.variable), c.function) << c.lines.back();
    }
}

}  // namespace
}  // namespace quindar
