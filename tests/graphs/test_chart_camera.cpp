// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "chart_camera.h"

namespace quindar {
namespace {

struct CameraCase {
    GraphView3D view;
    CameraView camera;
};

TEST(ChartCamera, ViewsMapToTheCameraAndBack) {
    const CameraCase cases[] = {
        // Scale 1 zooms out to 80 %: the whole chart, labels and all, fits its window.
        {{25, 310, 1, 0, 0}, {-50, 25, 80, 0, 0}},
        {{90, 0, 0.5f, 0.25f, -0.5f}, {0, 90, 40, 0.25f, -0.5f}},
        {{-10, 180, 2, 0, 0}, {-180, -10, 160, 0, 0}},
        {{45, 90, 1.5f, 0, 0}, {90, 45, 120, 0, 0}},
    };
    for (const CameraCase &c : cases) {
        EXPECT_EQ(camera_from_view(c.view), c.camera) << c.view.zRotation;
        EXPECT_EQ(view_from_camera(c.camera), c.view) << c.view.zRotation;
    }
    // Angles past a turn come back inside one.
    EXPECT_EQ(camera_from_view({25, 670, 1, 0, 0}).xRotation, -50);
    EXPECT_EQ(view_from_camera({-400, 0, 80, 0, 0}).zRotation, 320);
}

}  // namespace
}  // namespace quindar
