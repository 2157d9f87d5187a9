// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "setup_pages.h"

namespace quindar {

int setup_page_number(int pageId) {
    for (const SetupPageRecord &page : kSetupPages)
        if (page.pageId == pageId) return page.index;
    return 1;
}

namespace {

struct PageStep {
    int index;
    int next;
    int prev;  // -2: by the wizard path
};

constexpr int kByWizardPath = -2;
constexpr std::array<PageStep, kSetupPageCount> kSteps{{
    {kPageGraphs, -1, -1},
    {kPageFunctions, kPageVariables, kPageGraphs},
    {kPagePoints, kPageTypes, kPageGraphs},
    {kPageVariables, kPageTypes, kPageFunctions},
    {kPageLabels, kPageColors, kPageTypes},
    {kPageTypes, kPageLabels, kByWizardPath},
    {kPageColors, -1, kPageTypes},
}};

}  // namespace

int setup_next_page(int index) {
    if (index < 0 || index >= kSetupPageCount) return -1;
    return kSteps[static_cast<std::size_t>(index)].next;
}

int setup_prev_page(int index, int wizardPath, bool hasFunctions, bool hasDataSets) {
    if (index < 0 || index >= kSetupPageCount) return -1;
    const int prev = kSteps[static_cast<std::size_t>(index)].prev;
    if (prev != kByWizardPath) return prev;
    if (wizardPath == kWizardFunctions) return kPageVariables;
    if (wizardPath == kWizardPoints) return kPagePoints;
    if (hasFunctions) return kPageVariables;
    if (hasDataSets) return kPagePoints;
    return kPageFunctions;
}

}  // namespace quindar
