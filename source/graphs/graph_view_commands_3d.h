// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the graph window's view commands change on a 3-D graph: the seven view values
// (perspective depth, X, Y and Z rotation, X and Y translation, scale) go to and from their
// defaults, the margin commands step the scale by a tenth, and the perspective command turns
// the chart to face the viewer. The 2-D perspective view sits here too: it is the same command.

#include <array>

#include "chart_decisions.h"
#include "graph_data.h"

namespace quindar {

inline constexpr float kScaleStep = 0.1f;

// The seven view values in the order of the graph's fields and its file keys.
using View3DValues = std::array<float, 7>;

// The view a graph's definition holds, and the defaults beside it.
View3DValues view_3d(const GraphData &graph);
View3DValues default_view_3d(const GraphData &graph);
void set_view_3d(GraphData &graph, const View3DValues &view);

// The seven values back to their defaults.
void set_default_orientation_3d(GraphData &graph);
// The view the chart shows becomes the default.
void save_default_orientation_3d(GraphData &graph, const View3DValues &shown);
// The scale the chart shows, changed by delta (no lower bound).
void step_scale(GraphData &graph, float shown, float delta);
void set_default_scale(GraphData &graph);
void save_default_scale(GraphData &graph, float shown);
// Copies the view fields of a 3-D graph, current and default, from one graph to another.
void copy_view_fields_3d(const GraphData &from, GraphData &to);

// The perspective view of the chart alone: a 2-D chart gets depth 20, inclination 0 and
// rotation 0; a 3-D chart perspective depth 20 and no rotation about any axis.
void perspective_view(ChartSpec2D &spec);
void perspective_view(ChartSpec3D &spec);

}  // namespace quindar
