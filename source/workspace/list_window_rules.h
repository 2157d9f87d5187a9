// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// When the Variables and Functions lists are refilled from the engine, and when their
// pop-up commands are enabled. The lists hold nothing of their own, so refilling on exactly
// these events keeps a list position equal to the engine's index.

#include <span>

namespace quindar {

enum class ListEvent {
    PaneOpens,
    ListsMoved,
    ChildTakesFocus,
    LineComputed,
    VariableAddedOrEdited,
    VariableDeleted,
    FunctionAddedOrEdited,             // no variable assigned with it
    FunctionAndVariableAddedOrEdited,  // the declaration assigned a variable too
    FunctionDeleted,
    AllFunctionsDeleted,
    AllVariablesDeleted,
    ShowIncrementalsToggled,
    PrecisionFormatChanged,
    PrecisionFormatApplied,
    CalculusComputed,
    GraphAxisVariablesWritten,
};

struct ListRefresh {
    ListEvent event;
    bool variables;
    bool functions;
};

inline constexpr ListRefresh kListRefreshes[] = {
    {ListEvent::PaneOpens, true, true},
    {ListEvent::ListsMoved, true, true},
    {ListEvent::ChildTakesFocus, true, true},
    {ListEvent::LineComputed, true, true},
    {ListEvent::VariableAddedOrEdited, true, false},
    {ListEvent::VariableDeleted, true, false},
    {ListEvent::FunctionAddedOrEdited, false, true},
    {ListEvent::FunctionAndVariableAddedOrEdited, true, true},
    {ListEvent::FunctionDeleted, false, true},
    {ListEvent::AllFunctionsDeleted, false, true},
    {ListEvent::AllVariablesDeleted, true, false},
    {ListEvent::ShowIncrementalsToggled, true, false},
    {ListEvent::PrecisionFormatChanged, true, false},
    {ListEvent::PrecisionFormatApplied, true, false},
    {ListEvent::CalculusComputed, true, false},
    {ListEvent::GraphAxisVariablesWritten, true, false},
};

// Which lists an event refills.
constexpr ListRefresh RefreshFor(ListEvent event) {
    for (const auto &refresh : kListRefreshes)
        if (refresh.event == event) return refresh;
    return {event, false, false};
}

enum class ListCommand { ClearAll, Delete, Insert, FunctionSolver, CalculusUtility };

// Whether a pop-up command is enabled: Delete All needs entries, Delete, Insert and the
// Function Solver exactly one selected line, the calculus utility nothing.
constexpr bool ListCommandEnabled(ListCommand command, int entries, int selectedIndex) {
    switch (command) {
        case ListCommand::ClearAll:
            return entries > 0;
        case ListCommand::CalculusUtility:
            return true;
        default:
            return selectedIndex >= 0;
    }
}

}  // namespace quindar
