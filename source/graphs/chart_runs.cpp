// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_runs.h"

namespace quindar {

bool drawable_point(const ChartData2D &data, int set, int point, bool logX, bool logY) {
    if (!data.in_range(set, point)) return false;
    const double x = data.x(set, point);
    const double y = data.y(set, point);
    if (x == data.hole() || y == data.hole()) return false;
    if (x != x || y != y) return false;
    if (logX && x <= 0.0) return false;
    if (logY && y <= 0.0) return false;
    return true;
}

std::vector<PointRun> drawable_runs(const ChartData2D &data, int set, bool logX, bool logY) {
    std::vector<PointRun> runs;
    PointRun open;
    for (int point = 0; point < data.points(); ++point) {
        if (drawable_point(data, set, point, logX, logY)) {
            if (open.count == 0) open.first = point;
            ++open.count;
        } else if (open.count > 0) {
            runs.push_back(open);
            open = {};
        }
    }
    if (open.count > 0) runs.push_back(open);
    return runs;
}

bool pick_takes_label(int region, double distance) {
    return region == kRegionDataArea && distance >= 0.0 && distance < kLabelPickPixels;
}

}  // namespace quindar
