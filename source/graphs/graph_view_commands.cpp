// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_view_commands.h"

#include "graph_messages.h"
#include "graph_types.h"

namespace quindar {
int shown_margin(const ChartMargin &margin) {
    return margin.automatic ? kAutomaticMargin : margin.value;
}

int toggle_log_axis(GraphData &graph, bool xAxis) {
    const GraphType2DInfo *type = find_graph_type_2d(graph.GraphType2D);
    const bool allowed = type != nullptr && (xAxis ? type->logX : type->logY);
    if (!allowed) return xAxis ? kMsgNoLogX : kMsgNoLogY;
    int &flag = xAxis ? graph.XAxisLogarithmic : graph.YAxisLogarithmic;
    flag = flag != 0 ? 0 : 1;
    return 0;
}

void toggle_grid_lines(GraphData &graph) {
    graph.ShowGridLines = graph.ShowGridLines != 0 ? 0 : 1;
}

void step_margins(GraphData &graph, const ChartSpec2D &shown, int delta) {
    graph.MarginBottom2D = shown_margin(shown.marginBottom) + delta;
    graph.MarginTop2D = shown_margin(shown.marginTop) + delta;
    graph.MarginLeft2D = shown_margin(shown.marginLeft) + delta;
    graph.MarginRight2D = shown_margin(shown.marginRight) + delta;
}

void set_default_margins(GraphData &graph) {
    graph.MarginBottom2D = graph.DefaultMarginBottom2D;
    graph.MarginTop2D = graph.DefaultMarginTop2D;
    graph.MarginLeft2D = graph.DefaultMarginLeft2D;
    graph.MarginRight2D = graph.DefaultMarginRight2D;
}

void save_default_margins(GraphData &graph, const ChartSpec2D &shown) {
    graph.DefaultMarginBottom2D = shown_margin(shown.marginBottom);
    graph.DefaultMarginTop2D = shown_margin(shown.marginTop);
    graph.DefaultMarginLeft2D = shown_margin(shown.marginLeft);
    graph.DefaultMarginRight2D = shown_margin(shown.marginRight);
}

void set_default_orientation(GraphData &graph) {
    graph.Inclination2D = graph.DefaultInclination2D;
    graph.Rotation2D = graph.DefaultRotation2D;
    set_default_margins(graph);
}

void save_default_orientation(GraphData &graph, const ChartSpec2D &shown) {
    graph.DefaultInclination2D = shown.inclination;
    graph.DefaultRotation2D = shown.rotation;
    save_default_margins(graph, shown);
}

void copy_view_fields(const GraphData &from, GraphData &to) {
    to.Inclination2D = from.Inclination2D;
    to.Rotation2D = from.Rotation2D;
    to.DefaultInclination2D = from.DefaultInclination2D;
    to.DefaultRotation2D = from.DefaultRotation2D;
    to.DefaultMarginBottom2D = from.DefaultMarginBottom2D;
    to.DefaultMarginTop2D = from.DefaultMarginTop2D;
    to.DefaultMarginLeft2D = from.DefaultMarginLeft2D;
    to.DefaultMarginRight2D = from.DefaultMarginRight2D;
    to.XAxisLogarithmic = from.XAxisLogarithmic;
    to.YAxisLogarithmic = from.YAxisLogarithmic;
    to.ShowGridLines = from.ShowGridLines;
    to.MarginBottom2D = from.MarginBottom2D;
    to.MarginTop2D = from.MarginTop2D;
    to.MarginLeft2D = from.MarginLeft2D;
    to.MarginRight2D = from.MarginRight2D;
}

}  // namespace quindar
