// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "graph_file_view_commands.h"

namespace quindar {
namespace {

ChartSpec2D Shown(int bottom, int top, int left, int right) {
    ChartSpec2D shown;
    shown.marginBottom = {bottom, false};
    shown.marginTop = {top, false};
    shown.marginLeft = {left, false};
    shown.marginRight = {right, true};  // automatic: the chart's own 20
    shown.depth = 30;
    shown.inclination = 5;
    shown.rotation = -5;
    return shown;
}

TEST(GraphFileViewCommands, TwoDimensionalFilesUseTheirDefaultKeys) {
    GraphFile2D file;
    file.defaultMargins = {1, 2, 3, 4};
    file.defaultDepth = 12;
    step_file_margins(file, Shown(0, 10, -10, 99), -25);
    EXPECT_EQ(file.margins, (std::array<int, 4>{-25, -15, -35, -5}));
    save_file_default_margins(file, Shown(5, 6, 7, 0));
    EXPECT_EQ(file.defaultMargins, (std::array<int, 4>{5, 6, 7, 20}));
    set_file_default_margins(file);
    EXPECT_EQ(file.margins, file.defaultMargins);
    EXPECT_EQ(file.defaultDepth, 12) << "margins only";

    save_file_default_orientation(file, Shown(0, 0, 0, 0));
    EXPECT_EQ(file.defaultDepth, 30);
    EXPECT_EQ(file.defaultInclination, 5);
    EXPECT_EQ(file.defaultRotation, -5);
    EXPECT_EQ(file.defaultMargins, (std::array<int, 4>{0, 0, 0, 20}));
    file.depth = 1;
    file.inclination = 2;
    file.rotation = 3;
    set_file_default_orientation(file);
    EXPECT_EQ(file.depth, 30);
    EXPECT_EQ(file.inclination, 5);
    EXPECT_EQ(file.rotation, -5);
    EXPECT_EQ(file.margins, (std::array<int, 4>{0, 0, 0, 20}));
}

TEST(GraphFileViewCommands, ThreeDimensionalFilesKeepAWholeDefaultScale) {
    GraphFile3D file;
    step_file_scale(file, 1.5f, kScaleStep);
    EXPECT_FLOAT_EQ(file.view[6], 1.6f);
    step_file_scale(file, 0.05f, -kScaleStep);
    EXPECT_FLOAT_EQ(file.view[6], -0.05f);
    save_file_default_scale(file, 2.7f);
    EXPECT_EQ(file.defaultView[6], 2.0f);
    file.defaultView[6] = 1.5f;  // as an older file may hold it
    set_file_default_scale(file);
    EXPECT_EQ(file.view[6], 1.0f);

    const View3DValues shown{20, 40, 0.34f, 100, 0.5f, 0, 1.25f};
    save_file_default_orientation(file, shown);
    EXPECT_EQ(file.defaultView, shown);
    file.view = kDefaultView3D;
    set_file_default_orientation(file);
    EXPECT_EQ(file.view, shown);
}

}  // namespace
}  // namespace quindar
