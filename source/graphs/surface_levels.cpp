// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "surface_levels.h"

#include <algorithm>
#include <cmath>

namespace quindar {
namespace {

// Half the width of a contour ring and the gap that makes a zone edge hard.
constexpr double kRingHalfWidth = 0.004;
constexpr double kEdge = 1e-4;
const TColor kRingColor{0, 0, 0};

bool in_ring(double t) {
    for (int level = 1; level < kSurfaceLevels; ++level)
        if (std::abs(t - level / double(kSurfaceLevels)) <= kRingHalfWidth / 2 + 1e-12) return true;
    return false;
}

}  // namespace

TColor surface_color(const SurfaceLook &look, double t) {
    if (look.zone) {
        const int band = std::min(kSurfaceLevels - 1, static_cast<int>(t * kSurfaceLevels));
        return blend(look.bottom, look.top, band / double(kSurfaceLevels - 1));
    }
    if (look.shade) return blend(look.bottom, look.top, t);
    return look.plain;
}

TColor blend(TColor a, TColor b, double t) {
    auto mix = [t](int x, int y) {
        return static_cast<std::uint8_t>(std::lround(x + (y - x) * std::clamp(t, 0.0, 1.0)));
    };
    return TColor(mix(a.Red(), b.Red()), mix(a.Green(), b.Green()), mix(a.Blue(), b.Blue()));
}

std::vector<GradientStop> surface_gradient(const SurfaceLook &look) {
    std::vector<double> positions{0.0, 1.0};
    for (int level = 1; level < kSurfaceLevels; ++level) {
        const double at = level / double(kSurfaceLevels);
        if (look.zone) {
            positions.push_back(at - kEdge);
            positions.push_back(at);
        }
        if (look.contour) {
            positions.push_back(at - kRingHalfWidth);
            positions.push_back(at - kRingHalfWidth / 2);
            positions.push_back(at + kRingHalfWidth / 2);
            positions.push_back(at + kRingHalfWidth);
        }
    }
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    std::vector<GradientStop> stops;
    for (double t : positions)
        stops.push_back({t, look.contour && in_ring(t) ? kRingColor : surface_color(look, t)});
    return stops;
}

}  // namespace quindar
