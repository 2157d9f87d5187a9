// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "points_check.h"

#include <map>
#include <optional>
#include <string_view>

#include "graph_layout.h"
#include "graph_messages.h"
#include "message_box_rules.h"
#include "points_messages.h"
#include "points_values.h"
#include "setup_pages.h"
#include "setup_ui.h"

namespace quindar {

namespace {

// How the counts of X, Y and Z of a set must agree: the first matching row gives its
// message. Counts are "none" (0), "some" (1) or "either" (-1).
struct CountRule {
    int x, y, z;
    bool countsDiffer;  // and the X and Y counts differ
    int message;
};
constexpr CountRule kCountRules[] = {
    {0, 0, 0, false, kMsgNoPoints},       {1, 0, 0, false, kMsgNoYOrZ},
    {0, 1, 0, false, kMsgNoXOrZ},         {0, 0, 1, false, kMsgNoXOrY},
    {1, 1, 0, true, kMsgXYCountsDiffer},  {1, 0, 1, false, kMsgXZCountsDiffer},
    {0, 1, 1, false, kMsgYZCountsDiffer}, {1, 1, 1, true, kMsgXYZCountsDiffer},
};

bool matches(int rule, bool present) {
    return rule < 0 || (rule == 1) == present;
}

class PointsCheck {
public:
    PointsCheck(GraphData &graph, Parser &parser, SetupUi &ui)
        : graph(graph), parser(parser), values(parser, ui), ui(ui) {}

    bool Run();

private:
    // The message gets exactly the names its text asks for.
    bool Fail(int message) { return Show(message, {}); }
    bool Fail(int message, std::string_view set) { return Show(message, {set}); }
    bool Fail(int message, std::string_view set, std::string_view other) {
        return Show(message, {set, other});
    }
    bool Show(int message, std::initializer_list<std::string_view> names) {
        ui.SelectPage(kPagePoints);
        ui.Message(message, names, kBoxWarning);
        return false;
    }
    bool CheckSet(const StrDataPnts &set, bool surface);
    bool CheckSurface();
    // The value of a present text; false when absent or when it did not evaluate.
    bool Value(const char *text, complex &value) { return text && values.Compute(text, value); }

    GraphData &graph;
    Parser &parser;
    PointValues values;
    SetupUi &ui;
    // Each set's Z as its own check evaluated it, so that a failing one is listed once, not
    // once more for every other set.
    std::map<const StrDataPnts *, std::optional<complex>> zValues;
};

bool PointsCheck::Run() {
    if (graph.DataSets.count() == 0) {
        if (graph.GetNumFunctions() == 0) return Fail(kMsgNothingToGraph);
        return true;
    }
    const bool surface = graph.GetGraphType() == kGraph3D;
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next)
        if (!CheckSet(*set, surface)) return false;
    if (surface) return CheckSurface();
    graph.DataLayout = decide_data_layout(parser, graph);
    if (!layout_allowed(graph, graph.DataLayout)) return Fail(kMsgSharedXOnly);
    return true;
}

bool PointsCheck::CheckSet(const StrDataPnts &set, bool surface) {
    if (const int message = point_count_message(set)) return Fail(message, set.Name);

    complex value;
    const auto imaginary = [&](const char *text) {
        return Value(text, value) && value.imag != 0.0;
    };
    if (Value(set.GetZDataPoint(), value)) {
        if (value.imag != 0.0) return Fail(kMsgImaginaryInSet, set.Name);
        zValues[&set] = value;
    }
    bool havePrevious = false;
    complex previous;
    for (int i = 0; i <= set.GetMaxXYZPoint(); ++i) {
        if (imaginary(set.GetYDataPoint(i))) return Fail(kMsgImaginaryInSet, set.Name);
        const char *x = set.GetXDataPoint(i);
        if (x == nullptr) continue;
        const bool computed = Value(x, value);
        if (computed && value.imag != 0.0) return Fail(kMsgImaginaryInSet, set.Name);
        // A surface can't fold over itself: each X must lie beyond the one before.
        if (surface && computed && havePrevious && !(value.real > previous.real))
            return Fail(kMsgXNotIncreasing, set.Name);
        havePrevious = computed;
        previous = value;
    }
    return true;
}

bool PointsCheck::CheckSurface() {
    if (graph.DataSets.count() == 1 && graph.Get3DTypeBit(5) == 0) return Fail(kMsgOneSurfaceSet);

    // Each set is one row of the surface: every set needs its own Z.
    for (const StrDataPnts *a = graph.DataSets.gethead(); a != nullptr; a = a->next) {
        for (const StrDataPnts *b = graph.DataSets.gethead(); b != nullptr; b = b->next) {
            if (a == b) continue;
            if (a->GetZDataPoint() == nullptr) return Fail(kMsgIncompleteCoordinates, a->Name);
            if (b->GetZDataPoint() == nullptr) return Fail(kMsgIncompleteCoordinates, b->Name);
            const std::optional<complex> &za = zValues[a];
            const std::optional<complex> &zb = zValues[b];
            if (za && zb && za->real == zb->real && za->imag == zb->imag)
                return Fail(kMsgEqualZ, a->Name, b->Name);
        }
    }
    // ... and all rows share one set of X values.
    for (const StrDataPnts *a = graph.DataSets.gethead(); a && a->next; a = a->next) {
        const StrDataPnts *b = a->next;
        for (int i = 0; i <= a->XPoints.maxfullindex(); ++i) {
            const char *xa = a->GetXDataPoint(i);
            const char *xb = b->GetXDataPoint(i);
            if (xa == nullptr) return Fail(kMsgIncompleteCoordinates, a->Name);
            if (xb == nullptr) return Fail(kMsgIncompleteCoordinates, b->Name);
            complex va, vb;
            if (Value(xa, va) && Value(xb, vb) && (va.real != vb.real || va.imag != vb.imag))
                return Fail(kMsgDifferentX, a->Name, b->Name);
        }
    }
    return true;
}

}  // namespace

int point_count_message(const StrDataPnts &set) {
    const int x = set.XPoints.count();
    const int y = set.YPoints.count();
    const bool z = set.GetZDataPoint() != nullptr;
    for (const CountRule &rule : kCountRules) {
        if (matches(rule.x, x > 0) && matches(rule.y, y > 0) && matches(rule.z, z) &&
            (!rule.countsDiffer || x != y))
            return rule.message;
    }
    if (x > 0 && y > 0 && set.XPoints.maxfullindex() != set.YPoints.maxfullindex())
        return kMsgIncompleteCoordinates;
    return 0;
}

bool check_data_points(GraphData &graph, Parser &parser, SetupUi &ui) {
    return PointsCheck(graph, parser, ui).Run();
}

}  // namespace quindar
