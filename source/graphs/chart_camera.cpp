// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_camera.h"

#include <cmath>

namespace quindar {
namespace {

// The zoom that shows the whole chart, axis labels included, at scale 1.
constexpr float kZoomPerScale = 80.0f;

float wrap(float degrees, float low) {
    float wrapped = std::fmod(degrees - low, 360.0f);
    if (wrapped < 0) wrapped += 360.0f;
    return wrapped + low;
}

}  // namespace

CameraView camera_from_view(const GraphView3D &view) {
    return CameraView{wrap(view.zRotation, -180.0f), view.xRotation, kZoomPerScale * view.scale,
                      view.xTranslate, view.yTranslate};
}

GraphView3D view_from_camera(const CameraView &camera) {
    return GraphView3D{camera.yRotation, wrap(camera.xRotation, 0.0f), camera.zoom / kZoomPerScale,
                       camera.targetX, camera.targetY};
}

}  // namespace quindar
