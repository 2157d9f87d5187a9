// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "page_function_rows.h"

#include "function_rows.h"
#include "graph_data.h"
#include "parser.h"

namespace quindar {

namespace {

std::vector<std::string> function_rows(const GraphData &graph, Parser &parser,
                                       bool withUndeclared) {
    std::vector<std::string> rows;
    for (int i = 0; const Function *function = graph.GetFunction(i); ++i) {
        std::string declared = declared_function_row(parser, function->full_name);
        if (!declared.empty())
            rows.push_back(std::move(declared));
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
