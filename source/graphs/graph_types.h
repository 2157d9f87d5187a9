// SPDX-License-Identifier: GPL-3.0-or-later
// The 2-D graph types and the 3-D attribute digits, as tables.
#pragma once

#include <span>

namespace quindar {

// One 2-D type: its name on the Types page, the page control, the value stored in
// GraphType2D and in documents, the chart type the chart library is given, what it allows,
// and how many functions plus data sets it needs (0: no minimum).
struct GraphType2DInfo {
    const char *name;
    int controlId;
    int stored;
    int chart;
    bool logX;
    bool logY;
    bool ownXPerSet;
    int minimumSets;
};

// One 3-D attribute: its digit in GraphType3D (1 is the units digit), its control, and the
// value a new graph gets.
struct GraphAttribute3DInfo {
    int digit;
    const char *name;
    int controlId;
    int deflt;
};

// Stored value 12 is not used.
std::span<const GraphType2DInfo> graph_types_2d();
std::span<const GraphAttribute3DInfo> graph_attributes_3d();

// The row of a stored 2-D type, or null.
const GraphType2DInfo *find_graph_type_2d(int stored);

// Digit 7 is one flag with two controls: "Bar" (1) and "Surface" (0).
inline constexpr int kSurfaceControlId = 24743;
inline constexpr int kBarOrSurfaceDigit = 7;

}  // namespace quindar
