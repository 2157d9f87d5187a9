// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the program decides about a chart, as plain values: built by pure functions from a
// graph's definition and the document's angle mode, so that a chart binding only translates
// them into its library's calls. Property numbers are those of the chart library the graph
// files and earlier versions were made with; a binding may ignore the constants.

#include <array>
#include <string>
#include <vector>

#include "color.h"
#include "graph_data.h"

namespace quindar {

struct ChartColor {
    int property;
    const char *name;  // the document key of the colour
    TColor color;
};

// The line and point style of one set of a 2-D chart.
struct DataStyle {
    int linePattern;  // 2 a line, 1 none (Scatter)
    int fillPattern;
    TColor color;
    int lineWidth;
    int pointStyle;  // 1 no marker (Line)
    TColor pointColor;
    int pointSize;
    friend bool operator==(const DataStyle &, const DataStyle &) = default;
};

// A margin given as a value, or left to the chart.
struct ChartMargin {
    int value = 0;
    bool automatic = true;
    friend bool operator==(const ChartMargin &, const ChartMargin &) = default;
};

struct ChartProperty {
    int id;
    int value;
};

// Only the first sets get a style of the program's; later ones take the library's.
inline constexpr int kStyledSets = 15;

struct ChartSpec2D {
    int storedType = 1;
    int chartType = 1;
    std::string name, header, footer, xTitle, yTitle;
    std::array<DataStyle, kStyledSets> styles{};
    // Chart set by chart set: functions backwards, then the data sets.
    std::vector<std::string> setLabels;
    std::vector<ChartColor> colors;
    int depth = 20, inclination = 15, rotation = 10;
    bool logX = false, logY = false;
    // Messages of a logarithmic axis the type does not allow (25106, 25107), which is then off.
    std::vector<int> refusals;
    bool gridLines = true;
    ChartMargin marginBottom, marginTop, marginLeft, marginRight;
    bool pie = false;
    double pieParam1 = 0.0;
    int pieParam2 = 1, pieParam3 = 5;
    bool hiLoOpenClose = false;
    // 2 for angles in radians on Polar and Radar charts; 0 when the chart keeps its own.
    int angleUnit = 0;
    std::string headerFont, footerFont;
    std::vector<ChartProperty> constants;
};

struct ChartSpec3D {
    std::string name, header, footer;
    // The chart's own axes: X, then its Y (the graph's Z axis), then its vertical Z axis
    // (the graph's Y, the function's value).
    std::string xTitle, yTitle, zTitle;
    bool mesh = true, shade = true, contour = true, zone = true, hidden = false;
    int projectZMax = 0, projectZMin = 0;
    bool bars = false;
    float perspectiveDepth = 20, xRotation = 25, yRotation = 0.34f, zRotation = 310;
    float xTranslate = 0, yTranslate = 0, scale = 1;
    float defaultPerspectiveDepth = 20, defaultXRotation = 25, defaultYRotation = 0.34f,
          defaultZRotation = 310, defaultXTranslate = 0, defaultYTranslate = 0, defaultScale = 1;
    std::vector<ChartColor> colors;
    bool gridLines = true;
    std::vector<ChartProperty> grid;
    // Data item by item: functions in their own order, then the data sets.
    std::vector<std::string> dataLabels;
    std::string headerFont, footerFont;
    std::vector<ChartProperty> constants;
};

// The style of chart set `set` (0-based) for a stored 2-D type; past the fifteenth, none.
DataStyle data_style(int storedType, int set);
// The chart type the library gets for a stored 2-D type: Scatter and Line are Plot charts.
int chart_type_2d(int storedType);

ChartSpec2D chart_spec_2d(const GraphData &graph, int angleMode);
// What a stored 2-D type decides alone: chart type, styles, Pie, HiLo Open Close and angle
// settings, fonts and constants.
void set_type_decisions(ChartSpec2D &spec, int type, int angleMode);
ChartSpec3D chart_spec_3d(const GraphData &graph);

// Switches off in graph the logarithmic axes that its type does not allow, as the chart did.
void apply_log_refusals(GraphData &graph, const ChartSpec2D &spec);

// "key = value" lines, for reading and tests.
std::string describe(const ChartSpec2D &spec);
std::string describe(const ChartSpec3D &spec);

}  // namespace quindar
