// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "chart_runs.h"

namespace quindar {
namespace {

// One set of seven points with Y values as given; kHoleValue is a hole.
ChartData2D OneSet(std::vector<double> ys, std::vector<double> xs = {}) {
    ChartData2D data(1, 1, static_cast<int>(ys.size()));
    for (int i = 0; i < static_cast<int>(ys.size()); ++i) {
        data.set_x(0, i, xs.empty() ? i + 1.0 : xs[static_cast<std::size_t>(i)]);
        data.set_y(0, i, ys[static_cast<std::size_t>(i)]);
    }
    return data;
}

constexpr double H = kHoleValue;

struct RunCase {
    const char *name;
    std::vector<double> ys;
    bool logY;
    std::vector<PointRun> runs;
};

TEST(ChartRuns, SetsSplitAtHolesAndAtValuesALogAxisCannotShow) {
    const RunCase cases[] = {
        {"whole", {1, 2, 3}, false, {{0, 3}}},
        {"hole inside", {1, H, 3, 4}, false, {{0, 1}, {2, 2}}},
        {"hole first and last", {H, 2, 3, H}, false, {{1, 2}}},
        {"two holes together", {1, H, H, 4}, false, {{0, 1}, {3, 1}}},
        {"all holes", {H, H}, false, {}},
        {"zero and negative under log", {1, 0, 3, -2, 5}, true, {{0, 1}, {2, 1}, {4, 1}}},
        {"zero kept on a linear axis", {1, 0, -3}, false, {{0, 3}}},
    };
    for (const RunCase &c : cases)
        EXPECT_EQ(drawable_runs(OneSet(c.ys), 0, false, c.logY), c.runs) << c.name;
}

TEST(ChartRuns, AHoleInTheSharedXBreaksEverySet) {
    ChartData2D data(1, 2, 3);
    for (int set = 0; set < 2; ++set)
        for (int point = 0; point < 3; ++point) data.set_y(set, point, 1.0);
    data.set_x(0, 0, 1.0);
    data.set_x(1, 2, 3.0);  // layout 1: lands in the shared array; point 1 keeps its hole
    EXPECT_EQ(drawable_runs(data, 1, false, false), (std::vector<PointRun>{{0, 1}, {2, 1}}));
    EXPECT_EQ(drawable_runs(OneSet({1, 2}, {-1, 2}), 0, true, false),
              (std::vector<PointRun>{{1, 1}}));
}

TEST(ChartRuns, OnlyAClickInTheDataAreaNearerThanTenPixelsTakesALabel) {
    EXPECT_TRUE(pick_takes_label(kRegionDataArea, 0.0));
    EXPECT_TRUE(pick_takes_label(kRegionDataArea, 9.99));
    EXPECT_FALSE(pick_takes_label(kRegionDataArea, 10.0));
    EXPECT_FALSE(pick_takes_label(kRegionDataArea, -1.0));
    EXPECT_FALSE(pick_takes_label(kRegionHeader, 0.0));
    EXPECT_FALSE(pick_takes_label(kRegionFooter, 0.0));
}

}  // namespace
}  // namespace quindar
