// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the graphs of a document: definitions only; coordinates are checked, not kept.
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "document_file.h"
#include "document_graph_keys.h"
#include "document_messages.h"
#include "graph_colors.h"
#include "profile_snapshot.h"

namespace quindar {

namespace {

constexpr int kHighest3DType = 9999999;

struct AxisText {
    std::string name, low, high, points;
};

// "name(lo,hi,n)" taken apart at the first "(", the commas and the ")".
std::optional<AxisText> split_axis(const std::string &value) {
    const auto open = value.find('(');
    if (open == std::string::npos) return std::nullopt;
    const auto first = value.find(',', open + 1);
    if (first == std::string::npos) return std::nullopt;
    const auto second = value.find(',', first + 1);
    if (second == std::string::npos) return std::nullopt;
    const auto close = value.find(')', second + 1);
    const auto end = close == std::string::npos ? value.size() : close;
    return AxisText{value.substr(0, open), value.substr(open + 1, first - open - 1),
                    value.substr(first + 1, second - first - 1),
                    value.substr(second + 1, end - second - 1)};
}

}  // namespace

bool DocumentFile::ReadGraphs() {
    const std::vector<std::string> keys = snapshot->Keys(kGraphsSection);
    if (keys.empty()) return true;
    if (!Progress("Reading And Defining Graphs", 0)) return false;
    for (const std::string &key : keys) {
        GraphData *graph = content.graphs.add();
        if (graph == nullptr) return false;
        const std::string title = GetString(kGraphsSection, key.c_str(), "");
        graph->SetName(title.empty() ? key.c_str() : title.c_str());
        if (!ReadGraph(*graph, key)) return false;
    }
    content.currentGraph = content.graphs.gethead();
    return true;
}

bool DocumentFile::ReadGraph(GraphData &graph, const std::string &section) {
    const char *name = section.c_str();
    graph.SetHeader(GetString(name, "Header", "").c_str());
    graph.SetFooter(GetString(name, "Footer", "").c_str());
    graph.SetXAxisTitle(GetString(name, "XAxisTitle", "").c_str());
    graph.SetYAxisTitle(GetString(name, "YAxisTitle", "").c_str());
    graph.SetZAxisTitle(GetString(name, "ZAxisTitle", "").c_str());
    if (!ReadGraphFunctions(graph, section)) return false;
    if (graph.GetNumFunctions() > 0 && !ReadAxisVariables(graph, section)) return false;
    if (!ReadDataSets(graph, section)) return false;
    ReadGraphAttributes(graph, section);
    return Progress({}, -1);
}

bool DocumentFile::ReadGraphFunctions(GraphData &graph, const std::string &section) {
    for (int n = 1;; ++n) {
        const std::string number = std::to_string(n);
        // A key without a value ends the list as a missing one does.
        const auto value = snapshot->Value(section, "Function" + number);
        if (!value || value->empty()) break;
        const auto equals = value->find('=');
        const std::string fullName(value->substr(0, equals));
        const std::string body(equals == std::string::npos ? "" : value->substr(equals + 1));
        Function *function = graph.AddFunction(fullName.c_str(), body.c_str());
        const std::string label = GetString(section.c_str(), ("Label" + number).c_str(), "");
        if (function != nullptr && !label.empty()) function->SetFuncLabel(label.c_str());
        if (!Progress({}, -1)) return false;
    }
    return true;
}

bool DocumentFile::ReadAxisVariables(GraphData &graph, const std::string &section) {
    bool failed = false;
    for (const bool xAxis : {true, false}) {
        const std::string value =
            GetString(section.c_str(), xAxis ? "XAxisVariable" : "ZAxisVariable", "");
        if (value.empty()) continue;
        const auto parts = split_axis(value);
        complex low, high, points;
        if (!parts || !Evaluate(parts->low, low) || !Evaluate(parts->high, high) ||
            !Evaluate(parts->points, points)) {
            failed = true;
            continue;
        }
        const Variable axis(parts->name.c_str(), low, high, points_from_value(points.real));
        if (xAxis)
            graph.SetXAxisVar(&axis);
        else
            graph.SetZAxisVar(&axis);
        if (!Progress({}, -1)) return false;
    }
    if (failed) Warn(document_message(kMsgAxisVariables, graph.Name.c_str()), kCaptionFileOpen);
    return true;
}

bool DocumentFile::ReadDataSets(GraphData &graph, const std::string &section) {
    const char *name = section.c_str();
    // A set needs a key of its own, so no count beyond the section's keys can be real; the
    // bound keeps a damaged count from running for ever.
    const int keys = static_cast<int>(snapshot->Keys(section).size());
    const int sets = std::min(GetInt(name, "NumDataSets", 0), keys);
    for (int n = 1; n <= sets; ++n) {
        StrDataPnts *set = graph.DataSets.add();
        if (set == nullptr) return false;
        const std::string number = std::to_string(n);
        const std::string setName = GetString(name, ("DataSet" + number).c_str(), "");
        if (setName.empty()) {
            Warn(document_message(kMsgDataSetName, n, graph.Name.c_str()), kCaptionFileOpen);
            continue;
        }
        set->SetName(setName.c_str());
        set->SetLabel(GetString(name, ("DataLabel" + number).c_str(), "").c_str());
        ReadDataPoints(graph, *set, section);
        if (!Progress({}, -1)) return false;
    }
    return true;
}

void DocumentFile::ReadDataPoints(GraphData &graph, StrDataPnts &set, const std::string &section) {
    const char *name = section.c_str();
    const int keys = static_cast<int>(snapshot->Keys(section).size());
    const int points = std::min(GetInt(name, (set.Name + "NumPts").c_str(), 0), keys);
    const int messages[3] = {kMsgXDataPoint, kMsgYDataPoint, kMsgZDataPoint};
    for (int i = 0; i < points; ++i) {
        const auto texts =
            snapshot->PointFields(name, (set.Name + "Pt" + std::to_string(i)).c_str());
        for (std::size_t c = 0; c < 3; ++c) {
            const char *text = texts[c].c_str();
            complex value;
            if (*text != '\0' && !Evaluate(text, value)) {
                Warn(document_message(messages[c], set.Name.c_str(), i, graph.Name.c_str()),
                     kCaptionFileOpen);
                text = "";
            }
            const char *stored = *text != '\0' ? text : nullptr;
            if (c == 0) set.PutXDataPoint(stored, i);
            if (c == 1) set.PutYDataPoint(stored, i);
            if (c == 2) set.PutZDataPoint(stored);
        }
    }
}

void DocumentFile::ReadGraphAttributes(GraphData &graph, const std::string &section) {
    const char *name = section.c_str();
    const int kind = graph.GetGraphType();
    for (const GraphColorInfo &color : graph_colors()) {
        if (color.kinds == kColorFor2D && kind != kGraph2D) continue;
        if (color.kinds == kColorFor3D && kind != kGraph3D) continue;
        snapshot->Color(name, color.documentKey, color.deflt, graph.*color.field);
    }
    const int type = GetInt(name, "Type", 1);
    if (type != 0 && (kind == kGraph2D || kind == kGraph3D)) {
        // A 3-D type is seven decimal digits of flags; anything else from a file would leave
        // the digit arithmetic on it undefined.
        if (kind == kGraph2D)
            graph.GraphType2D = type;
        else
            graph.GraphType3D = std::clamp(type, 0, kHighest3DType);
        for (const GraphNumberKey &row : kind == kGraph2D ? graph_keys_2d() : graph_keys_3d()) {
            if (row.number != nullptr) {
                graph.*row.number = GetInt(name, row.key, static_cast<int>(row.deflt));
                continue;
            }
            const std::string text = GetString(name, row.key, "");
            graph.*row.real =
                text.empty() ? row.deflt : static_cast<float>(std::atof(text.c_str()));
        }
    }
    graph.ShowGridLines = GetInt(name, kShowGridLinesKey.key, 1);
}

}  // namespace quindar
