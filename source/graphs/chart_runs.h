// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Which points of a 2-D set a chart may join with lines, and which point a click means. A
// chart library joins whatever it is given, so a set is handed over as runs of drawable points:
// a hole, or a value a logarithmic axis cannot show, ends a run.

#include <vector>

#include "chart_data.h"

namespace quindar {

// Points first .. first + count - 1 of one set.
struct PointRun {
    int first = 0;
    int count = 0;
    friend bool operator==(const PointRun &, const PointRun &) = default;
};

// Whether point `point` of `set` can be drawn on axes of these kinds.
bool drawable_point(const ChartData2D &data, int set, int point, bool logX, bool logY);
// The runs of drawable points of one set, in point order.
std::vector<PointRun> drawable_runs(const ChartData2D &data, int set, bool logX, bool logY);

// A click takes a point label only inside the data area and nearer than this many pixels.
inline constexpr double kLabelPickPixels = 10.0;
inline constexpr int kRegionDataArea = -100;
inline constexpr int kRegionHeader = -98;
inline constexpr int kRegionFooter = -97;
bool pick_takes_label(int region, double distance);

}  // namespace quindar
