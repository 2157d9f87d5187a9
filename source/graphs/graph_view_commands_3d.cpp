// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_view_commands_3d.h"

#include <cstddef>

namespace quindar {
namespace {

struct ViewField {
    float GraphData::*current;
    float GraphData::*byDefault;
};

constexpr ViewField kViewFields[7] = {
    {&GraphData::PerspectiveDepth, &GraphData::DefaultPerspectiveDepth},
    {&GraphData::XRotation, &GraphData::DefaultXRotation},
    {&GraphData::YRotation, &GraphData::DefaultYRotation},
    {&GraphData::ZRotation, &GraphData::DefaultZRotation},
    {&GraphData::XTranslate, &GraphData::DefaultXTranslate},
    {&GraphData::YTranslate, &GraphData::DefaultYTranslate},
    {&GraphData::Scale, &GraphData::DefaultScale},
};

constexpr int kPerspectiveDepth = 20;
constexpr int kPerspectiveInclination = 0;
constexpr int kPerspectiveRotation = 0;

}  // namespace

View3DValues view_3d(const GraphData &graph) {
    View3DValues view{};
    for (std::size_t i = 0; i < view.size(); ++i) view[i] = graph.*kViewFields[i].current;
    return view;
}

View3DValues default_view_3d(const GraphData &graph) {
    View3DValues view{};
    for (std::size_t i = 0; i < view.size(); ++i) view[i] = graph.*kViewFields[i].byDefault;
    return view;
}

void set_view_3d(GraphData &graph, const View3DValues &view) {
    for (std::size_t i = 0; i < view.size(); ++i) graph.*kViewFields[i].current = view[i];
}

void set_default_orientation_3d(GraphData &graph) {
    set_view_3d(graph, default_view_3d(graph));
}

void save_default_orientation_3d(GraphData &graph, const View3DValues &shown) {
    for (std::size_t i = 0; i < shown.size(); ++i) graph.*kViewFields[i].byDefault = shown[i];
}

void step_scale(GraphData &graph, float shown, float delta) {
    graph.Scale = shown + delta;
}

void set_default_scale(GraphData &graph) {
    graph.Scale = graph.DefaultScale;
}

void save_default_scale(GraphData &graph, float shown) {
    graph.DefaultScale = shown;
}

void copy_view_fields_3d(const GraphData &from, GraphData &to) {
    for (const ViewField &field : kViewFields) {
        to.*field.current = from.*field.current;
        to.*field.byDefault = from.*field.byDefault;
    }
    to.ShowGridLines = from.ShowGridLines;
}

void perspective_view(ChartSpec2D &spec) {
    spec.depth = kPerspectiveDepth;
    spec.inclination = kPerspectiveInclination;
    spec.rotation = kPerspectiveRotation;
}

void perspective_view(ChartSpec3D &spec) {
    spec.perspectiveDepth = kPerspectiveDepth;
    spec.xRotation = spec.yRotation = spec.zRotation = 0.0f;
}

}  // namespace quindar
