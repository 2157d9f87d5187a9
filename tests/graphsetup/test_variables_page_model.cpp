// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Variables page without its window: what it shows, the edits it takes or refuses, Apply.

#include <gtest/gtest.h>

#include "graph_pages_messages.h"
#include "pages_recorder.h"
#include "variables_page_model.h"

namespace quindar::testing {
namespace {

class VariablesPageTest : public PagesFixture {
protected:
    // f(x, z) declared in the editor and graphed, the page shown once.
    void ShowPageOfXAndZ() {
        Run("f(x,z) = x*z");
        AddFunction("f[x,z]");
        page.UpdatePage();
        Temp().NeedsData = false;
        Temp().NeedsAttributes = false;
    }
    std::string Shown(AxisText text) const { return page.Text(text).value_or("-"); }

    VariablesPageModel page{session, ui};
};

TEST_F(VariablesPageTest, UpdatePageListsFunctionsAndCommonVariablesAndFillsTheEdits) {
    Run("f(x,z) = x*z");
    AddFunction("f[x,z]");
    AddFunction("sin[x]");
    page.UpdatePage();
    EXPECT_EQ(page.functionRows, (std::vector<std::string>{"f[x,z] = x*z", "sin[x]"}));
    EXPECT_EQ(page.commonRows, (std::vector<std::string>{"x"}));
    EXPECT_EQ(page.axisChoices, (std::vector<std::string>{"x"}));
    const struct {
        AxisText text;
        const char *shown;
    } cases[] = {{kXName, "x"}, {kXLow, "1"}, {kXHigh, "10"}, {kXPoints, "25"},
                 {kZName, "-"}, {kZLow, "-"}, {kZHigh, "-"},  {kZPoints, "-"}};
    for (const auto &c : cases) EXPECT_EQ(Shown(c.text), c.shown) << c.text;
    EXPECT_TRUE(ui.ids.empty());
    EXPECT_FALSE(page.Loading());
}

TEST_F(VariablesPageTest, CommonVariablesAreListedTailFirstAndOfferedHeadFirst) {
    ShowPageOfXAndZ();
    EXPECT_EQ(page.commonRows, (std::vector<std::string>{"x", "z"}));
    EXPECT_EQ(page.axisChoices, (std::vector<std::string>{"z", "x"}));
    EXPECT_EQ(Shown(kXName), "x");
    EXPECT_EQ(Shown(kZName), "z");
    EXPECT_EQ(Shown(kZPoints), "25");
}

TEST_F(VariablesPageTest, FunctionsWithoutACommonVariableAreToldSo) {
    AddFunction("f[x]");
    AddFunction("g[y]");
    ui.Expect(kMsgNoCommonVariables);
    page.UpdatePage();
    EXPECT_EQ(ui.texts.back(), "There are no common variables between your equations!");
    EXPECT_EQ(ui.flags.back(), kBoxInformation);
    EXPECT_TRUE(page.commonRows.empty());
    EXPECT_EQ(Shown(kXName), "-");
}

TEST_F(VariablesPageTest, LeavingAnEditTakesOrRefusesItsText) {
    const struct {
        AxisText text;
        const char *typed;
        int message;  // 0: none; -1: the parser's own box
        const char *shown;
        double low, high;
        long points;
    } cases[] = {
        {kXLow, "2", 0, "2", 2, 10, 25},
        {kXLow, "2*3", 0, "2*3", 6, 10, 25},
        {kXLow, "1.0", 0, "1.0", 1, 10, 25},
        {kXHigh, "0", 0, "0", 1, 0, 25},
        {kXLow, "", kMsgRangeIncomplete, "1", 1, 10, 25},
        {kXLow, "10", kMsgLimitsEqual, "1", 1, 10, 25},
        {kXHigh, "1", kMsgLimitsEqual, "10", 1, 10, 25},
        {kXHigh, "3+2i", kMsgLimitsNotReal, "10", 1, 10, 25},
        {kXLow, "4/", -1, "1", 1, 10, 25},
        {kXPoints, "50", 0, "50", 1, 10, 50},
        {kXPoints, "2", 0, "2", 1, 10, 2},
        {kXPoints, "2.5", kMsgPointsNotInteger, "25", 1, 10, 25},
        {kXPoints, "3+i", kMsgPointsNotInteger, "25", 1, 10, 25},
        {kXPoints, "1", kMsgXPointsBelowTwo, "25", 1, 10, 25},
        {kXPoints, "-4", kMsgXPointsBelowTwo, "25", 1, 10, 25},
        {kXPoints, "", kMsgRangeIncomplete, "25", 1, 10, 25},
        {kZPoints, "1", kMsgZPointsBelowTwo, "25", 1, 10, 25},
        {kZLow, "10", kMsgLimitsEqual, "1", 1, 10, 25},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.typed) + " in " + std::to_string(c.text));
        GraphData fresh(kTemporaryGraphName);
        Temp() = fresh;
        parser.delete_all_funcs();
        parserBoxes.clear();
        ui.focused.clear();
        ShowPageOfXAndZ();
        if (c.message > 0) ui.Expect(c.message);
        const bool taken = page.LeaveEdit(c.text, c.typed);
        EXPECT_EQ(taken, c.message == 0);
        EXPECT_EQ(Shown(c.text), c.shown);
        EXPECT_EQ(parserBoxes.size(), c.message == -1 ? 1u : 0u);
        const Variable &axis = c.text >= kZName ? *Temp().ZAxisVar : *Temp().XAxisVar;
        EXPECT_EQ(axis.low_limit.real, c.low);
        EXPECT_EQ(axis.high_limit.real, c.high);
        EXPECT_EQ(axis.num_points, c.points);
        if (taken) {
            EXPECT_TRUE(ui.focused.empty());
        } else {
            ASSERT_EQ(ui.focused.size(), 1u);
            EXPECT_EQ(ui.focused[0],
                      std::make_pair(int{kPageVariables}, axis_text_control(c.text)));
        }
        // Every text differs from the one shown before: the data must be computed afresh.
        EXPECT_TRUE(Temp().NeedsData);
    }
}

TEST_F(VariablesPageTest, RefusalTextsAreTheProgramsOwn) {
    ShowPageOfXAndZ();
    const struct {
        AxisText text;
        const char *typed;
        int message;
        const char *words;
    } cases[] = {
        {kXLow, "", kMsgRangeIncomplete,
         "The lower/upper limits, and the number of points must all be specified!"},
        {kXLow, "10", kMsgLimitsEqual, "The lower And upper range limits can not be equal!"},
        {kXLow, "i", kMsgLimitsNotReal, "The upper and lower range limits must be real numbers!"},
        {kXPoints, "7.5", kMsgPointsNotInteger, "The number of points must be an integer value!"},
        {kXPoints, "0", kMsgXPointsBelowTwo,
         "The number of points to be graphed on the X axis must be an integer greater than or "
         "equal to 2!"},
        {kZPoints, "0", kMsgZPointsBelowTwo,
         "The number of points to be graphed on the Z axis must be an integer greater than or "
         "equal to 2!"},
    };
    for (const auto &c : cases) {
        ui.Expect(c.message);
        EXPECT_FALSE(page.LeaveEdit(c.text, c.typed));
        EXPECT_EQ(ui.texts.back(), c.words);
        EXPECT_EQ(ui.flags.back(), kBoxWarning);
    }
}

TEST_F(VariablesPageTest, AComplexOppositeLimitRefusesARealOne) {
    Run("x = 0, 1+i, 3");
    Run("f(x) = x");
    AddFunction("f[x]");
    page.UpdatePage();
    ui.Expect(kMsgLimitsNotReal);
    EXPECT_FALSE(page.LeaveEdit(kXLow, "2"));
    EXPECT_EQ(Temp().XAxisVar->low_limit.real, 0.0);
}

TEST_F(VariablesPageTest, TheSameTextLeftAgainIsNotCheckedAgain) {
    ShowPageOfXAndZ();
    EXPECT_TRUE(page.LeaveEdit(kXLow, "1"));
    EXPECT_EQ(ui.pageChanged, 0);
    EXPECT_FALSE(Temp().NeedsData);
}

TEST_F(VariablesPageTest, TypingAsksForNewDataOnlyWhenTheTextDiffersFromTheSavedOne) {
    ShowPageOfXAndZ();
    page.TextTyped(kXLow, "1");
    EXPECT_EQ(ui.pageChanged, 0);
    EXPECT_FALSE(Temp().NeedsData);
    page.TextTyped(kXLow, "12");
    EXPECT_EQ(ui.pageChanged, 1);
    EXPECT_TRUE(Temp().NeedsData);
    EXPECT_FALSE(Temp().NeedsAttributes);
    EXPECT_TRUE(Current().Modified);
    // Only leaving the edit stores the value.
    EXPECT_EQ(Temp().XAxisVar->low_limit.real, 1.0);
}

TEST_F(VariablesPageTest, ChoosingInACombinationBoxRefillsTheEditsAndMarksTheData) {
    ShowPageOfXAndZ();
    page.ChooseXAxisVar("z");
    EXPECT_EQ(Shown(kXName), "z");
    EXPECT_EQ(Shown(kZName), "x");
    EXPECT_TRUE(Temp().NeedsData);
    EXPECT_EQ(ui.pageChanged, 1);
    page.ChooseZAxisVar("");
    EXPECT_EQ(ui.pageChanged, 1);
}

TEST_F(VariablesPageTest, ClearZAxisDropsTheVariableOnce) {
    ShowPageOfXAndZ();
    page.ClearZAxisVar();
    EXPECT_FALSE(Temp().ZAxisVar);
    EXPECT_EQ(Shown(kZName), "-");
    EXPECT_EQ(Shown(kZPoints), "-");
    EXPECT_TRUE(Temp().NeedsData);
    EXPECT_EQ(Temp().GetGraphType(), kGraph2D);
    page.ClearZAxisVar();
    EXPECT_EQ(ui.pageChanged, 1);
}

TEST_F(VariablesPageTest, EditVariablesOpensTheManagerOnTheChosenOrFirstRow) {
    ShowPageOfXAndZ();
    page.EditVariables(1);
    page.EditVariables(-1);
    page.EditVariables(7);
    EXPECT_EQ(ui.editedVariables, (std::vector<std::string>{"z", "x", "x"}));
    EXPECT_EQ(ui.pageChanged, 3);
    EXPECT_TRUE(Temp().NeedsData);
}

TEST_F(VariablesPageTest, ApplyCopiesTheAxesOnlyAfterThePageWasShown) {
    Run("f(x,z) = x*z");
    AddFunction("f[x,z]");
    SetX("x", 0, 2, 3);
    page.ApplyChanges();
    EXPECT_FALSE(Current().XAxisVar);
    EXPECT_TRUE(ui.unchanged.empty());

    page.SetActive();
    EXPECT_TRUE(Temp().VariablesVisited);
    EXPECT_EQ(session.curPageId, 1003);
    Current().Modified = true;
    page.ApplyChanges();
    ASSERT_TRUE(Current().XAxisVar);
    EXPECT_EQ(Current().XAxisVar->num_points, 3);
    EXPECT_FALSE(Current().ZAxisVar);
    EXPECT_FALSE(Current().Modified);
    EXPECT_TRUE(session.graphsChanged);
    EXPECT_EQ(ui.unchanged, (std::vector<int>{kPageVariables}));
}

}  // namespace
}  // namespace quindar::testing
