// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Differentiation Utility's run: the table's rows and columns, its refusals, errors and
// Stop that keep the rows done, the degree test, and the "Insert Ans." text.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "calculus_messages.h"
#include "circular_functions.h"
#include "differentiation_run.h"
#include "function_library.h"
#include "parser.h"
#include "recording_host.h"

namespace quindar::calculus {
namespace {

// A library of one category, as a library file would give it.
class OneCategoryLibrary : public FunctionLibrary {
public:
    std::vector<std::string> categories() override { return {"PHYSICS"}; }
    void set_category(const std::string &) override {}
    std::optional<LibraryDefinition> find_in_category(const char *name) override {
        for (const LibraryDefinition &definition : definitions)
            if (definition.full_name.rfind(std::string(name) + "[", 0) == 0) return definition;
        return std::nullopt;
    }
    std::vector<LibraryDefinition> definitions{
        {"RANGEOF[v,angle]", "v^2*SIN[2*angle]/GRAVITY"},
        {"DOUBLED[v]", "2*v"},
    };
};

class DifferentiationRunTest : public ::testing::Test {
protected:
    void Line(const char *text) {
        parser.eval_exp(text, true, false);
        ASSERT_FALSE(parser.IsAnError()) << text << ": " << parser.GetLastError();
    }

    DifferentiationResult Run(const char *function, const char *start, const char *end,
                              const char *steps,
                              std::array<bool, 4> shown = {true, true, true, true},
                              const char *variable = "x") {
        DifferentiationSettings settings;
        settings.function = function;
        settings.variable = variable;
        settings.start = start;
        settings.end = end;
        settings.steps = steps;
        settings.shown = shown;
        DifferentiationRun run(parser, host, 6);
        return run.run(settings, table);
    }

    std::vector<double> Column(int column) const {
        return std::vector<double>(table.columns[column].begin(), table.columns[column].end());
    }

    void ExpectNothingLeft() {
        EXPECT_EQ(parser.equations.count(), 0);
        if (parser.find_variable("x") >= 0) {
            EXPECT_FALSE(parser.is_var_locked("x"));
        }
    }

    Parser parser{"", ""};
    RecordingHost host;
    DifferentiationTable table;
};

TEST(DifferentiationTitles, ColumnsFollowTheVariableAndTheBoxes) {
    EXPECT_EQ(ColumnTitle(kVariableColumn, "t"), "t");
    EXPECT_EQ(ColumnTitle(kFunctionColumn, "t"), "f (t)");
    EXPECT_EQ(ColumnTitle(kFirstColumn, "t"), "f '(t)");
    EXPECT_EQ(ColumnTitle(kSecondColumn, "t"), "f ''(t)");
    EXPECT_EQ(ColumnTitle(kThirdColumn, "t"), "f '''(t)");
    const struct {
        std::array<bool, 4> shown;
        int function, first, second, third;
    } cases[] = {
        {{true, true, true, true}, 1, 2, 3, 4},
        {{false, true, true, true}, -1, 1, 2, 3},
        {{true, false, true, false}, 1, -1, 2, -1},
        {{false, false, false, true}, -1, -1, -1, 1},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(ListColumn(kVariableColumn, c.shown), 0);
        EXPECT_EQ(ListColumn(kFunctionColumn, c.shown), c.function);
        EXPECT_EQ(ListColumn(kFirstColumn, c.shown), c.first);
        EXPECT_EQ(ListColumn(kSecondColumn, c.shown), c.second);
        EXPECT_EQ(ListColumn(kThirdColumn, c.shown), c.third);
    }
    EXPECT_EQ(CurrentVariable("  "), "x");
    EXPECT_EQ(CurrentVariable(" t "), "t");
}

// While the document's gate is held (a graph build), a table is not started.
TEST_F(DifferentiationRunTest, ATableWaitsForTheDocumentsGate) {
    {
        ComputeGatePass build(parser.compute_gate, "graph");
        ASSERT_TRUE(build.ok());
        Run("x^2", "0", "1", "2");
        EXPECT_EQ(table.rows(), 0u);
    }
    Run("x^2", "0", "1", "2");
    EXPECT_EQ(table.rows(), 2u);
    EXPECT_FALSE(parser.compute_gate.is_busy());
}

TEST_F(DifferentiationRunTest, AllFourColumnsOfACubic) {
    const DifferentiationResult result = Run("x^3", "0", "2", "3");
    ASSERT_TRUE(result.solved);
    EXPECT_FALSE(result.stopped);
    EXPECT_EQ(Column(kVariableColumn), (std::vector<double>{0, 1, 2}));
    EXPECT_EQ(Column(kFunctionColumn), (std::vector<double>{0, 1, 8}));
    const double expected[][3] = {{0, 3, 12}, {0, 6, 12}, {6, 6, 6}};
    for (int order = 1; order <= 3; ++order) {
        const std::vector<double> values = Column(kFunctionColumn + order);
        ASSERT_EQ(values.size(), 3u) << order;
        for (int row = 0; row < 3; ++row)
            EXPECT_NEAR(values[row], expected[order - 1][row], 1e-6) << order << " " << row;
    }
    EXPECT_EQ(
        host.statuses,
        (std::vector<std::string>{
            "Computing the variable values", "Computing the function derivative values", "",
            "Computing the first derivative values", "", "Computing the second derivative values",
            "", "Computing the third derivative values", "", ""}));
    EXPECT_EQ(host.sounds, (std::vector<Sound>{Sound::Success}));
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(parser.find_variable("x"), -1);
    ExpectNothingLeft();
}

TEST_F(DifferentiationRunTest, RowsComeFromNAsItIsCut) {
    const struct {
        const char *steps;
        std::vector<double> xs;
    } cases[] = {
        {"1", {1}},   {"2.9", {1, 5}},        {"-3", {1}},
        {"0.5", {1}}, {"5", {1, 2, 3, 4, 5}}, {"4*1", {1, 7.0 / 3, 11.0 / 3, 5}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.steps);
        const DifferentiationResult result =
            Run("x^2", "1", "5", c.steps, {true, false, false, false});
        ASSERT_TRUE(result.solved);
        const std::vector<double> xs = Column(kVariableColumn);
        ASSERT_EQ(xs.size(), c.xs.size());
        for (std::size_t i = 0; i < xs.size(); ++i) EXPECT_NEAR(xs[i], c.xs[i], 1e-12);
        EXPECT_EQ(Column(kFunctionColumn).size(), c.xs.size());
    }
}

TEST_F(DifferentiationRunTest, ReversedLimitsRunUpward) {
    ASSERT_TRUE(Run("x", "4", "2", "3", {true, false, false, false}).solved);
    EXPECT_EQ(Column(kVariableColumn), (std::vector<double>{2, 3, 4}));
}

TEST_F(DifferentiationRunTest, UncheckedBoxesLeaveTheirColumnsEmpty) {
    ASSERT_TRUE(Run("x^2", "0", "1", "2", {false, false, true, false}).solved);
    EXPECT_TRUE(table.columns[kFunctionColumn].empty());
    EXPECT_TRUE(table.columns[kFirstColumn].empty());
    EXPECT_EQ(table.columns[kSecondColumn].size(), 2u);
    EXPECT_TRUE(table.has_data());
    ASSERT_TRUE(Run("x^2", "0", "1", "2", {false, false, false, false}).solved);
    EXPECT_EQ(table.rows(), 2u);
    EXPECT_FALSE(table.has_data());
}

TEST_F(DifferentiationRunTest, ADeclaredVariableKeepsItsValueAndRange) {
    Line("x = 0, 10, 11");
    Line("x = 4");
    ASSERT_TRUE(Run("x^2", "0", "1", "5", {true, true, false, false}).solved);
    EXPECT_EQ(parser.get_var_value("x").real, 4.0);
    EXPECT_EQ(parser.get_var_numpoints("x"), 11);
    EXPECT_EQ(parser.get_var_hilimit("x").real, 10.0);
    ExpectNothingLeft();
}

struct RefusalCase {
    const char *what;
    const char *function, *variable, *start, *end, *steps;
    int id;
    std::string text;
    Field field;
};

std::string DegreesRefusal(const std::string &name) {
    return "You can not differentiate the trigonometric function " + name +
           " while in degrees mode, you must change to radians in order differentiate this "
           "function.  Use the Mathematical Options dialog to change this setting.";
}

TEST_F(DifferentiationRunTest, EveryRefusalSaysWhy) {
    Line("g[x] = COS[x] + 1");
    Line("h[t] = g[t]*2");
    Line("k[x] = x^2");
    parser.library = std::make_unique<OneCategoryLibrary>();
    const RefusalCase cases[] = {
        {"sine in degrees", "SIN[x]", "x", "0", "1", "2", 13166, DegreesRefusal("SIN"),
         Field::Function},
        {"lower case", "2*atan(x)", "x", "0", "1", "2", 13166, DegreesRefusal("ATAN"),
         Field::Function},
        {"inside a user function", "g[x]", "x", "0", "1", "2", 13166, DegreesRefusal("COS"),
         Field::Function},
        {"two functions deep", "x + h[x]", "x", "0", "1", "2", 13166, DegreesRefusal("COS"),
         Field::Function},
        {"inside a library function", "RANGEOF[3,x]", "x", "0", "1", "2", 13166,
         DegreesRefusal("SIN"), Field::Function},
        {"not a function of it", "x^2", "y", "0", "1", "2", 13156,
         "x^2 is not a function of y and can not be differentiated with respect to it.",
         Field::Variable},
        {"not one of its variables", "k[x] = x^2", "kx", "0", "1", "2", 13156,
         "k[x] is not a function of kx and can not be differentiated with respect to it.",
         Field::Variable},
        {"in the text, not a variable of it", "k[x]", "k", "0", "1", "2", 13156,
         "k[x] is not a function of k and can not be differentiated with respect to it.",
         Field::Variable},
        {"a missing limit", "x^2", "x", "", "1", "2", 13151, "A differentiation limit is missing.",
         Field::Start},
        {"a missing n", "x^2", "x", "0", "1", " ", 13151, "A differentiation limit is missing.",
         Field::Steps},
        {"an imaginary limit", "x^2", "x", "0", "1+i", "2", 13152,
         "The differentiation limits CAN NOT be imaginary number, they must be real numbers.",
         Field::End},
        {"equal limits", "x^2", "x", "1", "2-1", "2", 13153,
         "The upper and lower differentiation limits can not be equal.", Field::Start},
        {"no steps", "x^2", "x", "0", "1", "0", 13163,
         "The number of differentiation steps must be greater than zero.", Field::Steps},
        {"a limit that fails", "x^2", "x", "1/0", "1", "2", 0, "Division By Zero Encountered!",
         Field::Start},
        {"an unknown name", "q*x", "x", "0", "1", "2", 0,
         "' q ' can not be identified as a variable or a constant! You may either differentiate "
         "with repsect to this variable, or you must assign this variable a value.",
         Field::Function},
    };
    for (const RefusalCase &c : cases) {
        SCOPED_TRACE(c.what);
        host = RecordingHost();
        DifferentiationSettings settings{c.function, c.variable, c.start, c.end, c.steps};
        DifferentiationRun run(parser, host, 6);
        const DifferentiationResult result = run.run(settings, table);
        EXPECT_FALSE(result.solved);
        ASSERT_EQ(host.messages.size(), 1u);
        EXPECT_EQ(host.messages[0].title, 13150);
        EXPECT_EQ(host.messages[0].id, c.id);
        EXPECT_EQ(host.messages[0].text, c.text);
        EXPECT_EQ(host.messages[0].field, c.field);
        EXPECT_FALSE(table.has_data());
        EXPECT_EQ(parser.find_variable("x"), -1);
        ExpectNothingLeft();
    }
}

TEST_F(DifferentiationRunTest, TheDegreeTestVisitsEachCalledFunctionOnce) {
    // Each function calls the next twice; walking every call would take 2^20 visits.
    Line("f0[x] = x + 1");
    for (int i = 1; i <= 20; ++i) {
        const std::string line = "f" + std::to_string(i) + "[x] = f" + std::to_string(i - 1) +
                                 "[x] * f" + std::to_string(i - 1) + "[x]";
        Line(line.c_str());
    }
    EXPECT_EQ(FindCircularFunction(parser, "x + f20[x]"), "");
    Line("f0[x] = COS[x] + 1");
    EXPECT_EQ(FindCircularFunction(parser, "x + f20[x]"), "COS");
}

TEST_F(DifferentiationRunTest, RadiansLetCircularFunctionsRun) {
    parser.angle_mode = 1;
    Line("g[x] = COS[x] + 1");
    ASSERT_TRUE(Run("g[x]", "0", "1", "2", {true, true, false, false}).solved);
    EXPECT_NEAR(Column(kFirstColumn)[1], -std::sin(1.0), 1e-8);
}

TEST_F(DifferentiationRunTest, AnEmptyFunctionEndsTheRunSilently) {
    const DifferentiationResult result = Run("  ", "0", "1", "2");
    EXPECT_FALSE(result.solved);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(host.sounds.empty());
    EXPECT_EQ(table.rows(), 0u);
}

TEST_F(DifferentiationRunTest, ABadVariableNameIsToldAndStillUsed) {
    const DifferentiationResult result =
        Run("x^2", "0", "1", "2", {true, false, false, false}, "a b");
    EXPECT_FALSE(result.solved);
    ASSERT_EQ(host.messages.size(), 2u);
    EXPECT_EQ(host.messages[0].id, 13154);
    EXPECT_EQ(host.messages[0].text,
              "The differentiation variable you entered is invalid. The parameter a b must be an "
              "arithmetic variable and can not contain any of the following characters "
              "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\.");
    EXPECT_EQ(host.messages[1].id, 13156);
}

TEST_F(DifferentiationRunTest, ALockedVariableIsRefused) {
    Line("x = 1");
    parser.set_var_lock("x", true);
    EXPECT_FALSE(Run("x^2", "0", "1", "2").solved);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(
        host.messages[0].text,
        "Variable \"x\" is temporarily locked by another process, use a different variable or "
        "wait until the other process has completed.");
}

TEST_F(DifferentiationRunTest, AnErrorAtOnePointKeepsTheRowsBefore) {
    const DifferentiationResult result = Run("1/(x-1)", "0", "3", "4");
    EXPECT_FALSE(result.solved);
    EXPECT_FALSE(result.stopped);
    EXPECT_EQ(Column(kVariableColumn), (std::vector<double>{0, 1, 2, 3}));
    EXPECT_EQ(Column(kFunctionColumn), (std::vector<double>{-1}));
    EXPECT_TRUE(table.columns[kFirstColumn].empty());
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text,
              "An error occured while computing the function at x = 1 : Division By Zero "
              "Encountered!");
    EXPECT_EQ(host.sounds, (std::vector<Sound>{Sound::Error}));
    EXPECT_EQ(parser.find_variable("x"), -1);
    ExpectNothingLeft();
}

TEST_F(DifferentiationRunTest, AnImaginaryFunctionValueEndsTheRun) {
    EXPECT_FALSE(Run("SQRT[x]", "1", "-1", "3").solved);
    EXPECT_TRUE(table.columns[kFunctionColumn].empty());
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text,
              "Computation of the specified function at x = -1 has resulted in an complex result "
              "containing an imaginary number which is not allowed in the Differentiation Utility "
              "results set.");
}

TEST_F(DifferentiationRunTest, AFailedDerivativeKeepsTheRowsBefore) {
    // The derivative at 0 samples SQRT just below 0.
    EXPECT_FALSE(Run("SQRT[x]", "1", "0", "2", {true, true, false, false}).solved);
    EXPECT_EQ(Column(kFunctionColumn), (std::vector<double>{0, 1}));
    EXPECT_TRUE(table.columns[kFirstColumn].empty());
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].id, 13168);
    EXPECT_EQ(host.messages[0].text.rfind("An error occured while computing the first "
                                          "differential at x = ",
                                          0),
              0u);
    EXPECT_NE(host.messages[0].text.find(" : Complex numbers have been encountered in the slope "
                                         "computation of the differential algorithm!"),
              std::string::npos);
    ExpectNothingLeft();
}

TEST_F(DifferentiationRunTest, StopKeepsTheRowsDone) {
    host.stop_at_pump = 15;  // 10 rows of x, then 5 function values
    const DifferentiationResult result = Run("x^2", "1", "10", "10");
    EXPECT_FALSE(result.solved);
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(table.rows(), 10u);
    EXPECT_EQ(Column(kFunctionColumn), (std::vector<double>{1, 4, 9, 16, 25}));
    EXPECT_TRUE(table.columns[kFirstColumn].empty());
    EXPECT_EQ(host.sounds, (std::vector<Sound>{Sound::Stopped}));
    EXPECT_EQ(parser.find_variable("x"), -1);
    ExpectNothingLeft();
}

TEST_F(DifferentiationRunTest, InsertAnswerWritesEveryColumnOfEachRow) {
    ASSERT_TRUE(Run("x^2", "1", "2", "2", {true, true, false, false}).solved);
    EXPECT_EQ(InsertAnswerText(parser, table, {0, 1}, 6),
              "x=1   f (x)=1   f '(x)=2\r\n"
              "x=2   f (x)=4   f '(x)=4\r\n");
    EXPECT_EQ(InsertAnswerText(parser, table, {1}, 6, "\n"), "x=2   f (x)=4   f '(x)=4\n");
    // Rows beyond a column's end leave that column out.
    table.columns[kFirstColumn].pop_back();
    EXPECT_EQ(InsertAnswerText(parser, table, {0, 1, 5}, 6, "\n"),
              "x=1   f (x)=1   f '(x)=2\n"
              "x=2   f (x)=4\n");
}

}  // namespace
}  // namespace quindar::calculus
