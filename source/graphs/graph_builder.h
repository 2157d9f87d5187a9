// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Turns a graph's definition into the numbers of its chart, on the engine of its document.
//
// The axis variables are lent to the engine for the build: a declared variable takes the
// graph's range and gets its own value and range back afterwards, an undeclared one is added
// and removed again, on every way out (success, failure, cancel). Each function is recorded
// once as an equation map, from the last function to the first, so chart set j of a 2-D graph
// is function NumFunctions - 1 - j; data sets follow in list order. A point that fails is a
// hole (kHoleValue) and a line of the Graph Errors list. Progress and Cancel go through the
// engine's compute host; the build holds the document's compute gate while it runs.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "chart_data.h"
#include "graph_data.h"
#include "parser.h"

namespace quindar {

// Where a build reports. A null add_error means there is no Graph Errors list (the Graph
// Setup is closed): lines are then dropped, though the build still counts them as errors.
struct GraphBuildOutput {
    std::function<void(std::string_view line)> add_error;
    // A message box: text and caption.
    std::function<void(std::string_view text, std::string_view caption)> show_message;
    // A sound of the build, such as "Error.wav".
    std::function<void(std::string_view wave)> play_sound;
};

class GraphBuilder {
public:
    GraphBuilder(Parser &parser, GraphData &graph, GraphBuildOutput output = {});
    ~GraphBuilder();
    GraphBuilder(const GraphBuilder &) = delete;
    GraphBuilder &operator=(const GraphBuilder &) = delete;

    // The whole build. True when the data was computed completely; false when the graph has
    // nothing to draw, a function could not be mapped, the build was cancelled, or another
    // computation of the document was running (Refused). Data computed before a cancel or a
    // failure stays readable. With list, a successful build marks the graph of the same name
    // as computed and every other graph of the list as needing its data.
    bool Build(GraphList *list = nullptr);

    // The outcome of the last Build.
    bool Cancelled = false;
    bool BuildErrors = false;
    bool Refused = false;
    // GetGraphType at the start of the build.
    int Kind = kGraphNone;

    int NumFunctions = 0;
    int NumDataSets = 0;
    int NumXPoints = 0;
    int NumZPoints = 0;
    // How many maps the engine held before this build; -1 before the first.
    int EquationBase = -1;
    // Full name of the first function of a 3-D graph, for point labels.
    std::string Function3D;

    // The chart data of the last build: Data2D for a 2-D graph, Data3D for a 3-D one.
    std::optional<ChartData2D> Data2D;
    std::optional<ChartGrid3D> Data3D;

    // The value of a 3-D graph's first function at one grid point, computed afresh from a
    // call text (the maps have gone by then); 0 when it cannot be computed.
    complex GetEqnDataSetValueY(complex x, complex z);
    // The Y text of point `point` of data set `set`, computed; false when there is none.
    bool GetPntDataSetValueY(int set, int point, complex &value);
    // What the label of grid point (ix, iz) of the last 3-D build shows, from the definition:
    // with functions and both axis variables, x and z from the variables' ranges and y the
    // function computed afresh; otherwise the grid's positions and the Y text of point ix of
    // data set iz. False when the graph has neither functions nor data sets.
    bool LabelValues3D(const ChartGrid3D &grid, int ix, int iz, complex &x, complex &y, complex &z);

private:
    bool InitGraph();
    bool SetGraphVariables();
    void SetComLineVariables();
    void CleanUpGraph();
    bool BuildEquationMaps();
    bool Create2DData();
    bool Create3DData();
    bool ComputeValue(const char *text, complex &value);

    void add_error(std::string_view line);
    void report_point_error(const std::string &message);
    void progress(float value);
    bool cancel_requested();
    std::string value_text(complex value);
    Variable *engine_variable(const std::unique_ptr<Variable> &work);

    Parser &parser;
    GraphData &graph;
    GraphBuildOutput output;
    ComputeHost nullHost;
    ComputeHost *host;
    std::unique_ptr<Variable> XAxisVarWork, ZAxisVarWork;
    bool lent = false;
};

// The graph window's caption after a build: "EDITOR : GRAPH" in upper case, or "Graph" when
// the editor has no caption.
std::string graph_window_caption(std::string_view editorCaption, std::string_view graphName);

// The highest occupied X slot of a data set plus one; 0 for none.
int data_set_x_count(const StrDataPnts &set);

}  // namespace quindar
