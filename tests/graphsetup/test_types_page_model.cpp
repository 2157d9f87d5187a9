// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Types page without its window: the dimension decides the controls, the type and the
// attribute digits, the minimum number of sets.

#include <gtest/gtest.h>

#include "graph_pages_messages.h"
#include "graph_types.h"
#include "pages_recorder.h"
#include "types_page_model.h"

namespace quindar::testing {
namespace {

class TypesPageTest : public PagesFixture {
protected:
    TypesPageModel page{session, ui};
};

TEST_F(TypesPageTest, TheGraphsContentsNotThePageChooseTheDimension) {
    const struct {
        const char *what;
        std::function<void()> make;
        bool twoD, threeD;
    } cases[] = {
        {"nothing", [] {}, false, false},
        {"a function", [this] { AddFunction("f[x]"); }, true, false},
        {"a function on X",
         [this] {
             AddFunction("f[x]");
             SetX("x", 0, 1, 5);
         },
         true, false},
        {"a function on X and Z",
         [this] {
             AddFunction("f[x,z]");
             SetX("x", 0, 1, 5);
             SetZ("z", 0, 1, 5);
         },
         false, true},
        {"a data set", [this] { AddDataSet("Data1"); }, true, false},
        {"a data set with a Z", [this] { AddDataSet("Data1", "3"); }, false, true},
        {"a function and a set with a Z",
         [this] {
             AddFunction("f[x]");
             SetX("x", 0, 1, 5);
             AddDataSet("Data1", "0");
         },
         false, true},
    };
    for (const auto &c : cases) {
        Temp() = GraphData(kTemporaryGraphName);
        c.make();
        EXPECT_EQ(page.TwoDEnabled(), c.twoD) << c.what;
        EXPECT_EQ(page.ThreeDEnabled(), c.threeD) << c.what;
        // Whatever is chosen, the dimension stays.
        for (const GraphType2DInfo &type : graph_types_2d()) page.Choose2DType(type.stored);
        page.Set3DAttribute(kBarOrSurfaceDigit, true);
        EXPECT_EQ(page.TwoDEnabled(), c.twoD) << c.what;
        EXPECT_EQ(page.ThreeDEnabled(), c.threeD) << c.what;
    }
}

TEST_F(TypesPageTest, ATwoDimensionalTypeIsStoredAndMarksOnlyTheLooks) {
    AddFunction("f[x]");
    Temp().NeedsData = false;
    Temp().NeedsAttributes = false;
    page.Choose2DType(1);
    EXPECT_EQ(ui.pageChanged, 0);
    page.Choose2DType(12);  // not a type
    EXPECT_EQ(page.Type2D(), 1);
    page.Choose2DType(14);
    EXPECT_EQ(page.Type2D(), 14);
    EXPECT_EQ(ui.pageChanged, 1);
    EXPECT_TRUE(Temp().NeedsAttributes);
    EXPECT_FALSE(Temp().NeedsData);
    page.Set3DAttribute(5, true);  // a 2-D graph has no 3-D attributes
    EXPECT_EQ(Temp().GraphType3D, 1111);
}

TEST_F(TypesPageTest, ThreeDimensionalAttributesAreDigits) {
    AddDataSet("Data1", "1");
    const struct {
        int digit;
        bool on;
        int stored;
        int marks;
    } steps[] = {
        {1, true, 1111, 0},     {7, true, 1001111, 1}, {5, true, 1011111, 2},
        {1, false, 1011110, 3}, {7, false, 11110, 4},  {8, true, 11110, 4},
    };
    for (const auto &s : steps) {
        page.Set3DAttribute(s.digit, s.on);
        EXPECT_EQ(Temp().GraphType3D, s.stored) << s.digit;
        EXPECT_EQ(ui.pageChanged, s.marks);
    }
    EXPECT_FALSE(page.Attribute3D(7));
    EXPECT_TRUE(page.Attribute3D(5));
    page.Choose2DType(3);
    EXPECT_EQ(Temp().GraphType2D, 1);
}

TEST_F(TypesPageTest, TypesThatNeedSeveralSetsCountFunctionsAndDataSets) {
    const struct {
        int type;
        int functions, sets;
        int message;  // 0: passes
        const char *words;
    } cases[] = {
        {6, 1, 0, kMsgHiLoNeedsTwo,
         "A minimum of 2 data sets or equations are required for a \"HiLo Graph\", you have only "
         "defined one!"},
        {6, 1, 1, 0, ""},
        {6, 0, 2, 0, ""},
        {7, 3, 0, kMsgHiLoOpenCloseNeedsFour,
         "A minimum of 4 data sets or equations are required for a \"HiLo Open Close Graph\", "
         "you have only defined 3!"},
        {7, 2, 2, 0, ""},
        {8, 1, 2, kMsgCandleNeedsFour,
         "A minimum of 4 data sets Or equations are required for a \"Candle Graph\", you have "
         "only defined 1!"},
        {8, 4, 0, 0, ""},
        {1, 1, 0, 0, ""},
        {3, 1, 0, 0, ""},
    };
    for (const auto &c : cases) {
        GraphData graph("T");
        for (int i = 0; i < c.functions; ++i)
            graph.AddFunction(("f" + std::to_string(i) + "[x]").c_str(), "");
        for (int i = 0; i < c.sets; ++i) graph.DataSets.add()->SetName("D");
        graph.GraphType2D = c.type;
        ui.selected.clear();
        if (c.message != 0) ui.Expect(c.message);
        EXPECT_EQ(page.CheckData(graph), c.message == 0) << c.type << " " << c.functions;
        if (c.message != 0) {
            EXPECT_EQ(ui.texts.back(), c.words);
            EXPECT_EQ(ui.selected, (std::vector<int>{kPageTypes}));
        }
    }
}

TEST_F(TypesPageTest, AThreeDimensionalGraphIsNotCheckedForSets) {
    GraphData graph("T");
    graph.AddFunction("f[x,z]", "");
    const Variable x("x", complex{0, 0}, complex{1, 0}, 3);
    graph.SetXAxisVar(&x);
    graph.SetZAxisVar(&x);
    graph.GraphType2D = 8;
    EXPECT_TRUE(page.CheckData(graph));
}

TEST_F(TypesPageTest, ApplyCopiesOnlyTheTypeOfTheGraphsDimension) {
    AddFunction("f[x]");
    page.Choose2DType(9);
    Temp().GraphType3D = 1001111;
    page.ApplyChanges();
    EXPECT_EQ(Current().GraphType2D, 1);
    page.SetActive();
    EXPECT_EQ(session.curPageId, 1008);
    page.ApplyChanges();
    EXPECT_EQ(Current().GraphType2D, 9);
    EXPECT_EQ(Current().GraphType3D, 1111);
    EXPECT_EQ(ui.unchanged, (std::vector<int>{kPageTypes}));
    EXPECT_TRUE(session.graphsChanged);
}

TEST_F(TypesPageTest, NextChecksAndPrevFollowsTheWizardPath) {
    AddFunction("f[x]");
    Temp().GraphType2D = 6;
    ui.Expect(kMsgHiLoNeedsTwo);
    page.Next();
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageTypes}));
    AddFunction("g[x]");
    page.Next();
    EXPECT_EQ(ui.selected.back(), kPageLabels);
    session.wizardPath = kWizardPoints;
    page.Prev();
    EXPECT_EQ(ui.selected.back(), kPagePoints);
}

}  // namespace
}  // namespace quindar::testing
