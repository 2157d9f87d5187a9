// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The printed form of answers under each format setting.
#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "number_text.h"
#include "parser.h"

namespace quindar {
namespace {

struct FormatCase {
    const char *line;
    PrecformType format;
    const char *expected;
};

constexpr PrecformType kDefault{};
constexpr PrecformType kScientific{1e-14f, 14, kFormatScientific, false, false};
constexpr PrecformType kSixDigits{1e-14f, 6, kFormatDecimal, false, false};
constexpr PrecformType kShowPoint{1e-14f, 6, kFormatDecimal, true, false};
constexpr PrecformType kLeadSign{1e-14f, 14, kFormatDecimal, false, true};
constexpr PrecformType kCoarseZero{1e-3f, 14, kFormatDecimal, false, false};

TEST(AnswerText, FormatSettings) {
    const FormatCase table[] = {
        {"1/3", kDefault, " = 0.33333333333333"},
        {"1/3", kScientific, " = 3.3333333333333e-01"},
        {"1500", kScientific, " = 1.5000000000000e+03"},
        {"0", kScientific, " = 0.0000000000000e+00"},
        {"2/3", kSixDigits, " = 0.666667"},
        {"123456789", kSixDigits, " = 1.23457e+08"},
        {"2", kShowPoint, " = 2.00000"},
        {"0", kShowPoint, " = 0.00000"},
        {"2", kLeadSign, " = +2"},
        {"-2", kLeadSign, " = -2"},
        {"1e-15", kDefault, " = 0"},
        {"1e-14", kDefault, " = 1e-14"},
        {"1+0.0001i", kCoarseZero, " = 1"},
        {"0.0001+2i", kCoarseZero, " = 2i"},
        {"0.0001+0.0001i", kCoarseZero, " = 0"},
        {"2-i", kDefault, " = 2-i"},
        {"-1-2.5i", kDefault, " = -1-2.5i"},
        {"i*2.5", kDefault, " = 2.5i"},
    };
    for (const auto &c : table) {
        Parser parser("", "");
        *parser.answer_format = c.format;
        EXPECT_EQ(parser.eval_exp(c.line, true, true), std::string(c.expected)) << c.line;
    }
}

TEST(AnswerText, WithoutEqualsSign) {
    Parser parser("", "");
    EXPECT_STREQ(parser.eval_exp("6*7", true, false), "42");
}

TEST(AnswerText, ThresholdRoundsTheReturnedValueToo) {
    Parser parser("", "");
    complex result;
    parser.eval_exp("1e-15+2i", result, true, true);
    EXPECT_EQ(result.real, 0.0);
    EXPECT_EQ(result.imag, 2.0);
}

TEST(VariableText, PrintsAsShortAsTheValueIs) {
    Parser parser("", "");
    struct Case {
        complex value;
        int precision;
        const char *expected;
    };
    const Case table[] = {
        {{2.5, 0}, -1, "2.5"}, {{1234.25, 0}, -1, "1234.25"}, {{0, 0}, -1, "0"},
        {{3, -1}, -1, "3-i"},  {{1e-15, 4}, -1, "4i"},        {{3.14159, 0}, 3, "3.14"},
        {{2.5, 0}, 3, "2.5"},
    };
    for (const auto &c : table) {
        std::ostringstream stream;
        init_number_stream(stream, *parser.variable_format);
        complex value = c.value;
        parser.stream_variable(value, stream, c.precision);
        EXPECT_EQ(stream.str(), c.expected) << c.value.real << "," << c.value.imag;
    }
}

}  // namespace
}  // namespace quindar
