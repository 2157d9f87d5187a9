// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The document is opened as the desktop program opens it (declarations, settings and graphs;
// its text is not computed), and the graph is built on a working copy, as the graph window
// builds it.
#include "cli_graph.h"

#include <cstdio>
#include <iostream>

#include "chart_decisions.h"
#include "cli_document.h"
#include "graph_builder.h"
#include "graph_error_list.h"
#include "graph_file.h"
#include "graph_layout.h"
#include "graph_messages.h"
#include "ini_graph_settings.h"

namespace quindar::cli {

namespace {

constexpr int kUsageError = 2;

int Fail(const std::string &message) {
    std::cerr << "quindar-cli: " << message << '\n';
    return kUsageError;
}

// A double as the output shows it: the hole by name, any other with 15 digits.
std::string Number(double value, double hole) {
    if (value == hole) return "hole";
    char text[40];
    std::snprintf(text, sizeof text, "%.15g", value);
    return text;
}

void Print(const ChartData2D &data) {
    std::string out =
        "2D\t" + std::to_string(data.sets()) + "\t" + std::to_string(data.points()) + "\n";
    for (int s = 0; s < data.sets(); ++s)
        for (int p = 0; p < data.points(); ++p)
            out += std::to_string(s) + "\t" + std::to_string(p) + "\t" +
                   Number(data.x(s, p), data.hole()) + "\t" + Number(data.y(s, p), data.hole()) +
                   "\n";
    std::cout << out;
}

void Print(const ChartGrid3D &grid) {
    std::string out = "3D\t" + std::to_string(grid.nx()) + "\t" + std::to_string(grid.nz()) + "\n";
    for (int ix = 0; ix < grid.nx(); ++ix)
        for (int iz = 0; iz < grid.nz(); ++iz)
            out += std::to_string(ix) + "\t" + std::to_string(iz) + "\t" +
                   Number(grid.x_at(ix), grid.hole()) + "\t" + Number(grid.z_at(iz), grid.hole()) +
                   "\t" + Number(grid.value(ix, iz), grid.hole()) + "\n";
    std::cout << out;
}

GraphData *FindGraph(GraphList &graphs, const std::string &name) {
    for (GraphData *graph = graphs.gethead(); graph != nullptr; graph = graph->next)
        if (graph->Name == name) return graph;
    return nullptr;
}

void ShowBox(std::string_view text) {
    std::cerr << text << '\n';
}

// The chart decisions, with the message of each logarithmic axis the type refuses.
void PrintSpec(GraphData &graph, int kind, int angleMode) {
    if (kind == kGraph3D) {
        std::cout << describe(chart_spec_3d(graph));
        return;
    }
    const ChartSpec2D spec = chart_spec_2d(graph, angleMode);
    for (const int refusal : spec.refusals) ShowBox(graph_message(refusal));
    apply_log_refusals(graph, spec);
    std::cout << describe(spec);
}

int SaveGraph(const std::string &path, const GraphData &graph, const GraphBuilder &builder) {
    const int kind = graph_file_kind(path);
    if (kind == 0) return Fail(std::string(graph_message(kMsgNotAGraphFile)));
    if ((kind == 1 && !builder.Data2D) || (kind == 2 && !builder.Data3D))
        return Fail("\"" + path + "\" is not a graph file of this graph's kind");
    const std::string text = kind == 1
                                 ? graph_file_text(make_graph_file_2d(graph, *builder.Data2D))
                                 : graph_file_text(make_graph_file_3d(graph, *builder.Data3D));
    std::string error;
    if (!save_graph_file(path, text, error)) return Fail(error);
    return 0;
}

}  // namespace

bool TakeGraphOptions(std::vector<std::string> &arguments, GraphOptions &graph,
                      std::string &error) {
    std::vector<std::string> rest;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string &argument = arguments[at];
        if (argument == "--") {
            rest.insert(rest.end(), arguments.begin() + static_cast<long>(at), arguments.end());
            break;
        }
        const bool takesValue = argument == "--graph" || argument == "--save-graph";
        if (takesValue && at + 1 >= arguments.size()) {
            error = "\"" + argument + "\" needs a value";
            return false;
        }
        if (argument == "--graph")
            graph.name = arguments[++at];
        else if (argument == "--save-graph")
            graph.savePath = arguments[++at];
        else if (argument == "--graph-spec")
            graph.spec = true;
        else
            rest.push_back(argument);
    }
    if (!graph.name && (graph.spec || !graph.savePath.empty())) {
        error = std::string(graph.spec ? "--graph-spec" : "--save-graph") + " needs --graph";
        return false;
    }
    arguments = std::move(rest);
    return true;
}

int RunGraph(const GraphOptions &options, const Options &run, Parser &parser) {
    if (run.calculus || run.inPlace || !run.savePath.empty() || run.key != RunKey::F4)
        return Fail("--graph goes with --radians, --graph-spec and --save-graph only");
    const std::string &path = run.path;
    const bool radians = run.radians;
    if (!IsDocumentPath(path)) return Fail("--graph needs a document (DOC.qnd)");
    DocumentContent content;
    std::vector<std::string> messages;
    std::string error;
    const bool loaded = LoadDocument(path, parser, content, messages, error);
    for (const std::string &message : messages) std::cerr << path << ": " << message << '\n';
    if (!loaded) return Fail(error);
    if (radians) parser.angle_mode = 1;
    const GraphData *stored = FindGraph(content.graphs, *options.name);
    if (stored == nullptr) return Fail("no graph named \"" + *options.name + "\" in " + path);

    // The graph window draws the working copy of the current graph.
    GraphData graph(*stored);
    const int kind = graph.GetGraphType();
    if (kind == kGraphNone) {
        std::cerr << "quindar-cli: graph \"" << graph.Name << "\" has nothing to graph\n";
        return 1;
    }
    if (kind == kGraph2D) {
        graph.DataLayout = decide_data_layout(parser, graph);
        if (!layout_allowed(graph, graph.DataLayout)) {
            ShowBox(graph_message(kMsgSharedXOnly));
            return 1;
        }
    }
    if (options.spec) {
        PrintSpec(graph, kind, parser.angle_mode);
        return std::cout.flush() ? 0 : Fail("cannot write standard output");
    }

    GraphErrorList errors;
    GraphBuildOutput output;
    output.add_error = [&errors](std::string_view line) { errors.AddError(line); };
    output.show_message = [](std::string_view text, std::string_view) { ShowBox(text); };
    GraphBuilder builder(parser, graph, output);
    const bool built = builder.Build(&content.graphs);
    // The list as the Graph Setup shows it after the build.
    for (const std::string &line : errors.rows()) std::cerr << line << '\n';
    const bool errorLines = !errors.rows().empty();
    if (builder.Data2D) Print(*builder.Data2D);
    if (builder.Data3D) Print(*builder.Data3D);
    if (!std::cout.flush()) return Fail("cannot write standard output");
    if (!built && !errorLines)
        std::cerr << "quindar-cli: graph \"" << graph.Name << "\" could not be built\n";
    if (!options.savePath.empty() && (builder.Data2D || builder.Data3D)) {
        if (const int status = SaveGraph(options.savePath, graph, builder); status != 0)
            return status;
    } else if (!options.savePath.empty()) {
        std::cerr << "quindar-cli: nothing to save in \"" << options.savePath << "\"\n";
    }
    return built && !errorLines ? 0 : 1;
}

}  // namespace quindar::cli
