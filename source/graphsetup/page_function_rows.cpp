// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "page_function_rows.h"

#include "graph_data.h"
#include "parser.h"

namespace quindar {

namespace {

std::vector<std::string> function_rows(const GraphData &graph, Parser &parser,
                                       bool withUndeclared) {
    std::vector<std::string> rows;
    for (int i = 0; const Function *function = graph.GetFunction(i); ++i) {
        const int index = parser.find_function(function->full_name.c_str());
        const char *declared = index >= 0 ? parser.get_func_str(index) : nullptr;
        if (declared != nullptr)
            rows.emplace_back(declared);
        else if (withUndeclared)
            rows.push_back(function->full_name);
    }
    return rows;
}

}  // namespace

std::vector<std::string> graph_function_rows(const GraphData &graph, Parser &parser) {
    return function_rows(graph, parser, true);
}

std::vector<std::string> declared_graph_function_rows(const GraphData &graph, Parser &parser) {
    return function_rows(graph, parser, false);
}

}  // namespace quindar
