// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "setup_fixture.h"
#include "setup_messages.h"
#include "string_table.h"

namespace quindar::testing {
namespace {

class GraphsPage : public SetupFixture {};

TEST_F(GraphsPage, MessagesHaveTheirExactTexts) {
    const struct {
        int id;
        const char *text;
    } cases[] = {
        {24608, "You must first enter the name of your graph before you can add it!"},
        {24609, "You must first choose a graph name!"},
        {24610, "This graph name has been defined already, use a unique graph name!"},
        {24611, "Are you sure that you want to delete \"%s\"?"},
        {24612, "\"%s\" has changed do you wish to save your changes?"},
        {24634, "There are currently no graphs defined, you must define a graph first!"},
        {24638,
         "Errors occured while calculating the data for the graph \"%s\", see the \"Graph "
         "Errors\" list for details."},
        {24803,
         "The data identified for the selected graph appears to have no problems and is ready "
         "to be graphed!"},
    };
    for (const auto &c : cases) EXPECT_EQ(application_strings().Get(c.id), c.text) << c.id;
}

TEST_F(GraphsPage, AnEmptyDocumentOffersTheDefaultNameWithEveryButtonOff) {
    graphs.SetupWindow();
    EXPECT_EQ(graphs.name, "DefaultGraphName");
    EXPECT_TRUE(graphs.rows.empty());
    EXPECT_FALSE(graphs.editEnabled || graphs.deleteEnabled || graphs.checkEnabled ||
                 graphs.buildEnabled);
    EXPECT_EQ(graphs.caption, "Graph Setup");
}

TEST_F(GraphsPage, SetupMakesTheHeadCurrentAndSortsTheList) {
    NewGraph("zeta");
    NewGraph("Alpha");
    NewGraph("beta").AddFunction("f[x]", "x");
    graphs.SetupWindow();
    EXPECT_EQ(graphs.rows, (std::vector<std::string>{"Alpha", "beta", "zeta"}));
    ASSERT_NE(content.currentGraph, nullptr);
    EXPECT_EQ(content.currentGraph->Name, "zeta");
    EXPECT_EQ(graphs.selected, 2);
    EXPECT_EQ(graphs.name, "zeta");
    EXPECT_TRUE(graphs.editEnabled && graphs.deleteEnabled && graphs.checkEnabled);
    EXPECT_FALSE(graphs.buildEnabled);
    EXPECT_EQ(session.temp.Name, "zeta");
}

TEST_F(GraphsPage, CaptionsNameTheFileAndTheGraph) {
    const struct {
        const char *path;
        bool graph;
        const char *caption;
        const char *directory;
    } cases[] = {
        {"/home/u/work/sums.qnd", true, "Graph Setup For \"sums.qnd\" : G", "/home/u/work"},
        {"", true, "Graph Setup For : G", ""},
        {"sums.qnd", true, "Graph Setup For \"sums.qnd\" : G", ""},
        {"/home/u/sums.qnd", false, "Graph Setup For \"sums.qnd\"", ""},
        {"", false, "Graph Setup", ""},
    };
    for (const auto &c : cases) {
        content.graphs.flush();
        content.currentGraph = c.graph ? &NewGraph("G") : nullptr;
        graphs.documentPath = c.path;
        graphs.ResetCaption();
        EXPECT_EQ(graphs.caption, c.caption) << c.path;
        if (c.graph) {
            EXPECT_EQ(content.currentGraph->Directory, c.directory);
        }
    }
}

TEST_F(GraphsPage, AddRefusesAnEmptyOrTakenNameIgnoringCase) {
    NewGraph("Sine");
    graphs.SetupWindow();
    const struct {
        const char *name;
        int message;
    } cases[] = {{"", 24608}, {"sine", 24610}, {"SINE", 24610}, {"Sine", 24610}};
    for (const auto &c : cases) {
        graphs.name = c.name;
        ui.Expect(c.message);
        graphs.Add();
    }
    EXPECT_EQ(content.graphs.count(), 1);
    EXPECT_EQ(ui.Ids(), (std::vector<int>{24608, 24610, 24610, 24610}));
    EXPECT_EQ(ui.messages[0].flags, kBoxWarning);
}

TEST_F(GraphsPage, AddMakesANewCurrentGraphFromTheDefaults) {
    session.defaults.Depth2D = 33;
    graphs.SetupWindow();
    graphs.name = "Cosine";
    graphs.Add();
    ASSERT_EQ(content.graphs.count(), 1);
    GraphData &added = *content.graphs.gethead();
    EXPECT_EQ(content.currentGraph, &added);
    EXPECT_EQ(added.Header, "Cosine");
    EXPECT_EQ(added.Depth2D, 33);
    EXPECT_EQ(added.GraphType3D, 1111);
    EXPECT_TRUE(session.graphsChanged);
    EXPECT_EQ(graphsChangedCalls, 1);
    EXPECT_EQ(graphs.rows, (std::vector<std::string>{"Cosine"}));
    EXPECT_EQ(graphs.selected, 0);
    EXPECT_TRUE(graphs.editEnabled && graphs.deleteEnabled && graphs.checkEnabled);
    EXPECT_FALSE(graphs.buildEnabled);
    EXPECT_EQ(graphs.caption, "Graph Setup For : Cosine");
    EXPECT_EQ(session.temp.Name, "Cosine");
}

TEST_F(GraphsPage, AddAsksToSaveAModifiedGraphAndYesApplies) {
    NewGraph("Old");
    graphs.SetupWindow();
    content.currentGraph->Modified = true;
    window.exists = false;
    for (int answer : {kIdYes, kIdNo}) {
        graphs.name = answer == kIdYes ? "New1" : "New2";
        content.currentGraph->Modified = true;
        const int appliedBefore = Stub(kPageColors).applied;
        ui.Expect(24612, answer);
        graphs.Add();
        EXPECT_EQ(ui.messages.back().fields,
                  (std::vector<std::string>{answer == kIdYes ? "Old" : "New1"}));
        EXPECT_EQ(Stub(kPageColors).applied - appliedBefore, answer == kIdYes ? 1 : 0);
    }
    EXPECT_EQ(content.graphs.count(), 3);
}

TEST_F(GraphsPage, RenameChecksInOrderAndTheHeaderFollowsOnlyWhenItWasTheName) {
    ui.Expect(24634);
    graphs.Rename();
    NewGraph("One");
    GraphData &two = NewGraph("Two");
    two.SetHeader("My header");
    graphs.SetupWindow();
    graphs.name = "";
    ui.Expect(24609);
    graphs.Rename();
    graphs.name = "x";
    graphs.selected = -1;
    ui.Expect(24609);
    graphs.Rename();
    graphs.SelectRow(0);  // "One" is current already
    graphs.name = "TWO";
    ui.Expect(24610);
    graphs.Rename();
    graphs.name = "Uno";
    graphs.Rename();
    EXPECT_EQ(content.graphs.gethead()->Name, "Uno");
    EXPECT_EQ(content.graphs.gethead()->Header, "Uno");
    EXPECT_EQ(graphs.rows, (std::vector<std::string>{"Two", "Uno"}));
    EXPECT_EQ(graphs.selected, 1);
    graphs.SelectRow(0);
    graphs.name = "Dos";
    graphs.Rename();
    EXPECT_EQ(two.Name, "Dos");
    EXPECT_EQ(two.Header, "My header");
    EXPECT_EQ(session.temp.Name, "Dos");
}

TEST_F(GraphsPage, DeleteAsksAndTheHeadBecomesCurrentWhicheverGraphWent) {
    ui.Expect(24634);
    graphs.Delete();
    NewGraph("A");
    NewGraph("B");
    GraphData &c = NewGraph("C");
    content.currentGraph = &c;
    graphs.SetupWindow();
    graphs.selected = -1;
    ui.Expect(24609);
    graphs.Delete();
    graphs.selected = 1;  // "B", not the current graph
    ui.Expect(24611, kIdNo);
    graphs.Delete();
    EXPECT_EQ(content.graphs.count(), 3);
    ui.Expect(24611, kIdYes);
    graphs.Delete();
    EXPECT_EQ(ui.messages.back().fields, (std::vector<std::string>{"B"}));
    EXPECT_EQ(ui.messages.back().flags, kBoxQuestionYesNo);
    EXPECT_EQ(content.graphs.count(), 2);
    EXPECT_EQ(content.currentGraph->Name, "A");
    EXPECT_EQ(graphs.name, "A");
    EXPECT_EQ(graphs.rows[static_cast<std::size_t>(graphs.selected)], "A");
    EXPECT_EQ(ui.pageChanged, 1);
    for (const char *left : {"A", "C"}) {
        (void)left;
        graphs.SelectRow(0);
        ui.Expect(24611, kIdYes);
        graphs.Delete();
    }
    EXPECT_EQ(content.graphs.count(), 0);
    EXPECT_EQ(content.currentGraph, nullptr);
    EXPECT_EQ(graphs.name, "DefaultGraphName");
    EXPECT_FALSE(graphs.editEnabled || graphs.deleteEnabled || graphs.checkEnabled ||
                 graphs.buildEnabled);
}

TEST_F(GraphsPage, ChoosingAnotherGraphWithChangesAsksAndNoForgetsThem) {
    NewGraph("A");
    NewGraph("B");
    graphs.SetupWindow();
    content.currentGraph->Modified = true;
    session.temp.SetHeader("edited");
    ui.Expect(24612, kIdNo);
    graphs.SelectRow(1);
    EXPECT_EQ(ui.unchanged, (std::vector<int>{0, 1, 3, 2, 4, 5}));
    EXPECT_FALSE(content.graphs.gethead()->Modified);
    EXPECT_EQ(content.graphs.gethead()->Header, "A");
    EXPECT_EQ(content.currentGraph->Name, "B");
    EXPECT_EQ(session.temp.Header, "B");
    EXPECT_EQ(graphsChangedCalls, 0);
    EXPECT_TRUE(graphs.editEnabled && graphs.deleteEnabled);
    graphs.SelectRow(-1);
    EXPECT_FALSE(graphs.editEnabled || graphs.deleteEnabled);
}

TEST_F(GraphsPage, YesToSaveAppliesToTheOldGraphAndLeavesTheWindowAlone) {
    NewGraph("A").AddFunction("f[x]", "x");
    NewGraph("B");
    Declare("f[x]", "x");
    graphs.SetupWindow();
    content.currentGraph->Modified = true;
    session.temp.NeedsData = true;
    ui.Expect(24612, kIdYes);
    graphs.SelectRow(1);
    EXPECT_TRUE(window.builds.empty());
    EXPECT_EQ(Stub(kPagePoints).applied, 1);
    EXPECT_FALSE(graphs.suppressWindowUpdate);
    EXPECT_EQ(content.currentGraph->Name, "B");
}

TEST_F(GraphsPage, CheckGraphSaysReadyOnlyWhenEveryCheckPasses) {
    ui.Expect(24634);
    graphs.CheckGraph();
    NewGraph("G").AddFunction("f[x]", "x");
    Declare("f[x]", "x");
    graphs.SetupWindow();
    ui.Expect(24803);
    graphs.CheckGraph();
    Stub(kPageVariables).pass = false;
    graphs.CheckGraph();
    EXPECT_FALSE(session.lastCheckOk);
    EXPECT_EQ(ui.Ids(), (std::vector<int>{24634, 24803}));
}

TEST_F(GraphsPage, EntryButtonsAddAGraphFirstAndSetTheWizardPath) {
    graphs.SetupWindow();
    graphs.name = "";
    ui.Expect(24634);
    graphs.GraphFunctions();
    EXPECT_EQ(ui.focused.back(), (std::pair<int, int>{kPageGraphs, 20602}));
    EXPECT_EQ(content.graphs.count(), 0);
    ui.Expect(24608);
    ui.Expect(24634);
    graphs.GraphDataPoints();
    graphs.name = "First";
    graphs.GraphFunctions();
    EXPECT_EQ(content.graphs.count(), 1);
    EXPECT_EQ(ui.selected.back(), kPageFunctions);
    EXPECT_EQ(session.wizardPath, kWizardFunctions);
    graphs.name = "Other";
    graphs.GraphDataPoints();
    EXPECT_EQ(content.graphs.count(), 1);
    EXPECT_EQ(ui.selected.back(), kPagePoints);
    EXPECT_EQ(session.wizardPath, kWizardPoints);
    EXPECT_GE(ui.editorFocused, 4);
}

TEST_F(GraphsPage, LeavingWithoutAGraphAddsTheDefaultOneButNotAtTheFirstLeaving) {
    graphs.SetupWindow();
    graphs.name = "";
    EXPECT_TRUE(graphs.KillActive());
    EXPECT_EQ(content.graphs.count(), 0);
    EXPECT_TRUE(graphs.KillActive());
    ASSERT_EQ(content.graphs.count(), 1);
    EXPECT_EQ(content.currentGraph->Name, "DefaultGraphName");
    EXPECT_TRUE(graphs.KillActive());
    EXPECT_EQ(content.graphs.count(), 1);
}

TEST_F(GraphsPage, FirstActivationOffersApplyUnlessTheWindowShowsTheGraph) {
    NewGraph("G");
    const struct {
        std::string shown;
        int changed;
    } cases[] = {{"G", 0}, {"H", 1}, {"", 1}};
    for (const auto &c : cases) {
        ui.pageChanged = 0;
        window.shown = c.shown;
        graphs.SetupWindow();
        graphs.SetActive();
        EXPECT_EQ(ui.pageChanged, c.changed) << c.shown;
        EXPECT_EQ(session.curPageId, 1006);
    }
}

TEST_F(GraphsPage, ErrorListKeepsTheNewest101Rows) {
    graphs.AddError(nullptr);
    EXPECT_TRUE(graphs.errors.rows().empty());
    for (int i = 0; i < 150; ++i) graphs.AddError(std::to_string(i).c_str());
    ASSERT_EQ(graphs.errors.rows().size(), 101u);
    EXPECT_EQ(graphs.errors.rows().front(), "49");
    EXPECT_EQ(graphs.errors.rows().back(), "149");
    graphs.ClearErrors();
    EXPECT_TRUE(graphs.errors.rows().empty());
}

TEST_F(GraphsPage, ComputeValueListsAnEvaluationErrorWithASound) {
    complex value{};
    EXPECT_TRUE(graphs.ComputeValue("2*3", value));
    EXPECT_EQ(value.real, 6.0);
    EXPECT_TRUE(graphs.errors.rows().empty());
    EXPECT_TRUE(graphs.ComputeValue("1/", value));
    ASSERT_EQ(graphs.errors.rows().size(), 1u);
    EXPECT_FALSE(graphs.errors.rows().front().empty());
    EXPECT_EQ(ui.sounds, (std::vector<std::string>{"Error.wav"}));
    EXPECT_FALSE(parser.IsAnError());
}

}  // namespace
}  // namespace quindar::testing
