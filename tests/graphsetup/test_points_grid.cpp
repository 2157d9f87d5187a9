// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "points_fixture.h"
#include "points_grid.h"

namespace quindar::testing {
namespace {

TEST(PointsGrid, ArrowKeysFollowTheCellOrderAndScrollAtTheEdges) {
    const struct {
        PointCell from;
        GridKey key;
        PointCell to;
        int scroll;
        bool moves;
    } cases[] = {
        {X(1), GridKey::Right, Y(1), 0, true}, {Y(1), GridKey::Right, Z, 0, true},
        {Z, GridKey::Right, X(2), 0, true},    {Y(4), GridKey::Right, X(5), 0, true},
        {Y(5), GridKey::Right, X(5), 1, true}, {X(2), GridKey::Left, Z, 0, true},
        {Z, GridKey::Left, Y(1), 0, true},     {X(1), GridKey::Left, Z, -1, true},
        {X(3), GridKey::Down, X(4), 0, true},  {Y(5), GridKey::Down, Y(5), 1, true},
        {Z, GridKey::Down, Z, 0, false},       {Y(3), GridKey::Up, Y(2), 0, true},
        {X(1), GridKey::Up, X(1), -1, true},   {Z, GridKey::Up, Z, -1, true},
    };
    for (const auto &c : cases) {
        const GridMove move = grid_key_move(c.from, c.key);
        EXPECT_EQ(move.moves, c.moves) << grid_cell_order(c.from) << " " << int(c.key);
        if (!c.moves) continue;
        EXPECT_EQ(move.target, c.to) << grid_cell_order(c.from) << " " << int(c.key);
        EXPECT_EQ(move.scroll, c.scroll) << grid_cell_order(c.from) << " " << int(c.key);
    }
}

TEST(PointsGrid, CellsCarryTheirControlIds) {
    const struct {
        PointCell cell;
        int id;
    } cases[] = {{X(1), 24874}, {X(5), 24870}, {Y(1), 24865}, {Y(5), 24869}, {Z, 24879}};
    for (const auto &c : cases) EXPECT_EQ(grid_cell_control_id(c.cell), c.id);
    EXPECT_EQ(grid_cell_control_id({PointColumn::Z, 2}), 0);
}

TEST(PointsGrid, TheFocusReturnsToTheFirstRefusedCellXThenYThenZ) {
    PointsGrid grid;
    EXPECT_FALSE(grid.FirstError());
    grid.SetError(Z, true);
    EXPECT_EQ(grid.FirstError(), Z);
    grid.SetError(Y(2), true);
    EXPECT_EQ(grid.FirstError(), Y(2));
    grid.SetError(X(4), true);
    EXPECT_EQ(grid.FirstError(), X(4));
    grid.ClearErrors();
    EXPECT_FALSE(grid.AnyError());
}

TEST(PointsGrid, TheSelectionStaysOnItsPointWhileTheGridScrolls) {
    PointsGrid grid;
    grid.ClickRow(3);
    EXPECT_TRUE(grid.RowSelected());
    EXPECT_EQ(grid.SelectedPoint(), 2);
    EXPECT_EQ(grid.Scroll(4), 4);
    EXPECT_EQ(grid.FocusRow, -1);
    EXPECT_FALSE(grid.RowSelected());  // out of the window, still on
    EXPECT_TRUE(grid.FocusOn);
    EXPECT_EQ(grid.Scroll(-10), -4);  // never above point 1
    EXPECT_EQ(grid.TopPoint, 0);
    EXPECT_EQ(grid.FocusRow, 3);
    grid.ClickRow(3);  // its own radio switches it off
    EXPECT_FALSE(grid.FocusOn);
}

TEST(PointsGrid, FirstAndLastAreEnabledByTheWindowAndTheCount) {
    const struct {
        int top, count;
        bool first, last;
    } cases[] = {
        {0, 0, false, false}, {0, 4, false, false}, {0, 5, false, true},
        {0, 30, false, true}, {6, 10, true, false}, {3, 10, true, true},
        {8, 10, true, true},  {9, 5, true, true},   {2, 2, true, true},
    };
    for (const auto &c : cases) {
        PointsGrid grid;
        grid.TopPoint = c.top;
        EXPECT_EQ(grid.FirstEnabled(), c.first) << c.top << " " << c.count;
        EXPECT_EQ(grid.LastEnabled(c.count), c.last) << c.top << " " << c.count;
    }
}

}  // namespace
}  // namespace quindar::testing
