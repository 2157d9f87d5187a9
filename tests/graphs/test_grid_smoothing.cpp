// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "grid_smoothing.h"

namespace quindar {
namespace {

TEST(GridSmoothing, EachCellMovesHalfWayToItsNeighboursMean) {
    // A single peak of 9 in a 3 x 3 field of zeros.
    ChartGrid3D grid = ChartGrid3D::regular(3, 3, kHoleValue, 1, 1, 0, 0);
    for (int iz = 0; iz < 3; ++iz)
        for (int ix = 0; ix < 3; ++ix) grid.set_value(ix, iz, 0.0);
    grid.set_value(1, 1, 9.0);
    smooth_grid(grid);
    struct Cell {
        int ix, iz;
        double value;
    };
    const Cell cells[] = {
        {1, 1, 4.5},            // half of itself, neighbours all 0
        {0, 0, 0.5 * 9.0 / 3},  // corner: three neighbours, the peak one of them
        {1, 0, 0.5 * 9.0 / 5},  // edge: five neighbours
        {2, 2, 0.5 * 9.0 / 3},
    };
    for (const Cell &c : cells) EXPECT_DOUBLE_EQ(grid.value(c.ix, c.iz), c.value) << c.ix << c.iz;
}

TEST(GridSmoothing, HolesStayAndLendNothing) {
    ChartGrid3D grid = ChartGrid3D::regular(3, 1, kHoleValue, 1, 1, 0, 0);
    grid.set_value(0, 0, 2.0);
    grid.set_value(2, 0, 6.0);  // the middle stays a hole
    smooth_grid(grid);
    EXPECT_EQ(grid.value(1, 0), kHoleValue);
    // Each end has no neighbour but the hole: unchanged.
    EXPECT_DOUBLE_EQ(grid.value(0, 0), 2.0);
    EXPECT_DOUBLE_EQ(grid.value(2, 0), 6.0);
    // Weight 0 changes nothing, weight 1 takes the mean alone.
    ChartGrid3D line = ChartGrid3D::regular(3, 1, kHoleValue, 1, 1, 0, 0);
    for (int ix = 0; ix < 3; ++ix) line.set_value(ix, 0, ix * ix);
    ChartGrid3D same = line;
    smooth_grid(same, 0.0);
    EXPECT_EQ(same, line);
    smooth_grid(line, 1.0);
    EXPECT_DOUBLE_EQ(line.value(1, 0), (0.0 + 4.0) / 2);
}

}  // namespace
}  // namespace quindar
