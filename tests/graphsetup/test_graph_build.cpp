// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "setup_fixture.h"
#include "setup_messages.h"

namespace quindar::testing {
namespace {

class GraphBuild : public SetupFixture {
protected:
    void OneGraph() {
        Declare("f[x]", "x^2");
        NewGraph("Square").AddFunction("f[x]", "x^2");
        graphs.SetupWindow();
    }
};

TEST_F(GraphBuild, WithoutAGraphNothingIsBuilt) {
    graphs.SetupWindow();
    ui.Expect(24634);
    EXPECT_TRUE(graphs.BuildGraph());
    EXPECT_TRUE(window.builds.empty());
    EXPECT_EQ(ui.editorFocused, 1);
}

TEST_F(GraphBuild, AFailedCheckBuildsNothing) {
    OneGraph();
    Stub(kPageVariables).pass = false;
    EXPECT_TRUE(graphs.BuildGraph());
    EXPECT_TRUE(window.builds.empty());
    EXPECT_TRUE(ui.enables.empty());
}

TEST_F(GraphBuild, ABuildDisablesTheSheetAroundItAndClearsTheOldErrors) {
    OneGraph();
    graphs.documentPath = "/tmp/a.qnd";
    graphs.AddError("old");
    EXPECT_TRUE(graphs.BuildGraph());
    EXPECT_EQ(window.builds, (std::vector<std::string>{"Square"}));
    EXPECT_EQ(ui.enables, (std::vector<bool>{false, true}));
    EXPECT_TRUE(graphs.errors.rows().empty());
    EXPECT_FALSE(session.temp.NeedsData);
}

TEST_F(GraphBuild, NoDataChangeOnANeverSavedDocumentRecreatesTheWindow) {
    OneGraph();
    const struct {
        bool needsData;
        const char *path;
        bool holds;
        int builds, recreated;
    } cases[] = {
        {false, "", true, 0, 1},
        {false, "/tmp/a.qnd", true, 1, 1},
        {true, "", true, 2, 1},
        {false, "", false, 3, 2},
    };
    for (const auto &c : cases) {
        session.temp.NeedsData = c.needsData;
        graphs.documentPath = c.path;
        window.holdsGraph = c.holds;
        graphs.BuildGraph();
        EXPECT_EQ(static_cast<int>(window.builds.size()), c.builds) << c.path;
        EXPECT_EQ(window.recreated, c.recreated) << c.path;
    }
}

TEST_F(GraphBuild, ErrorsSelectTheGraphsPageAndTheLastErrorRow) {
    OneGraph();
    window.errorLines = {"An error occured at x = 0 : Division by zero"};
    ui.Expect(24638);
    EXPECT_FALSE(graphs.BuildGraph());
    EXPECT_EQ(ui.messages.back().fields, (std::vector<std::string>{"Square"}));
    EXPECT_EQ(ui.messages.back().flags, kBoxInformation);
    EXPECT_EQ(ui.selected.back(), kPageGraphs);
    EXPECT_EQ(ui.focused.back(), (std::pair<int, int>{kPageGraphs, 20609}));
    EXPECT_EQ(graphs.errors.rows().size(), 1u);
    EXPECT_TRUE(session.temp.NeedsData);
}

TEST_F(GraphBuild, UpdateGraphWindowBuildsRefreshesOrDoesNothing) {
    OneGraph();
    const struct {
        bool needsData, needsAttributes, lastOk, exists, suppress;
        bool result;
        int builds, refreshes;
    } cases[] = {
        {true, false, true, true, false, true, 1, 0},
        {false, false, false, true, false, true, 1, 0},
        {false, true, true, true, false, true, 0, 1},
        {false, false, true, true, false, false, 0, 0},
        {true, true, true, false, false, false, 0, 0},
        {true, true, true, true, true, false, 0, 0},
    };
    for (const auto &c : cases) {
        window.builds.clear();
        window.refreshes.clear();
        session.temp.NeedsData = c.needsData;
        session.temp.NeedsAttributes = c.needsAttributes;
        session.lastCheckOk = c.lastOk;
        window.exists = c.exists;
        graphs.suppressWindowUpdate = c.suppress;
        EXPECT_EQ(graphs.UpdateGraphWindow(), c.result);
        EXPECT_EQ(static_cast<int>(window.builds.size()), c.builds);
        EXPECT_EQ(static_cast<int>(window.refreshes.size()), c.refreshes);
    }
}

TEST_F(GraphBuild, ApplyIsRefusedWhenTheBuildLeftErrors) {
    OneGraph();
    session.temp.NeedsData = true;
    window.errorLines = {"bad point"};
    ui.Expect(24638);
    EXPECT_FALSE(graphs.ApplySheet());
    EXPECT_EQ(Stub(kPagePoints).applied, 0);
    window.errorLines.clear();
    EXPECT_TRUE(graphs.ApplySheet());
    for (int index = kPagePoints; index < kSetupPageCount; ++index)
        EXPECT_EQ(Stub(index).applied, 1) << index;
    EXPECT_EQ(ui.unchanged, (std::vector<int>{kPageGraphs}));
}

TEST_F(GraphBuild, ChecksRunInOrderAndStopAtTheFirstFailure) {
    OneGraph();
    StrDataPnts *set = session.temp.DataSets.add();
    set->PutXDataPoint("1", 0);
    set->PutYDataPoint("2", 0);
    const struct {
        int failing;  // -1 none
        std::vector<int> checked;
        bool ok, lastOk;
    } cases[] = {
        {-1, {kPageVariables, kPagePoints, kPageTypes}, true, true},
        {kPageVariables, {kPageVariables}, false, false},
        {kPagePoints, {kPageVariables, kPagePoints}, false, false},
        {kPageTypes, {kPageVariables, kPagePoints, kPageTypes}, false, true},
    };
    ui.showing = kPageFunctions;
    for (const auto &c : cases) {
        for (int index : {kPagePoints, kPageVariables, kPageTypes}) {
            Stub(index).checks = 0;
            Stub(index).pass = index != c.failing;
        }
        EXPECT_EQ(graphs.CheckGeneralData(session.temp), c.ok);
        EXPECT_EQ(session.lastCheckOk, c.lastOk);
        for (int index : {kPagePoints, kPageVariables, kPageTypes}) {
            const bool expected =
                std::find(c.checked.begin(), c.checked.end(), index) != c.checked.end();
            EXPECT_EQ(Stub(index).checks, expected ? 1 : 0) << index << " failing " << c.failing;
        }
    }
}

TEST_F(GraphBuild, OnTheGraphsPageAnEmptyWorkingCopyGets24640) {
    NewGraph("Empty");
    graphs.SetupWindow();
    ui.showing = kPageGraphs;
    ui.Expect(24640);
    EXPECT_FALSE(graphs.CheckGeneralData(session.temp));
    EXPECT_FALSE(session.lastCheckOk);
    ui.showing = kPageVariables;
    ui.Expect(24639);
    EXPECT_FALSE(graphs.CheckGeneralData(session.temp));
    EXPECT_EQ(ui.selected.back(), kPageFunctions);
}

TEST_F(GraphBuild, AGraphWithoutDataSetsGetsLayoutOne) {
    OneGraph();
    session.temp.DataLayout = 2;
    ui.showing = kPageGraphs;
    EXPECT_TRUE(graphs.CheckGeneralData(session.temp));
    EXPECT_EQ(session.temp.DataLayout, 1);
}

}  // namespace
}  // namespace quindar::testing
