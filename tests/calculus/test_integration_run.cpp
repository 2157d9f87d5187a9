// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Integration Utility's run: single, double and triple integrals, its checks and messages,
// Stop, and the variables the run borrows.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>

#include "calculus_messages.h"
#include "integration_run.h"
#include "parser.h"
#include "recording_host.h"

namespace quindar::calculus {
namespace {

class IntegrationRunTest : public ::testing::Test {
protected:
    void Line(const char *text) {
        parser.eval_exp(text, true, false);
        ASSERT_FALSE(parser.IsAnError()) << text << ": " << parser.GetLastError();
    }

    IntegrationResult Run(const IntegrationSettings &settings) {
        IntegrationRun run(parser, host);
        return run.run(settings);
    }

    // No trace of a run: no map left, no variable locked.
    void ExpectEngineAsBefore() {
        EXPECT_EQ(parser.equations.count(), 0);
        for (const char *name : {"x", "y", "z"})
            if (parser.find_variable(name) >= 0) {
                EXPECT_FALSE(parser.is_var_locked(name)) << name;
            }
    }

    Parser parser{"", ""};
    RecordingHost host;
};

IntegrationSettings Double(const char *function, const char *xLow, const char *xHigh,
                           const char *yLow, const char *yHigh, int slider) {
    IntegrationSettings settings;
    settings.type = 2;
    settings.function = function;
    settings.low = {xLow, yLow, "0"};
    settings.high = {xHigh, yHigh, "1"};
    settings.slider = slider;
    return settings;
}

// The midpoint sum as the utility builds it, written here from its definition: N points
// over the limits give the cell width d, and the N - 1 cell centres carry the inner integral,
// which the tests take in closed form. The inner Romberg integrals of polynomials of degree
// up to 9 are exact to the engine's 14 digits, so the run must agree to 1e-10 relative, while
// the midpoint sums of different sliders differ from each other and from the exact integral
// by 1e-6 and more.
double Midpoint(int slider, double low, double high, const std::function<double(double)> &cell) {
    const int n = SliderGridPoints(slider);
    const double d = (high - low) / (n - 1);
    double sum = 0.0;
    for (int k = 0; k < n - 1; ++k) sum += d * cell(low + d / 2 + k * d);
    return sum;
}

void ExpectClose(long double actual, double expected) {
    EXPECT_NEAR(static_cast<double>(actual), expected, 1e-10 * std::fabs(expected));
}

TEST(IntegrationSlider, AccuracyAndGridFollowThePosition) {
    Parser parser{"", ""};
    const struct {
        int p;
        long double accuracy;
        int points;
    } cases[] = {{0, 0.01L, 4},     {1, 0.01L, 2},    {9, 0.01L, 18},    {10, 0.001L, 20},
                 {20, 0.0001L, 40}, {55, 1e-7L, 110}, {99, 1e-11L, 198}, {100, 1e-12L, 200}};
    for (const auto &c : cases) {
        EXPECT_NEAR(static_cast<double>(SliderAccuracy(parser, c.p)),
                    static_cast<double>(c.accuracy), 1e-6 * static_cast<double>(c.accuracy))
            << c.p;
        EXPECT_EQ(SliderGridPoints(c.p), c.points) << c.p;
    }
}

TEST(IntegrationFunctionBox, ModifyStringTurnsTheBoxIntoAnExpression) {
    const std::vector<std::string> entries{"f[x] = x^2", "g[x,y] = x*y"};
    const struct {
        const char *text;
        const char *expression;
    } cases[] = {
        {"f[x] = x^2", "f[x]"},     {"g[x,y] = x*y", "g[x,y]"}, {"f[x] = x^3", "x^3"},
        {"y = x ^ 2 + 1", "x^2+1"}, {"a = b = c + d", "c+d"},   {"x^2 + 1", "x^2 + 1"},
        {"f[x]", "f[x]"},
    };
    for (const auto &c : cases) EXPECT_EQ(ModifyString(c.text, entries), c.expression) << c.text;
}

TEST_F(IntegrationRunTest, TheFunctionBoxListsEveryUserFunction) {
    Line("f[x] = x^2");
    Line("g[a,b] = a*b");
    const std::vector<std::string> entries = FunctionEntries(parser);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(ModifyString(entries[1], entries), "g[a,b]");
}

TEST_F(IntegrationRunTest, AnEmptyFunctionBoxIntegratesOne) {
    IntegrationSettings settings;
    settings.high[0] = "2";
    const IntegrationResult result = Run(settings);
    ASSERT_TRUE(result.solved);
    EXPECT_EQ(result.value, 2.0L);
    ASSERT_EQ(host.sounds.size(), 1u);
    EXPECT_EQ(host.sounds[0], Sound::Success);
    EXPECT_EQ(parser.find_variable("x"), -1);
    ExpectEngineAsBefore();
}

// A graph build (or another run) holding the document's gate keeps the run from starting;
// once the gate is free the same run computes.
TEST_F(IntegrationRunTest, ARunWaitsForTheDocumentsGate) {
    IntegrationSettings settings;
    settings.high[0] = "2";
    {
        ComputeGatePass build(parser.compute_gate, "graph");
        ASSERT_TRUE(build.ok());
        const IntegrationResult refused = Run(settings);
        EXPECT_FALSE(refused.solved);
        EXPECT_TRUE(host.sounds.empty());
        EXPECT_EQ(parser.find_variable("x"), -1);
    }
    const IntegrationResult result = Run(settings);
    ASSERT_TRUE(result.solved);
    EXPECT_EQ(result.value, 2.0L);
    EXPECT_FALSE(parser.compute_gate.is_busy());
}

TEST_F(IntegrationRunTest, DoubleIntegralsAreMidpointSumsOfRombergIntegrals) {
    for (int slider : {0, 20, 100}) {
        SCOPED_TRACE(slider);
        // The inner integral of x*y^2 over x from 0 to 1 is y^2/2.
        IntegrationResult result = Run(Double("x*y^2", "0", "1", "0", "1", slider));
        ASSERT_TRUE(result.solved);
        ExpectClose(result.value, Midpoint(slider, 0, 1, [](double y) { return y * y / 2; }));
        EXPECT_GT(std::fabs(static_cast<double>(result.value) - 1.0 / 6), 1e-7);
        // Inner limits follow the outer variable: x from 0 to y of x+y is 1.5 y^2.
        result = Run(Double("x+y", "0", "y", "0", "2", slider));
        ASSERT_TRUE(result.solved);
        ExpectClose(result.value, Midpoint(slider, 0, 2, [](double y) { return 1.5 * y * y; }));
        // Reversed limits, inner and outer, are swapped in silence.
        result = Run(Double("x*y^2", "1", "0", "1", "0", slider));
        ASSERT_TRUE(result.solved);
        ExpectClose(result.value, Midpoint(slider, 0, 1, [](double y) { return y * y / 2; }));
    }
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(parser.find_variable("x"), -1);
    EXPECT_EQ(parser.find_variable("y"), -1);
    ExpectEngineAsBefore();
}

TEST_F(IntegrationRunTest, TripleIntegralsNestTheMidpointSums) {
    for (int slider : {0, 20, 100}) {
        SCOPED_TRACE(slider);
        IntegrationSettings settings;
        settings.type = 3;
        settings.function = "x*y^2*z";
        settings.low = {"0", "0", "1"};
        settings.high = {"1", "z", "2"};
        settings.slider = slider;
        const IntegrationResult result = Run(settings);
        ASSERT_TRUE(result.solved);
        // The inner integral over x is y^2 z / 2; y runs from 0 to z.
        const double expected = Midpoint(slider, 1, 2, [slider](double z) {
            return Midpoint(slider, 0, z, [z](double y) { return y * y * z / 2; });
        });
        ExpectClose(result.value, expected);
    }
    EXPECT_TRUE(host.messages.empty());
    ExpectEngineAsBefore();
}

TEST_F(IntegrationRunTest, SliderOneGivesOneCellPerOuterAxis) {
    IntegrationSettings settings;
    settings.type = 3;
    settings.function = "x*y*z";
    settings.low = {"0", "0", "0"};
    settings.high = {"y", "z", "2"};
    settings.slider = 1;
    const IntegrationResult result = Run(settings);
    ASSERT_TRUE(result.solved);
    // z = 1 and y = 0.5 at the centres; the inner integral of x*y*z over [0, y] is y^3 z / 2.
    ExpectClose(result.value, 2 * 1 * (0.5 * 0.5 * 0.5 * 1 / 2));
    ExpectEngineAsBefore();
}

TEST_F(IntegrationRunTest, TheGaugeRunsToOneHundred) {
    // N = 4: three cells of 25 each, and the end sets 100.
    Run(Double("x*y", "0", "1", "0", "1", 2));
    EXPECT_EQ(host.percents, (std::vector<int>{0, 25, 50, 75, 100}));
    host.percents.clear();
    Run(Double("x*y", "0", "1", "0", "1", 100));  // N = 200: one percent every second cell
    ASSERT_FALSE(host.percents.empty());
    EXPECT_EQ(host.percents.back(), 100);
    EXPECT_EQ(host.percents[host.percents.size() - 2], 99);
}

TEST_F(IntegrationRunTest, DeclaredVariablesKeepTheirValuesAndRanges) {
    Line("x = 0, 10, 11");
    Line("x = 4");
    Line("y = 7");
    const IntegrationResult result = Run(Double("x*y^2", "0", "1", "0", "1", 20));
    ASSERT_TRUE(result.solved);
    EXPECT_EQ(parser.get_var_value("x").real, 4.0);
    EXPECT_TRUE(parser.var_incremented("x"));
    EXPECT_EQ(parser.get_var_numpoints("x"), 11);
    EXPECT_EQ(parser.get_var_hilimit("x").real, 10.0);
    EXPECT_EQ(parser.get_var_value("y").real, 7.0);
    EXPECT_FALSE(parser.var_incremented("y"));
    ExpectEngineAsBefore();
}

TEST_F(IntegrationRunTest, StopAtAnySampleLeavesNoAnswerAndTheVariablesRestored) {
    Line("y = 0, 5, 6");
    Line("y = 2");
    for (long k : {1L, 2L, 17L, 40L, 400L}) {
        SCOPED_TRACE(k);
        host = RecordingHost();
        host.stop_at_pump = k;
        const IntegrationResult result = Run(Double("x*y^2", "0", "1", "0", "1", 20));
        EXPECT_FALSE(result.solved);
        EXPECT_TRUE(result.stopped);
        EXPECT_TRUE(host.messages.empty());
        ASSERT_FALSE(host.sounds.empty());
        EXPECT_EQ(host.sounds.back(), Sound::Stopped);
        EXPECT_EQ(parser.find_variable("x"), -1);
        EXPECT_EQ(parser.get_var_value("y").real, 2.0);
        EXPECT_EQ(parser.get_var_numpoints("y"), 6);
        ExpectEngineAsBefore();
    }
}

TEST_F(IntegrationRunTest, StopInATripleIntegralRestoresAllThree) {
    Line("z = 5");
    for (long k : {1L, 30L, 500L}) {
        SCOPED_TRACE(k);
        host = RecordingHost();
        host.stop_at_pump = k;
        IntegrationSettings settings;
        settings.type = 3;
        settings.function = "x*y*z";
        settings.low = {"0", "0", "0"};
        settings.high = {"y", "z", "1"};
        settings.slider = 10;
        const IntegrationResult result = Run(settings);
        EXPECT_FALSE(result.solved);
        EXPECT_TRUE(result.stopped);
        EXPECT_EQ(parser.find_variable("x"), -1);
        EXPECT_EQ(parser.find_variable("y"), -1);
        EXPECT_EQ(parser.get_var_value("z").real, 5.0);
        EXPECT_FALSE(parser.var_incremented("z"));
        ExpectEngineAsBefore();
    }
}

TEST_F(IntegrationRunTest, StopDuringASingleIntegralGivesNoAnswer) {
    host.stop_at_pump = 3;
    IntegrationSettings settings;
    settings.function = "x^2";
    const IntegrationResult result = Run(settings);
    EXPECT_FALSE(result.solved);
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(parser.find_variable("x"), -1);
    ExpectEngineAsBefore();
}

struct RefusalCase {
    const char *what;
    IntegrationSettings settings;
    int id;
    const char *text;
    Field field;
};

IntegrationSettings With(int type, const char *function,
                         const std::function<void(IntegrationSettings &)> &change) {
    IntegrationSettings settings;
    settings.type = type;
    settings.function = function;
    change(settings);
    return settings;
}

TEST_F(IntegrationRunTest, EveryRefusalSaysWhyAndPointsAtItsField) {
    const RefusalCase cases[] = {
        {"no X parameter", With(1, "x", [](auto &s) { s.parameter[0] = "  "; }), 13110,
         "You are missing or have not selected an integration parameter.", Field::XParameter},
        {"no Y parameter", With(2, "x*y", [](auto &s) { s.parameter[1] = ""; }), 13110,
         "You are missing or have not selected an integration parameter.", Field::YParameter},
        {"a bad name", With(1, "x", [](auto &s) { s.parameter[0] = "a+b"; }), 13111,
         "The integration parameter you entered is invalid. The parameter a+b must be an "
         "arithmetic variable and can not contain any of the following characters "
         "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\.",
         Field::XParameter},
        {"a blank in a name", With(3, "x", [](auto &s) { s.parameter[2] = "z z"; }), 13111,
         "The integration parameter you entered is invalid. The parameter z z must be an "
         "arithmetic variable and can not contain any of the following characters "
         "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\.",
         Field::ZParameter},
        {"not a function of it", With(1, "q^2", [](auto &s) { s.parameter[0] = "w"; }), 13114,
         "q^2 is not a function of w and can not be integrated with respect to it.",
         Field::Function},
        {"equal X limits", With(1, "x", [](auto &s) { s.high[0] = "0"; }), 13101,
         "The upper and lower Dx limits can not be equal.", Field::None},
        {"equal Y limits", With(2, "x*y", [](auto &s) { s.high[1] = "0"; }), 13102,
         "The upper and lower Dy limits can not be equal.", Field::None},
        {"equal Z limits", With(3, "x*y*z", [](auto &s) { s.low[2] = "1"; }), 13103,
         "The upper and lower Dz limits can not be equal.", Field::None},
        {"a missing limit", With(1, "x", [](auto &s) { s.high[0] = " "; }), 13107,
         "An Integration limit is missing.", Field::XHigh},
        {"a limit of its own variable", With(1, "x", [](auto &s) { s.high[0] = "x+1"; }), 13108,
         "The integration limit can not be a function of x.", Field::XHigh},
        {"a Y limit of y", With(2, "x*y", [](auto &s) { s.low[1] = "y/2"; }), 13108,
         "The integration limit can not be a function of y.", Field::YLow},
        {"an imaginary limit", With(1, "x", [](auto &s) { s.high[0] = "2i"; }), 13104,
         "The integration limits CAN NOT be imaginary number, they must be real numbers.",
         Field::XHigh},
        {"a limit that fails", With(1, "x", [](auto &s) { s.low[0] = "1/0"; }), 0,
         "Division By Zero Encountered!", Field::XLow},
        {"an unknown name", With(1, "q*x", [](auto &) {}), 0,
         "' q ' can not be identified as a variable or a constant! You may either integrate with "
         "repsect to this variable, or you must assign this variable a value.",
         Field::Function},
        {"a failing sample", With(1, "1/x", [](auto &) {}), 0, "Division By Zero Encountered!",
         Field::Function},
    };
    for (const RefusalCase &c : cases) {
        SCOPED_TRACE(c.what);
        host = RecordingHost();
        const IntegrationResult result = Run(c.settings);
        EXPECT_FALSE(result.solved);
        EXPECT_FALSE(result.stopped);
        ASSERT_EQ(host.messages.size(), 1u);
        EXPECT_EQ(host.messages[0].title, 13100);
        EXPECT_EQ(host.messages[0].id, c.id);
        EXPECT_EQ(host.messages[0].text, c.text);
        EXPECT_EQ(host.messages[0].field, c.field);
        ASSERT_FALSE(host.sounds.empty());
        EXPECT_EQ(host.sounds[0], Sound::Error);
        for (const char *name : {"x", "y", "z", "w"}) EXPECT_EQ(parser.find_variable(name), -1);
        ExpectEngineAsBefore();
    }
}

TEST_F(IntegrationRunTest, InnerLimitsThatMeetAtAnOuterPointEndTheRun) {
    // Three cells on y in [0, 3]: centres 0.5, 1.5 and 2.5; the X limits meet at the second.
    const IntegrationResult result = Run(Double("x*y", "0", "y-1.5", "0", "3", 0));
    EXPECT_FALSE(result.solved);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].id, kEqualXLimits);
    EXPECT_EQ(parser.find_variable("x"), -1);
    EXPECT_EQ(parser.find_variable("y"), -1);
    ExpectEngineAsBefore();
}

TEST_F(IntegrationRunTest, FreeAxesPassWithoutStandingInTheText) {
    const IntegrationResult result = Run(Double("1", "0", "2", "0", "3", 20));
    ASSERT_TRUE(result.solved);
    ExpectClose(result.value, 6.0);
}

TEST_F(IntegrationRunTest, UserFunctionsIntegrateOverTheirOwnVariables) {
    Line("f[a,b] = a*b");
    IntegrationSettings settings = Double("f[a,b] = a*b", "0", "1", "0", "2", 20);
    settings.parameter = {"a", "b", "z"};
    IntegrationResult result = Run(settings);
    ASSERT_TRUE(result.solved);
    ExpectClose(result.value, Midpoint(20, 0, 2, [](double b) { return b / 2; }));
    // A name that stands in the text without being one of the function's variables.
    settings.parameter = {"f", "b", "z"};
    result = Run(settings);
    EXPECT_FALSE(result.solved);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text,
              "f[a,b] is not a function of f and can not be integrated with respect to it.");
    host = RecordingHost();
    settings.parameter = {"a", "c", "z"};
    result = Run(settings);
    EXPECT_FALSE(result.solved);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text,
              "f[a,b] is not a function of c and can not be integrated with respect to it.");
}

}  // namespace
}  // namespace quindar::calculus
