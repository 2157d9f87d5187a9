// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the 2-D type and 3-D attribute tables.
#include "graph_types.h"

#include <array>

namespace quindar {

namespace {

constexpr std::array<GraphType2DInfo, 13> kTypes2D{{
    {"Plot", 24726, 1, 1, true, true, true, 0},
    {"Bar", 24727, 2, 2, false, true, false, 0},
    {"Pie", 24730, 3, 3, false, false, false, 0},
    {"Stacking Bar", 24729, 4, 4, false, true, false, 0},
    {"Area", 24728, 5, 5, true, true, true, 0},
    {"HiLo", 24731, 6, 6, true, true, false, 2},
    {"HiLo Open Close", 24732, 7, 7, true, true, false, 4},
    {"Candle", 24733, 8, 8, true, true, false, 4},
    {"Polar", 24734, 9, 9, false, false, true, 0},
    {"Radar", 24735, 10, 10, false, false, false, 0},
    {"Radar Filled", 24736, 11, 11, false, false, false, 0},
    {"Scatter", 24746, 13, 1, true, true, true, 0},
    {"Line", 24747, 14, 1, true, true, true, 0},
}};

constexpr std::array<GraphAttribute3DInfo, 7> kAttributes3D{{
    {1, "Mesh", 24738, 1},
    {2, "Shaded", 24739, 1},
    {3, "Contours", 24740, 1},
    {4, "Zones", 24741, 1},
    {5, "Hidden Lines", 24744, 0},
    {6, "Projection", 24745, 0},
    {7, "Bar", 24742, 0},
}};

}  // namespace

std::span<const GraphType2DInfo> graph_types_2d() {
    return kTypes2D;
}

std::span<const GraphAttribute3DInfo> graph_attributes_3d() {
    return kAttributes3D;
}

const GraphType2DInfo *find_graph_type_2d(int stored) {
    for (const GraphType2DInfo &type : kTypes2D)
        if (type.stored == stored) return &type;
    return nullptr;
}

}  // namespace quindar
