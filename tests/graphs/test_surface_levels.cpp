// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <algorithm>

#include "surface_levels.h"

namespace quindar {
namespace {

const TColor kBlue{0, 0, 255}, kRed{255, 0, 0}, kGrey{128, 128, 128}, kBlack{0, 0, 0};

SurfaceLook Look(bool shade, bool zone, bool contour) {
    return SurfaceLook{shade, zone, contour, kBlue, kRed, kGrey};
}

int Count(const std::vector<GradientStop> &stops, TColor color) {
    return static_cast<int>(std::count_if(
        stops.begin(), stops.end(), [color](const GradientStop &s) { return s.color == color; }));
}

TEST(SurfaceLevels, ShadingRunsFromTheBottomColourToTheTop) {
    EXPECT_EQ(surface_gradient(Look(true, false, false)),
              (std::vector<GradientStop>{{0.0, kBlue}, {1.0, kRed}}));
    EXPECT_EQ(surface_gradient(Look(false, false, false)),
              (std::vector<GradientStop>{{0.0, kGrey}, {1.0, kGrey}}));
    EXPECT_EQ(blend(kBlue, kRed, 0.5), TColor(128, 0, 128));
}

TEST(SurfaceLevels, ZonesAreTenHardBands) {
    const auto stops = surface_gradient(Look(true, true, false));
    ASSERT_EQ(stops.size(), 2u + 2u * 9u);
    EXPECT_EQ(stops.front().color, kBlue);
    EXPECT_EQ(stops.back().color, kRed);
    // Just below a level the lower band's colour, at the level the next one.
    const auto below = std::find_if(stops.begin(), stops.end(), [](const GradientStop &s) {
        return s.position > 0.49 && s.position < 0.5;
    });
    ASSERT_NE(below, stops.end());
    EXPECT_EQ(below->color, blend(kBlue, kRed, 4 / 9.0));
    EXPECT_EQ((below + 1)->position, 0.5);
    EXPECT_EQ((below + 1)->color, blend(kBlue, kRed, 5 / 9.0));
}

TEST(SurfaceLevels, ContoursAddNineDarkRingsOnAnyColouring) {
    struct RingCase {
        SurfaceLook look;
        int blackStops;  // two per ring; a zone edge inside a ring is dark too
    };
    const RingCase cases[] = {{Look(true, false, true), 18},
                              {Look(false, false, true), 18},
                              {Look(true, true, true), 36},
                              {Look(true, true, false), 0}};
    for (const RingCase &c : cases) {
        const auto stops = surface_gradient(c.look);
        EXPECT_EQ(Count(stops, kBlack), c.blackStops);
        EXPECT_TRUE(std::is_sorted(
            stops.begin(), stops.end(),
            [](const GradientStop &a, const GradientStop &b) { return a.position < b.position; }));
        EXPECT_EQ(stops.front().position, 0.0);
        EXPECT_EQ(stops.back().position, 1.0);
    }
}

}  // namespace
}  // namespace quindar
