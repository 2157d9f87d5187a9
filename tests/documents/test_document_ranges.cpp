// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The numbers of a document are held in the ranges their settings allow, so a hostile
// document cannot make the printing ask for billions of digits or print every answer as 0.
#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "document_work.h"
#include "documents_test_support.h"

namespace quindar::testing {
namespace {

// Loads a document of that text, through a file of its own.
bool load_text(Work &work, const std::string &text) {
    TempFolder folder;
    const std::string path = folder.file("r.qnd");
    write_content(path, text);
    return work.load(path);
}

struct RangeCase {
    const char *section;
    const char *line;
    const char *answer;  // what "1/3" prints afterwards; empty when not checked
};

TEST(DocumentRanges, SetupNumbersAreHeldInRange) {
    const RangeCase table[] = {
        {"SETUP", "AnsPrecision=2147483647", " = 0.33333333333333"},
        {"SETUP", "AnsPrecision=99999999999999999999", " = 0.33333333333333"},
        {"SETUP", "AnsPrecision=-2147483648", " = 0.3"},
        {"SETUP", "AnsPrecision=0", " = 0.3"},
        {"SETUP", "AnsPrecision=5", " = 0.33333"},
        {"SETUP", "AnsZeroPrecision=1e+999999", " = 0.33333333333333"},
        {"SETUP", "AnsZeroPrecision=0.5", " = 0.33333333333333"},
        {"SETUP", "AnsZeroPrecision=nan", " = 0.33333333333333"},
        {"SETUP", "AnsZeroPrecision=-1", " = 0.33333333333333"},
        {"SETUP", "AnsFormat=2147483647", " = 3.3333333333333e-01"},
        {"SETUP", "AnsFormat=-4", " = 0.33333333333333"},
    };
    for (const RangeCase &c : table) {
        Work work;
        ASSERT_TRUE(load_text(work, std::string("x\r\n[") + c.section + "]\r\n" + c.line + "\r\n"))
            << c.line;
        EXPECT_STREQ(work.parser.eval_exp("1/3", false, true), c.answer) << c.line;
    }
}

TEST(DocumentRanges, EveryFieldStaysInItsRange) {
    Work work;
    ASSERT_TRUE(
        load_text(work,
                  "x\r\n[SETUP]\r\nAnsZeroPrecision=7\r\nVarZeroPrecision=1e-5\r\n"
                  "VarPrecision=100\r\nVarFormat=9\r\nAngleType=-1\r\n"
                  "[FONT]\r\nHeight=-2147483647\r\nWidth=99999\r\nWeight=5000\r\n"
                  "Escapement=100000\r\n"
                  "[INTEGRATION PARAMETERS]\r\nIntType=0\r\nIntPrecision=40\r\nIntAccuracy=1000\r\n"
                  "[DIFFERENTIATION PARAMETERS]\r\nDiffPrecision=-1\r\nDiffDispFunc=5\r\n"));
    EXPECT_FLOAT_EQ(work.parser.answer_format->zero_precision, 0.1f);
    EXPECT_FLOAT_EQ(work.parser.variable_format->zero_precision, 1e-5f);
    EXPECT_EQ(work.parser.variable_format->precision, 14);
    EXPECT_EQ(work.parser.variable_format->format, 1);
    EXPECT_EQ(work.parser.angle_mode, 0);
    EXPECT_EQ(work.content.font.Height, -1638);
    EXPECT_EQ(work.content.font.Width, 1638);
    EXPECT_EQ(work.content.font.Weight, 1000);
    EXPECT_EQ(work.content.font.Escapement, 3600);
    EXPECT_EQ(work.content.integration.IntType, 1);
    EXPECT_EQ(work.content.integration.IntPrecision, 14);
    EXPECT_EQ(work.content.integration.IntAccuracy, 100);
    EXPECT_EQ(work.content.differentiation.DiffPrecision, 1);
    EXPECT_EQ(work.content.differentiation.DiffDispFunc, 1);
}

// A graph's numbers: a 3-D type is seven digits of flags, a point count stays within long.
TEST(DocumentRanges, GraphNumbersAreHeldInRange) {
    Work work;
    ASSERT_TRUE(load_text(work,
                          "x\r\n[SETUP]\r\nAnsPrecision=14\r\n[GRAPHS]\r\nGraph1=g\r\n[Graph1]\r\n"
                          "Function1=f[x,y]=x*y\r\nXAxisVariable=x(0,1,10^300)\r\n"
                          "ZAxisVariable=y(0,1,5)\r\nType=-2147483648\r\n"));
    ASSERT_EQ(work.content.graphs.count(), 1);
    const GraphData &graph = *work.content.graphs.gethead();
    EXPECT_EQ(graph.GetGraphType(), kGraph3D);
    EXPECT_EQ(graph.GraphType3D, 0);
    ASSERT_TRUE(graph.XAxisVar);
    EXPECT_EQ(graph.XAxisVar->num_points, LONG_MAX);
}

}  // namespace
}  // namespace quindar::testing
