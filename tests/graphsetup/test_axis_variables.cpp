// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The first pick of the axis variables, the user's choice of X and Z with its swaps, and the
// silent ordering of limits.

#include <gtest/gtest.h>

#include "axis_variables.h"
#include "pages_recorder.h"

namespace quindar::testing {
namespace {

std::string axis_name(const std::unique_ptr<Variable> &axis) {
    return axis ? axis->name : "-";
}

class AxisVariablesTest : public PagesFixture {};

TEST_F(AxisVariablesTest, FirstPickTakesTheTailAndItsPredecessorForExactlyTwo) {
    const struct {
        std::vector<const char *> functions;
        const char *x;
        const char *z;
    } cases[] = {
        {{"f[x]"}, "x", "-"},         {{"f[x,z]"}, "x", "z"},
        {{"f[a,b,c]"}, "b", "-"},     {{"f[x,y]", "g[y,x]"}, "x", "y"},
        {{"f[x]", "g[y]"}, "-", "-"}, {{"f[t,x]", "g[x]"}, "x", "-"},
    };
    for (const auto &c : cases) {
        GraphData graph("P");
        for (const char *f : c.functions) graph.AddFunction(f, "");
        pre_pick_axis_vars(graph, parser);
        EXPECT_EQ(axis_name(graph.XAxisVar), c.x) << c.functions[0];
        EXPECT_EQ(axis_name(graph.ZAxisVar), c.z) << c.functions[0];
        EXPECT_TRUE(graph.VariablesVisited);
    }
}

TEST_F(AxisVariablesTest, FirstPickGivesOneToTenInTwentyFivePointsUnlessTheEditorHasARange) {
    Run("z = 0, 5, 11");
    Run("x = 3");
    GraphData graph("P");
    graph.AddFunction("f[x,z]", "");
    pre_pick_axis_vars(graph, parser);
    ASSERT_TRUE(graph.XAxisVar && graph.ZAxisVar);
    EXPECT_EQ(graph.XAxisVar->low_limit.real, 1.0);
    EXPECT_EQ(graph.XAxisVar->high_limit.real, 10.0);
    EXPECT_EQ(graph.XAxisVar->num_points, 25);
    EXPECT_EQ(graph.ZAxisVar->low_limit.real, 0.0);
    EXPECT_EQ(graph.ZAxisVar->high_limit.real, 5.0);
    EXPECT_EQ(graph.ZAxisVar->num_points, 11);
    EXPECT_EQ(graph.GetGraphType(), kGraph3D);
    // The editor's variables are only read.
    EXPECT_EQ(parser.get_var_value("x").real, 3.0);
}

TEST_F(AxisVariablesTest, FirstPickLeavesAChosenXAlone) {
    GraphData graph("P");
    graph.AddFunction("f[x,z]", "");
    const Variable z("z", complex{0, 0}, complex{2, 0}, 5);
    graph.SetXAxisVar(&z);
    pre_pick_axis_vars(graph, parser);
    EXPECT_EQ(axis_name(graph.XAxisVar), "z");
    EXPECT_EQ(axis_name(graph.ZAxisVar), "-");
}

// A graph of f(x, z) with X = x and Z = z, the titles as the user may have set them.
GraphData graph_of_x_and_z(const char *xTitle, const char *zTitle) {
    GraphData graph("P");
    graph.AddFunction("f[x,z]", "");
    graph.SetComVarList();
    const Variable x("x", complex{0, 0}, complex{1, 0}, 3);
    const Variable z("z", complex{5, 0}, complex{6, 0}, 4);
    graph.SetXAxisVar(&x);
    graph.SetZAxisVar(&z);
    if (xTitle) graph.SetXAxisTitle(xTitle);
    if (zTitle) graph.SetZAxisTitle(zTitle);
    return graph;
}

TEST_F(AxisVariablesTest, ChoosingTheOtherAxisVariableSwapsAxesAndUserTitles) {
    const struct {
        const char *xTitle, *zTitle;
        const char *wantXTitle, *wantZTitle;
        bool wantXSet, wantZSet;
    } cases[] = {
        {nullptr, nullptr, "z", "x", false, false},
        {"Time", nullptr, "z", "Time", false, true},
        {nullptr, "Depth", "Depth", "x", true, false},
        {"Time", "Depth", "Depth", "Time", true, true},
    };
    for (const bool viaX : {true, false}) {
        for (const auto &c : cases) {
            GraphData graph = graph_of_x_and_z(c.xTitle, c.zTitle);
            if (viaX)
                choose_x_axis_var(graph, parser, "z");
            else
                choose_z_axis_var(graph, parser, "x");
            EXPECT_EQ(axis_name(graph.XAxisVar), "z");
            EXPECT_EQ(axis_name(graph.ZAxisVar), "x");
            EXPECT_EQ(graph.XAxisVar->num_points, 4);
            EXPECT_EQ(graph.ZAxisVar->num_points, 3);
            EXPECT_EQ(graph.XAxisTitle, c.wantXTitle) << viaX;
            EXPECT_EQ(graph.ZAxisTitle, c.wantZTitle) << viaX;
            EXPECT_EQ(graph.XTitleSet, c.wantXSet);
            EXPECT_EQ(graph.ZTitleSet, c.wantZSet);
        }
    }
}

TEST_F(AxisVariablesTest, ChoosingTheSameOrNoNameChangesNothing) {
    for (const char *name : {"x", ""}) {
        GraphData graph = graph_of_x_and_z("Time", nullptr);
        choose_x_axis_var(graph, parser, name);
        EXPECT_EQ(axis_name(graph.XAxisVar), "x");
        EXPECT_EQ(graph.XAxisVar->num_points, 3);
        EXPECT_EQ(graph.XAxisTitle, "Time");
    }
    GraphData graph = graph_of_x_and_z(nullptr, nullptr);
    choose_z_axis_var(graph, parser, "z");
    EXPECT_EQ(graph.ZAxisVar->num_points, 4);
}

TEST_F(AxisVariablesTest, ANewVariableTakesTheEditorsRangeOrTheDefaultAndItsNameAsTitle) {
    Run("t = 2, 4, 3");
    Run("u = 7");
    const struct {
        const char *name;
        double low, high;
        long points;
    } cases[] = {{"t", 2, 4, 3}, {"u", 1, 10, 25}, {"w", 1, 10, 25}};
    for (const auto &c : cases) {
        GraphData graph = graph_of_x_and_z("Time", "Depth");
        choose_x_axis_var(graph, parser, c.name);
        EXPECT_EQ(axis_name(graph.XAxisVar), c.name);
        EXPECT_EQ(graph.XAxisVar->low_limit.real, c.low);
        EXPECT_EQ(graph.XAxisVar->high_limit.real, c.high);
        EXPECT_EQ(graph.XAxisVar->num_points, c.points);
        EXPECT_EQ(graph.XAxisTitle, c.name);
        EXPECT_FALSE(graph.XTitleSet);
        choose_z_axis_var(graph, parser, "q");
        EXPECT_EQ(graph.ZAxisTitle, "q");
        EXPECT_EQ(axis_name(graph.XAxisVar), c.name);
    }
}

TEST_F(AxisVariablesTest, ChoosingXForAnEmptyZMovesItUpAndPicksTheNextCommonVariable) {
    Run("y = -1, 1, 5");
    GraphData graph("P");
    graph.AddFunction("f[x,y,z]", "");
    graph.SetComVarList();  // walked z, x, y
    const Variable x("x", complex{0, 0}, complex{1, 0}, 3);
    graph.SetXAxisVar(&x);
    choose_z_axis_var(graph, parser, "x");
    EXPECT_EQ(axis_name(graph.ZAxisVar), "x");
    EXPECT_EQ(graph.ZAxisVar->num_points, 3);
    EXPECT_EQ(axis_name(graph.XAxisVar), "y");
    EXPECT_EQ(graph.XAxisVar->num_points, 5);
    EXPECT_EQ(graph.XAxisTitle, "y");
    EXPECT_EQ(graph.ZAxisTitle, "x");

    GraphData single("S");
    single.AddFunction("f[x]", "");
    single.SetComVarList();
    single.SetXAxisVar(&x);
    choose_z_axis_var(single, parser, "x");
    EXPECT_EQ(axis_name(single.ZAxisVar), "x");
    EXPECT_EQ(axis_name(single.XAxisVar), "-");
}

TEST_F(AxisVariablesTest, LimitsInTheWrongOrderAreTurnedRoundKeepingThePoints) {
    Variable down("x", complex{10, 0}, complex{1, 0}, 10);
    EXPECT_TRUE(order_axis_limits(down));
    EXPECT_EQ(down.low_limit.real, 1.0);
    EXPECT_EQ(down.high_limit.real, 10.0);
    EXPECT_EQ(down.num_points, 10);
    EXPECT_EQ(down.increment.real, 1.0);
    EXPECT_EQ(down.value.real, 1.0);
    Variable up("x", complex{1, 0}, complex{10, 5}, 10);
    EXPECT_FALSE(order_axis_limits(up));
    EXPECT_EQ(up.high_limit.imag, 5.0);
}

}  // namespace
}  // namespace quindar::testing
