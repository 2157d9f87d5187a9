// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "surface_projection.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quindar {
namespace {

// Cell positions along one axis, in increasing order as the grid holds them.
std::vector<double> positions(const ChartGrid3D &grid, bool xAxis) {
    const int count = xAxis ? grid.nx() : grid.nz();
    std::vector<double> at(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        at[static_cast<std::size_t>(i)] = xAxis ? grid.x_at(i) : grid.z_at(i);
    return at;
}

// The cell interval holding v and the fraction into it.
std::pair<int, double> locate(const std::vector<double> &at, double v) {
    if (at.size() < 2) return {0, 0.0};
    const auto upper = std::upper_bound(at.begin() + 1, at.end() - 1, v);
    const int i = static_cast<int>(upper - at.begin()) - 1;
    const double span = at[static_cast<std::size_t>(i) + 1] - at[static_cast<std::size_t>(i)];
    return {i,
            span != 0.0 ? std::clamp((v - at[static_cast<std::size_t>(i)]) / span, 0.0, 1.0) : 0.0};
}

// The surface's value between the four cells around (x, z); none next to a hole.
std::optional<double> sample(const ChartGrid3D &grid, std::pair<int, double> x,
                             std::pair<int, double> z) {
    const int ix1 = std::min(x.first + 1, grid.nx() - 1),
              iz1 = std::min(z.first + 1, grid.nz() - 1);
    const double corners[4] = {grid.value(x.first, z.first), grid.value(ix1, z.first),
                               grid.value(x.first, iz1), grid.value(ix1, iz1)};
    for (double corner : corners)
        if (corner == grid.hole() || !std::isfinite(corner)) return std::nullopt;
    const double near = corners[0] + (corners[1] - corners[0]) * x.second;
    const double far = corners[2] + (corners[3] - corners[2]) * x.second;
    return near + (far - near) * z.second;
}

std::uint32_t argb(TColor color) {
    return 0xFF000000u | (std::uint32_t(color.Red()) << 16) | (std::uint32_t(color.Green()) << 8) |
           std::uint32_t(color.Blue());
}

}  // namespace

ProjectionPlanes projection_planes(const ChartSpec3D &spec) {
    if (spec.bars) return {};
    return {spec.projectZMin != 0, spec.projectZMax != 0};
}

ProjectionRaster projection_raster(const ChartGrid3D &grid, const SurfaceLook &look, double low,
                                   double high, int width, int height, bool linesOnly) {
    ProjectionRaster raster{width, height, {}};
    raster.pixels.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height),
                         kProjectionClear);
    if (width <= 0 || height <= 0 || grid.nx() < 1 || grid.nz() < 1) return raster;
    const std::vector<double> xs = positions(grid, true), zs = positions(grid, false);
    const double range = high > low ? high - low : 1.0;
    // The level band of every pixel first (-1 over a hole), then the colours.
    std::vector<int> bands(raster.pixels.size(), -1);
    std::vector<double> heights(raster.pixels.size(), 0.0);
    for (int py = 0; py < height; ++py) {
        const double z = zs.front() + (zs.back() - zs.front()) * (py + 0.5) / height;
        const auto zAt = locate(zs, z);
        for (int px = 0; px < width; ++px) {
            const double x = xs.front() + (xs.back() - xs.front()) * (px + 0.5) / width;
            const std::optional<double> value = sample(grid, locate(xs, x), zAt);
            if (!value) continue;
            const std::size_t i = static_cast<std::size_t>(py) * static_cast<std::size_t>(width) +
                                  static_cast<std::size_t>(px);
            heights[i] = std::clamp((*value - low) / range, 0.0, 1.0);
            bands[i] = std::min(kSurfaceLevels - 1, static_cast<int>(heights[i] * kSurfaceLevels));
        }
    }
    for (int py = 0; py < height; ++py)
        for (int px = 0; px < width; ++px) {
            const std::size_t i = static_cast<std::size_t>(py) * static_cast<std::size_t>(width) +
                                  static_cast<std::size_t>(px);
            if (bands[i] < 0) continue;
            // A level line runs where the band changes towards the next pixel.
            const bool line = (px + 1 < width && bands[i + 1] >= 0 && bands[i + 1] != bands[i]) ||
                              (py + 1 < height && bands[i + static_cast<std::size_t>(width)] >= 0 &&
                               bands[i + static_cast<std::size_t>(width)] != bands[i]);
            if (line)
                raster.pixels[i] = kProjectionLine;
            else if (!linesOnly)
                raster.pixels[i] = argb(surface_color(look, heights[i]));
        }
    return raster;
}

}  // namespace quindar
