// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Building the graph of a differentiation table.
#include "differentials_graph.h"

#include <algorithm>

#include "calculus_format.h"

namespace quindar::calculus {

namespace {

// The 2-D types that can draw sets whose X values differ: "Plot", "Line", "Area", "Polar" and
// "Scatter".
constexpr int kFreeXTypes[] = {1, 5, 9, 13, 14};

GraphData *Find(GraphList &graphs, const std::string &name) {
    for (GraphData *graph = graphs.gethead(); graph != nullptr; graph = graph->next)
        if (graph->Name == name) return graph;
    return nullptr;
}

// Layout 2 unless the graph's own functions are sampled at exactly the table's X values.
int DataLayout(Parser &parser, const GraphData &graph, const std::vector<long double> &xs) {
    if (graph.GetNumFunctions() == 0 || !graph.XAxisVar || !graph.XAxisVar->incremented) return 1;
    Variable walk(graph.XAxisVar.get());
    if (static_cast<std::size_t>(walk.num_points) != xs.size()) return 2;
    walk.ResetIncrement();
    for (const long double x : xs) {
        bool chain = true;
        parser._equal(chain, walk.value, complex{static_cast<double>(x), 0.0});
        if (!chain) return 2;
        walk.Increment();
    }
    return 1;
}

}  // namespace

std::string DifferentialsGraphName(const std::string &function) {
    return Format("Differentials of %s", function);
}

DifferentialsGraph BuildDifferentialsGraph(Parser &parser, GraphList &graphs,
                                           const DifferentiationTable &table, int precision,
                                           const GraphDefaults *defaults) {
    DifferentialsGraph built;
    const std::string name = DifferentialsGraphName(table.function);
    GraphData *graph = Find(graphs, name);
    if (graph == nullptr) {
        graph = add_new_graph(graphs, name.c_str(), defaults);
        built.created = true;
        graph->Directory.clear();
        graph->SetHeader("Differentiation Plot");
        graph->SetFooter(name.c_str());
        graph->SetXAxisTitle(table.variable.c_str());
        graph->GraphType2D = 1;
    } else {
        graph->DataSets.flush();
    }
    built.graph = graph;
    const GraphDefaults fallback;
    const GraphDefaults &chosen = defaults ? *defaults : fallback;
    graph->SetDefaultOrientation(chosen);
    graph->SetDefaultColors(chosen);

    const std::vector<long double> &xs = table.columns[kVariableColumn];
    std::string yTitle;
    for (int column = kFunctionColumn; column < kTableColumns; ++column) {
        const std::vector<long double> &values = table.columns[column];
        if (values.empty()) continue;
        const std::string title = ColumnTitle(column, table.variable);
        StrDataPnts *set = graph->DataSets.add();
        if (set == nullptr) break;
        set->SetName(title.c_str());
        set->SetLabel(title.c_str());
        for (std::size_t row = 0; row < values.size() && row < xs.size(); ++row) {
            const int slot = static_cast<int>(row);
            set->PutXDataPoint(AnswerText(parser, xs[row], precision).c_str(), slot);
            set->PutYDataPoint(AnswerText(parser, values[row], precision).c_str(), slot);
            // No Z: a Z text would make every set a row of a three-dimensional graph.
            if (row == 0) set->PutZDataPoint(nullptr);
        }
        yTitle += (yTitle.empty() ? "" : " , ") + title;
    }
    for (int i = 0; i < graph->GetNumFunctions(); ++i)
        if (const Function *function = graph->GetFunction(i)) yTitle += " , " + function->full_name;
    graph->SetYAxisTitle(yTitle.c_str());
    graph->CurDataSet = graph->DataSets.gethead();

    graph->DataLayout = DataLayout(parser, *graph, xs);
    built.refused = graph->DataLayout == 2 &&
                    std::find(std::begin(kFreeXTypes), std::end(kFreeXTypes), graph->GraphType2D) ==
                        std::end(kFreeXTypes);
    if (!built.refused) {
        graph->NeedsAttributes = true;
        graph->NeedsData = true;
    }
    return built;
}

}  // namespace quindar::calculus
