// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The engine's numeric methods on mapped expressions: Romberg integration, extrapolated
// derivatives and the bracketing root search, with their exits and failure reports.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "parser.h"

namespace quindar {
namespace {

// Counts the application's turns and presses Stop at a chosen one.
class ScriptedHooks final : public ComputationHooks {
public:
    explicit ScriptedHooks(int stopAtPump = -1) : stop_at(stopAtPump) {}
    bool stop_requested() override { return stop_at >= 0 && pumps >= stop_at; }
    void pump_waiting_messages() override { ++pumps; }
    void update_variable_list() override { ++updates; }
    int pumps = 0;
    int updates = 0;

private:
    int stop_at;
};

class Calculus : public ::testing::Test {
protected:
    Calculus() { parser.angle_mode = 1; }

    // Records text as a map with x at a point where it computes; its position, or 0 when
    // the recording failed.
    int Map(const char *text, const char *at = "x = 0.75") {
        parser.eval_exp(at, true, false);
        parser.current_equation = parser.equations.add();
        parser.ClearLastError();
        parser.mapping = true;
        const int number = parser.equations.count();
        parser.eval_exp(text, true, false);
        EXPECT_FALSE(parser.IsAnError()) << text << ": " << parser.GetLastError();
        return parser.IsAnError() ? 0 : number;
    }

    long double Integral(const char *text, long double low, long double high,
                         long double accuracy = 1e-10L) {
        return parser.RombIntegrate(Map(text), "x", low, high, accuracy, true);
    }

    long double DerivativeAt(const char *text, long double x, int order, long double h = 0.1L) {
        long double tolerance = 0.0001L;
        return parser.Derivative(Map(text), "x", x, h, order, tolerance, true);
    }

    std::string Error() const { return parser.GetLastError() ? parser.GetLastError() : ""; }

    Parser parser{"", ""};
};

struct IntegralCase {
    const char *text;
    long double low, high, exact;
    long double accuracy;
};

TEST_F(Calculus, IntegralsMeetTheirRelativeAccuracy) {
    const long double pi = std::numbers::pi_v<long double>;
    const IntegralCase cases[] = {
        {"x^2", 0, 1, 1.0L / 3, 1e-10L},
        {"SIN[x]", 0, pi, 2, 1e-10L},
        {"EXP[x]", 0, 1, std::exp(1.0L) - 1, 1e-12L},
        {"1/x", 1, 2, std::log(2.0L), 1e-10L},
        {"1/(1+x^2)", -1, 1, pi / 2, 1e-10L},
        // Oscillating: 20 half waves.
        {"SIN[20*x]^2", 0, pi, pi / 2, 1e-8L},
    };
    for (const IntegralCase &c : cases) {
        const long double value = Integral(c.text, c.low, c.high, c.accuracy);
        ASSERT_FALSE(parser.IsAnError()) << c.text << ": " << Error();
        // The accuracy is the extrapolation's own estimate; allow the decimal rounding of
        // each sum on top of it.
        EXPECT_NEAR(static_cast<double>(value), static_cast<double>(c.exact),
                    static_cast<double>(10 * c.accuracy * std::fabs(c.exact) + 1e-13L))
            << c.text;
    }
}

TEST_F(Calculus, AnEndpointSingularityRunsOutOfLevels) {
    // SQRT has an infinite slope at 0: the error estimate shrinks at every level, but too
    // slowly for 1e-12 in 20 levels. The last estimate comes back with the report.
    const long double value = Integral("SQRT[x]", 0, 1, 1e-12L);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_EQ(Error(),
              "Then integration algorithm could not converge within the specified accuracy to "
              "obtain a solution!");
    EXPECT_NEAR(static_cast<double>(value), 2.0 / 3.0, 1e-8);
}

TEST_F(Calculus, ASteepPeakEndsWhenTheErrorEstimateGrows) {
    // A peak of width 0.01: the first levels miss it, the estimate's error grows when the
    // samples find it, and that level's value stands with no report: the method's own
    // answer, about 1% short.
    const long double exact = 2 * std::atan(50.0L) / 100;
    const long double value = Integral("1/(1+10000*(x-0.5)^2)", 0, 1, 1e-6L);
    EXPECT_FALSE(parser.IsAnError()) << Error();
    EXPECT_NEAR(static_cast<double>(value), static_cast<double>(exact),
                static_cast<double>(exact) * 0.02);
    // The same method in binary doubles (a separate simulation) stops at level 8 with this.
    EXPECT_NEAR(static_cast<double>(value), 0.030782904319958653, 1e-12);
}

TEST_F(Calculus, ConstantsAndSymmetricIntegralsEndAtTheFirstLevelThatCan) {
    ScriptedHooks hooks;
    parser.set_computation_hooks(&hooks);
    // Level 1 checks once (before its second sample), level k above checks 2^(k-2) times:
    // levels 1 to 5 check 1 + 1 + 2 + 4 + 8 times.
    EXPECT_EQ(Integral("7", 1, 4), 21.0L);
    EXPECT_EQ(hooks.pumps, 16);
    EXPECT_EQ(hooks.updates, 16);
    hooks.pumps = 0;
    EXPECT_EQ(Integral("x", -1, 1), 0.0L);
    EXPECT_EQ(hooks.pumps, 16);
    hooks.pumps = 0;
    EXPECT_EQ(Integral("x^3+2", 3, 3), 0.0L);
    EXPECT_EQ(hooks.pumps, 16);
    EXPECT_FALSE(parser.IsAnError());
}

TEST_F(Calculus, AFailingIntegrandReportsItsOwnErrorAtTheFirstSample) {
    ScriptedHooks hooks;
    parser.set_computation_hooks(&hooks);
    EXPECT_EQ(Integral("1/x", 0, 1), 0.0L);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_EQ(Error(), "Division By Zero Encountered!");
    EXPECT_EQ(hooks.pumps, 0);  // nothing sampled beyond the low end
}

TEST_F(Calculus, StopEndsAnIntegralWithZeroAndNoError) {
    ScriptedHooks hooks(5);
    parser.set_computation_hooks(&hooks);
    EXPECT_EQ(Integral("x^2", 0, 1), 0.0L);
    EXPECT_FALSE(parser.IsAnError());
    // The flag is read before the pump: the check that finds it set pumps no more.
    EXPECT_EQ(hooks.pumps, 5);
}

TEST_F(Calculus, NevilleInterpolationHitsThePolynomialAndRefusesEqualAbscissas) {
    long double xa[] = {0, 1, 2, 3, 4};  // read from index 1
    long double ya[] = {0, 1, 8, 27, 64};
    long double y = 0;
    long double dy = 0;
    // x^3 through 1, 2, 3, 4 at 0.
    parser.PolyInterpolate(xa, ya, 4, 0.0L, &y, &dy);
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_NEAR(static_cast<double>(y), 0.0, 1e-12);
    long double same[] = {0, 1, 1, 2};
    long double values[] = {0, 1, 1, 4};
    parser.PolyInterpolate(same, values, 3, 0.0L, &y, &dy);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_EQ(Error(), "An error occurred while interpolating between two point values!");
}

struct DerivativeCase {
    const char *text;
    long double x;
    int order;
    long double exact;
    double tolerance;
};

TEST_F(Calculus, DerivativesOfEachOrder) {
    const DerivativeCase cases[] = {
        {"x^2", 3, 1, 6, 1e-9},
        {"x^2", 3, 2, 2, 1e-6},
        {"x^3", 2, 3, 6, 1e-3},
        {"SIN[x]", 1, 1, std::cos(1.0L), 1e-9},
        {"SIN[x]", 1, 2, -std::sin(1.0L), 1e-5},
        {"EXP[2*x]", 0.5L, 1, 2 * std::exp(1.0L), 1e-8},
        {"LN[x]", 2, 1, 0.5L, 1e-9},
        {"1/x", 0.5L, 2, 16, 1e-4},
    };
    for (const DerivativeCase &c : cases) {
        const long double value = DerivativeAt(c.text, c.x, c.order);
        ASSERT_FALSE(parser.IsAnError()) << c.text << ": " << Error();
        EXPECT_NEAR(static_cast<double>(value), static_cast<double>(c.exact), c.tolerance)
            << c.text << " order " << c.order;
    }
}

TEST_F(Calculus, TheDerivativeOfAConstantIsZeroAtOnce) {
    ScriptedHooks hooks;
    parser.set_computation_hooks(&hooks);
    EXPECT_EQ(DerivativeAt("5", 1, 1), 0.0L);
    EXPECT_FALSE(parser.IsAnError());
    // Two steps of two samples each: the table stops at its second column.
    EXPECT_EQ(hooks.pumps, 4);
    // The variable gets its value back on the normal path.
    EXPECT_EQ(parser.get_var_value("x").real, 0.75);
}

TEST_F(Calculus, DerivativeFailures) {
    EXPECT_EQ(DerivativeAt("x^2", 1, 1, 0.0L), 0.0L);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_EQ(Error(), "Step size is zero in derivative algorithm!");

    // Below 0 the root turns imaginary with a positive part.
    DerivativeAt("SQRT[x]", 0.05L, 1);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_EQ(Error(),
              "Complex numbers have been encountered in the slope computation of the "
              "differential algorithm!");

    // A negative imaginary part passes the test, as it keeps the part's sign.
    DerivativeAt("-SQRT[x]*i", 0.05L, 1);
    EXPECT_FALSE(parser.IsAnError()) << Error();

    DerivativeAt("1/x", 0.1L, 1);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_EQ(Error(), "Division By Zero Encountered!");
}

TEST_F(Calculus, StopEndsADerivative) {
    ScriptedHooks hooks(3);
    parser.set_computation_hooks(&hooks);
    DerivativeAt("x^2", 3, 1);
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(hooks.pumps, 3);
}

struct RootCase {
    const char *text;
    long double low, high, root;
};

TEST_F(Calculus, RootsInsideABracket) {
    const long double pi = std::numbers::pi_v<long double>;
    const RootCase cases[] = {
        {"x^2-2", 0, 2, std::sqrt(2.0L)},
        {"COS[x]", 1, 2, pi / 2},
        {"x^3-x-1", 1, 2, 1.3247179572447460260L},
        {"EXP[x]-10", 0, 5, std::log(10.0L)},
        {"x-0.25", 1, -1, 0.25L},
    };
    for (const RootCase &c : cases) {
        long double root = -99;
        EXPECT_TRUE(parser.Root(Map(c.text), "x", c.low, c.high, 1e-15L, 200, root)) << c.text;
        EXPECT_NEAR(static_cast<double>(root), static_cast<double>(c.root), 1e-12) << c.text;
    }
}

TEST_F(Calculus, RootEndsAndMissingBrackets) {
    long double root = -99;
    EXPECT_FALSE(parser.Root(Map("x^2+1"), "x", -1, 1, 1e-15L, 100, root));
    EXPECT_EQ(root, -99.0L);
    EXPECT_TRUE(parser.Root(Map("x-3"), "x", 3, 5, 1e-15L, 100, root));
    EXPECT_EQ(root, 3.0L);
    EXPECT_TRUE(parser.Root(Map("x-5"), "x", 3, 5, 1e-15L, 100, root));
    EXPECT_EQ(root, 5.0L);
}

TEST_F(Calculus, RootStopsAtItsIterationLimitWithoutFailing) {
    long double root = -99;
    // One iteration: one bisection and one interpolation step.
    EXPECT_TRUE(parser.Root(Map("x^3-x-1"), "x", 1, 2, 1e-15L, 1, root));
    EXPECT_GT(root, 1.0L);
    EXPECT_LT(root, 2.0L);
}

}  // namespace
}  // namespace quindar
