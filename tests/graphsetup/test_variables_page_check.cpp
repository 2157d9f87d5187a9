// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Variables page's check of a function graph, and Next.

#include <gtest/gtest.h>

#include "graph_pages_messages.h"
#include "pages_recorder.h"
#include "variables_page_model.h"

namespace quindar::testing {
namespace {

class VariablesCheckTest : public PagesFixture {
protected:
    VariablesCheckTest() {
        parser.eval_exp("f(x,z) = x*z", true, false);
        // Both have values, so that a graph with one axis still has all it needs.
        parser.eval_exp("x = 1", true, false);
        parser.eval_exp("z = 1", true, false);
        Temp().AddFunction("f[x,z]", "");
        Temp().SetComVarList();
    }

    VariablesPageModel page{session, ui};
};

TEST_F(VariablesCheckTest, AGraphWithoutFunctionsHasNothingToCheck) {
    GraphData points("P");
    EXPECT_TRUE(page.CheckData(points));
    EXPECT_TRUE(ui.ids.empty());
}

TEST_F(VariablesCheckTest, NoAxisVariableAsksWhetherToUseDefaults) {
    const struct {
        int answer;
        bool passes;
        std::vector<int> selected;
        bool picked;
    } cases[] = {
        {kIdYes, true, {}, true},
        {kIdNo, false, {kPageVariables}, false},
        {kIdCancel, false, {}, false},
    };
    for (const auto &c : cases) {
        Temp().SetXAxisVar(nullptr);
        Temp().SetZAxisVar(nullptr);
        Temp().VariablesVisited = false;
        Current().SetXAxisVar(nullptr);
        ui.selected.clear();
        ui.Expect(kMsgNoAxisVariables, c.answer);
        EXPECT_EQ(page.CheckData(Temp()), c.passes) << c.answer;
        EXPECT_EQ(ui.texts.back(),
                  "There have been no variables selected to be graphed! Would you like to use "
                  "default values?");
        EXPECT_EQ(ui.flags.back(), kBoxQuestionYesNoCancel);
        EXPECT_EQ(ui.selected, c.selected);
        EXPECT_EQ(Temp().XAxisVar != nullptr, c.picked);
        // The defaults go to the current graph at once.
        EXPECT_EQ(Current().XAxisVar != nullptr, c.picked);
    }
}

TEST_F(VariablesCheckTest, LimitsInTheWrongOrderArePutRightInSilence) {
    SetX("x", 10, 1, 10);
    SetZ("z", 5, -5, 11);
    int told = 0;
    page.axesChanged = [&told] { ++told; };
    EXPECT_TRUE(page.CheckData(Temp()));
    EXPECT_TRUE(ui.ids.empty());
    EXPECT_EQ(Temp().XAxisVar->low_limit.real, 1.0);
    EXPECT_EQ(Temp().XAxisVar->high_limit.real, 10.0);
    EXPECT_EQ(Temp().ZAxisVar->low_limit.real, -5.0);
    EXPECT_EQ(Temp().ZAxisVar->high_limit.real, 5.0);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(page.Text(kXLow).value_or("-"), "1");
}

TEST_F(VariablesCheckTest, EachAxisNeedsARangeAndPoints) {
    // A range taken down by setting a limit to itself keeps its points but no steps.
    const auto noSteps = [](Variable &v) { v.SetVarLowLimit(v.low_limit); };
    const auto nothing = [](Variable &) {};
    const struct {
        bool onZ;
        double low, high;
        long points;
        std::function<void(Variable &)> spoil;
        int message;
        int focus;
        const char *words;
    } cases[] = {
        {false, 5, 5, 25, nothing, kMsgXLimitsEqual, kControlXHighLimit,
         "The X axis upper and lower range limits can not be equal!"},
        {false, 1, 10, 1, nothing, kMsgXTooFewPoints, kControlXPoints,
         "You must graph 2 or more points for the X axis variable!"},
        {false, 1, 10, 25, noSteps, kMsgNoXAxisPoints, 0,
         "The number of points to be graphed have not been identifed for the X axis variable!"},
        {true, 3, 3, 25, nothing, kMsgZLimitsEqual, kControlZHighLimit,
         "The Z axis upper and lower range limits can not be equal!"},
        {true, 1, 10, 0, nothing, kMsgZTooFewPoints, kControlZPoints,
         "You must graph 2 or more points for the Z axis variable!"},
        {true, 1, 10, 25, noSteps, kMsgNoZAxisPoints, 0,
         "The number Of points to be graphed have not been identifed for the Z axis variable!"},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.words);
        SetX("x", 0, 1, 5);
        SetZ("z", 0, 1, 5);
        Variable axis(c.onZ ? "z" : "x", complex{c.low, 0}, complex{c.high, 0}, c.points);
        c.spoil(axis);
        if (c.onZ)
            Temp().ZAxisVar = std::make_unique<Variable>(&axis);
        else
            Temp().XAxisVar = std::make_unique<Variable>(&axis);
        ui.selected.clear();
        ui.focused.clear();
        ui.Expect(c.message);
        EXPECT_FALSE(page.CheckData(Temp()));
        EXPECT_EQ(ui.texts.back(), c.words);
        EXPECT_EQ(ui.selected, (std::vector<int>{kPageVariables}));
        if (c.focus != 0) {
            ASSERT_EQ(ui.focused.size(), 1u);
            EXPECT_EQ(ui.focused[0].second, c.focus);
        } else {
            EXPECT_TRUE(ui.focused.empty());
        }
    }
}

TEST_F(VariablesCheckTest, LimitsEqualInTheirRealPartsAreEqual) {
    const Variable x("x", complex{2, 0}, complex{2, 1}, 25);
    Temp().SetXAxisVar(&x);
    ui.Expect(kMsgXLimitsEqual);
    EXPECT_FALSE(page.CheckData(Temp()));
}

TEST_F(VariablesCheckTest, AThreeDimensionalGridAboveTenThousandPointsAsksFirst) {
    const struct {
        long xPoints, zPoints;
        int answer;  // 0: no question
        bool passes;
    } cases[] = {
        {100, 100, 0, true},
        {101, 100, kIdYes, true},
        {101, 100, kIdNo, false},
        {10001, 2, kIdNo, false},
    };
    for (const auto &c : cases) {
        SetX("x", 0, 1, c.xPoints);
        SetZ("z", 0, 1, c.zPoints);
        const std::size_t before = ui.ids.size();
        if (c.answer != 0) ui.Expect(kMsgTooManyPoints, c.answer);
        EXPECT_EQ(page.CheckData(Temp()), c.passes) << c.xPoints << "x" << c.zPoints;
        EXPECT_EQ(ui.ids.size(), before + (c.answer != 0 ? 1u : 0u));
        if (c.answer != 0) {
            EXPECT_EQ(ui.flags.back(), kBoxWarningYesNo);
        }
    }
}

TEST_F(VariablesCheckTest, APieGraphTakesAtMostTwentyPoints) {
    const struct {
        int type;
        long points;
        bool onZ;
        bool passes;
    } cases[] = {
        {3, 20, false, true}, {3, 21, false, false}, {3, 21, true, false},
        {1, 21, false, true}, {2, 500, false, true},
    };
    for (const auto &c : cases) {
        Temp().SetXAxisVar(nullptr);
        Temp().SetZAxisVar(nullptr);
        if (c.onZ)
            SetZ("z", 0, 1, c.points);
        else
            SetX("x", 0, 1, c.points);
        Temp().GraphType2D = c.type;
        if (!c.passes) ui.Expect(kMsgPieTooManyPoints);
        EXPECT_EQ(page.CheckData(Temp()), c.passes) << c.type << " " << c.points;
        if (!c.passes) {
            EXPECT_EQ(ui.texts.back(),
                      "The maximum number of points for a pie chart is 20 and has been exceeded!");
        }
    }
}

TEST_F(VariablesCheckTest, AThirdVariableMustBeDeclaredInTheManager) {
    parser.eval_exp("g(x,a) = x+a", true, false);
    GraphData &temp = Temp();
    temp.Functions.flush();
    temp.AddFunction("g[x,a]", "");
    temp.SetComVarList();
    SetX("x", 0, 1, 5);
    temp.NeedsData = false;
    ui.Expect(kMsgUndeclaredVariable);
    ui.onEditVariable = [this](const std::string &name) {
        parser.eval_exp((name + " = 3").c_str(), true, false);
    };
    EXPECT_TRUE(page.CheckData(temp));
    EXPECT_EQ(ui.texts.back(),
              "Function \"g[x,a]\" is dependent on variable ' a ' which has not yet been defined, "
              "you must either define this variable and give it value or select the variable as "
              "either the X or Z axis variable and define upper and lower limits for the "
              "variable!");
    EXPECT_EQ(ui.editedVariables, (std::vector<std::string>{"a"}));
    EXPECT_TRUE(temp.NeedsData);
    EXPECT_TRUE(ui.selected.empty());
}

TEST_F(VariablesCheckTest, AThirdVariableLeftUndeclaredIsOfferedForTheZAxis) {
    GraphData &temp = Temp();
    temp.Functions.flush();
    temp.AddFunction("g[x,a]", "");
    temp.SetComVarList();  // a, x
    SetX("x", 0, 1, 5);
    ui.Expect(kMsgUndeclaredVariable);
    EXPECT_FALSE(page.CheckData(temp));
    EXPECT_EQ(ui.editedVariables, (std::vector<std::string>{"a"}));
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageVariables}));
    ASSERT_TRUE(temp.ZAxisVar);
    EXPECT_EQ(temp.ZAxisVar->name, "a");
    EXPECT_EQ(page.Text(kZName).value_or("-"), "a");
    ASSERT_FALSE(ui.focused.empty());
    EXPECT_EQ(ui.focused.back(), std::make_pair(int{kPageVariables}, int{kControlZHighLimit}));
    // Now on the Z axis, the variable needs no value of its own.
    EXPECT_TRUE(page.CheckData(temp));
}

TEST_F(VariablesCheckTest, NextGoesToTypesOnlyWhenTheCheckPasses) {
    ui.Expect(kMsgNoAxisVariables, kIdNo);
    page.Next();
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageVariables}));
    SetX("x", 0, 1, 5);
    page.Next();
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageVariables, kPageTypes}));
    page.Prev();
    EXPECT_EQ(ui.selected.back(), kPageFunctions);
}

}  // namespace
}  // namespace quindar::testing
