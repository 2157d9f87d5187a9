// SPDX-License-Identifier: GPL-3.0-or-later
// The graphs of a document: the "[GRAPHS]" list and one section of keys per graph.
#include <cstdio>
#include <sstream>
#include <string>

#include "document_file.h"
#include "document_graph_keys.h"
#include "graph_colors.h"

namespace quindar {

namespace {

// Axis ranges are stored at the precision of the engine's arithmetic.
constexpr int kRangePrecision = 14;

// The kinds a colour is written for: the shared ones also for a graph of no kind yet.
int color_kinds(const GraphColorInfo &color) {
    if (color.kinds == (kColorFor2D | kColorFor3D)) return kKindNone | kKind2D | kKind3D;
    return color.kinds == kColorFor2D ? kKind2D : kKind3D;
}

std::string number_value(const GraphData &graph, const GraphNumberKey &row) {
    if (row.number != nullptr) return std::to_string(graph.*row.number);
    char text[64];
    std::snprintf(text, sizeof text, "%.3f", static_cast<double>(graph.*row.real));
    return text;
}

// "x(1,10,25)": the name, then low limit, high limit and points.
std::string axis_value(const Variable &variable) {
    std::ostringstream text;
    text << variable.name << '(';
    Variable::StreamVariable(variable.low_limit, text, kRangePrecision);
    text << ',';
    Variable::StreamVariable(variable.high_limit, text, kRangePrecision);
    text << ',' << variable.num_points << ')';
    return text.str();
}

}  // namespace

bool DocumentFile::WriteGraphs() {
    int number = 0;
    for (const GraphData *graph = content.graphs.gethead(); graph != nullptr; graph = graph->next) {
        const std::string section = "Graph" + std::to_string(++number);
        if (!Put(kGraphsSection, section.c_str(), graph->Name)) return false;
        if (!WriteGraph(*graph, section)) return false;
    }
    return true;
}

bool DocumentFile::WriteGraph(const GraphData &graph, const std::string &section) {
    const char *name = section.c_str();
    const int kind = graph.GetGraphType();
    const int kindBit = kind_bit(kind);
    const auto putText = [&](const char *key, const std::string &value) {
        return value.empty() || Put(name, key, value);
    };
    if (!putText("Header", graph.Header) || !putText("Footer", graph.Footer) ||
        !putText("XAxisTitle", graph.XAxisTitle) || !putText("YAxisTitle", graph.YAxisTitle) ||
        !putText("ZAxisTitle", graph.ZAxisTitle))
        return false;
    if (graph.XAxisVar && !Put(name, "XAxisVariable", axis_value(*graph.XAxisVar))) return false;
    if (graph.ZAxisVar && !Put(name, "ZAxisVariable", axis_value(*graph.ZAxisVar))) return false;
    if (kind != kGraphNone &&
        !PutInt(name, "Type", kind == kGraph2D ? graph.GraphType2D : graph.GraphType3D))
        return false;

    const auto colors = graph_colors();
    for (std::size_t i = 0; i < colors.size(); ++i) {
        if (i == kColorsBeforeGridLines &&
            !Put(name, kShowGridLinesKey.key, number_value(graph, kShowGridLinesKey)))
            return false;
        if ((color_kinds(colors[i]) & kindBit) == 0) continue;
        if (!Put(name, colors[i].documentKey, rgb_text(graph.*colors[i].field))) return false;
    }
    for (const auto keys : {graph_keys_2d(), graph_keys_3d()}) {
        for (const GraphNumberKey &row : keys)
            if ((row.kinds & kindBit) != 0 && !Put(name, row.key, number_value(graph, row)))
                return false;
    }

    for (int i = 0; const Function *function = graph.GetFunction(i); ++i) {
        const std::string number = std::to_string(i + 1);
        // The engine's current body if it still has the function, else the graph's copy.
        const char *current = parser.get_func_value(function->full_name.c_str());
        const std::string body = current != nullptr ? current : function->func_value;
        if (!Put(name, ("Function" + number).c_str(), function->full_name + "=" + body))
            return false;
        if (!function->label.empty() && !Put(name, ("Label" + number).c_str(), function->label))
            return false;
    }

    if (graph.DataSets.count() == 0) return true;
    if (!PutInt(name, "NumDataSets", graph.DataSets.count())) return false;
    int setNumber = 0;
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next) {
        const std::string number = std::to_string(++setNumber);
        if (!Put(name, ("DataSet" + number).c_str(), set->Name)) return false;
        if (!set->Label.empty() && !Put(name, ("DataLabel" + number).c_str(), set->Label))
            return false;
        const int last = set->GetMaxXYZPoint();
        if (set->Name.empty() || last < 0) continue;
        if (!PutInt(name, (set->Name + "NumPts").c_str(), last + 1)) return false;
        const char *z = set->GetZDataPoint();
        for (int i = 0; i <= last; ++i) {
            const char *x = set->GetXDataPoint(i);
            const char *y = set->GetYDataPoint(i);
            const std::string point =
                std::string(x ? x : "") + "," + (y ? y : "") + "," + (z ? z : "");
            if (!Put(name, (set->Name + "Pt" + std::to_string(i)).c_str(), point)) return false;
        }
    }
    return true;
}

}  // namespace quindar
