// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "graph_view_commands_3d.h"

namespace quindar {
namespace {

GraphData Turned() {
    GraphData graph("G");
    set_view_3d(graph, {30, 40, 0.5f, 120, 0.25f, -0.25f, 1.5f});
    return graph;
}

TEST(GraphViewCommands3D, OrientationGoesToAndFromTheDefaults) {
    GraphData graph = Turned();
    const View3DValues factory{20, 25, 0.34f, 310, 0, 0, 1};
    EXPECT_EQ(default_view_3d(graph), factory);
    save_default_orientation_3d(graph, view_3d(graph));
    EXPECT_EQ(default_view_3d(graph), (View3DValues{30, 40, 0.5f, 120, 0.25f, -0.25f, 1.5f}));
    EXPECT_EQ(graph.DefaultZRotation, 120);
    set_view_3d(graph, factory);
    set_default_orientation_3d(graph);
    EXPECT_EQ(view_3d(graph), default_view_3d(graph));
    EXPECT_EQ(graph.XRotation, 40);
    EXPECT_EQ(graph.Scale, 1.5f);
}

TEST(GraphViewCommands3D, MarginsStepTheScaleByATenthWithNoFloor) {
    struct Step {
        float shown, delta, scale;
    };
    const Step steps[] = {
        {1.0f, kScaleStep, 1.1f}, {1.0f, -kScaleStep, 0.9f}, {0.05f, -kScaleStep, -0.05f}};
    for (const Step &s : steps) {
        GraphData graph("G");
        step_scale(graph, s.shown, s.delta);
        EXPECT_FLOAT_EQ(graph.Scale, s.scale) << s.shown << " " << s.delta;
        EXPECT_EQ(graph.DefaultScale, 1.0f);
    }
    GraphData graph = Turned();
    save_default_scale(graph, 2.5f);
    EXPECT_EQ(graph.DefaultScale, 2.5f);
    EXPECT_EQ(graph.Scale, 1.5f);
    set_default_scale(graph);
    EXPECT_EQ(graph.Scale, 2.5f);
    EXPECT_EQ(graph.XRotation, 40) << "only the scale";
}

TEST(GraphViewCommands3D, CopyCarriesEveryViewFieldAndTheGrid) {
    GraphData from = Turned();
    save_default_orientation_3d(from, {1, 2, 3, 4, 5, 6, 7});
    from.ShowGridLines = 0;
    GraphData to("G");
    copy_view_fields_3d(from, to);
    EXPECT_EQ(view_3d(to), view_3d(from));
    EXPECT_EQ(default_view_3d(to), (View3DValues{1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(to.ShowGridLines, 0);
}

TEST(GraphViewCommands3D, PerspectiveFacesTheViewer) {
    ChartSpec2D flat;
    flat.depth = 5;
    flat.inclination = 15;
    flat.rotation = 10;
    perspective_view(flat);
    EXPECT_EQ(flat.depth, 20);
    EXPECT_EQ(flat.inclination, 0);
    EXPECT_EQ(flat.rotation, 0);
    ChartSpec3D solid;
    solid.perspectiveDepth = 3;
    solid.scale = 1.5f;
    perspective_view(solid);
    EXPECT_EQ(solid.perspectiveDepth, 20);
    EXPECT_EQ(solid.xRotation, 0);
    EXPECT_EQ(solid.yRotation, 0);
    EXPECT_EQ(solid.zRotation, 0);
    EXPECT_EQ(solid.scale, 1.5f) << "the zoom stays";
}

}  // namespace
}  // namespace quindar
