// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "setup_fixture.h"
#include "setup_messages.h"
#include "string_table.h"

namespace quindar::testing {
namespace {

class FunctionsPage : public SetupFixture {
protected:
    // A document with f and g declared and one graph of f, shown on the Functions page.
    void FAndG() {
        Declare("f[x]", "x^2");
        Declare("g[x]", "2*x");
        NewGraph("Plot").AddFunction("f[x]", "x^2");
        graphs.SetupWindow();
        functions.SetActive();
    }
};

TEST_F(FunctionsPage, MessagesHaveTheirExactTexts) {
    const struct {
        int id;
        const char *text;
    } cases[] = {
        {24629, "You must select a function to add from the \"Defined Functions\" list box!"},
        {24630, "You must select a function to remove from the \"Functions To Graph\" list box!"},
        {24631, "There are currently no functions to be graphed so there is nothing to remove!"},
        {24632, "You have already added this function to the list to be graphed!"},
        {24633, "There are no functions to Graph, you must first define some functions!"},
        {24637, "The function \"%s = %s\" is no longer defined and will be removed from \"%s\"!"},
        {24907,
         "You can not graph both equations and data points in 3-dimensions, you must remove "
         "the equation or the data points!"},
        {24908, "You can not graph more than one equation in 3-dimensions!"},
    };
    for (const auto &c : cases) EXPECT_EQ(application_strings().Get(c.id), c.text) << c.id;
}

TEST_F(FunctionsPage, ActivationFillsBothListsAndMarksTheVisit) {
    FAndG();
    EXPECT_EQ(functions.defined, (std::vector<std::string>{"f[x] = x^2", "g[x] = 2*x"}));
    EXPECT_EQ(functions.toGraph, (std::vector<std::string>{"f[x] = x^2"}));
    EXPECT_TRUE(functions.addEnabled);
    EXPECT_TRUE(functions.removeEnabled);
    EXPECT_TRUE(session.temp.FunctionsVisited);
    EXPECT_EQ(session.curPageId, 1004);
    EXPECT_EQ(functions.lastGraphShown, content.currentGraph);
}

TEST_F(FunctionsPage, AddChecksInOrder) {
    ui.Expect(24634);
    functions.Add();
    EXPECT_EQ(ui.selected.back(), kPageGraphs);
    NewGraph("G");
    ui.Expect(24609);
    functions.Add();
    content.currentGraph = content.graphs.gethead();
    functions.UpdatePage();
    ui.Expect(24633);
    functions.Add();
    EXPECT_EQ(ui.managerOpened, (std::vector<std::string>{""}));
    EXPECT_TRUE(functions.backFromManager);
    Declare("f[x]", "x");
    functions.UpdateFunListBox();
    functions.definedSelected = -1;
    ui.Expect(24629);
    functions.Add();
    functions.definedSelected = 0;
    functions.Add();
    EXPECT_EQ(functions.toGraph, (std::vector<std::string>{"f[x] = x"}));
    ui.Expect(24632);
    functions.Add();
}

TEST_F(FunctionsPage, AddFunctionMarksTheEditAndUpdatesTheWorkingCopy) {
    FAndG();
    content.currentGraph->Modified = false;
    session.temp.NeedsData = false;
    ui.pageChanged = 0;
    EXPECT_TRUE(functions.AddFunction("g[x] = 2*x"));
    EXPECT_TRUE(functions.AddFunction("SIN[x]"));
    ui.Expect(24632);
    EXPECT_FALSE(functions.AddFunction("sin[X]")) << "the search ignores case";
    EXPECT_EQ(ui.pageChanged, 2);
    EXPECT_TRUE(content.currentGraph->Modified);
    EXPECT_TRUE(session.temp.NeedsData);
    ASSERT_EQ(session.temp.GetNumFunctions(), 3);
    EXPECT_EQ(session.temp.GetFunction(1)->full_name, "g[x]");
    EXPECT_EQ(session.temp.GetFunction(2)->func_value, "SIN[x]");
    ASSERT_TRUE(session.temp.XAxisVar == nullptr || session.temp.XAxisVar->name == "x");
}

TEST_F(FunctionsPage, RemoveChecksAndTheLastFunctionClearsTheTitles) {
    FAndG();
    functions.toGraphSelected = -1;
    ui.Expect(24630);
    functions.Remove();
    functions.toGraphSelected = 0;
    functions.Remove();
    EXPECT_TRUE(functions.toGraph.empty());
    EXPECT_EQ(session.temp.GetNumFunctions(), 0);
    EXPECT_EQ(session.temp.Footer, "Footer");
    EXPECT_EQ(session.temp.XAxisTitle, "");
    EXPECT_EQ(session.temp.YAxisTitle, "");
    EXPECT_FALSE(functions.removeEnabled);
    ui.Expect(24631);
    functions.Remove();
}

TEST_F(FunctionsPage, AChangedDefinitionReplacesItsRowInPlace) {
    FAndG();
    functions.AddFunction("g[x] = 2*x");
    Run("f[x]=x^4");
    ui.pageChanged = 0;
    ui.Expect(24636);
    functions.UpdatePage();
    EXPECT_EQ(ui.messages.back().fields, (std::vector<std::string>{"f[x]", "x^2", "x^4"}));
    EXPECT_EQ(functions.toGraph, (std::vector<std::string>{"f[x] = x^4", "g[x] = 2*x"}));
    EXPECT_EQ(session.temp.GetFunction(0)->func_value, "x^4");
    EXPECT_EQ(ui.pageChanged, 1);
}

TEST_F(FunctionsPage, AFunctionDeletedInTheManagerGoesWithoutAQuestion) {
    FAndG();
    ui.inManager = [this] { parser.delete_function(parser.find_function("f[x]")); };
    functions.toGraphSelected = 0;
    ui.Expect(24637);
    functions.EditFunctions(FunctionsPageModel::kToGraph);
    functions.UpdatePage();
    EXPECT_EQ(ui.managerOpened, (std::vector<std::string>{"f[x]"}));
    EXPECT_EQ(ui.messages.back().fields, (std::vector<std::string>{"f[x]", "x^2", "Plot"}));
    EXPECT_TRUE(functions.toGraph.empty());
    EXPECT_FALSE(functions.backFromManager);
}

TEST_F(FunctionsPage, AFunctionDeletedElsewhereIsAskedFor) {
    const struct {
        int answer;
        bool declares;
        std::size_t rows;
    } cases[] = {{kIdNo, false, 0}, {kIdYes, false, 0}, {kIdYes, true, 1}};
    for (const auto &c : cases) {
        content.graphs.flush();
        parser.delete_all_funcs();
        functions.lastGraphShown = nullptr;
        FAndG();
        parser.delete_function(parser.find_function("f[x]"));
        ui.declare = [this, &c](const std::string &name, const std::string &value) {
            if (c.declares) Declare(name.c_str(), value.c_str());
            return c.declares;
        };
        ui.Expect(24635, c.answer);
        functions.UpdatePage();
        EXPECT_EQ(ui.messages.back().fields, (std::vector<std::string>{"f[x]", "x^2", "Plot"}));
        EXPECT_EQ(functions.toGraph.size(), c.rows);
    }
}

TEST_F(FunctionsPage, DraggingFollowsTheListRules) {
    FAndG();
    functions.StartDrag(FunctionsPageModel::kDefined);
    EXPECT_EQ(functions.toGraphSelected, -1);
    functions.DropOnOtherList(FunctionsPageModel::kDefined, 1, 0);
    EXPECT_EQ(functions.toGraph, (std::vector<std::string>{"g[x] = 2*x", "f[x] = x^2"}));
    EXPECT_EQ(functions.defined.size(), 2u) << "the source row stays";
    EXPECT_EQ(session.temp.GetNumFunctions(), 2);
    functions.DropOnOtherList(FunctionsPageModel::kDefined, 1, -1);
    EXPECT_EQ(functions.toGraph.size(), 2u) << "a row already there is not added again";
    functions.MoveRow(FunctionsPageModel::kToGraph, 0, 1);
    EXPECT_EQ(functions.toGraph, (std::vector<std::string>{"f[x] = x^2", "g[x] = 2*x"}));
    functions.AddFunction("COS[x]");
    functions.DropOnOtherList(FunctionsPageModel::kToGraph, 2, 0);
    EXPECT_EQ(functions.toGraph.size(), 2u);
    EXPECT_EQ(functions.defined.size(), 2u) << "an embedded function never joins the defined";
    functions.DropOnOtherList(FunctionsPageModel::kToGraph, 0, 0);
    EXPECT_EQ(functions.toGraph, (std::vector<std::string>{"g[x] = 2*x"}));
    EXPECT_EQ(session.temp.GetNumFunctions(), 1);
    EXPECT_TRUE(session.temp.NeedsData);
}

TEST_F(FunctionsPage, TheDeleteKeyChoosesTheNextSelection) {
    const struct {
        int selected;
        int after;
    } cases[] = {{0, 0}, {2, 1}, {1, 1}};
    for (const auto &c : cases) {
        content.graphs.flush();
        parser.delete_all_funcs();
        functions.lastGraphShown = nullptr;
        FAndG();
        functions.AddFunction("g[x] = 2*x");
        functions.AddFunction("COS[x]");
        functions.toGraphSelected = c.selected;
        functions.DeleteKey();
        EXPECT_EQ(functions.toGraph.size(), 2u);
        EXPECT_EQ(functions.toGraphSelected, c.after) << c.selected;
    }
}

TEST_F(FunctionsPage, NoDragWithoutACurrentGraph) {
    Declare("f[x]", "x");
    functions.UpdateFunListBox();
    functions.DropOnOtherList(FunctionsPageModel::kDefined, 0, 0);
    EXPECT_TRUE(functions.toGraph.empty());
}

TEST_F(FunctionsPage, CheckDataRefusesNothingAndTwoOrMixedThreeDimensionalGraphs) {
    GraphData graph("g");
    const Variable x("x", complex{0, 0}, complex{1, 0}, 5);
    const Variable y("y", complex{0, 0}, complex{1, 0}, 5);
    ui.Expect(24639);
    EXPECT_FALSE(functions.CheckData(graph));
    graph.AddFunction("f[x,y]", "x+y");
    EXPECT_TRUE(functions.CheckData(graph));
    graph.SetXAxisVar(&x);
    graph.SetZAxisVar(&y);
    EXPECT_TRUE(functions.CheckData(graph));
    graph.AddFunction("g[x,y]", "x*y");
    ui.Expect(24908);
    EXPECT_FALSE(functions.CheckData(graph));
    graph.DataSets.add()->PutXDataPoint("1", 0);
    ui.Expect(24907);
    EXPECT_FALSE(functions.CheckData(graph));
    EXPECT_EQ(ui.selected, (std::vector<int>{kPageFunctions, kPageFunctions, kPageFunctions}));
}

TEST_F(FunctionsPage, ApplyRebuildsTheGraphsFunctionsInRowOrderWithTheirLabels) {
    FAndG();
    session.temp.GetFunction(0)->SetFuncLabel("F");
    functions.AddFunction("SIN[x]");
    functions.AddFunction("g[x] = 2*x");
    functions.MoveRow(FunctionsPageModel::kToGraph, 2, 0);
    session.temp.SetHeader("New head");
    functions.ApplyChanges();
    GraphData &stored = *content.currentGraph;
    ASSERT_EQ(stored.GetNumFunctions(), 3);
    EXPECT_EQ(stored.GetFunction(0)->full_name, "g[x]");
    EXPECT_EQ(stored.GetFunction(1)->full_name, "f[x]");
    EXPECT_EQ(stored.GetFunction(1)->label, "F");
    EXPECT_EQ(stored.GetFunction(2)->func_value, "SIN[x]");
    EXPECT_EQ(stored.Header, "New head");
    EXPECT_FALSE(stored.Modified);
    EXPECT_TRUE(session.graphsChanged);
    EXPECT_EQ(ui.unchanged.back(), kPageFunctions);
}

TEST_F(FunctionsPage, ApplyDoesNothingUnlessThePageWasVisited) {
    Declare("f[x]", "x");
    NewGraph("G").AddFunction("f[x]", "x");
    graphs.SetupWindow();
    functions.toGraph.clear();
    functions.ApplyChanges();
    EXPECT_EQ(content.currentGraph->GetNumFunctions(), 1);
}

}  // namespace
}  // namespace quindar::testing
