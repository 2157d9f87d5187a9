// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The decisions for a 3-D chart.
#include "chart_decisions.h"
#include "chart_decisions_support.h"

namespace quindar {

namespace {

constexpr ColorProperty kColors3D[] = {
    {0x0200, &GraphData::BackgroundColor, "BackgroundColor"},
    {0x0204, &GraphData::ForegroundColor, "ForegroundColor"},
    {0x0201, &GraphData::DataAreaBackgroundColor, "DataAreaBackgroundColor"},
    {0x0202, &GraphData::FooterBackgroundColor, "FooterBackgroundColor"},
    {0x0203, &GraphData::FooterForegroundColor, "FooterForegroundColor"},
    {0x0205, &GraphData::GraphBackgroundColor, "GraphBackgroundColor"},
    {0x0206, &GraphData::GraphForegroundColor, "GraphForegrondColor"},
    {0x0207, &GraphData::HeaderBackgroundColor, "HeaderBackgroundColor"},
    {0x0208, &GraphData::HeaderForegroundColor, "HeaderForegroundColor"},
    {0x0209, &GraphData::LegendBackgroundColor, "LegendBackgroundColor"},
    {0x020A, &GraphData::LegendForegroundColor, "LegendForegroundColor"},
    {0x020B, &GraphData::MeshBottomColor, "MeshBottomColor"},
    {0x020C, &GraphData::MeshTopColor, "MeshTopColor"},
    {0x020D, &GraphData::SurfaceBottomColor, "SurfaceBottomColor"},
    {0x020E, &GraphData::SurfaceTopColor, "SurfaceTopColor"},
};

// Grid line properties and their values with the lines on; off sets every one to 0.
constexpr ChartProperty kGridOn[] = {{0x1111, 1}, {0x0B05, 3}, {0x1112, 1},
                                     {0x0B07, 5}, {0x1113, 1}, {0x0B09, 6}};

constexpr ChartProperty kConstants3D[] = {{0x4300, 1}, {0x4301, 1},  {0x4302, 1}, {0x0406, 5},
                                          {0x4601, 3}, {0x4602, 3},  {0x4603, 3}, {0x4604, 3},
                                          {0x010C, 0}, {0x4B00, 100}};

}  // namespace

ChartSpec3D chart_spec_3d(const GraphData &graph) {
    ChartSpec3D spec;
    spec.name = graph.Name;
    spec.header = graph.Header;
    spec.footer = graph.Footer;
    spec.xTitle = graph.XAxisTitle;
    spec.yTitle = graph.ZAxisTitle;
    spec.zTitle = graph.YAxisTitle;
    spec.mesh = graph.Get3DTypeBit(1) != 0;
    spec.shade = graph.Get3DTypeBit(2) != 0;
    spec.contour = graph.Get3DTypeBit(3) != 0;
    spec.zone = graph.Get3DTypeBit(4) != 0;
    spec.hidden = graph.Get3DTypeBit(5) != 0;
    const bool projection = graph.Get3DTypeBit(6) != 0;
    spec.projectZMax = projection ? 1 : 0;
    spec.projectZMin = projection ? 2 : 0;
    spec.bars = graph.Get3DTypeBit(7) != 0;

    spec.perspectiveDepth = graph.PerspectiveDepth;
    spec.xRotation = graph.XRotation;
    spec.yRotation = graph.YRotation;
    spec.zRotation = graph.ZRotation;
    spec.xTranslate = graph.XTranslate;
    spec.yTranslate = graph.YTranslate;
    spec.scale = graph.Scale;
    spec.defaultPerspectiveDepth = graph.DefaultPerspectiveDepth;
    spec.defaultXRotation = graph.DefaultXRotation;
    spec.defaultYRotation = graph.DefaultYRotation;
    spec.defaultZRotation = graph.DefaultZRotation;
    spec.defaultXTranslate = graph.DefaultXTranslate;
    spec.defaultYTranslate = graph.DefaultYTranslate;
    spec.defaultScale = graph.DefaultScale;

    for (const ColorProperty &color : kColors3D)
        spec.colors.push_back({color.id, color.name, graph.*color.field});
    spec.gridLines = graph.ShowGridLines != 0;
    for (const ChartProperty &grid : kGridOn)
        spec.grid.push_back({grid.id, spec.gridLines ? grid.value : 0});

    for (int i = 0; const Function *function = graph.GetFunction(i); ++i)
        spec.dataLabels.push_back(label_or_name(function->label, function->full_name));
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next)
        spec.dataLabels.push_back(label_or_name(set->Label, set->Name));
    spec.headerFont = "Arial,14,Bold";
    spec.footerFont = "Arial,12,Bold";
    spec.constants.assign(std::begin(kConstants3D), std::end(kConstants3D));
    return spec;
}

}  // namespace quindar
