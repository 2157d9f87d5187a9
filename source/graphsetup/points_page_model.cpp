// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The page's life, its grid of cells, the focus rules and scrolling.
#include "points_page_model.h"

#include <algorithm>

#include "message_box_rules.h"
#include "points_check.h"
#include "points_data_sets.h"
#include "points_messages.h"
#include "setup_session.h"
#include "setup_ui.h"
#include "text_helpers.h"

namespace quindar {

PointsPageModel::PointsPageModel(GraphSetupSession &session, SetupUi &ui)
    : SetupPageModel(session, ui), values(session.parser, ui) {}

GraphData &PointsPageModel::Temp() {
    return session.temp;
}

void PointsPageModel::SetActive() {
    SetupPageModel::SetActive();
    UpdatePage();
}

bool PointsPageModel::UpdatePage() {
    GraphData &temp = Temp();
    bool refilled = false;
    if (temp.CurDataSet == nullptr) {
        ClearPage();
        currentSet = nullptr;
        refilled = true;
    } else if (temp.ReloadPoints || temp.CurDataSet != currentSet) {
        ClearPage();
        LoadDataSet(temp.CurDataSet);
        temp.ReloadPoints = false;
        refilled = true;
    }
    pageReady = true;
    return refilled;
}

StrDataPnts *PointsPageModel::CurrentSet() const {
    // The working copy may have been refilled since: only a set it still holds counts.
    if (currentSet == nullptr || data_set_position(session.temp, currentSet) < 0) return nullptr;
    return currentSet;
}

void PointsPageModel::ClearPage() {
    grid.Reset();
    grid.ClearErrors();
    for (std::string &text : cells) text.clear();
}

void PointsPageModel::LoadDataSet(StrDataPnts *set) {
    currentSet = set;
    FillCells();
}

std::string &PointsPageModel::Cell(PointCell cell) {
    return cells[static_cast<std::size_t>(grid_cell_order(cell))];
}

const std::string &PointsPageModel::CellText(PointCell cell) const {
    return cells[static_cast<std::size_t>(grid_cell_order(cell))];
}

const char *PointsPageModel::StoredText(PointCell cell) const {
    const StrDataPnts *set = CurrentSet();
    if (set == nullptr) return nullptr;
    const int index = grid.PointIndex(cell.row);
    switch (cell.column) {
        case PointColumn::X:
            return set->GetXDataPoint(index);
        case PointColumn::Y:
            return set->GetYDataPoint(index);
        case PointColumn::Z:
            return set->GetZDataPoint();
    }
    return nullptr;
}

void PointsPageModel::FillCells() {
    trackChanges = false;
    for (const GridCellRecord &record : kGridCellOrder) {
        const char *text = StoredText(record.cell);
        Cell(record.cell) = text ? text : "";
    }
    trackChanges = true;
}

void PointsPageModel::DataChanged() {
    if (session.Current() == nullptr) {
        ui.PageChanged();
        return;
    }
    session.GraphsChanged();
    session.Mark(ui, true);
}

void PointsPageModel::EditText(PointCell cell, std::string_view text) {
    Cell(cell) = std::string(text);
    if (!pageReady || !trackChanges) return;
    const char *stored = StoredText(cell);
    if (text != std::string_view(stored ? stored : "")) DataChanged();
}

void PointsPageModel::Store(PointCell cell, const char *text) {
    StrDataPnts &set = *CurrentSet();
    const int index = grid.PointIndex(cell.row);
    switch (cell.column) {
        case PointColumn::X:
            // All sets of a surface share their X values.
            put_x_point(Temp(), set, text, index);
            break;
        case PointColumn::Y:
            set.PutYDataPoint(text, index);
            break;
        case PointColumn::Z:
            set.PutZDataPoint(text);
            break;
    }
}

bool PointsPageModel::GetDataPoint(PointCell cell) {
    if (Temp().CurDataSet == nullptr || CurrentSet() == nullptr) return true;
    const std::string text(text::trim_left(CellText(cell)));
    bool refused = false;
    if (!text.empty()) {
        complex value;
        if (!values.Enter(text.c_str(), value)) {
            ui.SelectPage(kPagePoints);
            refused = true;
        } else if (value.imag != 0.0) {
            ui.Message(kMsgNotReal, {}, kBoxWarning);
            refused = true;
        }
    }
    if (!refused) {
        const char *stored = StoredText(cell);
        if (text.empty() && stored != nullptr) {
            Store(cell, nullptr);
            DataChanged();
        } else if (!text.empty() && (stored == nullptr || text != stored)) {
            Store(cell, text.c_str());
            DataChanged();
        }
        if (!text.empty()) Cell(cell) = text;
    }
    grid.SetError(cell, refused);
    if (grid.AnyError()) focusRequest = grid.FirstError();
    return !refused;
}

void PointsPageModel::EnterCell(PointCell cell) {
    inDataControl = true;
    if (grid.AnyError()) {
        const std::optional<PointCell> first = grid.FirstError();
        grid.CurrentEdit = first;
        grid.ClearErrors();
        if (first != cell) focusRequest = first;
        return;
    }
    grid.CurrentEdit = cell;
}

void PointsPageModel::LeaveCell(PointCell cell) {
    if (!grid.AnyError()) GetDataPoint(cell);
    inDataControl = false;
}

std::optional<PointCell> PointsPageModel::TakeFocusRequest() {
    std::optional<PointCell> request = focusRequest;
    focusRequest.reset();
    return request;
}

bool PointsPageModel::LeavePage() {
    if (!grid.AnyError() && (!grid.CurrentEdit || GetDataPoint(*grid.CurrentEdit))) return true;
    focusRequest = grid.FirstError();
    return false;
}

bool PointsPageModel::ScrollBy(int delta) {
    if (grid.CurrentEdit && !GetDataPoint(*grid.CurrentEdit)) return false;
    grid.Scroll(delta);
    FillCells();
    return true;
}

bool PointsPageModel::PointsUpDown(int delta) {
    return ScrollBy(delta);
}

void PointsPageModel::First() {
    if (grid.AnyError()) return;
    ScrollBy(-grid.TopPoint);
}

void PointsPageModel::Last() {
    const int count = PointCount();
    if (grid.AnyError() || count <= kGridRows - 1) return;
    // The last point stands on row 4, so that row 5 is free for the next one.
    ScrollBy(count - (kGridRows - 1) - grid.TopPoint);
}

void PointsPageModel::Key(GridKey key) {
    if (!grid.CurrentEdit) return;
    const PointCell from = *grid.CurrentEdit;
    const GridMove move = grid_key_move(from, key);
    if (!move.moves) return;
    if (move.scroll == 0) {
        focusRequest = move.target;
        return;
    }
    const int top = grid.TopPoint;
    if (!ScrollBy(move.scroll)) return;
    // Left from X1 reaches Z only when the grid really went back a point.
    if (grid.TopPoint != top && move.target != from) focusRequest = move.target;
}

void PointsPageModel::ClickRow(int row) {
    grid.ClickRow(row);
}

int PointsPageModel::PointCount() const {
    const StrDataPnts *set = CurrentSet();
    return set ? set_point_count(*set) : 0;
}

std::string PointsPageModel::RowCaption(int row) const {
    return "Pt " + std::to_string(grid.PointIndex(row) + 1);
}

std::vector<std::string> PointsPageModel::SetNames() const {
    return data_set_names(session.temp);
}

int PointsPageModel::CurrentSetPosition() const {
    const StrDataPnts *set = CurrentSet();
    return set ? data_set_position(session.temp, set) : -1;
}

PointsPageEnables PointsPageModel::Enables() const {
    PointsPageEnables on;
    const StrDataPnts *set = CurrentSet();
    if (set == nullptr) return on;
    const int count = PointCount();
    on.dataBoxes = on.remove = on.editName = true;
    on.insert = on.deletePoint =
        grid.RowSelected() && set_has_points(*set) && grid.SelectedPoint() < count;
    on.clear = on.save = set_has_content(*set);
    on.first = !grid.AnyError() && grid.FirstEnabled();
    on.last = !grid.AnyError() && grid.LastEnabled(count);
    const int sets = session.temp.DataSets.count();
    const int position = CurrentSetPosition();
    on.prevSet = sets >= 2 && position > 0;
    on.nextSet = sets >= 2 && position < sets - 1;
    return on;
}

void PointsPageModel::ApplyChanges() {
    GraphData *current = session.Current();
    if (current == nullptr || !Temp().PointsVisited) return;
    copy_data_sets(Temp(), *current);
    ui.PageUnchanged(kPagePoints);
    current->Modified = false;
}

bool PointsPageModel::CheckData(GraphData &graph) {
    return check_data_points(graph, session.parser, ui);
}

}  // namespace quindar
