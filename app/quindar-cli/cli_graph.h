// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A graph of a document computed on the command line: --graph NAME prints its chart data,
// --graph-spec the chart decisions, --save-graph writes it as a graph file.

#include <optional>
#include <string>
#include <vector>

#include "cli_options.h"
#include "parser.h"

namespace quindar::cli {

struct GraphOptions {
    std::optional<std::string> name;  // --graph
    std::string savePath;             // --save-graph
    bool spec = false;                // --graph-spec
};

// Takes the graph options out of arguments, leaving the others in order. False with the
// reason in error when one lacks its value or stands without --graph.
bool TakeGraphOptions(std::vector<std::string> &arguments, GraphOptions &graph, std::string &error);

// Builds the graph of the document named in options and prints it. Returns the exit status:
// 0 built with no error line, 1 failed or wrote error lines, 2 a usage or file error.
int RunGraph(const GraphOptions &graph, const Options &options, Parser &parser);

}  // namespace quindar::cli
