// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Data sets added, removed, chosen and renamed, and points inserted, deleted and cleared.
#include <algorithm>

#include "message_box_rules.h"
#include "points_data_sets.h"
#include "points_messages.h"
#include "points_page_model.h"
#include "setup_session.h"
#include "setup_ui.h"
#include "text_helpers.h"

namespace quindar {

bool PointsPageModel::HaveGraph() {
    if (session.Current() != nullptr) return true;
    ui.Message(kMsgNoGraphDefined, {}, kBoxWarning);
    ui.SelectPage(kPageGraphs);
    return false;
}

void PointsPageModel::AddSet(std::string_view comboText) {
    if (!HaveGraph()) return;
    GraphData &temp = Temp();
    // Without sets, only two axis variables make the copy 3-D: a function surface.
    if (temp.DataSets.count() == 0 && temp.XAxisVar && temp.ZAxisVar) {
        ui.Message(kMsgPointsWith3DFunction, {}, kBoxWarning);
        return;
    }
    std::string name(text::trim(comboText));
    if (name.empty() || find_data_set(temp, name) != nullptr) name = new_data_set_name(temp);
    const bool surface = temp.GetGraphType() == kGraph3D;
    temp.CurDataSet = &add_data_set(temp, name, surface);
    UpdatePage();
}

void PointsPageModel::RemoveSet(std::string_view comboText) {
    GraphData &temp = Temp();
    const std::string name(text::trim(comboText));
    if (temp.DataSets.count() == 0) {
        ui.Message(kMsgNoSetsToDelete, {}, kBoxWarning);
        return;
    }
    if (name.empty()) {
        ui.Message(kMsgEnterSetName, {}, kBoxWarning);
        return;
    }
    StrDataPnts *set = find_data_set(temp, name);
    if (set == nullptr) {
        ui.Message(kMsgSetNotDefined, {name}, kBoxWarning);
        return;
    }
    if (set_has_content(*set) &&
        ui.Message(kMsgDeleteSet, {set->Name}, kBoxQuestionYesNo) != kIdYes)
        return;
    StrDataPnts *following = set->prev ? set->prev : set->next;
    temp.DataSets.del(set);
    temp.CurDataSet = following;
    ClearPage();
    currentSet = nullptr;
    if (following != nullptr) LoadDataSet(following);
    DataChanged();
}

void PointsPageModel::ChangeSet(int position) {
    GraphData &temp = Temp();
    StrDataPnts *set = temp.DataSets.gethead();
    for (int i = 0; set != nullptr && i < position; ++i) set = set->next;
    if (set == nullptr || position < 0) return;
    trackChanges = false;
    if (grid.CurrentEdit) GetDataPoint(*grid.CurrentEdit);
    temp.CurDataSet = set;
    ClearPage();
    LoadDataSet(set);
    trackChanges = true;
}

void PointsPageModel::StepSet(int delta) {
    const int position = CurrentSetPosition();
    if (position < 0) return;
    ChangeSet(position + delta);
}

bool PointsPageModel::SetNameUsed(std::string_view name) const {
    return data_set_name_taken(session.temp, name);
}

bool PointsPageModel::RenameCurrentSet(std::string_view name) {
    StrDataPnts *set = CurrentSet();
    if (set == nullptr) return true;
    const std::string newName(text::trim(name));
    if (newName.empty()) {
        ui.Message(kMsgEnterSetName, {}, kBoxWarning);
        return false;
    }
    if (SetNameUsed(newName)) {
        ui.Message(kMsgSetNameUsed, {newName}, kBoxWarning);
        return false;
    }
    set->SetName(newName.c_str());
    ui.PageChanged();
    return true;
}

bool PointsPageModel::HaveSet(bool needRow) {
    if (!HaveGraph()) return false;
    if (CurrentSet() == nullptr) {
        ui.Message(kMsgNoDataSet, {}, kBoxWarning);
        return false;
    }
    if (needRow && !grid.RowSelected()) {
        ui.Message(kMsgNoInsertionPoint, {}, kBoxWarning);
        return false;
    }
    return true;
}

void PointsPageModel::InsertPoint() {
    if (!HaveSet(true)) return;
    StrDataPnts &set = *CurrentSet();
    // The points of a surface's sets stay in step.
    insert_point(Temp(), set, grid.SelectedPoint(), set.GetZDataPoint() != nullptr);
    FillCells();
    DataChanged();
}

void PointsPageModel::DeletePoint() {
    if (!HaveSet(true)) return;
    StrDataPnts &set = *CurrentSet();
    const int index = grid.SelectedPoint();
    delete_point(Temp(), set, index, set.GetZDataPoint() != nullptr);
    if (std::max(set.XPoints.maxfullindex(), set.YPoints.maxfullindex()) < index)
        grid.FocusOn = false;
    FillCells();
    DataChanged();
}

void PointsPageModel::ClearPoints() {
    if (!HaveSet(false)) return;
    StrDataPnts &set = *CurrentSet();
    if (ui.Message(kMsgClearSet, {set.Name}, kBoxQuestionYesNoCancel) != kIdYes) return;
    // The set's Z stays: it is still one row of its surface.
    set.XPoints.flush();
    set.YPoints.flush();
    ClearPage();
    FillCells();
    DataChanged();
}

}  // namespace quindar
