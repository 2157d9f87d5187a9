// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_layout.h"

#include <vector>

#include "graph_builder.h"
#include "graph_types.h"

namespace quindar {

namespace {

// The X values of a set, as far as they compute; false at the first that does not.
bool x_values(Parser &parser, const StrDataPnts &set, std::vector<complex> &values) {
    values.clear();
    for (int i = 0; i < data_set_x_count(set); ++i) {
        const char *text = set.GetXDataPoint(i);
        complex value;
        if (text == nullptr) return false;
        parser.eval_exp(text, value, true, false);
        if (parser.IsAnError()) {
            parser.ClearLastError();
            return false;
        }
        values.push_back(value);
    }
    return true;
}

bool equal(Parser &parser, const complex &a, const complex &b) {
    bool chain = true;
    parser._equal(chain, a, b);
    return chain;
}

}  // namespace

int decide_data_layout(Parser &parser, const GraphData &graph) {
    const StrDataPnts *first = graph.DataSets.gethead();
    if (first == nullptr) return 1;
    const int firstCount = data_set_x_count(*first);
    for (const StrDataPnts *set = first->next; set != nullptr; set = set->next)
        if (data_set_x_count(*set) != firstCount) return 2;

    std::vector<complex> values;
    if (graph.GetNumFunctions() > 0 && graph.XAxisVar && graph.XAxisVar->incremented) {
        if (graph.XAxisVar->num_points != firstCount) return 2;
        for (const StrDataPnts *set = first; set != nullptr; set = set->next) {
            if (!x_values(parser, *set, values)) return 2;
            Variable step(graph.XAxisVar.get());
            step.ResetIncrement();
            for (const complex &x : values) {
                if (!equal(parser, x, step.value)) return 2;
                step.Increment();
            }
        }
    }
    std::vector<complex> firstValues;
    if (first->next != nullptr && !x_values(parser, *first, firstValues)) return 2;
    for (const StrDataPnts *set = first->next; set != nullptr; set = set->next) {
        if (!x_values(parser, *set, values) || values.size() != firstValues.size()) return 2;
        for (std::size_t i = 0; i < values.size(); ++i)
            if (!equal(parser, values[i], firstValues[i])) return 2;
    }
    return 1;
}

bool layout_allowed(const GraphData &graph, int layout) {
    if (layout != 2) return true;
    const GraphType2DInfo *type = find_graph_type_2d(graph.GraphType2D);
    return type != nullptr && type->ownXPerSet;
}

}  // namespace quindar
