// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "function_rows.h"
#include "load_temp_graph.h"
#include "setup_fixture.h"

namespace quindar::testing {
namespace {

class LoadTempGraph : public SetupFixture {};

TEST_F(LoadTempGraph, FunctionRowsSplitAtTheFirstClosingBracket) {
    const struct {
        const char *row, *name, *value;
    } cases[] = {
        {"f[x] = x^2", "f[x]", "x^2"}, {"g[x,y] = x+y[1]", "g[x,y]", "x+y[1]"},
        {"SIN[x]", "SIN[x]", ""},      {"h[t]=", "h[t]", ""},
        {"plain", "plain", ""},
    };
    for (const auto &c : cases) {
        const FunctionRow row = split_function_row(c.row);
        EXPECT_EQ(row.fullName, c.name) << c.row;
        EXPECT_EQ(row.value, c.value) << c.row;
    }
}

TEST_F(LoadTempGraph, TheThreeKindsOfFunctionAreToldApartInOrder) {
    Declare("f[x]", "x+1");
    Declare("SINH2[x]", "x");
    const struct {
        const char *name;
        FunctionKind kind;
    } cases[] = {
        {"f[x]", FunctionKind::Declared},     {"SIN[x]", FunctionKind::Embedded},
        {"SINH2[x]", FunctionKind::Declared}, {"gone[x]", FunctionKind::Undefined},
        {"f[y]", FunctionKind::Undefined},
    };
    for (const auto &c : cases) EXPECT_EQ(function_kind(parser, c.name), c.kind) << c.name;
}

TEST_F(LoadTempGraph, CopiesTheGraphButKeepsTheWorkingDefaultDepths) {
    GraphData &stored = NewGraph("Stored");
    content.currentGraph = &stored;
    stored.SetHeader("Head");
    stored.SetFooter("Foot");
    stored.SetXAxisTitle("X title");
    stored.GraphType2D = 7;
    stored.MarginLeft2D = 40;
    stored.BackgroundColor = TColor{1, 2, 3};
    stored.DefaultDepth2D = 99;
    stored.DefaultPerspectiveDepth = 77.0f;
    stored.Modified = true;
    stored.NeedsData = false;
    const Variable x("x", complex{0, 0}, complex{5, 0}, 11);
    stored.SetXAxisVar(&x);
    StrDataPnts *first = stored.DataSets.add();
    first->SetName("one");
    first->PutXDataPoint("1", 0);
    first->PutYDataPoint("2", 3);
    StrDataPnts *second = stored.DataSets.add();
    second->SetName("two");
    session.temp.FunctionsVisited = session.temp.ColorsVisited = true;
    session.temp.DefaultDepth2D = 5;
    session.temp.DefaultPerspectiveDepth = 6.0f;
    StrDataPnts *shown = session.temp.DataSets.add();
    shown->SetName("two");
    session.temp.CurDataSet = shown;

    load_temp_graph(session, ui);
    const GraphData &temp = session.temp;
    EXPECT_EQ(temp.Name, "Stored");
    EXPECT_EQ(temp.Header, "Head");
    EXPECT_EQ(temp.Footer, "Foot");
    EXPECT_EQ(temp.XAxisTitle, "X title");
    EXPECT_TRUE(temp.XTitleSet);
    EXPECT_EQ(temp.GraphType2D, 7);
    EXPECT_EQ(temp.MarginLeft2D, 40);
    EXPECT_EQ(temp.BackgroundColor, (TColor{1, 2, 3}));
    EXPECT_EQ(temp.DefaultDepth2D, 5);
    EXPECT_EQ(temp.DefaultPerspectiveDepth, 6.0f);
    EXPECT_FALSE(temp.NeedsData);
    EXPECT_TRUE(temp.ReloadPoints);
    ASSERT_TRUE(temp.XAxisVar);
    EXPECT_EQ(temp.XAxisVar->num_points, 11);
    ASSERT_EQ(temp.DataSets.count(), 2);
    EXPECT_STREQ(temp.DataSets.gethead()->GetYDataPoint(3), "2");
    EXPECT_EQ(temp.DataSets.gethead()->GetYDataPoint(1), nullptr);
    ASSERT_NE(temp.CurDataSet, nullptr);
    EXPECT_EQ(temp.CurDataSet->Name, "two");
    EXPECT_FALSE(temp.FunctionsVisited || temp.ColorsVisited);
    EXPECT_FALSE(stored.Modified);
}

TEST_F(LoadTempGraph, TheFirstSetIsShownWhenTheWorkingCopyHadNoneOfThatName) {
    GraphData &stored = NewGraph("Stored");
    content.currentGraph = &stored;
    stored.DataSets.add()->SetName("a");
    stored.DataSets.add()->SetName("b");
    session.temp.DataSets.add()->SetName("zz");
    session.temp.CurDataSet = session.temp.DataSets.gethead();
    load_temp_graph(session, ui);
    ASSERT_NE(session.temp.CurDataSet, nullptr);
    EXPECT_EQ(session.temp.CurDataSet->Name, "a");
}

TEST_F(LoadTempGraph, AChangedDefinitionIsTakenOverWithAMessage) {
    Declare("f[x]", "x^3");
    GraphData &stored = NewGraph("Cubes");
    content.currentGraph = &stored;
    stored.AddFunction("f[x]", "x^2")->SetFuncLabel("the f");
    stored.AddFunction("SIN[x]", "SIN[x]");
    ui.Expect(24636);
    load_temp_graph(session, ui);
    EXPECT_EQ(ui.messages[0].fields, (std::vector<std::string>{"f[x]", "x^2", "x^3"}));
    EXPECT_EQ(ui.messages[0].flags, kBoxWarning);
    EXPECT_EQ(stored.GetFunction(0)->func_value, "x^3");
    ASSERT_EQ(session.temp.GetNumFunctions(), 2);
    EXPECT_EQ(session.temp.GetFunction(0)->func_value, "x^3");
    EXPECT_EQ(session.temp.GetFunction(0)->label, "the f");
    EXPECT_EQ(session.temp.GetFunction(1)->full_name, "SIN[x]");
    EXPECT_EQ(session.temp.GetFunction(1)->label, "");
    // Loaded again, nothing has changed any more.
    load_temp_graph(session, ui);
    EXPECT_EQ(ui.messages.size(), 1u);
}

TEST_F(LoadTempGraph, AVanishedFunctionIsDeclaredAgainOrDropped) {
    const struct {
        int answer;
        bool declares;
        int left;
        std::size_t declared;
    } cases[] = {
        {kIdNo, true, 0, 0},
        {kIdYes, false, 0, 1},
        {kIdYes, true, 1, 1},
    };
    for (const auto &c : cases) {
        content.graphs.flush();
        GraphData &stored = NewGraph("Lost");
        content.currentGraph = &stored;
        stored.AddFunction("gone[x]", "x/2");
        ui.declared.clear();
        ui.declare = [this, &c](const std::string &name, const std::string &value) {
            if (c.declares) Declare(name.c_str(), value.c_str());
            return c.declares;
        };
        ui.Expect(24635, c.answer);
        load_temp_graph(session, ui);
        EXPECT_EQ(ui.messages.back().fields, (std::vector<std::string>{"gone[x]", "x/2", "Lost"}));
        EXPECT_EQ(stored.GetNumFunctions(), c.left);
        EXPECT_EQ(session.temp.GetNumFunctions(), c.left);
        EXPECT_EQ(ui.declared.size(), c.declared);
        if (c.declared) {
            EXPECT_EQ(ui.declared[0], "gone[x]=x/2");
        }
        if (c.declares) parser.delete_all_funcs();
    }
}

TEST_F(LoadTempGraph, NothingHappensWithoutACurrentGraph) {
    session.temp.SetHeader("kept");
    load_temp_graph(session, ui);
    EXPECT_EQ(session.temp.Header, "kept");
}

}  // namespace
}  // namespace quindar::testing
