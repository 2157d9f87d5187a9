// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The decisions for a 2-D chart.
#include <cstddef>

#include "chart_decisions.h"
#include "chart_decisions_support.h"
#include "graph_messages.h"
#include "graph_types.h"

namespace quindar {

namespace {

constexpr int kScatter = 13;
constexpr int kLine = 14;
constexpr int kPie = 3;
constexpr int kHiLoOpenClose = 7;
constexpr int kPolar = 9;
constexpr int kRadar = 10;
constexpr int kRadarFilled = 11;

struct SetLook {
    TColor color;
    int pointStyle;
};

constexpr SetLook kSetLooks[kStyledSets] = {
    {{255, 0, 0}, 2},    {{0, 0, 255}, 5},      {{0, 128, 0}, 4},     {{255, 128, 0}, 6},
    {{255, 0, 255}, 7},  {{0, 0, 0}, 3},        {{128, 128, 255}, 9}, {{128, 255, 255}, 10},
    {{192, 0, 255}, 11}, {{128, 0, 0}, 12},     {{255, 255, 0}, 13},  {{128, 128, 128}, 14},
    {{128, 128, 0}, 15}, {{128, 255, 128}, 16}, {{0, 255, 0}, 7},
};

constexpr ColorProperty kColors2D[] = {
    {0x0200, &GraphData::BackgroundColor, "BackgroundColor"},
    {0x0201, &GraphData::ForegroundColor, "ForegroundColor"},
    {0x020A, &GraphData::DataAreaBackgroundColor, "DataAreaBackgroundColor"},
    {0x020B, &GraphData::DataAreaForegroundColor, "DataAreaForegroundColor"},
    {0x0206, &GraphData::FooterBackgroundColor, "FooterBackgroundColor"},
    {0x0207, &GraphData::FooterForegroundColor, "FooterForegroundColor"},
    {0x0202, &GraphData::GraphBackgroundColor, "GraphBackgroundColor"},
    {0x0203, &GraphData::GraphForegroundColor, "GraphForegroundColor"},
    {0x0204, &GraphData::HeaderBackgroundColor, "HeaderBackgroundColor"},
    {0x0205, &GraphData::HeaderForegroundColor, "HeaderForegroundColor"},
    {0x0208, &GraphData::LegendBackgroundColor, "LegendBackgroundColor"},
    {0x0209, &GraphData::LegendForegroundColor, "LegendForegroundColor"},
};

constexpr ChartProperty kConstants2D[] = {{0x4300, 0}, {0x0E10, 1}, {0x4F01, 2},
                                          {0x4501, 3}, {0x4502, 3}, {0x4503, 3},
                                          {0x4504, 3}, {0x060B, 5}, {0x0109, 1}};

// Explicit value if not 0, else the saved default if not 0, else automatic.
ChartMargin resolve_margin(int value, int deflt) {
    if (value != 0) return {value, false};
    if (deflt != 0) return {deflt, false};
    return {0, true};
}

}  // namespace

DataStyle data_style(int storedType, int set) {
    if (set < 0 || set >= kStyledSets) return {};
    const SetLook &look = kSetLooks[set];
    return DataStyle{storedType == kScatter ? 1 : 2,
                     2,
                     look.color,
                     1,
                     storedType == kLine ? 1 : look.pointStyle,
                     look.color,
                     7};
}

int chart_type_2d(int storedType) {
    const GraphType2DInfo *type = find_graph_type_2d(storedType);
    return type != nullptr ? type->chart : storedType;
}

void set_type_decisions(ChartSpec2D &spec, int type, int angleMode) {
    spec.storedType = type;
    spec.chartType = chart_type_2d(type);
    for (int set = 0; set < kStyledSets; ++set)
        spec.styles[static_cast<std::size_t>(set)] = data_style(type, set);
    spec.pie = type == kPie;
    spec.hiLoOpenClose = type == kHiLoOpenClose;
    const bool polar = type == kPolar || type == kRadar || type == kRadarFilled;
    spec.angleUnit = polar && angleMode == 1 ? 2 : 0;
    spec.headerFont = "Arial,14,Bold";
    spec.footerFont = "Arial,12,Bold";
    spec.constants.assign(std::begin(kConstants2D), std::end(kConstants2D));
}

ChartSpec2D chart_spec_2d(const GraphData &graph, int angleMode) {
    ChartSpec2D spec;
    const int type = graph.GraphType2D;
    set_type_decisions(spec, type, angleMode);
    spec.name = graph.Name;
    spec.header = graph.Header;
    spec.footer = graph.Footer;
    spec.xTitle = graph.XAxisTitle;
    spec.yTitle = graph.YAxisTitle;

    const int functions = graph.GetNumFunctions();
    spec.setLabels.resize(static_cast<std::size_t>(functions));
    for (int i = 0; i < functions; ++i) {
        const Function *function = graph.GetFunction(i);
        spec.setLabels[static_cast<std::size_t>(functions - 1 - i)] =
            label_or_name(function->label, function->full_name);
    }
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next)
        spec.setLabels.push_back(label_or_name(set->Label, set->Name));

    for (const ColorProperty &color : kColors2D)
        spec.colors.push_back({color.id, color.name, graph.*color.field});

    const GraphType2DInfo *info = find_graph_type_2d(type);
    spec.logX = graph.XAxisLogarithmic != 0;
    spec.logY = graph.YAxisLogarithmic != 0;
    if (spec.logX && !(info != nullptr && info->logX)) {
        spec.logX = false;
        spec.refusals.push_back(kMsgNoLogX);
    }
    if (spec.logY && !(info != nullptr && info->logY)) {
        spec.logY = false;
        spec.refusals.push_back(kMsgNoLogY);
    }
    spec.depth = graph.Depth2D;
    spec.inclination = graph.Inclination2D;
    spec.rotation = graph.Rotation2D;
    spec.gridLines = graph.ShowGridLines != 0;
    spec.marginBottom = resolve_margin(graph.MarginBottom2D, graph.DefaultMarginBottom2D);
    spec.marginTop = resolve_margin(graph.MarginTop2D, graph.DefaultMarginTop2D);
    spec.marginLeft = resolve_margin(graph.MarginLeft2D, graph.DefaultMarginLeft2D);
    spec.marginRight = resolve_margin(graph.MarginRight2D, graph.DefaultMarginRight2D);

    spec.pieParam1 = graph.PieParam1;
    spec.pieParam2 = graph.PieParam2;
    spec.pieParam3 = graph.PieParam3;
    return spec;
}

void apply_log_refusals(GraphData &graph, const ChartSpec2D &spec) {
    for (const int refusal : spec.refusals) {
        if (refusal == kMsgNoLogX) graph.XAxisLogarithmic = 0;
        if (refusal == kMsgNoLogY) graph.YAxisLogarithmic = 0;
    }
}

}  // namespace quindar
