// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the colour table. "GraphForegrond" is the settled spelling of two keys.
#include "graph_colors.h"

#include <array>

namespace quindar {

namespace {

constexpr int kBoth = kColorFor2D | kColorFor3D;

const std::array<GraphColorInfo, 16> kColors{{
    {&GraphData::BackgroundColor, "Background", "BackgroundColor", {64, 128, 128}, kBoth},
    {&GraphData::ForegroundColor, "Foreground", "ForegroundColor", {0, 0, 0}, kBoth},
    {&GraphData::DataAreaBackgroundColor,
     "DataAreaBackground",
     "DataAreaBackgroundColor",
     {128, 255, 255},
     kBoth},
    {&GraphData::DataAreaForegroundColor,
     "DataAreaForeground",
     "DataAreaForegroundColor",
     {0, 0, 0},
     kColorFor2D},
    {&GraphData::FooterBackgroundColor,
     "FooterBackground",
     "FooterBackgroundColor",
     {0, 0, 0},
     kBoth},
    {&GraphData::FooterForegroundColor,
     "FooterForeground",
     "FooterForegroundColor",
     {0, 0, 0},
     kBoth},
    {&GraphData::GraphBackgroundColor, "GraphBackground", "GraphBackgroundColor", {0, 0, 0}, kBoth},
    {&GraphData::GraphForegroundColor,
     "GraphForegrond",
     "GraphForegrondColor",
     {255, 255, 255},
     kBoth},
    {&GraphData::HeaderBackgroundColor,
     "HeaderBackground",
     "HeaderBackgroundColor",
     {0, 0, 0},
     kBoth},
    {&GraphData::HeaderForegroundColor,
     "HeaderForeground",
     "HeaderForegroundColor",
     {255, 255, 255},
     kBoth},
    {&GraphData::LegendBackgroundColor,
     "LegendBackground",
     "LegendBackgroundColor",
     {255, 255, 255},
     kBoth},
    {&GraphData::LegendForegroundColor,
     "LegendForeground",
     "LegendForegroundColor",
     {0, 0, 0},
     kBoth},
    {&GraphData::MeshBottomColor, "MeshBottom", "MeshBottomColor", {0, 0, 0}, kColorFor3D},
    {&GraphData::MeshTopColor, "MeshTop", "MeshTopColor", {0, 0, 0}, kColorFor3D},
    {&GraphData::SurfaceBottomColor, "SurfaceBottom", "SurfaceBottomColor", {0, 0, 0}, kColorFor3D},
    {&GraphData::SurfaceTopColor, "SurfaceTop", "SurfaceTopColor", {255, 255, 255}, kColorFor3D},
}};

}  // namespace

std::span<const GraphColorInfo> graph_colors() {
    return kColors;
}

}  // namespace quindar
