// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The projections of a 3-D surface onto the floor and the ceiling of its chart, as pictures
// seen from above: the floor shows the surface's colours with its level lines, the ceiling
// the level lines alone, so that the surface stays in sight beneath it. Pixels over a hole
// are transparent. A chart library lays the pictures on two flat planes.

#include <cstdint>
#include <vector>

#include "chart_data.h"
#include "chart_decisions.h"
#include "surface_levels.h"

namespace quindar {

struct ProjectionPlanes {
    bool floor = false;    // at the minimum of the vertical axis
    bool ceiling = false;  // at its maximum
    friend bool operator==(const ProjectionPlanes &, const ProjectionPlanes &) = default;
};

// The planes a chart shows; bar charts project nothing.
ProjectionPlanes projection_planes(const ChartSpec3D &spec);

struct ProjectionRaster {
    int width = 0, height = 0;
    // 0xAARRGGBB row by row: row 0 at the lowest Z, column 0 at the lowest X.
    std::vector<std::uint32_t> pixels;
    std::uint32_t at(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

inline constexpr std::uint32_t kProjectionClear = 0x00000000u;
inline constexpr std::uint32_t kProjectionLine = 0xFF000000u;

// The picture of grid's values between low and high (the vertical axis range) at this size;
// linesOnly leaves everything but the level lines transparent.
ProjectionRaster projection_raster(const ChartGrid3D &grid, const SurfaceLook &look, double low,
                                   double high, int width, int height, bool linesOnly);

}  // namespace quindar
