// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The five-row edit grid of the Points page: which point each row shows, the selected row,
// the cells whose text was refused, and where the arrow keys lead. A set of any length is
// edited through these eleven cells.

#include <array>
#include <optional>

namespace quindar {

enum class PointColumn { X, Y, Z };

// One edit of the grid; Z has only row 1, since a set is one line at constant Z.
struct PointCell {
    PointColumn column = PointColumn::X;
    int row = 1;
    friend bool operator==(const PointCell &, const PointCell &) = default;
};

inline constexpr int kGridRows = 5;
inline constexpr int kGridCells = 11;

// The edits and radios of the grid with their control ids.
struct GridCellRecord {
    PointCell cell;
    int controlId;
};
// In the keyboard's order: X1, Y1, Z, X2, Y2, ... X5, Y5.
inline constexpr std::array<GridCellRecord, kGridCells> kGridCellOrder{{
    {{PointColumn::X, 1}, 24874},
    {{PointColumn::Y, 1}, 24865},
    {{PointColumn::Z, 1}, 24879},
    {{PointColumn::X, 2}, 24873},
    {{PointColumn::Y, 2}, 24866},
    {{PointColumn::X, 3}, 24872},
    {{PointColumn::Y, 3}, 24867},
    {{PointColumn::X, 4}, 24871},
    {{PointColumn::Y, 4}, 24868},
    {{PointColumn::X, 5}, 24870},
    {{PointColumn::Y, 5}, 24869},
}};
// The radio of rows 1 to 5.
inline constexpr std::array<int, kGridRows> kGridRadioIds{24860, 24861, 24862, 24864, 24863};

int grid_cell_control_id(PointCell cell);
// The position of a cell in the keyboard's order; -1 for a cell the grid does not have.
int grid_cell_order(PointCell cell);

// Where an arrow key leads: the cell to focus and how far the grid scrolls first.
struct GridMove {
    PointCell target;
    int scroll = 0;
    // False when the key does nothing (Down in Z).
    bool moves = true;
};
enum class GridKey { Up, Down, Left, Right };
GridMove grid_key_move(PointCell from, GridKey key);

// The grid's window over the set and its selection. Error flags follow the cells in the
// order X rows 1 to 5, Y rows 1 to 5, Z, which is the order the focus goes back in.
class PointsGrid {
public:
    // Index of the point on row 1; the point of row r is TopPoint + r - 1.
    int TopPoint = 0;
    // The selected row; it moves with its point when the grid scrolls and may leave 1..5.
    int FocusRow = 0;
    bool FocusOn = false;
    // The edit that last got the focus.
    std::optional<PointCell> CurrentEdit;

    int PointIndex(int row) const { return TopPoint + row - 1; }
    // A row is selected and shows on the grid.
    bool RowSelected() const { return FocusOn && FocusRow >= 1 && FocusRow <= kGridRows; }
    int SelectedPoint() const { return TopPoint + FocusRow - 1; }
    // A click on a radio: the selected row's own radio switches the selection off.
    void ClickRow(int row);
    // Moves the window by delta points, at least to 0, keeping the selection on its point.
    // Returns the distance really moved.
    int Scroll(int delta);
    // Back to point 1, nothing selected.
    void Reset();

    void SetError(PointCell cell, bool on);
    bool HasError(PointCell cell) const;
    bool AnyError() const;
    std::optional<PointCell> FirstError() const;
    void ClearErrors() { errors.fill(false); }

    // First enabled: the window is not at the top. Last enabled: the last point (of count)
    // does not stand on row 4 yet and scrolling can bring it there.
    bool FirstEnabled() const { return TopPoint > 0; }
    bool LastEnabled(int count) const;

private:
    static int error_slot(PointCell cell);
    std::array<bool, kGridCells> errors{};
};

}  // namespace quindar
