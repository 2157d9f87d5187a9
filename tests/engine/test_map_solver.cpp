// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The map solver: values against the line, variables between runs, data lists, the
// solver's own errors and the first-error rule of a run.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "map_support.h"
#include "parser.h"
#include "temp_folder.h"

namespace quindar {
namespace {

using testing::error_of;
using testing::record_map;

class MapSolver : public ::testing::Test {
protected:
    void SetUp() override { parser.eval_exp("x = 2", true, false); }
    // Records `line`, which must succeed.
    int map(const char *line) {
        parser.set_var_value(complex{2, 0}, "x");
        const int number = record_map(parser, line);
        EXPECT_GT(number, 0) << line << ": " << error_of(parser);
        return number;
    }
    complex solve_at(int number, double x) {
        parser.set_var_value(complex{x, 0}, "x");
        return parser.solve_equation(number, false, true);
    }
    Parser parser{"", ""};
};

TEST_F(MapSolver, ConstantsVariablesAndDeletedVariables) {
    const int five = map("5");
    EXPECT_EQ(parser.solve_equation(five, false, true).real, 5.0);
    const int just_x = map("x");
    for (double x : {-3.5, 0.0, 7.25, 1e300}) EXPECT_EQ(solve_at(just_x, x).real, x);
    parser.delete_variable(parser.find_variable("x"));
    const complex gone = parser.solve_equation(just_x, false, true);
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(gone.real, 0.0);
    EXPECT_EQ(gone.imag, 0.0);
}

TEST_F(MapSolver, MapZeroIsTheCurrentMap) {
    map("x*3");
    parser.set_var_value(complex{4, 0}, "x");
    EXPECT_EQ(parser.solve_equation(0, false, true).real, 12.0);
}

TEST_F(MapSolver, UnmappedNumbersRaiseMapperErrorOne) {
    const int number = map("x");
    parser.delete_equation(number);
    const char *expected =
        "Equation mapper is trying to solve an expression that has not been mapped!";
    for (int n : {number, 5, -1}) {
        const complex value = parser.solve_equation(n, false, true);
        EXPECT_EQ(error_of(parser), expected) << n;
        EXPECT_EQ(value.real, 0.0);
        EXPECT_FALSE(parser.solving_map);
    }
    EXPECT_EQ(parser.GetLastErrorNumber(), 1);
}

TEST_F(MapSolver, ComparisonChainsAgreeWithTheLine) {
    const int chain = map("1 < x < 5");
    const int nested = map("(x > 2) < (x < 4) + 1 == 1");
    for (double x : {-1.0, 1.0, 1.5, 3.0, 5.0, 6.0}) {
        parser.set_var_value(complex{x, 0}, "x");
        complex line_value, nested_value;
        parser.eval_exp("1 < x < 5", line_value, true, false);
        parser.eval_exp("(x > 2) < (x < 4) + 1 == 1", nested_value, true, false);
        EXPECT_EQ(solve_at(chain, x).real, line_value.real) << x;
        EXPECT_EQ(solve_at(nested, x).real, nested_value.real) << x;
    }
}

TEST_F(MapSolver, DataListsStartEmptyAtEachRun) {
    const int sum = map("SRESIST[{1,x}]");
    EXPECT_EQ(solve_at(sum, 3).real, 4.0);
    EXPECT_EQ(solve_at(sum, 10).real, 11.0);
    const int parallel = map("PRESIST[{2,2}]");
    EXPECT_EQ(parser.solve_equation(parallel, false, true).real, 1.0);
    const int count = map("x + SRESIST[{x, SRESIST[{1,2}], 3}]");
    EXPECT_EQ(solve_at(count, 1).real, 8.0);
    // Two list functions one after the other at the same depth keep their values apart.
    const int sequence = map("SRESIST[{1,x}] * SRESIST[{2,3}]");
    EXPECT_EQ(solve_at(sequence, 1).real, 10.0);
}

TEST_F(MapSolver, FiveNestedListFunctionsAndNoMore) {
    const int five = map("SRESIST[{1,SRESIST[{1,SRESIST[{1,SRESIST[{1,SRESIST[{1,x}]}]}]}]}]");
    EXPECT_EQ(solve_at(five, 1).real, 6.0);
    EXPECT_FALSE(parser.IsAnError());
    const int six =
        map("SRESIST[{1,SRESIST[{1,SRESIST[{1,SRESIST[{1,SRESIST[{1,SRESIST[{1,x}]}]}]}]}]}]");
    const complex value = solve_at(six, 1);
    EXPECT_EQ(error_of(parser),
              "Some algorithms do not support more than 5 recursive calls to functions with data "
              "list arguments, you are implimenting one of them!");
    EXPECT_EQ(value.real, 0.0);
    EXPECT_FALSE(parser.solving_map);
}

TEST_F(MapSolver, ComplexDataPointsAreRefused) {
    const int sum = map("SRESIST[{1,x}]");
    parser.set_var_value(complex{1, 2}, "x");
    const complex value = parser.solve_equation(sum, false, true);
    EXPECT_EQ(error_of(parser), "Complex data point encountered, data must be real!");
    // The run returns at once with 0, not with the refused point on the top.
    EXPECT_EQ(value, complex{});
}

TEST_F(MapSolver, DataFilesAreReadAgainAtEachRun) {
    testing::TempFolder folder;
    const std::string path = folder.write("values.txt", "1, 2, 3");
    const int sum = map(("x + SRESIST[{" + path + "}]").c_str());
    EXPECT_EQ(solve_at(sum, 1).real, 7.0);
    folder.write("values.txt", "10 20");
    EXPECT_EQ(solve_at(sum, 1).real, 31.0);
    std::filesystem::remove(path);
    solve_at(sum, 1);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_FALSE(parser.solving_map);
}

TEST_F(MapSolver, AllThreeParametersOfIfAreComputed) {
    const int guarded = map("IF[x>0,1/x,0]");
    EXPECT_EQ(solve_at(guarded, 4).real, 0.25);
    solve_at(guarded, 0);
    EXPECT_EQ(error_of(parser), "Division By Zero Encountered!");
}

TEST_F(MapSolver, ParameterTestsRunAtEachSolve) {
    struct Case {
        const char *line;
        double good_x, bad_x;
        const char *message;
    };
    const Case table[] = {
        {"GCD[x,4]", 2, 2.5, "The parameters for GCD function call must be non negative integers!"},
        {"LCM[x,4]", 2, -2, "The parameters for LCM function call must be non negative integers!"},
        {"LOG[8,x]", 2, 1.5, "Base value must be greater than or equal to 2 in LOG function call!"},
        {"LN[x]", 2, 0, "Can not compute the LN of zero, calculation aborted!"},
        {"AND[x,1]", 1, 2, "Non-logical expression in AND function call!"},
        {"OR[0,x]", 0, 0.5, "Non-logical expression in OR function call!"},
        {"NOT[x]", 1, 3, "Non-logical expression in NOT function call!"},
        {"IF[x,2,3]", 0, 7, "Non-logical expression in IF function call!"},
        {"x!", 3, 2.5, "Factorial argument must be an integer greater than Or equal to zero!"},
        {"ASIN[x]", 1, 2, "The parameters for the ' ASIN ' function must be between -1 and 1 !"},
    };
    for (const Case &c : table) {
        parser.set_var_value(complex{c.good_x, 0}, "x");
        const int number = record_map(parser, c.line);
        ASSERT_GT(number, 0) << c.line << ": " << error_of(parser);
        solve_at(number, c.bad_x);
        EXPECT_EQ(error_of(parser), c.message) << c.line;
        EXPECT_FALSE(parser.solving_map) << c.line;
        // The same map runs clean again once the value is good.
        solve_at(number, c.good_x);
        EXPECT_FALSE(parser.IsAnError()) << c.line << ": " << error_of(parser);
    }
}

TEST_F(MapSolver, TheFirstErrorOfARunIsTheOneReported) {
    // The division fails first; the logarithm of the same zero is never reached.
    const int both = map("1/x + LN[x]");
    solve_at(both, 0);
    EXPECT_EQ(error_of(parser), "Division By Zero Encountered!");
    // Inside one worker: PRESIST divides by each zero resistance in turn.
    const int parallel = map("PRESIST[{x,x}]");
    solve_at(parallel, 0);
    EXPECT_EQ(error_of(parser), "Division By Zero Encountered!");
}

TEST_F(MapSolver, ASolveInsideAnEvaluationDoesNotJumpOut) {
    // A failing run while a line is being evaluated must come back to its caller.
    const int failing = map("1/x");
    parser.set_var_value(complex{0, 0}, "x");
    parser.SetSilentMode(true);
    parser.solve_equation(failing, false, true);
    EXPECT_TRUE(parser.IsAnError());
    complex value;
    parser.eval_exp("x + 1", value, true, false);
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(value.real, 1.0);
}

TEST_F(MapSolver, AssignmentsInAMapChangeVariables) {
    const int assign = map("y = x * 2");
    EXPECT_EQ(solve_at(assign, 5).real, 10.0);
    EXPECT_EQ(parser.get_var_value("y").real, 10.0);
    parser.delete_variable(parser.find_variable("y"));
    solve_at(assign, 6);
    EXPECT_TRUE(parser.is_variable("y"));
    EXPECT_EQ(parser.get_var_value("y").real, 12.0);
    const int range = map("r = 0, 8, 5");
    parser.delete_variable(parser.find_variable("r"));
    solve_at(range, 8);
    EXPECT_EQ(parser.get_var_hilimit("r").real, 8.0);
    EXPECT_EQ(parser.get_var_numpoints("r"), 5);
    const int declaration = map("h[t] = t + 1");
    parser.delete_function(parser.find_function("h[t]"));
    parser.solve_equation(declaration, false, true);
    EXPECT_STREQ(parser.get_func_value("h[t]"), "t+1");
}

TEST_F(MapSolver, ImaginaryUnitBeforeAnAtomFollowsTheAtom) {
    // The part is taken exactly, as the line takes it; a product with i would round it.
    const int alone = map("i x");
    const int sum = map("i x + 1");
    for (double x : {0.1234567890123456, -7.0, 3.0}) {
        const complex value = solve_at(alone, x);
        EXPECT_EQ(value.imag, x);
        EXPECT_EQ(value.real, 0.0);
        complex line;
        parser.eval_exp("i x + 1", line, true, false);
        EXPECT_EQ(solve_at(sum, x), line);
    }
}

TEST_F(MapSolver, BasePairsAndWholeLineFunctions) {
    const int polar = map("RTOP[x,0]");
    EXPECT_EQ(solve_at(polar, -2).real, 2.0);
    EXPECT_DOUBLE_EQ(solve_at(polar, -2).imag, 180.0);
    const int digits = map("BASECON[x,10]");
    EXPECT_EQ(solve_at(digits, 255).real, 255.0);
    const int hex = map("BASECON[x,16]");
    solve_at(hex, 255);
    EXPECT_EQ(error_of(parser),
              "Only base 10 mathematics are currently supported. The BASECON function call is "
              "not using base 10");
}

TEST_F(MapSolver, StatisticsRepeatTheirHandlersTestsAtEachRun) {
    Equation &map = *parser.equations.add();
    map.set_instruction(Instruction::Literal, complex{5, 0});
    map.set_instruction(Instruction::Literal, complex{2, 0});
    map.set_instruction(Instruction::Comb);
    map.set_instruction(Instruction::End);
    const int number = parser.equations.count();
    EXPECT_EQ(parser.solve_equation(number, false, true).real, 10.0);
    EXPECT_FALSE(parser.IsAnError());
    map.literals[1].real = 6;
    // A failed test ends the run with 0, whatever stands on the stack.
    EXPECT_EQ(parser.solve_equation(number, false, true), complex{});
    EXPECT_EQ(error_of(parser), "N can not be less than R in COMB function call!");
    map.literals[1].imag = 1;
    parser.solve_equation(number, false, true);
    EXPECT_EQ(error_of(parser), "The parameters for COMB function call must be real numbers!");
}

TEST_F(MapSolver, ListStatisticsSeeOnlyTheirOwnRunsValues) {
    const int map = record_map(parser, "MEDIAN[{x,1,2}] + MEAN[{x,10}]");
    ASSERT_GT(map, 0);
    for (double x : {0.0, 5.0, 40.0}) {
        parser.set_var_value(complex{x, 0}, "x");
        complex line;
        parser.eval_exp("MEDIAN[{x,1,2}] + MEAN[{x,10}]", line, true, false);
        EXPECT_EQ(parser.solve_equation(map, false, true).real, line.real) << x;
    }
}

TEST_F(MapSolver, UnknownInstructionsAndFilePointsRaiseMapperErrorFive) {
    for (int code : {0x05, 0x25, 0x85, 0x87, 0xFF}) {
        Equation &map = *parser.equations.add();
        map.instructions.push_back(static_cast<Instruction>(code));
        map.set_instruction(Instruction::End);
        parser.solve_equation(parser.equations.count(), false, true);
        EXPECT_EQ(error_of(parser),
                  "Unrecognized or missing command in expression mapping algorithm!")
            << code;
    }
}

TEST_F(MapSolver, BoxesFollowTheSilentArgument) {
    std::vector<std::string> boxes;
    parser.set_message_hook([&](std::string_view text, std::string_view caption, MessageStyle) {
        boxes.push_back(std::string(caption) + ": " + std::string(text));
        return true;
    });
    const int failing = map("1/x");
    parser.set_var_value(complex{0, 0}, "x");
    parser.solve_equation(failing, false, true);
    EXPECT_TRUE(boxes.empty());
    parser.solve_equation(99, false, false);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0],
              "EXPRESSION SOLVER: Equation mapper is trying to solve an expression that has not "
              "been mapped!");
}

}  // namespace
}  // namespace quindar
