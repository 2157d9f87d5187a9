// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Random bytes and random token soups never crash or hang the evaluator, and every
// failure speaks one of the engine's own messages.
#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "embedded_tables.h"
#include "mathematics.h"
#include "parser.h"
#include "parser_messages.h"

namespace quindar {
namespace {

// True when text is the format with each %s, %c or %d filled in.
bool matches_format(const std::string &text, const std::string &format) {
    std::string pattern;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] == '%' && i + 1 < format.size() && std::strchr("scd", format[i + 1])) {
            pattern += "[\\s\\S]*";
            ++i;
        } else if (std::strchr("\\^$.|?*+()[]{}", format[i])) {
            pattern += '\\';
            pattern += format[i];
        } else {
            pattern += format[i];
        }
    }
    return std::regex_match(text, std::regex(pattern));
}

bool is_known_message(const std::string &text) {
    for (int n = 0; n < messages::kParserErrorCount; ++n)
        if (text == messages::parser_error(n)) return true;
    for (int n = 0; n < 6; ++n)
        if (text == Mathematics::math_message(n)) return true;
    const char *formats[] = {
        messages::kNotLegitimate,         messages::kCommaMisused,
        messages::kParameterIsFunction,   messages::kParameterIsConstant,
        messages::kFunctionNameTaken,     messages::kEmbeddedRedefined,
        messages::kLibraryRedefined,      messages::kUnidentifiedAlone,
        messages::kNotVariableOrConstant, messages::kNoValueYet,
        messages::kConstantAssigned,      messages::kMissingFunctionBracket,
        messages::kFunctionRedefined,     messages::kNotAFunction,
        messages::kVariableLocked,        messages::kNoValueFound,
        messages::kTooManyDigits,         messages::kCommaExpected,
        messages::kEqualLimits,           messages::kPointsNotInteger,
        messages::kNotAFunctionOf,        messages::kFunctionOfItself,
        messages::kNotDefinedAsFunction,  messages::kVariableNotDefined,
        messages::kEvaluatedOnItself,     messages::kArgumentCountOne,
        messages::kArgumentCountMany,     messages::kExpansionWithoutEnd,
    };
    for (const char *format : formats)
        if (matches_format(text, format)) return true;
    for (int n = 0; n < mathlib::kMathlibMessageCount; ++n)
        if (matches_format(text, mathlib::mathlib_message(n))) return true;
    return false;
}

void evaluate_and_check(Parser &parser, const std::string &line) {
    const char *answer = parser.eval_exp(line.c_str(), true, true);
    ASSERT_NE(answer, nullptr);
    if (parser.IsAnError()) {
        ASSERT_NE(parser.GetLastError(), nullptr) << line;
        EXPECT_TRUE(is_known_message(parser.GetLastError()))
            << line << " -> " << parser.GetLastError();
        EXPECT_STREQ(answer, "");
    } else {
        // An answer, or nothing for a plain declaration.
        EXPECT_TRUE(*answer == '\0' || std::string(answer).rfind(" = ", 0) == 0) << line;
    }
}

TEST(Fuzz, RandomBytes) {
    std::mt19937 engine(1);
    Parser parser("", "");
    for (int n = 0; n < 20000; ++n) {
        std::string line(std::uniform_int_distribution<int>(0, 40)(engine), ' ');
        for (char &c : line)
            c = static_cast<char>(std::uniform_int_distribution<int>(1, 255)(engine));
        evaluate_and_check(parser, line);
    }
}

TEST(Fuzz, TokenSoups) {
    const std::vector<std::string> pieces = {
        "1",           "0",
        "2.5",         ".5",
        "5.",          "1e+3",
        "1e-3",        "e",
        "E",           "i",
        "3i",          "x",
        "(",           ")",
        "[",           "]",
        "{",           "}",
        "+",           "-",
        "*",           "/",
        "%",           "^",
        "!",           "<",
        "<=",          ">",
        ">=",          "==",
        "!=",          "=",
        ",",           " ",
        "\t",          "1.2.3",
        "1e+400",      "sin",
        "PI",          "POW[",
        "AND[",        "RTOP[",
        "LOG[",        "IF[",
        "e",           "99999999999999999999",
        "0.000000001", "_",
    };
    std::mt19937 engine(2);
    Parser parser("", "");
    for (int n = 0; n < 40000; ++n) {
        std::string line;
        const int count = std::uniform_int_distribution<int>(1, 12)(engine);
        for (int k = 0; k < count; ++k)
            line +=
                pieces[std::uniform_int_distribution<std::size_t>(0, pieces.size() - 1)(engine)];
        evaluate_and_check(parser, line);
    }
}

TEST(Fuzz, DeepNestingAndLongLines) {
    Parser parser("", "");
    evaluate_and_check(parser, std::string(500, '(') + "1" + std::string(500, ')'));
    evaluate_and_check(parser, std::string(1000, '('));
    std::string sum = "1";
    while (sum.size() < 1000) sum += "+1";
    evaluate_and_check(parser, sum);
    evaluate_and_check(parser, std::string(5000, '9'));
    evaluate_and_check(parser, std::string(300, '-') + "1");
}

}  // namespace
}  // namespace quindar
