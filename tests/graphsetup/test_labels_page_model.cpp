// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Labels page without its window: rows, titles that can't be emptied, legend labels.

#include <gtest/gtest.h>

#include "graph_pages_messages.h"
#include "labels_page_model.h"
#include "pages_recorder.h"

namespace quindar::testing {
namespace {

class LabelsPageTest : public PagesFixture {
protected:
    LabelsPageTest() {
        parser.eval_exp("f(x) = x^2", true, false);
        Temp().AddFunction("f[x]", "");
        Temp().AddFunction("sin[x]", "");
        AddDataSet("Data1");
        SetX("x", 0, 1, 5);
        page.UpdatePage();
        Temp().NeedsData = false;
        Temp().NeedsAttributes = false;
    }

    LabelsPageModel page{session, ui};
};

TEST_F(LabelsPageTest, RowsAreDeclaredFunctionsThenDataSets) {
    EXPECT_EQ(page.rows, (std::vector<std::string>{"f[x] = x^2", "Data1"}));
}

TEST_F(LabelsPageTest, EmptyAxisTitlesGetTheirAutomaticOnes) {
    EXPECT_EQ(page.Title(kTitleX), "x");
    EXPECT_EQ(page.Title(kTitleY), "f,sin");
    EXPECT_EQ(page.Title(kTitleZ), "");
    EXPECT_FALSE(page.ZTitleEnabled());
    SetZ("z", 0, 1, 5);
    Temp().ZAxisTitle.clear();
    page.UpdatePage();
    EXPECT_EQ(page.Title(kTitleZ), "z");
    EXPECT_TRUE(page.ZTitleEnabled());
}

TEST_F(LabelsPageTest, HeaderAndFooterChangesMarkOnlyTheLooks) {
    page.HeaderTyped(Temp().Header);
    EXPECT_EQ(ui.pageChanged, 0);
    page.HeaderTyped("Parabola");
    page.FooterTyped("below");
    EXPECT_EQ(Temp().Header, "Parabola");
    EXPECT_EQ(Temp().Footer, "below");
    EXPECT_EQ(ui.pageChanged, 2);
    EXPECT_TRUE(Temp().NeedsAttributes);
    EXPECT_FALSE(Temp().NeedsData);
    EXPECT_TRUE(Current().Modified);
}

TEST_F(LabelsPageTest, AnAxisTitleCantBeEmptied) {
    const struct {
        AxisTitle axis;
        const char *typed;
        bool taken;
        const char *title;
        bool userSet;
    } cases[] = {
        {kTitleX, "Time", true, "Time", true},
        {kTitleX, "Time", true, "Time", true},
        {kTitleX, "", false, "Time", true},
        {kTitleY, "", false, "f,sin", false},
        {kTitleY, "Height", true, "Height", true},
        {kTitleZ, "Depth", true, "", false},  // a 2-D graph has no Z title
    };
    for (const auto &c : cases) {
        if (!c.taken) ui.Expect(kMsgAxisNeedsTitle);
        EXPECT_EQ(page.TitleTyped(c.axis, c.typed), c.taken) << c.typed;
        EXPECT_EQ(page.Title(c.axis), c.title);
        const bool flags[] = {Temp().XTitleSet, Temp().YTitleSet, Temp().ZTitleSet};
        EXPECT_EQ(flags[c.axis], c.userSet) << c.typed;
        if (!c.taken) {
            EXPECT_EQ(ui.texts.back(), "All your graph axes must have a label.");
        }
    }
    EXPECT_TRUE(Temp().NeedsAttributes);
}

TEST_F(LabelsPageTest, SetDefaultTitlesBringsTheAutomaticTitlesBack) {
    page.TitleTyped(kTitleX, "Time");
    page.TitleTyped(kTitleY, "Height");
    page.FooterTyped("mine");
    page.SetDefaultTitles();
    EXPECT_EQ(Temp().XAxisTitle, "x");
    EXPECT_EQ(Temp().YAxisTitle, "f,sin");
    EXPECT_EQ(Temp().Footer, "f[x],sin[x]");
    EXPECT_FALSE(Temp().XTitleSet || Temp().YTitleSet || Temp().FooterSet);
}

TEST_F(LabelsPageTest, LabelsOfDataSetsAreFoundIgnoringCaseOfFunctionsExactly) {
    Temp().GetFunction(0)->SetFuncLabel("parabola");
    Temp().DataSets.gethead()->SetLabel("measured");
    page.rows = {"f[x] = x^2", "DATA1", "F[x] = x^2", "f[x]", "nothing"};
    const char *labels[] = {"parabola", "measured", "", "parabola", ""};
    for (int row = 0; row < 5; ++row) EXPECT_EQ(page.SelectRow(row), labels[row]) << row;
    EXPECT_EQ(Temp().LabelSelection, 4);
}

TEST_F(LabelsPageTest, TypingALabelStoresItOnTheRowsOwner) {
    page.SelectRow(1);
    page.LabelTyped("");
    EXPECT_EQ(ui.pageChanged, 0);
    page.LabelTyped("measured");
    EXPECT_STREQ(Temp().DataSets.gethead()->GetLabel(), "measured");
    page.SelectRow(0);
    page.LabelTyped("parabola");
    EXPECT_EQ(Temp().GetFunction(0)->label, "parabola");
    EXPECT_EQ(page.SelectedLabel(), "parabola");
    EXPECT_EQ(ui.pageChanged, 2);
    EXPECT_TRUE(Temp().NeedsAttributes);
    EXPECT_FALSE(Temp().NeedsData);
}

TEST_F(LabelsPageTest, ApplyCopiesTextsAndLabelsToTheNamesakesOnlyAfterAVisit) {
    GraphData &current = Current();
    current.AddFunction("f[x]", "");
    current.AddFunction("g[x]", "");
    current.DataSets.add()->SetName("Data1");
    page.HeaderTyped("Parabola");
    page.TitleTyped(kTitleX, "Time");
    page.SelectRow(0);
    page.LabelTyped("parabola");
    page.SelectRow(1);
    page.LabelTyped("measured");

    page.ApplyChanges();
    EXPECT_EQ(current.Header, "G");

    page.SetActive();
    EXPECT_EQ(session.curPageId, 1007);
    page.ApplyChanges();
    EXPECT_EQ(current.Header, "Parabola");
    EXPECT_EQ(current.XAxisTitle, "Time");
    EXPECT_TRUE(current.XTitleSet);
    EXPECT_EQ(current.YAxisTitle, "f,sin");
    EXPECT_FALSE(current.YTitleSet);
    EXPECT_EQ(current.GetFunction(0)->label, "parabola");
    EXPECT_EQ(current.GetFunction(1)->label, "");
    EXPECT_STREQ(current.DataSets.gethead()->GetLabel(), "measured");
    EXPECT_EQ(current.LabelSelection, 1);
    EXPECT_FALSE(current.Modified);
    EXPECT_TRUE(session.graphsChanged);
    EXPECT_EQ(ui.unchanged, (std::vector<int>{kPageLabels}));
}

TEST_F(LabelsPageTest, NextAndPrevFollowTheWalk) {
    page.Next();
    page.Prev();
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageColors, kPageTypes}));
}

}  // namespace
}  // namespace quindar::testing
