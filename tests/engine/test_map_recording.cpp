// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Recording of equation maps: the instructions, literals and names each line leaves, the
// list of maps by position and its deletion.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "map_support.h"
#include "parser.h"

namespace quindar {
namespace {

using testing::record_map;

std::vector<int> codes_of(const Equation &map) {
    std::vector<int> codes;
    for (Instruction op : map.instructions) codes.push_back(static_cast<int>(op));
    return codes;
}

class MapRecording : public ::testing::Test {
protected:
    void SetUp() override {
        parser.eval_exp("x = 2", true, false);
        parser.eval_exp("y = 3", true, false);
    }
    const Equation &map_of(const char *line) {
        const int number = record_map(parser, line);
        EXPECT_GT(number, 0) << line << ": " << testing::error_of(parser);
        static const Equation empty;
        return number > 0 ? *parser.equation_at(number) : empty;
    }
    Parser parser{"", ""};
};

TEST_F(MapRecording, InstructionCodesOfLines) {
    struct Case {
        const char *line;
        std::vector<int> codes;
    };
    const Case table[] = {
        {"5", {0x0C, 0x88}},
        {"2*x+1", {0x0C, 0x06, 0x18, 0x0C, 0x15, 0x88}},
        {"x-y/3%2", {0x06, 0x06, 0x0C, 0x19, 0x0C, 0x1A, 0x16, 0x88}},
        {"-x^2", {0x06, 0x17, 0x0C, 0x21, 0x88}},
        {"3!", {0x0C, 0x1B, 0x88}},
        {"2x", {0x0C, 0x06, 0x18, 0x88}},
        {"PI*e", {0x0A, 0x0A, 0x18, 0x88}},
        {"1 < x <= 5", {0x0C, 0x0E, 0x06, 0x0F, 0x0C, 0x10, 0x0D, 0x88}},
        {"x > y == 0 != 1 >= 0",
         {0x06, 0x0E, 0x06, 0x11, 0x0C, 0x13, 0x0C, 0x14, 0x0C, 0x12, 0x0D, 0x88}},
        {"SQRT[x]", {0x06, 0x1C, 0x88}},
        {"LN(x) + LOG10[x] + LOG[x,2] + EXP[x]",
         {0x06, 0x1D, 0x06, 0x1E, 0x15, 0x06, 0x0C, 0x1F, 0x15, 0x06, 0x20, 0x15, 0x88}},
        {"POW[x,2]", {0x06, 0x0C, 0x21, 0x88}},
        {"ABS[x]+ROUND[x]+TRUNC[x]", {0x06, 0x22, 0x06, 0x23, 0x15, 0x06, 0x24, 0x15, 0x88}},
        {"REM[x,2]+FLOOR[x]+CEIL[x]", {0x06, 0x0C, 0x27, 0x06, 0x28, 0x15, 0x06, 0x29, 0x15, 0x88}},
        {"GCD[x,4]+LCM[x,4]", {0x06, 0x0C, 0x2A, 0x06, 0x0C, 0x2B, 0x15, 0x88}},
        {"RTOP[x,y]", {0x06, 0x06, 0x2C, 0x88}},
        {"PTOR[x,y]", {0x06, 0x06, 0x2D, 0x88}},
        {"BASECON[x,2]", {0x06, 0x0C, 0x2E, 0x88}},
        {"REAL[x]+IMAG[x]+NORM[x]+CMAG[x]",
         {0x06, 0x2F, 0x06, 0x30, 0x15, 0x06, 0x31, 0x15, 0x06, 0x32, 0x15, 0x88}},
        {"CANGLE[x]+PTOC[x,y]+CONJ[x]",
         {0x06, 0x33, 0x06, 0x06, 0x34, 0x15, 0x06, 0x35, 0x15, 0x88}},
        {"DEG[x]+RAD[x]", {0x06, 0x36, 0x06, 0x37, 0x15, 0x88}},
        {"SIN[x]+COS[x]+TAN[x]", {0x06, 0x38, 0x06, 0x39, 0x15, 0x06, 0x3A, 0x15, 0x88}},
        {"SINH[x]+COSH[x]+TANH[x]", {0x06, 0x3B, 0x06, 0x3C, 0x15, 0x06, 0x3D, 0x15, 0x88}},
        {"ASIN[0]+ACOS[0]+ATAN[x]", {0x0C, 0x3E, 0x0C, 0x3F, 0x15, 0x06, 0x40, 0x15, 0x88}},
        {"ASINH[x]+ACOSH[x]+ATANH[0]", {0x06, 0x41, 0x06, 0x42, 0x15, 0x0C, 0x43, 0x15, 0x88}},
        {"HYPOT[x,y]+CUBERT[x]", {0x06, 0x06, 0x44, 0x06, 0x80, 0x15, 0x88}},
        {"AND[1,x>1,0]", {0x0C, 0x06, 0x0E, 0x0C, 0x11, 0x0D, 0x7A, 0x0C, 0x7A, 0x88}},
        {"OR[1]", {0x0C, 0x88}},
        {"OR[0,1]", {0x0C, 0x0C, 0x7B, 0x88}},
        {"NOT[1]+IF[1,x,y]", {0x0C, 0x7C, 0x0C, 0x06, 0x06, 0x7D, 0x15, 0x88}},
        {"SRESIST[{1,x}]", {0x81, 0x0C, 0x83, 0x06, 0x83, 0x7E, 0x82, 0x88}},
        {"PRESIST[{x,SRESIST[{1,2}]}]",
         {0x81, 0x06, 0x83, 0x81, 0x0C, 0x83, 0x0C, 0x83, 0x7E, 0x82, 0x83, 0x7F, 0x82, 0x88}},
        {"z = 2+3", {0x0C, 0x0C, 0x15, 0x00, 0x01, 0x88}},
        {"w = 0, 10, 5", {0x0C, 0x00, 0x02, 0x0C, 0x03, 0x0C, 0x04, 0x88}},
        {"f[t] = t^2", {0x07, 0x09, 0x08, 0x88}},
        {"i", {0x0C, 0x88}},
        {"3i", {0x0C, 0x88}},
        {"1+i x", {0x0C, 0x06, 0x86, 0x15, 0x88}},
        {"i3", {0x0C, 0x86, 0x88}},
    };
    for (const Case &c : table) EXPECT_EQ(codes_of(map_of(c.line)), c.codes) << c.line;
}

TEST_F(MapRecording, LiteralsAndNamesInOrder) {
    const Equation &map = map_of("2*x+1.5i-PI");
    ASSERT_EQ(map.literals.size(), 2u);
    EXPECT_EQ(map.literals[0].real, 2.0);
    EXPECT_EQ(map.literals[1].imag, 1.5);
    EXPECT_EQ(map.literals[1].real, 0.0);
    EXPECT_EQ(map.names, (std::vector<std::string>{"x", "PI"}));

    const Equation &declaration = map_of("f[t] = t*x");
    EXPECT_EQ(declaration.names, (std::vector<std::string>{"f[t]", "f[t]", "t*x"}));
    const Equation &assignment = map_of("z = x");
    EXPECT_EQ(assignment.names, (std::vector<std::string>{"x", "z", "z"}));
}

TEST_F(MapRecording, UserFunctionsAreSplicedIntoTheMap) {
    parser.eval_exp("g[t] = t*2", true, false);
    const Equation &map = map_of("g[x]+1");
    EXPECT_EQ(codes_of(map), (std::vector<int>{0x06, 0x0C, 0x18, 0x0C, 0x15, 0x88}));
    // A declaration of a function that exists still records its addition, so the map
    // brings the function back once it has been deleted.
    const int redeclared = record_map(parser, "g[t] = t*3");
    ASSERT_GT(redeclared, 0);
    EXPECT_EQ(codes_of(*parser.equation_at(redeclared)),
              (std::vector<int>{0x07, 0x09, 0x08, 0x88}));
    parser.delete_function(parser.find_function("g[t]"));
    parser.solve_equation(redeclared, false, true);
    EXPECT_STREQ(parser.get_func_value("g[t]"), "t*3");
}

TEST_F(MapRecording, SetInstructionKeepsOperandsOfItsKind) {
    Equation map;
    map.set_instruction(Instruction::Literal, complex{4, 1}, "ignored");
    map.set_instruction(Instruction::FileName, {}, "data.txt");
    map.set_instruction(Instruction::LoadFile, {}, "ignored too");
    map.set_instruction(Instruction::Variable, {}, "x");
    map.set_instruction(Instruction::Add, complex{9, 9}, "no");
    EXPECT_EQ(codes_of(map), (std::vector<int>{0x0C, 0x84, 0x06, 0x15}));
    ASSERT_EQ(map.literals.size(), 1u);
    EXPECT_EQ(map.literals[0].imag, 1.0);
    EXPECT_EQ(map.names, (std::vector<std::string>{"data.txt", "x"}));
    map.data_lists[3].add(new long double(1));
    map.list_level = 3;
    map.clear_data();
    EXPECT_EQ(map.data_lists[3].count(), 0);
    EXPECT_EQ(map.list_level, -1);
    map.clear_instructions();
    EXPECT_TRUE(map.instructions.empty() && map.literals.empty() && map.names.empty());
}

TEST_F(MapRecording, AFailedRecordingLeavesNoEnd) {
    parser.current_equation = parser.equations.add();
    parser.mapping = true;
    parser.eval_exp("x + 1/0", true, false);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_FALSE(parser.mapping);
    EXPECT_FALSE(parser.current_equation->complete());
    // Solving it anyway is refused rather than run on a half program.
    parser.solve_equation(parser.equations.count(), false, true);
    EXPECT_EQ(testing::error_of(parser),
              "Unrecognized or missing command in expression mapping algorithm!");
}

TEST_F(MapRecording, PlainEvaluationRecordsNothing) {
    parser.current_equation = parser.equations.add();
    parser.eval_exp("x + 1", true, false);
    EXPECT_TRUE(parser.current_equation->instructions.empty());
}

TEST_F(MapRecording, DeletionByPositionAndItsMessages) {
    const int first = record_map(parser, "1");
    const int second = record_map(parser, "2");
    const int third = record_map(parser, "3");
    ASSERT_EQ(third, 3);
    parser.delete_equation(0);
    EXPECT_EQ(parser.equations.count(), 3);
    parser.delete_equation(second);
    EXPECT_EQ(parser.equations.count(), 2);
    // The map behind it moved down one place.
    EXPECT_EQ(parser.solve_equation(2, false, true).real, 3.0);
    EXPECT_EQ(parser.solve_equation(first, false, true).real, 1.0);

    std::vector<std::string> boxes;
    parser.set_message_hook([&](std::string_view text, std::string_view caption, MessageStyle) {
        boxes.push_back(std::string(caption) + ": " + std::string(text));
        return true;
    });
    parser.silent = false;
    parser.ClearLastError();
    parser.delete_equation(3);
    EXPECT_EQ(testing::error_of(parser), "Equation is invalid!");
    EXPECT_EQ(parser.GetLastErrorNumber(), 19);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0], "Parser Error: Equation is invalid!");
    EXPECT_EQ(parser.equations.count(), 2);
}

}  // namespace
}  // namespace quindar
