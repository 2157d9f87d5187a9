// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The lists' refresh events and their pop-up commands' enabling.
#include <gtest/gtest.h>

#include <set>

#include "list_deletion.h"
#include "list_window_rules.h"

namespace quindar {
namespace {

TEST(ListWindowRules, EachEventRefillsItsLists) {
    const struct {
        ListEvent event;
        bool variables;
        bool functions;
    } cases[] = {
        {ListEvent::LineComputed, true, true},
        {ListEvent::ChildTakesFocus, true, true},
        {ListEvent::VariableDeleted, true, false},
        {ListEvent::FunctionAddedOrEdited, false, true},
        {ListEvent::FunctionAndVariableAddedOrEdited, true, true},
        {ListEvent::AllFunctionsDeleted, false, true},
        {ListEvent::ShowIncrementalsToggled, true, false},
        {ListEvent::CalculusComputed, true, false},
    };
    for (const auto &c : cases) {
        const ListRefresh refresh = RefreshFor(c.event);
        EXPECT_EQ(refresh.variables, c.variables) << static_cast<int>(c.event);
        EXPECT_EQ(refresh.functions, c.functions) << static_cast<int>(c.event);
    }
    // Every event is in the table once, and refills something.
    std::set<ListEvent> seen;
    for (const auto &refresh : kListRefreshes) {
        EXPECT_TRUE(seen.insert(refresh.event).second);
        EXPECT_TRUE(refresh.variables || refresh.functions);
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(ListEvent::GraphAxisVariablesWritten) + 1);
}

TEST(ListWindowRules, TwoSelectedLinesDisableDeleteAndInsert) {
    const int twoLines[] = {2, 3};
    const int selected = SingleSelection(twoLines);
    EXPECT_FALSE(ListCommandEnabled(ListCommand::Delete, 5, selected));
    EXPECT_FALSE(ListCommandEnabled(ListCommand::Insert, 5, selected));
    EXPECT_FALSE(ListCommandEnabled(ListCommand::FunctionSolver, 5, selected));
    EXPECT_TRUE(ListCommandEnabled(ListCommand::ClearAll, 5, selected));
    EXPECT_TRUE(ListCommandEnabled(ListCommand::CalculusUtility, 0, -1));
    EXPECT_FALSE(ListCommandEnabled(ListCommand::ClearAll, 0, -1));
    const int oneLine[] = {3};
    EXPECT_TRUE(ListCommandEnabled(ListCommand::Delete, 5, SingleSelection(oneLine)));
}

}  // namespace
}  // namespace quindar
