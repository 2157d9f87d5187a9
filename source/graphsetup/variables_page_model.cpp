// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "variables_page_model.h"

#include <sstream>

#include "axis_variables.h"
#include "graph_data.h"
#include "graph_pages_messages.h"
#include "mathematics.h"
#include "message_box_rules.h"
#include "page_apply.h"
#include "page_function_rows.h"
#include "parser.h"
#include "precform.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

namespace {

struct AxisTextInfo {
    AxisText text;
    int control;
};

constexpr AxisTextInfo kAxisTexts[kAxisTextCount] = {
    {kXName, kControlXAxisVar},   {kXLow, kControlXLowLimit},  {kXHigh, kControlXHighLimit},
    {kXPoints, kControlXPoints},  {kZName, kControlZAxisVar},  {kZLow, kControlZLowLimit},
    {kZHigh, kControlZHighLimit}, {kZPoints, kControlZPoints},
};

bool is_x(AxisText text) {
    return text <= kXPoints;
}
bool is_low(AxisText text) {
    return text == kXLow || text == kZLow;
}
bool is_points(AxisText text) {
    return text == kXPoints || text == kZPoints;
}

std::size_t slot(AxisText text) {
    return static_cast<std::size_t>(text);
}

}  // namespace

int axis_text_control(AxisText text) {
    return kAxisTexts[slot(text)].control;
}

VariablesPageModel::VariablesPageModel(GraphSetupSession &session, SetupUi &ui)
    : SetupPageModel(session, ui) {}

void VariablesPageModel::PrePickXAxisVar() {
    pre_pick_axis_vars(session.temp, session.parser);
}

void VariablesPageModel::UpdatePage() {
    loading = true;
    GraphData &temp = session.temp;
    PrePickXAxisVar();
    functionRows = graph_function_rows(temp, session.parser);

    temp.SetComVarList();
    commonRows.clear();
    axisChoices.clear();
    for (const Variable *v = temp.CommonVars.gettail(); v != nullptr; v = v->prev)
        commonRows.push_back(v->name);
    for (const Variable *v = temp.CommonVars.gethead(); v != nullptr; v = v->next)
        axisChoices.push_back(v->name);
    if (temp.GetNumFunctions() > 0 && temp.CommonVars.count() == 0)
        ui.Message(kMsgNoCommonVariables, {}, kBoxInformation);

    FillAxisTexts();
    SaveOldParams();
    loading = false;
}

void VariablesPageModel::FillAxisTexts() {
    current = {};
    const int precision = static_cast<int>(session.parser.variable_format->precision);
    const auto fill = [&](const Variable *axis, AxisText name) {
        if (axis == nullptr) return;
        const auto limit = [&](complex value) {
            std::ostringstream text;
            session.parser.stream_variable(value, text, precision);
            return text.str();
        };
        current[slot(name)] = axis->name;
        current[slot(name) + 1] = limit(axis->low_limit);
        current[slot(name) + 2] = limit(axis->high_limit);
        current[slot(name) + 3] = std::to_string(axis->num_points);
    };
    fill(session.temp.XAxisVar.get(), kXName);
    fill(session.temp.ZAxisVar.get(), kZName);
}

void VariablesPageModel::AxesChanged(const GraphData &graph) {
    if (&graph != &session.temp) return;
    FillAxisTexts();
    if (axesChanged) axesChanged();
}

void VariablesPageModel::ChooseXAxisVar(const std::string &name) {
    if (name.empty()) return;
    choose_x_axis_var(session.temp, session.parser, name);
    FillAxisTexts();
    if (session.Current() != nullptr) SetPageChanged();
}

void VariablesPageModel::ChooseZAxisVar(const std::string &name) {
    if (name.empty()) return;
    choose_z_axis_var(session.temp, session.parser, name);
    FillAxisTexts();
    if (session.Current() != nullptr) SetPageChanged();
}

void VariablesPageModel::ClearZAxisVar() {
    for (AxisText text : {kZName, kZLow, kZHigh, kZPoints}) current[slot(text)].reset();
    if (!session.temp.ZAxisVar) return;
    session.temp.SetZAxisVar(nullptr);
    session.Mark(ui, true);
}

void VariablesPageModel::SetPageChanged() {
    if (loading) return;
    if (current != saved) session.Mark(ui, true);
}

void VariablesPageModel::TextTyped(AxisText text, const std::string &typed) {
    if (loading) return;
    if (saved[slot(text)] != typed) session.Mark(ui, true);
}

Variable *VariablesPageModel::AxisOf(AxisText text) const {
    return is_x(text) ? session.temp.XAxisVar.get() : session.temp.ZAxisVar.get();
}

bool VariablesPageModel::Evaluate(const std::string &typed, complex &value) {
    Parser &parser = session.parser;
    parser.ClearLastError();
    parser.eval_exp(typed.c_str(), value, false, true);
    return !parser.IsAnError();
}

bool VariablesPageModel::Refuse(AxisText text, const std::optional<std::string> &old,
                                int messageId) {
    if (messageId != 0) ui.Message(messageId, {}, kBoxWarning);
    ui.FocusControl(kPageVariables, axis_text_control(text));
    current[slot(text)] = old;
    if (old) return false;
    // Nothing to go back to: the value is taken down.
    if (Variable *axis = AxisOf(text)) {
        if (is_points(text))
            axis->SetVarNumPoints(0);
        else if (is_low(text))
            axis->SetVarLowLimit(complex{});
        else
            axis->SetVarHiLimit(complex{});
    }
    return false;
}

bool VariablesPageModel::LeaveEdit(AxisText text, const std::string &typed) {
    if (text == kXName || text == kZName) return true;
    if (current[slot(text)] == typed) return true;
    const std::optional<std::string> old = current[slot(text)];
    current[slot(text)] = typed;
    if (!loading && session.Current() != nullptr) SetPageChanged();
    if (typed.empty() && !loading) return Refuse(text, old, kMsgRangeIncomplete);
    if (AxisOf(text) == nullptr) return true;
    return is_points(text) ? LeavePoints(text, typed, old) : LeaveLimit(text, typed, old);
}

bool VariablesPageModel::LeaveLimit(AxisText text, const std::string &typed,
                                    const std::optional<std::string> &old) {
    Variable &axis = *AxisOf(text);
    complex value;
    if (!Evaluate(typed, value)) return Refuse(text, old, 0);
    const bool low = is_low(text);
    const complex opposite = low ? axis.high_limit : axis.low_limit;
    if (value.imag != 0 || opposite.imag != 0) return Refuse(text, old, kMsgLimitsNotReal);
    // Two zero limits are a range not given yet, which the number of points accepts.
    const bool zero = value == complex{};
    if (value == opposite && !zero) return Refuse(text, old, kMsgLimitsEqual);
    // The same value in another spelling ("10.0" for "10") leaves the range as it is.
    const complex held = low ? axis.low_limit : axis.high_limit;
    if (value == held) return true;
    if (low)
        axis.SetVarLowLimit(value);
    else
        axis.SetVarHiLimit(value);
    return true;
}

bool VariablesPageModel::LeavePoints(AxisText text, const std::string &typed,
                                     const std::optional<std::string> &old) {
    Variable &axis = *AxisOf(text);
    complex value;
    if (!Evaluate(typed, value)) return Refuse(text, old, 0);
    if (value.imag != 0 || !Mathematics::is_integer(value.real))
        return Refuse(text, old, kMsgPointsNotInteger);
    if (value.real < 2.0)
        return Refuse(text, old, is_x(text) ? kMsgXPointsBelowTwo : kMsgZPointsBelowTwo);
    const long before = axis.num_points;
    axis.SetVarNumPoints(points_from_value(value.real));
    const bool noRange = axis.low_limit == complex{} && axis.high_limit == complex{};
    if (axis.incremented || noRange) return true;
    axis.SetVarNumPoints(before);
    return Refuse(text, old, kMsgPointsNotAboveZero);
}

void VariablesPageModel::EditVariables(int commonRow) {
    if (commonRows.empty()) return;
    const std::size_t row =
        commonRow >= 0 && static_cast<std::size_t>(commonRow) < commonRows.size()
            ? static_cast<std::size_t>(commonRow)
            : 0;
    ui.EditVariable(commonRows[row]);
    // The manager may have changed values the functions use.
    session.Mark(ui, true);
}

void VariablesPageModel::ApplyChanges() {
    GraphData *current = apply_target(session, session.temp.VariablesVisited);
    if (current == nullptr) return;
    current->SetXAxisVar(session.temp.XAxisVar.get());
    current->SetZAxisVar(session.temp.ZAxisVar.get());
    SaveOldParams();
    page_applied(session, ui, Index(), *current);
}

}  // namespace quindar
