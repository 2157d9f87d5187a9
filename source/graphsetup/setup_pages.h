// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The seven pages of Graph Setup in the order the sheet shows them, with their dialog, tab,
// page and help ids, and the walk between them with Next and Prev.

#include <array>
#include <string_view>

namespace quindar {

enum SetupPageIndex : int {
    kPageGraphs = 0,
    kPageFunctions = 1,
    kPagePoints = 2,
    kPageVariables = 3,
    kPageLabels = 4,
    kPageTypes = 5,
    kPageColors = 6,
};
inline constexpr int kSetupPageCount = 7;

struct SetupPageRecord {
    int index;
    int dialogId;
    std::string_view tab;
    int pageId;
    int helpId;
};

inline constexpr std::array<SetupPageRecord, kSetupPageCount> kSetupPages{{
    {kPageGraphs, 20601, "Graphs", 1006, 19448},
    {kPageFunctions, 24620, "Functions", 1004, 19457},
    {kPagePoints, 24850, "Points", 1012, 19459},
    {kPageVariables, 24642, "Variables", 1003, 19458},
    {kPageLabels, 24680, "Labels", 1007, 19460},
    {kPageTypes, 24720, "Types", 1008, 19461},
    {kPageColors, 24930, "Colors", 1013, 19472},
}};

// The sheet's title, and the title of every Graph Setup message box (24628).
inline constexpr std::string_view kGraphSetupTitle = "Graph Setup";
inline constexpr int kGraphingUtilityTitleId = 24628;

// The button ids of the pages' row: Prev, Help and Next; the Graphs page's entry buttons.
inline constexpr int kButtonPrev = 20610;
inline constexpr int kButtonNext = 20611;
inline constexpr int kButtonGraphDataPoints = 20613;
inline constexpr int kButtonGraphFunctions = 20614;

// The index of a page id; any other id gives 1, as the sheet always has.
int setup_page_number(int pageId);

// How the user came through the pages: 0 not by an entry button, 1 by "Graph Data Points",
// 2 by "Graph Functions".
enum WizardPath : int { kWizardNone = 0, kWizardPoints = 1, kWizardFunctions = 2 };

// Where Next leads from a page once its check has passed (Colors: -1, Finish instead).
int setup_next_page(int index);
// Where Prev leads. The Types page goes back by the wizard path, else by what the working
// copy holds; `hasFunctions`/`hasDataSets` describe the working copy.
int setup_prev_page(int index, int wizardPath, bool hasFunctions, bool hasDataSets);

}  // namespace quindar
