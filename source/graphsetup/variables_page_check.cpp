// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Variables page's check of a function graph before it is drawn.
#include <string>

#include "axis_variables.h"
#include "graph_data.h"
#include "graph_pages_messages.h"
#include "message_box_rules.h"
#include "parser.h"
#include "setup_session.h"
#include "setup_ui.h"
#include "variables_page_model.h"

namespace quindar {

namespace {

struct AxisCheck {
    int limitsEqual, tooFewPoints, noPoints;
    int highControl, pointsControl;
};

constexpr AxisCheck kXCheck{kMsgXLimitsEqual, kMsgXTooFewPoints, kMsgNoXAxisPoints,
                            kControlXHighLimit, kControlXPoints};
constexpr AxisCheck kZCheck{kMsgZLimitsEqual, kMsgZTooFewPoints, kMsgNoZAxisPoints,
                            kControlZHighLimit, kControlZPoints};

}  // namespace

bool VariablesPageModel::CheckAxis(Variable &axis, bool isX) {
    const AxisCheck &check = isX ? kXCheck : kZCheck;
    const auto fail = [&](int messageId, int control) {
        ui.SelectPage(kPageVariables);
        ui.Message(messageId, {}, kBoxWarning);
        if (control != 0) ui.FocusControl(kPageVariables, control);
        return false;
    };
    if (axis.low_limit.real == axis.high_limit.real)
        return fail(check.limitsEqual, check.highControl);
    if (axis.num_points < 2) return fail(check.tooFewPoints, check.pointsControl);
    if (!axis.incremented) return fail(check.noPoints, 0);
    return true;
}

bool VariablesPageModel::CheckUndeclaredVariables(GraphData &graph) {
    Parser &parser = session.parser;
    const auto onAxis = [&graph](const std::string &name) {
        return (graph.XAxisVar && graph.XAxisVar->name == name) ||
               (graph.ZAxisVar && graph.ZAxisVar->name == name);
    };
    for (int i = 0; Function *function = graph.GetFunction(i); ++i) {
        for (const char *name = function->GetFuncVariable(true); name != nullptr && *name != '\0';
             name = function->GetFuncVariable(false)) {
            const std::string variable = name;
            if (onAxis(variable) || parser.is_variable(variable.c_str())) continue;
            const std::string fullName = function->full_name;
            ui.Message(kMsgUndeclaredVariable, {fullName, variable}, kBoxWarning);
            ui.EditVariable(variable);
            if (parser.is_variable(variable.c_str())) {
                session.Mark(ui, true);
                continue;
            }
            // Still without a value: the user is shown the way of putting it on an axis.
            ui.SelectPage(kPageVariables);
            if (const Variable *first = graph.CommonVars.gethead()) {
                ChooseZAxisVar(first->name);
                AxesChanged(graph);
            }
            ui.FocusControl(kPageVariables, kControlZHighLimit);
            return false;
        }
    }
    return true;
}

bool VariablesPageModel::CheckData(GraphData &graph) {
    if (graph.GetNumFunctions() == 0) return true;

    if (!graph.XAxisVar && !graph.ZAxisVar) {
        const int answer = ui.Message(kMsgNoAxisVariables, {}, kBoxQuestionYesNoCancel);
        if (answer == kIdNo) {
            ui.SelectPage(kPageVariables);
            return false;
        }
        if (answer != kIdYes) return false;
        pre_pick_axis_vars(graph, session.parser);
        ApplyChanges();
        AxesChanged(graph);
    }

    const bool xTurned = graph.XAxisVar && order_axis_limits(*graph.XAxisVar);
    const bool zTurned = graph.ZAxisVar && order_axis_limits(*graph.ZAxisVar);
    if (xTurned || zTurned) AxesChanged(graph);
    if (graph.XAxisVar && !CheckAxis(*graph.XAxisVar, true)) return false;
    if (graph.ZAxisVar && !CheckAxis(*graph.ZAxisVar, false)) return false;

    if (graph.GetGraphType() == kGraph3D &&
        graph.GetNumXAxisPoints() * graph.GetNumZAxisPoints() > kLargeGridPoints &&
        ui.Message(kMsgTooManyPoints, {}, kBoxWarningYesNo) != kIdYes) {
        ui.SelectPage(kPageVariables);
        return false;
    }

    constexpr int kPieType = 3;
    if (graph.GetGraphType() == kGraph2D && graph.GraphType2D == kPieType) {
        const long points = graph.XAxisVar ? graph.GetNumXAxisPoints() : graph.GetNumZAxisPoints();
        if (points > kPieMaximumPoints) {
            ui.SelectPage(kPageVariables);
            ui.Message(kMsgPieTooManyPoints, {std::to_string(kPieMaximumPoints)}, kBoxWarning);
            return false;
        }
    }

    return CheckUndeclaredVariables(graph);
}

}  // namespace quindar
