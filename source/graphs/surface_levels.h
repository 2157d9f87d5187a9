// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The colouring of a 3-D surface as a gradient over its vertical range: smooth shading from
// the bottom colour to the top one, zones as equal bands, contours as thin dark rings at the
// band levels. A chart library only spreads the stops over the axis range.

#include <vector>

#include "color.h"

namespace quindar {

inline constexpr int kSurfaceLevels = 10;

struct SurfaceLook {
    bool shade = true, zone = false, contour = false;
    TColor bottom, top;
    // The surface colour when neither shading nor zones colour it.
    TColor plain;
};

struct GradientStop {
    double position;  // 0 at the axis minimum, 1 at its maximum
    TColor color;
    friend bool operator==(const GradientStop &, const GradientStop &) = default;
};

// The stops in increasing position, first at 0 and last at 1.
std::vector<GradientStop> surface_gradient(const SurfaceLook &look);

// The surface's colour at t in 0..1 of the vertical range, contour rings left out.
TColor surface_color(const SurfaceLook &look, double t);

// The colour between a and b at t in 0..1.
TColor blend(TColor a, TColor b, double t);

}  // namespace quindar
