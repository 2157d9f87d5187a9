// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The map solver's fast road against the road it replaces, bit for bit. First the one new
// step of arithmetic: the operand the next operator takes, made from a result's digits
// instead of through its text and double. Then whole maps: seeded expressions of the four
// operators, the sign, literals of every kind and functions between them, each solved at
// many values of x and y on the fast road and by the plain instruction loop. The number of
// draws is QUINDAR_DIFFERENTIAL_PAIRS (a long run by hand: 100000000).
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>

#include "exact_arithmetic.h"
#include "map_solver.h"
#include "map_support.h"
#include "mapm.h"
#include "mathematics.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::error_of;
using testing::record_map;

long draws(long fallback) {
    const char *text = std::getenv("QUINDAR_DIFFERENTIAL_PAIRS");
    return text != nullptr && std::atol(text) > 0 ? std::atol(text) : fallback;
}

bool same_bits(const complex &a, const complex &b) {
    return std::bit_cast<std::uint64_t>(a.real) == std::bit_cast<std::uint64_t>(b.real) &&
           std::bit_cast<std::uint64_t>(a.imag) == std::bit_cast<std::uint64_t>(b.imag);
}

std::string text_of(const exact::Decimal &x) {
    return (x.negative ? "-" : "") + std::to_string(x.coefficient) + "e" +
           std::to_string(x.exponent);
}

// Results as the operators leave them: up to 15 digits, a quarter ending in 5 (ties of the
// 14th digit), some a carry away from the next power of ten, over decades in and beyond the
// operand range.
class Results {
public:
    explicit Results(std::uint64_t seed) : random_(seed) {}

    exact::Decimal next() {
        exact::Decimal x;
        x.negative = pick(2) == 0;
        switch (pick(8)) {
            case 0:
            case 1:
                x.coefficient = (100000000000000ull + random_() % 900000000000000ull) / 10 * 10 + 5;
                break;
            case 2:
                x.coefficient = 999999999999990ull + pick(10);
                break;
            case 3:
                x.coefficient = 1 + random_() % 99999;
                break;
            case 4:
                x.coefficient = 0;
                break;
            default:
                x.coefficient = 100000000000000ull + random_() % 900000000000000ull;
                break;
        }
        x.exponent = pick(40) - 30;
        return x;
    }

private:
    int pick(int n) { return static_cast<int>(random_() % static_cast<std::uint64_t>(n)); }
    std::mt19937_64 random_;
};

TEST(OperandOfResult, AgreesWithTheTextRoadBitForBit) {
    Results results(20261124);
    const long count = draws(1000000);
    long mismatches = 0, decided = 0;
    for (long k = 0; k < count; ++k) {
        const exact::Decimal result = results.next();
        exact::Decimal mine;
        if (!exact::operand_of_result(result, mine)) continue;
        ++decided;
        // Today's road: the result's text read as a double, the double written at 14 digits.
        MapmNumber exact_result, road, fast;
        m_apm_set_decimal(&exact_result, result.negative, result.coefficient, result.exponent);
        const auto value = static_cast<double>(Mathematics::GetMapmValueByText(&exact_result));
        Mathematics::SetMapmValueByText(value, &road);
        m_apm_set_decimal(&fast, mine.negative, mine.coefficient, mine.exponent);
        if (m_apm_compare(&road, &fast) != 0 && ++mismatches <= 10)
            ADD_FAILURE() << text_of(result) << " gives " << text_of(mine);
    }
    EXPECT_EQ(mismatches, 0);
    // Ties and results beyond the range are left to the double, and only they.
    EXPECT_GT(decided, count / 3);
}

TEST(OperandOfResult, LeavesTiesAndFarMagnitudesToTheDouble) {
    struct Case {
        exact::Decimal result;
        bool decided;
        exact::Decimal operand;
    };
    const Case cases[] = {
        {{false, 123456789012345, -14}, false, {}},  // a tie of the 14th digit
        {{false, 123456789012346, -14}, true, {false, 12345678901235, -13}},
        {{true, 123456789012344, -14}, true, {true, 12345678901234, -13}},
        {{false, 999999999999996, -2}, true, {false, 10000000000000, 0}},  // a carry
        {{false, 25, -1}, true, {false, 25, -1}},                          // short: its own operand
        {{false, 1, -9}, true, {false, 1, -9}},                            // the lowest decade
        {{false, 999999999999999, -24}, false, {}},
        {{false, 1, 14}, false, {}},  // 1e14 is beyond
        {{false, 0, 7}, true, {}},
    };
    for (const Case &c : cases) {
        exact::Decimal operand{true, 77, 77};
        EXPECT_EQ(exact::operand_of_result(c.result, operand), c.decided) << text_of(c.result);
        if (!c.decided) continue;
        EXPECT_EQ(operand.negative, c.operand.negative) << text_of(c.result);
        EXPECT_EQ(operand.coefficient, c.operand.coefficient) << text_of(c.result);
        EXPECT_EQ(operand.exponent, c.operand.exponent) << text_of(c.result);
    }
}

// The solver as it was: every instruction through the table, on a plain stack.
complex instruction_loop(Parser &p, int number) {
    p.silent = true;
    p.ClearLastError();
    Equation &equation = *p.equation_at(number);
    equation.clear_data();
    MapRun run(equation);
    p.SetSolvingMap(true);
    complex result;
    bool returned_zero = false;
    for (const Instruction op : equation.instructions) {
        if (!MapSolver::execute(p, run, op)) {
            returned_zero = true;
            break;
        }
        if (p.IsAnError()) break;
    }
    if (!returned_zero && !run.stack.empty()) result = run.stack.back();
    p.SetSolvingMap(false);
    return result;
}

// Expressions where the fast road does most of the work and hands over to the table often:
// chains of the four operators and the sign over x, y and literals of every kind, with
// functions and comparisons between them.
class Expressions {
public:
    explicit Expressions(std::uint64_t seed) : random_(seed) {}

    std::string expression(int depth) {
        if (depth <= 0) return leaf();
        switch (pick(10)) {
            case 0:
                return "-" + expression(depth - 1);
            case 1:
                return "(" + expression(depth - 1) + ")";
            case 2:
                return pick_of({"ABS[", "SQRT[", "TRUNC[", "CONJ[", "REAL["}) +
                       expression(depth - 1) + "]";
            case 3:
                return "(" + expression(depth - 1) + " < " + expression(depth - 1) + ")";
            case 4:
                return "(" + expression(depth - 1) + " < " + expression(depth - 1) + ")";
            default:
                return expression(depth - 1) + pick_of({" + ", " - ", " * ", " / "}) + "(" +
                       expression(depth - 1) + ")";
        }
    }

    double value() {
        switch (pick(6)) {
            case 0:
                return static_cast<double>(pick(2001) - 1000) / 8;
            case 1:
                return static_cast<double>(pick(20001) - 10000) / 1000;
            case 2:
                return (pick(2) ? 1 : -1) * std::pow(10.0, uniform_(random_) * 36.0 - 18.0);
            case 3:
                return pick(3) == 0 ? 0.0 : -0.0;
            default:
                return uniform_(random_) * 20.0 - 10.0;
        }
    }

private:
    std::string leaf() {
        return pick_of({"x", "y", "x", "y", "2", "0.5", "3.25", "1e+12", "1e-11", "7", "0", "0.1",
                        "123456789.123456", "2i", "PI", "99999999999999.5"});
    }
    std::string pick_of(std::initializer_list<const char *> texts) {
        return *(texts.begin() + pick(static_cast<int>(texts.size())));
    }
    int pick(int n) { return static_cast<int>(random_() % static_cast<std::uint64_t>(n)); }

    std::mt19937_64 random_;
    std::uniform_real_distribution<double> uniform_{0.0, 1.0};
};

bool is_operator(Instruction op) {
    return op == Instruction::Add || op == Instruction::Subtract || op == Instruction::Multiply ||
           op == Instruction::Divide;
}

// Until the four operators together have run `draws` times each on average.
TEST(MapFastRoad, SolvesAsTheInstructionLoopBitForBit) {
    Expressions expressions(19);
    const long total = 4 * draws(1000000);
    constexpr int kPointsPerMap = 250;
    long mismatches = 0, operations = 0;
    while (operations < total) {
        Parser parser("", "");
        parser.eval_exp("x = 1", true, false);
        parser.eval_exp("y = 2", true, false);
        const std::string line = expressions.expression(4);
        const int map = record_map(parser, line.c_str());
        if (map == 0) continue;
        long per_solve = 0;
        for (const Instruction op : parser.equation_at(map)->instructions)
            per_solve += is_operator(op) ? 1 : 0;
        operations += per_solve * kPointsPerMap;
        for (int k = 0; k < kPointsPerMap; ++k) {
            const complex x{expressions.value(), 0}, y{expressions.value(), 0};
            parser.set_var_value(x, "x");
            parser.set_var_value(y, "y");
            const complex fast = parser.solve_equation(map, false, true);
            const std::string fast_error = error_of(parser);
            parser.set_var_value(x, "x");
            parser.set_var_value(y, "y");
            const complex loop = instruction_loop(parser, map);
            const std::string loop_error = error_of(parser);
            if ((!same_bits(fast, loop) || fast_error != loop_error) && ++mismatches <= 10) {
                std::ostringstream text;
                text << std::hexfloat << line << " at x = " << x.real << ", y = " << y.real
                     << ": fast (" << fast.real << ", " << fast.imag << ") " << fast_error
                     << ", loop (" << loop.real << ", " << loop.imag << ") " << loop_error;
                ADD_FAILURE() << text.str();
            }
        }
    }
    EXPECT_EQ(mismatches, 0);
}

TEST(MapFastRoad, FollowsVariablesThatMoveOrGo) {
    Parser parser("", "");
    parser.eval_exp("a = 1", true, false);
    parser.eval_exp("x = 3", true, false);
    const int map = record_map(parser, "x*x - 2*x + 1");
    ASSERT_GT(map, 0);
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 4.0);
    // The list changes under the remembered slot: x moves down one place.
    ASSERT_TRUE(parser.delete_variable(parser.find_variable("a")));
    parser.set_var_value(complex{5, 0}, "x");
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 16.0);
    ASSERT_TRUE(parser.delete_variable(parser.find_variable("x")));
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 1.0);  // x is 0 now
    parser.eval_exp("x = 0.5", true, false);
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 0.25);
    // Two variables trade places: each name still finds its own.
    parser.eval_exp("b = 7", true, false);
    parser.switch_vars(parser.find_variable("x"), parser.find_variable("b"));
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 0.25);
}

TEST(MapFastRoad, ReadsALiteralChangedInPlace) {
    Parser parser("", "");
    parser.eval_exp("x = 2", true, false);
    const int map = record_map(parser, "x * 1.5");
    ASSERT_GT(map, 0);
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 3.0);
    parser.equation_at(map)->literals[0].real = 0.25;
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 0.5);
    parser.equation_at(map)->literals[0].imag = 1;
    EXPECT_EQ(parser.solve_equation(map, false, true), (complex{0.5, 2}));
}

TEST(MapFastRoad, KeepsTheWorkersErrors) {
    Parser parser("", "");
    parser.eval_exp("x = 3", true, false);
    const int map = record_map(parser, "1/(x - 2) + 3");
    ASSERT_GT(map, 0);
    parser.set_var_value(complex{2, 0}, "x");
    parser.solve_equation(map, false, true);
    const std::string fast_error = error_of(parser);
    instruction_loop(parser, map);
    EXPECT_EQ(fast_error, error_of(parser));
    EXPECT_FALSE(fast_error.empty());
    parser.set_var_value(complex{4, 0}, "x");
    EXPECT_EQ(parser.solve_equation(map, false, true).real, 3.5);
    EXPECT_FALSE(parser.IsAnError());
}

}  // namespace
}  // namespace quindar
