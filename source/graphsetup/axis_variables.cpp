// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "axis_variables.h"

#include <utility>

#include "graph_data.h"
#include "parser.h"

namespace quindar {

namespace {

// A variable offered for an axis before the user gives it a range.
constexpr double kNewAxisLow = 1.0;
constexpr double kNewAxisHigh = 10.0;
constexpr long kNewAxisPoints = 25;

// The axes swap places; a title the user wrote moves with its variable, an automatic one is
// made afresh for the axis it lands on.
void swap_axes(GraphData &graph) {
    std::unique_ptr<Variable> oldX = std::move(graph.XAxisVar);
    std::unique_ptr<Variable> oldZ = std::move(graph.ZAxisVar);
    const std::string xTitle = graph.XAxisTitle;
    const std::string zTitle = graph.ZAxisTitle;
    const bool xSet = graph.XTitleSet;
    const bool zSet = graph.ZTitleSet;
    graph.XTitleSet = zSet;
    graph.ZTitleSet = xSet;
    if (zSet) graph.XAxisTitle = zTitle;
    if (xSet) graph.ZAxisTitle = xTitle;
    graph.SetXAxisVar(oldZ.get());
    graph.SetZAxisVar(oldX.get());
    if (!zSet) graph.SetDefaultXAxisTitle(true);
    if (!xSet) graph.SetDefaultZAxisTitle(true);
}

// The first common variable, counted from the tail, whose name is not `name`.
const Variable *other_common_var(const GraphData &graph, const std::string &name) {
    for (const Variable *v = graph.CommonVars.gettail(); v != nullptr; v = v->prev)
        if (v->name != name) return v;
    return nullptr;
}

}  // namespace

Variable axis_candidate(Parser &parser, const std::string &name) {
    const int index = parser.find_variable(name.c_str());
    if (index >= 0 && parser.var_incremented(index)) return Variable(parser.variables[index]);
    return Variable(name.c_str(), complex{kNewAxisLow, 0}, complex{kNewAxisHigh, 0},
                    kNewAxisPoints);
}

void pre_pick_axis_vars(GraphData &graph, Parser &parser) {
    graph.VariablesVisited = true;
    if (graph.XAxisVar) return;
    graph.SetComVarList();
    const Variable *tail = graph.CommonVars.gettail();
    if (graph.GetNumFunctions() == 0 || tail == nullptr) return;
    const Variable x = axis_candidate(parser, tail->name);
    graph.SetXAxisVar(&x);
    if (graph.CommonVars.count() == 2 && tail->prev != nullptr) {
        const Variable z = axis_candidate(parser, tail->prev->name);
        graph.SetZAxisVar(&z);
    }
}

void choose_x_axis_var(GraphData &graph, Parser &parser, const std::string &name) {
    if (name.empty()) return;
    if (graph.XAxisVar && graph.XAxisVar->name == name) return;
    if (graph.ZAxisVar && graph.ZAxisVar->name == name) {
        swap_axes(graph);
        return;
    }
    const Variable x = axis_candidate(parser, name);
    graph.SetXAxisVar(&x);
    graph.SetDefaultXAxisTitle(true);
}

void choose_z_axis_var(GraphData &graph, Parser &parser, const std::string &name) {
    if (name.empty()) return;
    if (graph.ZAxisVar && graph.ZAxisVar->name == name) return;
    if (graph.XAxisVar && graph.XAxisVar->name == name) {
        if (graph.ZAxisVar) {
            swap_axes(graph);
            return;
        }
        // Z was empty: X moves up to Z and makes room for the next common variable.
        const Variable moved(graph.XAxisVar.get());
        graph.SetZAxisVar(&moved);
        graph.SetDefaultZAxisTitle(false);
        if (const Variable *other = other_common_var(graph, name)) {
            const Variable x = axis_candidate(parser, other->name);
            graph.SetXAxisVar(&x);
        } else {
            graph.SetXAxisVar(nullptr);
        }
        graph.SetDefaultXAxisTitle(false);
        return;
    }
    const Variable z = axis_candidate(parser, name);
    graph.SetZAxisVar(&z);
    graph.SetDefaultZAxisTitle(true);
}

bool order_axis_limits(Variable &variable) {
    if (!(variable.high_limit.real < variable.low_limit.real)) return false;
    std::swap(variable.low_limit, variable.high_limit);
    // Recomputes the step and starts the variable at its new low limit.
    variable.SetVarNumPoints(variable.num_points);
    return true;
}

}  // namespace quindar
