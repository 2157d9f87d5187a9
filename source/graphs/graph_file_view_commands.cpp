// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_file_view_commands.h"

#include <cmath>
#include <cstddef>

#include "graph_view_commands.h"

namespace quindar {
namespace {

constexpr std::size_t kScale = 6;

// Bottom, top, left, right, as the file keeps them.
std::array<int, 4> shown_margins(const ChartSpec2D &shown) {
    return {shown_margin(shown.marginBottom), shown_margin(shown.marginTop),
            shown_margin(shown.marginLeft), shown_margin(shown.marginRight)};
}

}  // namespace

void step_file_margins(GraphFile2D &file, const ChartSpec2D &shown, int delta) {
    file.margins = shown_margins(shown);
    for (int &margin : file.margins) margin += delta;
}

void set_file_default_margins(GraphFile2D &file) {
    file.margins = file.defaultMargins;
}

void save_file_default_margins(GraphFile2D &file, const ChartSpec2D &shown) {
    file.defaultMargins = shown_margins(shown);
}

void set_file_default_orientation(GraphFile2D &file) {
    file.depth = file.defaultDepth;
    file.inclination = file.defaultInclination;
    file.rotation = file.defaultRotation;
    set_file_default_margins(file);
}

void save_file_default_orientation(GraphFile2D &file, const ChartSpec2D &shown) {
    file.defaultDepth = shown.depth;
    file.defaultInclination = shown.inclination;
    file.defaultRotation = shown.rotation;
    save_file_default_margins(file, shown);
}

void step_file_scale(GraphFile3D &file, float shown, float delta) {
    file.view[kScale] = shown + delta;
}

void set_file_default_scale(GraphFile3D &file) {
    file.view[kScale] = std::trunc(file.defaultView[kScale]);
}

void save_file_default_scale(GraphFile3D &file, float shown) {
    file.defaultView[kScale] = std::trunc(shown);
}

void set_file_default_orientation(GraphFile3D &file) {
    file.view = file.defaultView;
}

void save_file_default_orientation(GraphFile3D &file, const View3DValues &shown) {
    file.defaultView = shown;
}

}  // namespace quindar
