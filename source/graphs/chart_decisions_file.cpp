// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The chart decisions of a graph shown from a graph file, with no definition behind it.
#include "graph_file.h"

namespace quindar {

ChartSpec2D chart_spec_2d(const GraphFile2D &file, int angleMode) {
    ChartSpec2D spec;
    set_type_decisions(spec, file.type, angleMode);
    spec.name = file.name;
    spec.header = file.header;
    spec.footer = file.footer;
    spec.xTitle = file.xTitle;
    spec.yTitle = file.yTitle;
    spec.setLabels = file.setLabels;
    spec.colors = file.colors;
    spec.depth = file.depth;
    spec.inclination = file.inclination;
    spec.rotation = file.rotation;
    spec.logX = file.xLogarithmic != 0;
    spec.logY = file.yLogarithmic != 0;
    spec.gridLines = file.showGridLines != 0;
    ChartMargin *margins[4] = {&spec.marginBottom, &spec.marginTop, &spec.marginLeft,
                               &spec.marginRight};
    for (std::size_t i = 0; i < 4; ++i) *margins[i] = ChartMargin{file.margins[i], false};
    return spec;
}

ChartSpec3D chart_spec_3d(const GraphFile3D &file) {
    ChartSpec3D spec = chart_spec_3d(GraphData());
    spec.name = file.name;
    spec.header = file.header;
    spec.footer = file.footer;
    spec.xTitle = file.xTitle;
    spec.yTitle = file.yTitle;
    spec.zTitle = file.zTitle;
    spec.mesh = file.mesh != 0;
    spec.shade = file.shade != 0;
    spec.contour = file.contour != 0;
    spec.zone = file.zone != 0;
    spec.hidden = file.hidden != 0;
    spec.projectZMax = file.projectZMax;
    spec.projectZMin = file.projectZMin;
    spec.bars = file.surface == 1;
    float *view[7] = {&spec.perspectiveDepth, &spec.xRotation,  &spec.yRotation, &spec.zRotation,
                      &spec.xTranslate,       &spec.yTranslate, &spec.scale};
    float *defaults[7] = {&spec.defaultPerspectiveDepth,
                          &spec.defaultXRotation,
                          &spec.defaultYRotation,
                          &spec.defaultZRotation,
                          &spec.defaultXTranslate,
                          &spec.defaultYTranslate,
                          &spec.defaultScale};
    for (std::size_t i = 0; i < 7; ++i) {
        *view[i] = file.view[i];
        *defaults[i] = file.defaultView[i];
    }
    spec.colors = file.colors;
    spec.gridLines = file.showGridLines != 0;
    for (ChartProperty &grid : spec.grid)
        if (!spec.gridLines) grid.value = 0;
    spec.dataLabels.clear();
    return spec;
}

}  // namespace quindar
