// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <string>

#include "graph_messages.h"
#include "graph_view_commands.h"

namespace quindar {
namespace {

struct LogCase {
    int type;
    const char *name;
    int x;  // 0 toggled, else the refusal
    int y;
};

TEST(GraphViewCommands, LogarithmicAxesOnlyWhereTheTypeAllowsThem) {
    const LogCase cases[] = {
        {1, "Plot", 0, 0},
        {13, "Scatter", 0, 0},
        {5, "Area", 0, 0},
        {6, "HiLo", 0, 0},
        {7, "HiLoOpenClose", 0, 0},
        {8, "Candle", 0, 0},
        {2, "Bar", kMsgNoLogX, 0},
        {4, "Stacking Bar", kMsgNoLogX, 0},
        {3, "Pie", kMsgNoLogX, kMsgNoLogY},
        {9, "Polar", kMsgNoLogX, kMsgNoLogY},
        {10, "Radar", kMsgNoLogX, kMsgNoLogY},
        {11, "Radar Filled", kMsgNoLogX, kMsgNoLogY},
    };
    for (const LogCase &c : cases) {
        GraphData graph("G");
        graph.GraphType2D = c.type;
        EXPECT_EQ(toggle_log_axis(graph, true), c.x) << c.name;
        EXPECT_EQ(graph.XAxisLogarithmic, c.x == 0 ? 1 : 0) << c.name;
        EXPECT_EQ(toggle_log_axis(graph, false), c.y) << c.name;
        EXPECT_EQ(graph.YAxisLogarithmic, c.y == 0 ? 1 : 0) << c.name;
        if (c.x == 0) {
            EXPECT_EQ(toggle_log_axis(graph, true), 0);
            EXPECT_EQ(graph.XAxisLogarithmic, 0) << c.name << " toggles back";
        }
    }
}

TEST(GraphViewCommands, MarginsStepFromWhatTheChartShowsWithNoFloor) {
    GraphData graph("G");
    ChartSpec2D shown;
    shown.marginBottom = {0, true};
    shown.marginTop = {5, false};
    shown.marginLeft = {-10, false};
    shown.marginRight = {100, false};
    step_margins(graph, shown, kMarginStep);
    EXPECT_EQ(graph.MarginBottom2D, 45);
    EXPECT_EQ(graph.MarginTop2D, 30);
    EXPECT_EQ(graph.MarginLeft2D, 15);
    EXPECT_EQ(graph.MarginRight2D, 125);
    step_margins(graph, shown, -kMarginStep);
    EXPECT_EQ(graph.MarginTop2D, -20);
    EXPECT_EQ(graph.MarginLeft2D, -35);
}

TEST(GraphViewCommands, GridLinesToggleAndViewFieldsCopy) {
    GraphData graph("G"), other("H");
    toggle_grid_lines(graph);
    EXPECT_EQ(graph.ShowGridLines, 0);
    graph.XAxisLogarithmic = 1;
    graph.MarginLeft2D = 70;
    copy_view_fields(graph, other);
    EXPECT_EQ(other.ShowGridLines, 0);
    EXPECT_EQ(other.XAxisLogarithmic, 1);
    EXPECT_EQ(other.MarginLeft2D, 70);
    toggle_grid_lines(graph);
    EXPECT_EQ(graph.ShowGridLines, 1);
}

TEST(GraphViewCommands, DefaultMarginsAndOrientationGoBothWays) {
    GraphData graph("G");
    graph.DefaultMarginBottom2D = 5;
    graph.DefaultMarginTop2D = 6;
    graph.DefaultMarginLeft2D = 7;
    graph.DefaultMarginRight2D = 0;
    graph.DefaultInclination2D = 12;
    graph.DefaultRotation2D = 33;
    graph.Inclination2D = 1;
    graph.MarginTop2D = 99;
    set_default_orientation(graph);
    EXPECT_EQ(graph.Inclination2D, 12);
    EXPECT_EQ(graph.Rotation2D, 33);
    EXPECT_EQ(graph.MarginBottom2D, 5);
    EXPECT_EQ(graph.MarginTop2D, 6);
    EXPECT_EQ(graph.MarginLeft2D, 7);
    EXPECT_EQ(graph.MarginRight2D, 0);

    ChartSpec2D shown;
    shown.inclination = 0;
    shown.rotation = 0;
    shown.marginBottom = {0, true};
    shown.marginTop = {-15, false};
    shown.marginLeft = {45, false};
    shown.marginRight = {20, false};
    save_default_orientation(graph, shown);
    EXPECT_EQ(graph.DefaultInclination2D, 0);
    EXPECT_EQ(graph.DefaultRotation2D, 0);
    EXPECT_EQ(graph.DefaultMarginBottom2D, 20);  // automatic, as the chart shows it
    EXPECT_EQ(graph.DefaultMarginTop2D, -15);
    EXPECT_EQ(graph.DefaultMarginLeft2D, 45);
    graph.MarginLeft2D = 0;
    set_default_margins(graph);
    EXPECT_EQ(graph.MarginLeft2D, 45);
    EXPECT_EQ(std::string(graph_message(kMsgMarginsSaved)),
              "The current margins have been saved as the default");
}

}  // namespace
}  // namespace quindar
