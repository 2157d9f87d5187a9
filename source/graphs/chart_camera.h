// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A 3-D graph's view as a chart camera sees it, and back. The camera turns about the vertical
// from -180 to 180 (the graph's Z rotation, kept 0 to 360), tilts by the graph's X rotation,
// zooms in percent (the scale times 100) and looks at a target moved by the translations. The
// graph's Y rotation and perspective depth have no camera counterpart and are kept as they were.

namespace quindar {

struct CameraView {
    float xRotation = 0, yRotation = 0, zoom = 100, targetX = 0, targetY = 0;
    friend bool operator==(const CameraView &, const CameraView &) = default;
};

struct GraphView3D {
    float xRotation = 25, zRotation = 310, scale = 1, xTranslate = 0, yTranslate = 0;
    friend bool operator==(const GraphView3D &, const GraphView3D &) = default;
};

CameraView camera_from_view(const GraphView3D &view);
GraphView3D view_from_camera(const CameraView &camera);

}  // namespace quindar
