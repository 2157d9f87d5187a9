// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// "Graph Ans." of the Differentiation Utility: the table as a two-dimensional graph of the
// document, one data set per column, named after the function. Drawing it is the window's.

#include <string>

#include "differentiation_run.h"
#include "graph_data.h"
#include "graph_defaults.h"
#include "parser.h"

namespace quindar::calculus {

// "Differentials of %s" with the function's text.
std::string DifferentialsGraphName(const std::string &function);

struct DifferentialsGraph {
    GraphData *graph = nullptr;  // the list's graph of that name, now the current one
    bool created = false;
    // The sets' X values differ from the graph's own functions' points and the chart type
    // can't show that: message 24906, nothing to draw.
    bool refused = false;
};

// Finds or adds the graph in `graphs`, fills its data sets from the table at `precision`, and
// sets its layout. `defaults` gives new graphs their orientation and colours (null: built-in).
DifferentialsGraph BuildDifferentialsGraph(Parser &parser, GraphList &graphs,
                                           const DifferentiationTable &table, int precision,
                                           const GraphDefaults *defaults);

}  // namespace quindar::calculus
