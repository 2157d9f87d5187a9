// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the graph window's view commands change in a 2-D graph's definition: logarithmic axes
// (only where the type allows them), grid lines, and the margins stepped by 25 pixels from what
// the chart shows. The window copies the result to the document's graph and redraws.

#include "chart_decisions.h"
#include "graph_data.h"

namespace quindar {

inline constexpr int kMarginStep = 25;
// The margin a chart takes when the graph leaves it automatic.
inline constexpr int kAutomaticMargin = 20;

// A margin as the chart shows it: the automatic one is kAutomaticMargin.
int shown_margin(const ChartMargin &margin);

// Toggles the logarithmic X (or Y) axis; 0 when done, or the message that refuses it
// (25106, 25107) with the graph unchanged.
int toggle_log_axis(GraphData &graph, bool xAxis);
void toggle_grid_lines(GraphData &graph);
// The four margins as the chart shows them (spec), each changed by delta; no lower bound.
void step_margins(GraphData &graph, const ChartSpec2D &shown, int delta);
// The margins back to the graph's default margins.
void set_default_margins(GraphData &graph);
// The margins the chart shows become the graph's default margins.
void save_default_margins(GraphData &graph, const ChartSpec2D &shown);
// Inclination, rotation and margins back to their defaults (the depth stays the graph's own).
void set_default_orientation(GraphData &graph);
// The chart's inclination, rotation and margins become the defaults.
void save_default_orientation(GraphData &graph, const ChartSpec2D &shown);
// Copies the view fields these commands change from one graph to another.
void copy_view_fields(const GraphData &from, GraphData &to);

}  // namespace quindar
