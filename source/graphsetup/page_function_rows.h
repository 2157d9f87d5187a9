// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// How the Variables and Labels pages list a graph's functions: a function the Math Editor
// declares as its "name = value" row, any other (embedded, library) by its full name.

#include <string>
#include <vector>

namespace quindar {

class GraphData;
class Parser;

// Every function of the graph, in order.
std::vector<std::string> graph_function_rows(const GraphData &graph, Parser &parser);
// Only the functions the Math Editor declares.
std::vector<std::string> declared_graph_function_rows(const GraphData &graph, Parser &parser);

}  // namespace quindar
