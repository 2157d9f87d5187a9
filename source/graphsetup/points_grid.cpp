// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "points_grid.h"

#include <algorithm>

namespace quindar {

int grid_cell_order(PointCell cell) {
    for (std::size_t i = 0; i < kGridCellOrder.size(); ++i)
        if (kGridCellOrder[i].cell == cell) return static_cast<int>(i);
    return -1;
}

int grid_cell_control_id(PointCell cell) {
    const int order = grid_cell_order(cell);
    return order < 0 ? 0 : kGridCellOrder[static_cast<std::size_t>(order)].controlId;
}

GridMove grid_key_move(PointCell from, GridKey key) {
    const int order = grid_cell_order(from);
    const int last = kGridCells - 1;
    switch (key) {
        case GridKey::Right:
            // Past Y5 the grid scrolls on and the next point's X is on row 5.
            if (order >= last) return {{PointColumn::X, kGridRows}, 1};
            return {kGridCellOrder[static_cast<std::size_t>(order + 1)].cell, 0};
        case GridKey::Left:
            // Before X1 the grid scrolls back, and the focus lands on the Z of the set.
            if (order <= 0) return {{PointColumn::Z, 1}, -1};
            return {kGridCellOrder[static_cast<std::size_t>(order - 1)].cell, 0};
        case GridKey::Down:
            if (from.column == PointColumn::Z) return {from, 0, false};
            if (from.row >= kGridRows) return {from, 1};
            return {{from.column, from.row + 1}, 0};
        case GridKey::Up:
            if (from.row <= 1) return {from, -1};
            return {{from.column, from.row - 1}, 0};
    }
    return {from, 0, false};
}

void PointsGrid::ClickRow(int row) {
    if (FocusOn && FocusRow == row) {
        FocusOn = false;
        return;
    }
    FocusRow = row;
    FocusOn = true;
}

int PointsGrid::Scroll(int delta) {
    const int top = std::max(TopPoint + delta, 0);
    const int moved = top - TopPoint;
    TopPoint = top;
    FocusRow -= moved;
    return moved;
}

void PointsGrid::Reset() {
    TopPoint = 0;
    FocusRow = 0;
    FocusOn = false;
}

int PointsGrid::error_slot(PointCell cell) {
    switch (cell.column) {
        case PointColumn::X:
            return cell.row - 1;
        case PointColumn::Y:
            return kGridRows + cell.row - 1;
        case PointColumn::Z:
            return 2 * kGridRows;
    }
    return 0;
}

void PointsGrid::SetError(PointCell cell, bool on) {
    errors[static_cast<std::size_t>(error_slot(cell))] = on;
}

bool PointsGrid::HasError(PointCell cell) const {
    return errors[static_cast<std::size_t>(error_slot(cell))];
}

bool PointsGrid::AnyError() const {
    return std::any_of(errors.begin(), errors.end(), [](bool on) { return on; });
}

std::optional<PointCell> PointsGrid::FirstError() const {
    for (std::size_t slot = 0; slot < errors.size(); ++slot) {
        if (!errors[slot]) continue;
        const int s = static_cast<int>(slot);
        if (s < kGridRows) return PointCell{PointColumn::X, s + 1};
        if (s < 2 * kGridRows) return PointCell{PointColumn::Y, s - kGridRows + 1};
        return PointCell{PointColumn::Z, 1};
    }
    return std::nullopt;
}

bool PointsGrid::LastEnabled(int count) const {
    const int lastTop = TopPoint + kGridRows - 1;
    if (TopPoint == 0) return count > kGridRows - 1;
    return count != lastTop && (count > kGridRows - 1 || count <= TopPoint);
}

}  // namespace quindar
