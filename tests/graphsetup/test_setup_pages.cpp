// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "setup_pages.h"

namespace quindar {
namespace {

TEST(SetupPages, PageIdsTurnIntoIndicesAndAnyOtherIdIntoOne) {
    const struct {
        int id, index;
    } cases[] = {
        {1006, 0}, {1004, 1}, {1012, 2}, {1003, 3}, {1007, 4},
        {1008, 5}, {1013, 6}, {0, 1},    {1005, 1}, {20601, 1},
    };
    for (const auto &c : cases) EXPECT_EQ(setup_page_number(c.id), c.index) << c.id;
}

TEST(SetupPages, NextFollowsTheWalkAndEndsAtColors) {
    const struct {
        int from, to;
    } cases[] = {
        {kPageGraphs, -1},         {kPageFunctions, kPageVariables},
        {kPagePoints, kPageTypes}, {kPageVariables, kPageTypes},
        {kPageTypes, kPageLabels}, {kPageLabels, kPageColors},
        {kPageColors, -1},
    };
    for (const auto &c : cases) EXPECT_EQ(setup_next_page(c.from), c.to) << c.from;
}

TEST(SetupPages, PrevOfTypesGoesByWizardPathThenByContents) {
    const struct {
        int wizard;
        bool functions, sets;
        int to;
    } cases[] = {
        {kWizardFunctions, false, true, kPageVariables}, {kWizardPoints, true, false, kPagePoints},
        {kWizardNone, true, true, kPageVariables},       {kWizardNone, false, true, kPagePoints},
        {kWizardNone, false, false, kPageFunctions},
    };
    for (const auto &c : cases)
        EXPECT_EQ(setup_prev_page(kPageTypes, c.wizard, c.functions, c.sets), c.to);
}

TEST(SetupPages, PrevOfColorsSkipsLabels) {
    EXPECT_EQ(setup_prev_page(kPageColors, kWizardNone, true, false), kPageTypes);
    EXPECT_EQ(setup_prev_page(kPageLabels, kWizardNone, true, false), kPageTypes);
    EXPECT_EQ(setup_prev_page(kPagePoints, kWizardNone, true, false), kPageGraphs);
    EXPECT_EQ(setup_prev_page(kPageFunctions, kWizardNone, true, false), kPageGraphs);
    EXPECT_EQ(setup_prev_page(kPageVariables, kWizardNone, true, false), kPageFunctions);
}

}  // namespace
}  // namespace quindar
