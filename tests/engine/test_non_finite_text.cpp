// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Values beyond the range of numbers print as one word: "inf", "-inf" or "nan", in answers,
// variable texts and stored values alike; never "-nan" or parts run together.
#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "line_table.h"
#include "number_text.h"
#include "parser.h"
#include "variable.h"

namespace quindar {
namespace {

TEST(NonFiniteText, AnswersAreOneWord) {
    const testing::LineCase table[] = {
        {"a = POW[10,400]", " = inf"},
        {"-a", " = -inf"},
        {"200!", " = inf"},
        {"a-a", " = nan"},
        {"-(a-a)", " = nan"},
        {"(a-a)*i", " = nan"},
        {"a*i", " = nan"},
        {"a*(1+i)", " = nan"},
        {"-a*i", " = nan"},
        {"0*a", " = nan"},
        {"a/a", " = nan"},
        {"b = a-a", " = nan"},
        {"-b", " = nan"},
        {"b + i", " = nan"},
    };
    testing::check_lines(table);
}

TEST(NonFiniteText, EveryWriterUsesTheSameWords) {
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        complex value;
        const char *text;
    } table[] = {
        {{inf, 0}, "inf"},   {{-inf, 0}, "-inf"}, {{inf, 2}, "inf"}, {{-inf, -2}, "-inf"},
        {{nan, 0}, "nan"},   {{-nan, 0}, "nan"},  {{0, inf}, "nan"}, {{0, -nan}, "nan"},
        {{inf, inf}, "nan"}, {{nan, 1}, "nan"},   {{1, nan}, "nan"}, {{-inf, nan}, "nan"},
    };
    Parser parser("", "");
    for (const auto &row : table) {
        std::ostringstream answer, variable, stored;
        complex value = row.value;
        parser.stream_answer(value, answer, -1);
        value = row.value;
        parser.stream_variable(value, variable, -1);
        Variable::StreamVariable(row.value, stored, 14);
        EXPECT_EQ(answer.str(), row.text) << row.text;
        EXPECT_EQ(variable.str(), row.text) << row.text;
        EXPECT_EQ(stored.str(), row.text) << row.text;
    }
}

}  // namespace
}  // namespace quindar
