// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The graph window's orientation and margin commands on a graph opened from a file, which has
// no definition behind it: the file's own default keys stand in for the graph's defaults, and
// what is saved as default goes into the file's keys (the window then writes the file again).

#include "chart_decisions.h"
#include "graph_file.h"
#include "graph_view_commands_3d.h"

namespace quindar {

// 2-D: the margins as the chart shows them changed by delta; back to the default margin keys;
// the shown margins become the default keys.
void step_file_margins(GraphFile2D &file, const ChartSpec2D &shown, int delta);
void set_file_default_margins(GraphFile2D &file);
void save_file_default_margins(GraphFile2D &file, const ChartSpec2D &shown);
// Depth, inclination, rotation and margins from their default keys, and the shown ones into
// them ("DefaultDepth" as well).
void set_file_default_orientation(GraphFile2D &file);
void save_file_default_orientation(GraphFile2D &file, const ChartSpec2D &shown);

// 3-D: the scale stepped from what the chart shows; "DefaultScale" is read and written as a
// whole number, so a default of 1.5 comes back as 1.
void step_file_scale(GraphFile3D &file, float shown, float delta);
void set_file_default_scale(GraphFile3D &file);
void save_file_default_scale(GraphFile3D &file, float shown);
void set_file_default_orientation(GraphFile3D &file);
void save_file_default_orientation(GraphFile3D &file, const View3DValues &shown);

}  // namespace quindar
