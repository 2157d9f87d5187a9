// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A map must give what its line gives: generated expressions over variables, each recorded
// once and then solved at many values, against the line evaluated at the same values, bit
// for bit, failures included with the same text.
#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "map_support.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::error_of;
using testing::record_map;

// Expressions of the language with x and y in them: every operator, the implicit product,
// the sign, the factorial, comparison chains, constants, i, the general, complex,
// trigonometric, logical and electrical functions and data lists. Only what a map can hold
// takes part: the whole-line functions (RTOP, PTOR, BASECON) cannot stand in an expression.
class ExpressionGenerator {
public:
    explicit ExpressionGenerator(unsigned seed) : random_(seed) {}

    std::string expression(int depth) {
        if (depth <= 0) return leaf();
        switch (pick(9)) {
            case 0:
                return expression(depth - 1) + pick_of({" + ", " - ", "+", "-"}) + term(depth - 1);
            case 1:
                return term(depth - 1) + pick_of({"*", " / ", "%", "*"}) + term(depth - 1);
            case 2:
                return comparison(depth - 1);
            default:
                return term(depth);
        }
    }

private:
    std::string term(int depth) {
        if (depth <= 0) return leaf();
        switch (pick(12)) {
            case 0:
                return "(" + expression(depth - 1) + ")";
            case 1:
                return "-" + simple(depth - 1);
            case 2:
                return simple(depth - 1) + "^" + simple(depth - 1);
            case 3:
                return "(" + expression(depth - 1) + ")!";
            case 4:
                return pick_of({"2", "3", "0.5"}) + pick_of({"x", "y", "(x+1)", "PI"});
            case 5:
                return "(" + expression(depth - 1) + ")(" + expression(depth - 1) + ")";
            case 6:
                return pick_of({"i x", "i y", "i", "2i", "i(x)"});
            default:
                return call(depth - 1);
        }
    }

    std::string simple(int depth) { return pick(2) == 0 ? leaf() : "(" + expression(depth) + ")"; }

    std::string leaf() {
        return pick_of({"x", "y", "x", "y", "2", "0.5", "3.25", "10", "1e+2", ".75", "7", "PI", "e",
                        "EULER", "TRUE", "FALSE", "GRAVITY", "0"});
    }

    std::string comparison(int depth) {
        std::string text = "(" + expression(depth);
        const int links = 1 + pick(3);
        for (int k = 0; k < links; ++k)
            text += pick_of({" < ", " <= ", " > ", " >= ", " == ", " != "}) + expression(depth);
        return text + ")";
    }

    std::string call(int depth) {
        static const std::vector<std::string> one = {
            "SQRT", "LN",   "LOG10", "EXP",  "ABS",    "ROUND", "TRUNC", "FLOOR", "CEIL",  "CUBERT",
            "REAL", "IMAG", "NORM",  "CMAG", "CANGLE", "CONJ",  "DEG",   "RAD",   "SIN",   "COS",
            "TAN",  "SINH", "COSH",  "TANH", "ASIN",   "ACOS",  "ATAN",  "ASINH", "ACOSH", "ATANH"};
        static const std::vector<std::string> two = {"LOG", "POW",   "REM", "GCD",
                                                     "LCM", "HYPOT", "PTOC"};
        switch (pick(10)) {
            case 6:
                return statistic(depth);
            case 7:
                return normal_or_choice(depth);
            case 0: {
                std::string text = pick_of({"AND[", "OR["}) + comparison(depth);
                const int more = 1 + pick(2);
                for (int k = 0; k < more; ++k) text += "," + comparison(depth);
                return text + "]";
            }
            case 1:
                return "IF[" + comparison(depth) + "," + expression(depth) + "," +
                       expression(depth) + "]";
            case 2:
                return "NOT[" + comparison(depth) + "]";
            case 3: {
                std::string text =
                    pick_of({"SRESIST[{", "PRESIST[{"}) + "ABS[" + expression(depth) + "]";
                const int more = 1 + pick(3);
                for (int k = 0; k < more; ++k)
                    text +=
                        "," + pick_of({"2", "ABS[x]", "ABS[y]", "ABS[" + expression(depth) + "]"});
                return text + "}]";
            }
            case 4:
            case 5:
                return two[pick(static_cast<int>(two.size()))] + "[" + expression(depth) + "," +
                       expression(depth) + "]";
            default: {
                const bool square = pick(2) == 0;
                return one[pick(static_cast<int>(one.size()))] + (square ? "[" : "(") +
                       expression(depth) + (square ? "]" : ")");
            }
        }
    }

    // A list in braces of real values (a complex entry fails differently in a map).
    std::string real_list(int depth) {
        std::string text = "{REAL[" + expression(depth) + "]";
        const int more = 1 + pick(5);
        for (int k = 0; k < more; ++k)
            text += "," +
                    pick_of({"2", "REAL[x]", "REAL[y]", "-1.5", "REAL[" + expression(depth) + "]"});
        return text + "}";
    }

    std::string statistic(int depth) {
        static const std::vector<std::string> of_list = {
            "MEAN",   "GMEAN",  "HMEAN",  "MEDIAN",   "MODE",   "MIN",   "MAX",  "SUMX",
            "SUMXSQ", "SUMDEV", "AVGDEV", "SUMDEVSQ", "RANGE",  "COUNT", "SVAR", "PVAR",
            "SSTDEV", "PSTDEV", "SKEW",   "KURT",     "LQRTLE", "UQRTLE"};
        if (pick(4) == 0)
            return pick_of({"RANK[", "PRCTLE[", "ZSCORE[", "NORMX["}) + real_list(depth) + "," +
                   expression(depth) + "]";
        return of_list[pick(static_cast<int>(of_list.size()))] + "[" + real_list(depth) + "]";
    }

    std::string normal_or_choice(int depth) {
        switch (pick(4)) {
            case 0:
                return "NORDIST[" + expression(depth) + "," + expression(depth) + "," +
                       expression(depth) + "]";
            case 1:
                return "NORPROB[" + expression(depth) + "," + expression(depth) + "," +
                       expression(depth) + "," + expression(depth) + "]";
            case 2:
                return "NORPROB[" + real_list(depth) + "," + expression(depth) + "," +
                       expression(depth) + "]";
            default:
                return pick_of({"COMB[", "PERM["}) + expression(depth) + "," + expression(depth) +
                       "]";
        }
    }

    int pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }
    std::string pick_of(std::initializer_list<std::string> choices) {
        return *(choices.begin() + pick(static_cast<int>(choices.size())));
    }

    std::mt19937 random_;
};

bool same_bits(const complex &a, const complex &b) {
    return std::bit_cast<std::uint64_t>(a.real) == std::bit_cast<std::uint64_t>(b.real) &&
           std::bit_cast<std::uint64_t>(a.imag) == std::bit_cast<std::uint64_t>(b.imag);
}

struct Point {
    complex x, y;
};

const std::vector<Point> kPoints = {
    {{2, 0}, {3, 0}},
    {{-2.5, 0}, {0.5, 0}},
    {{0, 0}, {1, 0}},
    {{1, 0}, {0, 0}},
    {{0.1234567890123, 0}, {-7, 0}},
    {{90, 0}, {45, 0}},
    {{7.25, 0}, {-1e-5, 0}},
    {{1e10, 0}, {2, 0}},
    {{-1, 0}, {-1, 0}},
    {{1, 2}, {0.5, -1}},
    {{3, 0}, {4, 0}},
    {{0.5, 0}, {180, 0}},
    {{-0.75, 0}, {1e+300, 0}},
    {{5, 0}, {5, 0}},
};

TEST(MapDifferential, MapsSolveToWhatTheirLinesEvaluateTo) {
    Parser parser("", "");
    // The answer of a line rounds parts below the zero threshold, a matter of printing that
    // a map's value does not share; with no threshold the line gives its value untouched.
    parser.answer_format->zero_precision = 0;
    parser.eval_exp("x = 0", true, false);
    parser.eval_exp("y = 0", true, false);
    ExpressionGenerator generator(20260517u);
    int recorded = 0, compared = 0, failures_compared = 0, mismatches = 0;
    constexpr int kExpressions = 800;
    for (int n = 0; n < kExpressions; ++n) {
        const std::string text = generator.expression(1 + n % 4);
        parser.angle_mode = n % 3 == 0 ? 1 : 0;
        // Record where the line evaluates; a line that fails at every point has no map.
        int map = 0;
        for (const Point &point : kPoints) {
            parser.set_var_value(point.x, "x");
            parser.set_var_value(point.y, "y");
            map = record_map(parser, text.c_str());
            if (map > 0) break;
        }
        if (map == 0) continue;
        ++recorded;
        for (const Point &point : kPoints) {
            parser.set_var_value(point.x, "x");
            parser.set_var_value(point.y, "y");
            complex line;
            parser.eval_exp(text.c_str(), line, true, false);
            const std::string line_error = error_of(parser);
            const complex solved = parser.solve_equation(map, false, true);
            const std::string map_error = error_of(parser);
            ++compared;
            if (!line_error.empty()) ++failures_compared;
            const bool agree =
                line_error == map_error && (!line_error.empty() || same_bits(line, solved));
            if (!agree && ++mismatches <= 20)
                ADD_FAILURE() << text << " at x = " << point.x.real << "+" << point.x.imag
                              << "i, y = " << point.y.real << ": line " << line.real << "+"
                              << line.imag << "i '" << line_error << "', map " << solved.real << "+"
                              << solved.imag << "i '" << map_error << "'";
        }
        parser.delete_equation(map);
    }
    EXPECT_EQ(mismatches, 0);
    std::printf("%d of %d lines recorded; %d points compared, %d of them failures\n", recorded,
                kExpressions, compared, failures_compared);
    // The generator must keep producing lines that record, and points that fail as well as
    // points that succeed, or the comparison proves little.
    EXPECT_GT(recorded, kExpressions / 2);
    EXPECT_GT(failures_compared, compared / 20);
    EXPECT_LT(failures_compared, compared / 2);
    EXPECT_EQ(parser.equations.count(), 0);
}

}  // namespace
}  // namespace quindar
