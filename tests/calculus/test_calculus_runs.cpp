// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// One run of integration, differentiation or root search on a document's engine: checks,
// messages, and the engine left as the run found it.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "calculus_runs.h"
#include "parser.h"

namespace quindar::calculus {
namespace {

class CalculusRuns : public ::testing::Test {
protected:
    void Line(const char *text) {
        parser.eval_exp(text, true, false);
        ASSERT_FALSE(parser.IsAnError()) << text << ": " << parser.GetLastError();
    }

    Parser parser{"", ""};
};

TEST_F(CalculusRuns, AnUndeclaredVariableLivesForTheRunOnly) {
    const Outcome outcome = Integrate(parser, {"t^2", "t", "0", "3"});
    ASSERT_TRUE(outcome.ok) << outcome.error;
    EXPECT_NEAR(static_cast<double>(outcome.value), 9.0, 1e-9);
    EXPECT_EQ(parser.find_variable("t"), -1);
    EXPECT_EQ(parser.equations.count(), 0);
}

TEST_F(CalculusRuns, ADeclaredVariableKeepsItsValueAndRange) {
    Line("x = 0, 10, 11");
    Line("x = 4");
    const Outcome outcome = Integrate(parser, {"2*x", "x", "1", "2"});
    ASSERT_TRUE(outcome.ok) << outcome.error;
    EXPECT_NEAR(static_cast<double>(outcome.value), 3.0, 1e-12);
    EXPECT_EQ(parser.get_var_value("x").real, 4.0);
    EXPECT_TRUE(parser.var_incremented("x"));
    EXPECT_EQ(parser.get_var_numpoints("x"), 11);
    EXPECT_EQ(parser.get_var_hilimit("x").real, 10.0);
    EXPECT_FALSE(parser.is_var_locked("x"));
}

TEST_F(CalculusRuns, LimitsAreExpressionsAndReversedLimitsAreSwapped) {
    Line("a = 2");
    const Outcome forward = Integrate(parser, {"x", "x", "0", "a*2"});
    const Outcome backward = Integrate(parser, {"x", "x", "a*2", "0"});
    ASSERT_TRUE(forward.ok && backward.ok);
    EXPECT_NEAR(static_cast<double>(forward.value), 8.0, 1e-12);
    EXPECT_EQ(forward.value, backward.value);
}

TEST_F(CalculusRuns, UserFunctionsAreMappedWithTheirBodies) {
    Line("f[x] = 3*x^2");
    const Outcome outcome = Integrate(parser, {"f[x]", "x", "0", "1"});
    ASSERT_TRUE(outcome.ok) << outcome.error;
    EXPECT_NEAR(static_cast<double>(outcome.value), 1.0, 1e-12);
}

struct FailureCase {
    IntegralRequest request;
    const char *message;
};

TEST_F(CalculusRuns, IntegrationFailuresSayWhy) {
    const FailureCase cases[] = {
        {{"x", "x", "1", "1"}, "The upper and lower Dx limits can not be equal."},
        {{"x", "x", "0", "i"},
         "The integration limits CAN NOT be imaginary number, they must be real numbers."},
        {{"x", "x", "", "1"}, "An Integration limit is missing."},
        {{"x", "x", "0", "x+1"}, "The integration limit can not be a function of x."},
        {{"q^2", "", "0", "1"},
         "You have not identified the variable with which you would like to integrate with "
         "respect to."},
        {{"q^2", "w", "0", "1"},
         "q^2 is not a function of w and can not be integrated with "
         "respect to it."},
        {{"1/x", "x", "0", "1"}, "Division By Zero Encountered!"},
        {{"x*k", "x", "0", "1"},
         "' k ' can not be identified as a variable or a constant! You may either "
         "integrate with repsect to this variable, or you must assign this variable a value."},
    };
    for (const FailureCase &c : cases) {
        const Outcome outcome = Integrate(parser, c.request);
        EXPECT_FALSE(outcome.ok) << c.request.expression;
        EXPECT_EQ(outcome.error, c.message) << c.request.expression;
        EXPECT_FALSE(parser.IsAnError());
        EXPECT_EQ(parser.find_variable("x"), -1);
        EXPECT_EQ(parser.equations.count(), 0);
    }
}

TEST_F(CalculusRuns, XYAndZPassUnseenInIntegralsOnly) {
    const Outcome integral = Integrate(parser, {"1", "x", "0", "2"});
    ASSERT_TRUE(integral.ok) << integral.error;
    EXPECT_EQ(integral.value, 2.0L);
    const Outcome derivative = Differentiate(parser, {"1", "x", "0"});
    EXPECT_FALSE(derivative.ok);
    EXPECT_EQ(derivative.error,
              "1 is not a function of x and can not be differentiated with respect to it.");
}

TEST_F(CalculusRuns, DerivativesAndTheirFailures) {
    parser.angle_mode = 1;
    Outcome outcome = Differentiate(parser, {"x^3", "x", "2", 2});
    ASSERT_TRUE(outcome.ok) << outcome.error;
    EXPECT_NEAR(static_cast<double>(outcome.value), 12.0, 1e-5);

    outcome = Differentiate(parser, {"SQRT[x]", "x", "0.05"});
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error,
              "An error occured while computing the first differential at x = 0.05 : Complex "
              "numbers have been encountered in the slope computation of the differential "
              "algorithm!");

    parser.angle_mode = 0;
    Line("g[u] = 2*COS[u]");
    outcome = Differentiate(parser, {"g[x]+x", "x", "1"});
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error,
              "You can not differentiate the trigonometric function COS while in degrees mode, "
              "you must change to radians in order differentiate this function.  Use the "
              "Mathematical Options dialog to change this setting.");
}

TEST_F(CalculusRuns, RootsAndMissingBrackets) {
    Outcome outcome = FindRoot(parser, {"x^2-2", "x", "0", "2"});
    ASSERT_TRUE(outcome.ok) << outcome.error;
    EXPECT_NEAR(static_cast<double>(outcome.value), std::sqrt(2.0), 1e-13);
    outcome = FindRoot(parser, {"x^2+1", "x", "-1", "1"});
    EXPECT_FALSE(outcome.ok);
    EXPECT_EQ(outcome.error,
              "x^2+1 does not change sign between -1 and 1, so no root can be "
              "bracketed.");
}

// A result that is no finite number is an error with its reason, never a value to print.
TEST_F(CalculusRuns, ResultsThatAreNotFiniteAreErrors) {
    const Outcome integral = Integrate(parser, {"x^2", "x", "-1*10^300", "10^300"});
    EXPECT_FALSE(integral.ok);
    EXPECT_EQ(integral.error.rfind("The result of x^2 is not a finite number (", 0), 0u)
        << integral.error;
    const Outcome derivative = Differentiate(parser, {"POW[10,400]*x", "x", "1"});
    EXPECT_FALSE(derivative.ok);
    EXPECT_EQ(derivative.error.rfind("The result of POW[10,400]*x is not a finite number (", 0), 0u)
        << derivative.error;
}

}  // namespace
}  // namespace quindar::calculus
