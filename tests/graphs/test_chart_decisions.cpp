// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "chart_decisions.h"

namespace quindar {
namespace {

// One row per stored 2-D type: what a graph with both logarithmic axes asked for, in
// radians, gets as chart decisions.
struct TypeRow {
    int stored;
    int chart;
    int linePattern;  // of set 0
    int pointStyle;   // of set 0
    bool logX;
    bool logY;
    std::vector<int> refusals;
    int angleUnit;
    bool pie;
    bool hiLoOpenClose;
};

const TypeRow kTypeRows[] = {
    {1, 1, 2, 2, true, true, {}, 0, false, false},
    {2, 2, 2, 2, false, true, {25106}, 0, false, false},
    {3, 3, 2, 2, false, false, {25106, 25107}, 0, true, false},
    {4, 4, 2, 2, false, true, {25106}, 0, false, false},
    {5, 5, 2, 2, true, true, {}, 0, false, false},
    {6, 6, 2, 2, true, true, {}, 0, false, false},
    {7, 7, 2, 2, true, true, {}, 0, false, true},
    {8, 8, 2, 2, true, true, {}, 0, false, false},
    {9, 9, 2, 2, false, false, {25106, 25107}, 2, false, false},
    {10, 10, 2, 2, false, false, {25106, 25107}, 2, false, false},
    {11, 11, 2, 2, false, false, {25106, 25107}, 2, false, false},
    {13, 1, 1, 2, true, true, {}, 0, false, false},
    {14, 1, 2, 1, true, true, {}, 0, false, false},
};

TEST(ChartSpec2D, EveryTypeDecidesItsChart) {
    for (const TypeRow &row : kTypeRows) {
        SCOPED_TRACE(row.stored);
        GraphData graph("T");
        graph.GraphType2D = row.stored;
        graph.XAxisLogarithmic = graph.YAxisLogarithmic = 1;
        const ChartSpec2D spec = chart_spec_2d(graph, 1);
        EXPECT_EQ(spec.chartType, row.chart);
        EXPECT_EQ(spec.styles[0].linePattern, row.linePattern);
        EXPECT_EQ(spec.styles[0].pointStyle, row.pointStyle);
        EXPECT_EQ(spec.logX, row.logX);
        EXPECT_EQ(spec.logY, row.logY);
        EXPECT_EQ(spec.refusals, row.refusals);
        EXPECT_EQ(spec.angleUnit, row.angleUnit);
        EXPECT_EQ(spec.pie, row.pie);
        EXPECT_EQ(spec.hiLoOpenClose, row.hiLoOpenClose);
        EXPECT_EQ(chart_spec_2d(graph, 0).angleUnit, 0) << "degrees leave the unit alone";

        apply_log_refusals(graph, spec);
        EXPECT_EQ(graph.XAxisLogarithmic, row.logX ? 1 : 0);
        EXPECT_EQ(graph.YAxisLogarithmic, row.logY ? 1 : 0);
    }
}

TEST(ChartSpec2D, StylesOfTheFifteenSets) {
    const DataStyle first = data_style(1, 0);
    EXPECT_EQ(first, (DataStyle{2, 2, TColor(255, 0, 0), 1, 2, TColor(255, 0, 0), 7}));
    EXPECT_EQ(data_style(1, 8).color, TColor(192, 0, 255));
    EXPECT_EQ(data_style(1, 8).pointStyle, 11);
    EXPECT_EQ(data_style(1, 14), (DataStyle{2, 2, TColor(0, 255, 0), 1, 7, TColor(0, 255, 0), 7}));
    EXPECT_EQ(data_style(13, 5).linePattern, 1) << "Scatter draws no line";
    EXPECT_EQ(data_style(14, 5).pointStyle, 1) << "Line draws no marker";
    EXPECT_EQ(data_style(1, 15), DataStyle{}) << "a sixteenth set has no style of ours";
}

TEST(ChartSpec2D, LabelsRunBackwardsOverTheFunctionsThenTheDataSets) {
    GraphData graph("L");
    graph.AddFunction("f[x]", "x")->SetFuncLabel("first");
    graph.AddFunction("g[x]", "x");
    graph.AddFunction("h[x]", "x")->SetFuncLabel("third");
    StrDataPnts *named = graph.DataSets.add();
    named->SetName("data1");
    StrDataPnts *labelled = graph.DataSets.add();
    labelled->SetName("data2");
    labelled->SetLabel("measured");
    const ChartSpec2D spec = chart_spec_2d(graph, 0);
    EXPECT_EQ(spec.setLabels,
              (std::vector<std::string>{"third", "g[x]", "first", "data1", "measured"}));
    const ChartSpec3D spec3 = chart_spec_3d(graph);
    EXPECT_EQ(spec3.dataLabels,
              (std::vector<std::string>{"first", "g[x]", "third", "data1", "measured"}));
}

TEST(ChartSpec2D, MarginsResolveExplicitThenDefaultThenAutomatic) {
    GraphData graph("M");
    graph.MarginBottom2D = 30;
    graph.DefaultMarginBottom2D = 50;
    graph.DefaultMarginTop2D = 40;
    graph.MarginLeft2D = -25;
    const ChartSpec2D spec = chart_spec_2d(graph, 0);
    EXPECT_EQ(spec.marginBottom, (ChartMargin{30, false}));
    EXPECT_EQ(spec.marginTop, (ChartMargin{40, false}));
    EXPECT_EQ(spec.marginLeft, (ChartMargin{-25, false})) << "a negative margin is passed on";
    EXPECT_EQ(spec.marginRight, (ChartMargin{0, true}));
}

TEST(ChartSpec2D, DescriptionNamesEveryDecision) {
    GraphData graph("Sales");
    graph.GraphType2D = 3;
    graph.AddFunction("f[x]", "x");
    graph.ShowGridLines = 0;
    const std::string text = describe(chart_spec_2d(graph, 0));
    for (const char *line :
         {"kind = 2D\n", "type = 3\n", "chart.type = 3\n", "name = Sales\n", "header = Header\n",
          "set.label.0 = f[x]\n", "set.style.0 = 2 2 255,0,0 1 2 7\n",
          "GraphForegroundColor = 255,255,255\n", "BackgroundColor = 64,128,128\n", "grid = 0\n",
          "margin.top = auto\n", "pie.param2 = 1\n", "font.header = Arial,14,Bold\n",
          "constant.060B = 5\n"})
        EXPECT_NE(text.find(line), std::string::npos) << line;
    EXPECT_EQ(text.find("set.style.1"), std::string::npos) << "styles of the sets there are";
}

TEST(ChartSpec3D, AttributeDigitsBecomeFlags) {
    struct Row {
        int type3D;
        bool mesh, shade, contour, zone, hidden;
        int projectMax, projectMin;
        bool bars;
    };
    const Row rows[] = {
        {1111, true, true, true, true, false, 0, 0, false},
        {1001111, true, true, true, true, false, 0, 0, true},
        {110000, false, false, false, false, true, 1, 2, false},
        {10101, true, false, true, false, true, 0, 0, false},
        {0, false, false, false, false, false, 0, 0, false},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.type3D);
        GraphData graph("S");
        graph.GraphType3D = row.type3D;
        const ChartSpec3D spec = chart_spec_3d(graph);
        EXPECT_EQ(spec.mesh, row.mesh);
        EXPECT_EQ(spec.shade, row.shade);
        EXPECT_EQ(spec.contour, row.contour);
        EXPECT_EQ(spec.zone, row.zone);
        EXPECT_EQ(spec.hidden, row.hidden);
        EXPECT_EQ(spec.projectZMax, row.projectMax);
        EXPECT_EQ(spec.projectZMin, row.projectMin);
        EXPECT_EQ(spec.bars, row.bars);
    }
}

TEST(ChartSpec3D, TitlesViewColoursAndGrid) {
    GraphData graph("S");
    graph.SetXAxisTitle("x");
    graph.SetYAxisTitle("value");
    graph.SetZAxisTitle("z");
    graph.XRotation = 40;
    graph.DefaultScale = 2;
    graph.MeshTopColor = TColor(1, 2, 3);
    ChartSpec3D spec = chart_spec_3d(graph);
    EXPECT_EQ(spec.xTitle, "x");
    EXPECT_EQ(spec.yTitle, "z") << "the chart's Y is the graph's Z";
    EXPECT_EQ(spec.zTitle, "value") << "the vertical axis carries the graph's Y title";
    EXPECT_FLOAT_EQ(spec.xRotation, 40);
    EXPECT_FLOAT_EQ(spec.defaultScale, 2);
    ASSERT_EQ(spec.colors.size(), 15u) << "no data area foreground in 3-D";
    EXPECT_EQ(spec.colors[12].property, 0x020C);
    EXPECT_EQ(spec.colors[12].color, TColor(1, 2, 3));
    EXPECT_STREQ(spec.colors[6].name, "GraphForegrondColor");
    ASSERT_EQ(spec.grid.size(), 6u);
    EXPECT_EQ(spec.grid[3].id, 0x0B07);
    EXPECT_EQ(spec.grid[3].value, 5);
    graph.ShowGridLines = 0;
    spec = chart_spec_3d(graph);
    for (const ChartProperty &grid : spec.grid) EXPECT_EQ(grid.value, 0);
    EXPECT_NE(describe(spec).find("chart.title.z = value\n"), std::string::npos);
}

}  // namespace
}  // namespace quindar
