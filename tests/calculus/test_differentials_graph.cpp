// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// "Graph Ans.": a differentiation table as a two-dimensional graph of the document.
#include <gtest/gtest.h>

#include <string>

#include "differentials_graph.h"
#include "differentiation_run.h"
#include "parser.h"
#include "run_host.h"

namespace quindar::calculus {
namespace {

class DifferentialsGraphTest : public ::testing::Test {
protected:
    void SetUp() override {
        DifferentiationSettings settings{"x^2", "x", "0", "2", "3", {true, true, false, false}};
        NullRunHost host;
        DifferentiationRun run(parser, host, 6);
        ASSERT_TRUE(run.run(settings, table).solved);
    }

    Parser parser{"", ""};
    DifferentiationTable table;
    GraphList graphs;
};

TEST_F(DifferentialsGraphTest, ANewGraphHoldsOneSetPerColumn) {
    const DifferentialsGraph built = BuildDifferentialsGraph(parser, graphs, table, 6, nullptr);
    ASSERT_NE(built.graph, nullptr);
    EXPECT_TRUE(built.created);
    EXPECT_FALSE(built.refused);
    const GraphData &graph = *built.graph;
    EXPECT_EQ(graph.Name, "Differentials of x^2");
    EXPECT_EQ(graph.Header, "Differentiation Plot");
    EXPECT_EQ(graph.Footer, "Differentials of x^2");
    EXPECT_EQ(graph.Directory, "");
    EXPECT_EQ(graph.XAxisTitle, "x");
    EXPECT_EQ(graph.YAxisTitle, "f (x) , f '(x)");
    EXPECT_EQ(graph.GraphType2D, 1);
    EXPECT_EQ(graph.DataLayout, 1);
    EXPECT_TRUE(graph.NeedsData);
    EXPECT_EQ(graph.DataSets.count(), 2);
    // No Z text anywhere: the graph is two-dimensional.
    EXPECT_EQ(graph.GetGraphType(), kGraph2D);
    const StrDataPnts *function = graph.DataSets.gethead();
    ASSERT_NE(function, nullptr);
    EXPECT_EQ(graph.CurDataSet, function);
    EXPECT_STREQ(function->GetName(), "f (x)");
    EXPECT_STREQ(function->GetLabel(), "f (x)");
    EXPECT_EQ(function->GetZDataPoint(), nullptr);
    const char *xs[] = {"0", "1", "2"};
    const char *ys[] = {"0", "1", "4"};
    for (int row = 0; row < 3; ++row) {
        EXPECT_STREQ(function->GetXDataPoint(row), xs[row]);
        EXPECT_STREQ(function->GetYDataPoint(row), ys[row]);
    }
    const StrDataPnts *first = function->next;
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->GetName(), "f '(x)");
    EXPECT_STREQ(first->GetYDataPoint(2), "4");
    EXPECT_EQ(first->GetZDataPoint(), nullptr);
}

TEST_F(DifferentialsGraphTest, AGraphOfThatNameIsRefilled) {
    BuildDifferentialsGraph(parser, graphs, table, 6, nullptr);
    table.columns[kFirstColumn].clear();
    const DifferentialsGraph again = BuildDifferentialsGraph(parser, graphs, table, 6, nullptr);
    EXPECT_FALSE(again.created);
    EXPECT_EQ(graphs.count(), 1);
    EXPECT_EQ(again.graph->DataSets.count(), 1);
    EXPECT_EQ(again.graph->YAxisTitle, "f (x)");
}

TEST_F(DifferentialsGraphTest, TheGraphsOwnFunctionsDecideTheLayout) {
    GraphData *graph = BuildDifferentialsGraph(parser, graphs, table, 6, nullptr).graph;
    graph->AddFunction("g[x]", "x+1");
    const Variable same("x", complex{0, 0}, complex{2, 0}, 3);
    graph->SetXAxisVar(&same);
    DifferentialsGraph built = BuildDifferentialsGraph(parser, graphs, table, 6, nullptr);
    EXPECT_EQ(built.graph->DataLayout, 1);
    EXPECT_EQ(built.graph->YAxisTitle, "f (x) , f '(x) , g[x]");

    const Variable moved("x", complex{0, 0}, complex{3, 0}, 3);
    graph->SetXAxisVar(&moved);
    built = BuildDifferentialsGraph(parser, graphs, table, 6, nullptr);
    EXPECT_EQ(built.graph->DataLayout, 2);
    EXPECT_FALSE(built.refused);

    const Variable more("x", complex{0, 0}, complex{2, 0}, 5);
    graph->SetXAxisVar(&more);
    graph->GraphType2D = 2;
    built = BuildDifferentialsGraph(parser, graphs, table, 6, nullptr);
    EXPECT_EQ(built.graph->DataLayout, 2);
    EXPECT_TRUE(built.refused);
}

}  // namespace
}  // namespace quindar::calculus
