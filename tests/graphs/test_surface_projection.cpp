// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "surface_projection.h"

namespace quindar {
namespace {

const TColor kBlue{0, 0, 255}, kRed{255, 0, 0}, kGrey{128, 128, 128};

// A ramp rising along X from 0 to 1: the level lines run across it at every tenth.
ChartGrid3D Ramp(int nx, int nz) {
    ChartGrid3D grid = ChartGrid3D::regular(nx, nz, kHoleValue, 1.0, 1.0, 0.0, 0.0);
    for (int iz = 0; iz < nz; ++iz)
        for (int ix = 0; ix < nx; ++ix) grid.set_value(ix, iz, ix / double(nx - 1));
    return grid;
}

struct PlaneCase {
    const char *name;
    int projectZMin, projectZMax;
    bool bars;
    ProjectionPlanes planes;
};

TEST(SurfaceProjection, PlanesFollowTheProjectionPairAndSkipBars) {
    const PlaneCase cases[] = {
        {"none", 0, 0, false, {false, false}}, {"both", 2, 1, false, {true, true}},
        {"floor", 2, 0, false, {true, false}}, {"ceiling", 0, 1, false, {false, true}},
        {"bars", 2, 1, true, {false, false}},
    };
    for (const PlaneCase &c : cases) {
        ChartSpec3D spec;
        spec.projectZMin = c.projectZMin;
        spec.projectZMax = c.projectZMax;
        spec.bars = c.bars;
        EXPECT_EQ(projection_planes(spec), c.planes) << c.name;
    }
}

int Count(const ProjectionRaster &raster, std::uint32_t pixel) {
    int count = 0;
    for (std::uint32_t p : raster.pixels) count += p == pixel;
    return count;
}

TEST(SurfaceProjection, TheFloorShowsTheColoursAndNineLevelLines) {
    const SurfaceLook look{true, false, false, kBlue, kRed, kGrey};
    const ProjectionRaster raster = projection_raster(Ramp(11, 3), look, 0.0, 1.0, 200, 20, false);
    ASSERT_EQ(raster.pixels.size(), 4000u);
    // Left edge near the bottom colour, right edge near the top colour, all opaque.
    EXPECT_EQ(raster.at(0, 5) >> 24, 0xFFu);
    EXPECT_LT((raster.at(0, 5) >> 16) & 0xFFu, 10u);  // blue with hardly any red
    EXPECT_GT(raster.at(0, 5) & 0xFFu, 240u);
    EXPECT_GT((raster.at(199, 5) >> 16) & 0xFFu, 240u);
    EXPECT_EQ(Count(raster, kProjectionClear), 0);
    // One line pixel per level and row: nine levels across twenty rows.
    EXPECT_EQ(Count(raster, kProjectionLine), 9 * 20);
    for (int y = 0; y < 20; ++y) EXPECT_EQ(raster.at(100, y), raster.at(100, 0)) << y;
}

TEST(SurfaceProjection, TheCeilingShowsLinesAloneAndHolesStayClear) {
    const SurfaceLook look{true, true, true, kBlue, kRed, kGrey};
    ChartGrid3D grid = Ramp(11, 11);
    grid.set_value(5, 5, kHoleValue);
    const ProjectionRaster raster = projection_raster(grid, look, 0.0, 1.0, 100, 100, true);
    EXPECT_EQ(Count(raster, kProjectionLine) + Count(raster, kProjectionClear), 10000);
    EXPECT_GT(Count(raster, kProjectionLine), 0);
    // The middle lies among the cells around the hole: transparent on the floor as well.
    EXPECT_EQ(raster.at(50, 50), kProjectionClear);
    const ProjectionRaster floor = projection_raster(grid, look, 0.0, 1.0, 100, 100, false);
    EXPECT_EQ(floor.at(50, 50), kProjectionClear);
    EXPECT_NE(floor.at(10, 10), kProjectionClear);
}

TEST(SurfaceProjection, RowsRunAlongZ) {
    // A ramp along Z this time: the first row is the lowest Z, coloured as the bottom.
    ChartGrid3D grid = ChartGrid3D::regular(3, 11, kHoleValue, 1.0, 1.0, 0.0, 0.0);
    for (int iz = 0; iz < 11; ++iz)
        for (int ix = 0; ix < 3; ++ix) grid.set_value(ix, iz, iz / 10.0);
    const SurfaceLook look{true, false, false, kBlue, kRed, kGrey};
    const ProjectionRaster raster = projection_raster(grid, look, 0.0, 1.0, 10, 100, false);
    EXPECT_GT(raster.at(5, 0) & 0xFFu, 240u);
    EXPECT_GT((raster.at(5, 99) >> 16) & 0xFFu, 240u);
}

}  // namespace
}  // namespace quindar
