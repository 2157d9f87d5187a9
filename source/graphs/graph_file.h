// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Graph files: one drawn graph, its computed values and its looks, without the definitions
// that produced it. ".g2d" holds a 2-D graph, ".g3d" a 3-D one. The file is a data block of
// our own first (no line of it starts with "[" or holds "="), then one settings section named
// after the chart, whose keys are those every version of the program has read and written.

#include <array>
#include <string>
#include <vector>

#include "chart_data.h"
#include "chart_decisions.h"
#include "graph_defaults.h"

namespace quindar {

// Texts read back from a graph file are cut to this many characters.
inline constexpr std::size_t kGraphFileTextLimit = 127;

// The texts every graph file has: the section's name (the chart's), header, footer and the
// titles of the chart's X and Y axes.
struct GraphFileTitles {
    std::string name, header, footer, xTitle, yTitle;
};

struct GraphFile2D : GraphFileTitles {
    ChartData2D data{1, 0, 0};
    // The stored type (Scatter and Line keep their own numbers).
    int type = 0;
    int defaultDepth = 20, depth = 20;
    int defaultInclination = 15, inclination = 15;
    int defaultRotation = 10, rotation = 10;
    // Bottom, top, left, right.
    std::array<int, 4> defaultMargins{}, margins{};
    // The twelve colours of a 2-D chart, with their keys.
    std::vector<ChartColor> colors;
    // One per set of the data; an empty label is not written.
    std::vector<std::string> setLabels;
    // Read when a file is opened, never written.
    int xLogarithmic = 0, yLogarithmic = 0, showGridLines = 1;
};

// The seven view values: perspective depth, X, Y and Z rotation, X and Y translation, scale.
inline constexpr std::array<float, 7> kDefaultView3D{20.0f, 25.0f, 0.34f, 310.0f, 0.0f, 0.0f, 1.0f};

struct GraphFile3D : GraphFileTitles {
    ChartGrid3D grid = ChartGrid3D::irregular(0, 0, kHoleValue);
    // The chart's own axis titles are X, Y (the graph's Z) and Z (the graph's Y).
    std::string zTitle;
    int mesh = 0, shade = 0, contour = 0, zone = 0, hidden = 0;
    int projectZMin = 0, projectZMax = 0;
    // 1 means bars.
    int surface = 0;
    std::array<float, 7> view = kDefaultView3D;
    std::array<float, 7> defaultView = kDefaultView3D;
    // The fifteen colours of a 3-D chart, with their keys.
    std::vector<ChartColor> colors;
    // Read when a file is opened, never written.
    int showGridLines = 1;
};

// What a built graph writes: its data, and its looks as the chart shows them.
GraphFile2D make_graph_file_2d(const GraphData &graph, const ChartData2D &data);
GraphFile3D make_graph_file_3d(const GraphData &graph, const ChartGrid3D &grid);

// Which kind a path names, by ".G2D" or ".G3D" anywhere in it, whatever the case: 1 and 2,
// or 0 for neither (message 25104 with caption 25105).
int graph_file_kind(const std::string &path);

// The whole file as text.
std::string graph_file_text(const GraphFile2D &file);
std::string graph_file_text(const GraphFile3D &file);

// Reads a file's text. Colours missing from the section take the user's defaults. False
// with the reason in error when the data block cannot be read (a truncated or foreign file).
bool parse_graph_file(const std::string &text, const GraphDefaults &defaults, GraphFile2D &file,
                      std::string &error);
bool parse_graph_file(const std::string &text, const GraphDefaults &defaults, GraphFile3D &file,
                      std::string &error);

// The chart decisions of a graph opened from a file: everything comes from the file, the
// logarithmic axes as they were saved and every margin as a value, 0 included.
ChartSpec2D chart_spec_2d(const GraphFile2D &file, int angleMode);
ChartSpec3D chart_spec_3d(const GraphFile3D &file);

// The file on disk, written through a temporary file beside it; false with the reason.
bool save_graph_file(const std::string &path, const std::string &text, std::string &error);
bool load_graph_file_text(const std::string &path, std::string &text, std::string &error);

}  // namespace quindar
