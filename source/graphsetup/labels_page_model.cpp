// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "labels_page_model.h"

#include "graph_data.h"
#include "graph_pages_messages.h"
#include "message_box_rules.h"
#include "page_apply.h"
#include "page_function_rows.h"
#include "setup_session.h"
#include "setup_ui.h"
#include "text_helpers.h"

namespace quindar {

namespace {

// The text up to and including its first "]": a function row's full name.
std::string full_name_of_row(const std::string &row) {
    const std::size_t close = row.find(']');
    return close == std::string::npos ? row : row.substr(0, close + 1);
}

// Where a row's label lives in a graph: a data set found by name ignoring case, else a
// function found by its exact full name.
struct LabelOwner {
    StrDataPnts *set = nullptr;
    Function *function = nullptr;

    std::string Label() const {
        if (set != nullptr) return set->GetLabel();
        if (function != nullptr) return function->label;
        return {};
    }
    void SetLabel(const std::string &text) const {
        if (set != nullptr) set->SetLabel(text.c_str());
        if (function != nullptr) function->SetFuncLabel(text.c_str());
    }
};

LabelOwner find_label_owner(const GraphData &graph, const std::string &row) {
    for (StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next)
        if (text::equal_no_case(set->Name, row)) return {set, nullptr};
    const std::string fullName = full_name_of_row(row);
    for (int i = 0; Function *function = graph.GetFunction(i); ++i)
        if (function->full_name == fullName) return {nullptr, function};
    return {};
}

struct TitleField {
    std::string GraphData::*text;
    void (GraphData::*set)(const char *);
    void (GraphData::*makeDefault)(bool);
};

constexpr TitleField kTitles[] = {
    {&GraphData::XAxisTitle, &GraphData::SetXAxisTitle, &GraphData::SetDefaultXAxisTitle},
    {&GraphData::YAxisTitle, &GraphData::SetYAxisTitle, &GraphData::SetDefaultYAxisTitle},
    {&GraphData::ZAxisTitle, &GraphData::SetZAxisTitle, &GraphData::SetDefaultZAxisTitle},
};

const TitleField &title_field(AxisTitle axis) {
    return kTitles[static_cast<std::size_t>(axis)];
}

}  // namespace

void LabelsPageModel::UpdatePage() {
    GraphData &temp = session.temp;
    rows = declared_graph_function_rows(temp, session.parser);
    for (const StrDataPnts *set = temp.DataSets.gethead(); set != nullptr; set = set->next)
        rows.push_back(set->Name);
    for (const TitleField &title : kTitles)
        if ((temp.*title.text).empty()) (temp.*title.makeDefault)(false);
}

const GraphData &LabelsPageModel::Working() const {
    return session.temp;
}

bool LabelsPageModel::ZTitleEnabled() const {
    return session.temp.GetGraphType() == kGraph3D;
}

const std::string &LabelsPageModel::Title(AxisTitle axis) const {
    return session.temp.*title_field(axis).text;
}

void LabelsPageModel::HeaderTyped(const std::string &text) {
    if (text == session.temp.Header) return;
    session.temp.SetHeader(text.c_str());
    session.Mark(ui, false);
}

void LabelsPageModel::FooterTyped(const std::string &text) {
    if (text == session.temp.Footer) return;
    session.temp.SetFooter(text.c_str());
    session.Mark(ui, false);
}

bool LabelsPageModel::TitleTyped(AxisTitle axis, const std::string &text) {
    if (axis == kTitleZ && !ZTitleEnabled()) return true;
    if (text.empty()) {
        ui.Message(kMsgAxisNeedsTitle, {}, kBoxWarning);
        return false;
    }
    const TitleField &title = title_field(axis);
    if (text == session.temp.*title.text) return true;
    (session.temp.*title.set)(text.c_str());
    session.Mark(ui, false);
    return true;
}

std::string LabelsPageModel::SelectRow(int row) {
    session.temp.LabelSelection = row;
    return SelectedLabel();
}

std::string LabelsPageModel::SelectedLabel() const {
    const int row = session.temp.LabelSelection;
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return {};
    return find_label_owner(session.temp, rows[static_cast<std::size_t>(row)]).Label();
}

void LabelsPageModel::LabelTyped(const std::string &text) {
    const int row = session.temp.LabelSelection;
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size()) return;
    const LabelOwner owner = find_label_owner(session.temp, rows[static_cast<std::size_t>(row)]);
    if (owner.set == nullptr && owner.function == nullptr) return;
    if (text == owner.Label()) return;
    owner.SetLabel(text);
    session.Mark(ui, false);
}

void LabelsPageModel::SetDefaultTitles() {
    GraphData &temp = session.temp;
    temp.SetDefaultFooter(true);
    temp.SetDefaultXAxisTitle(true);
    temp.SetDefaultYAxisTitle(true);
    if (ZTitleEnabled()) temp.SetDefaultZAxisTitle(true);
}

void LabelsPageModel::ApplyChanges() {
    GraphData *current = apply_target(session, session.temp.LabelsVisited);
    if (current == nullptr) return;
    const GraphData &temp = session.temp;
    current->Header = temp.Header;
    current->Footer = temp.Footer;
    current->FooterSet = temp.FooterSet;
    // The titles go with their flags, so that titles the user never wrote stay automatic.
    current->XAxisTitle = temp.XAxisTitle;
    current->YAxisTitle = temp.YAxisTitle;
    current->ZAxisTitle = temp.ZAxisTitle;
    current->XTitleSet = temp.XTitleSet;
    current->YTitleSet = temp.YTitleSet;
    current->ZTitleSet = temp.ZTitleSet;
    for (int i = 0; Function *function = current->GetFunction(i); ++i)
        for (int k = 0; const Function *mine = temp.GetFunction(k); ++k)
            if (mine->full_name == function->full_name) function->SetFuncLabel(mine->label.c_str());
    for (StrDataPnts *set = current->DataSets.gethead(); set != nullptr; set = set->next)
        for (const StrDataPnts *mine = temp.DataSets.gethead(); mine != nullptr; mine = mine->next)
            if (mine->Name == set->Name) set->SetLabel(mine->GetLabel());
    current->LabelSelection = temp.LabelSelection;
    page_applied(session, ui, Index(), *current);
}

}  // namespace quindar
