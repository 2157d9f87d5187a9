// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Where the preview draws its one or two pages.
#include <gtest/gtest.h>

#include <vector>

#include "preview_layout.h"

namespace quindar::printing {
namespace {

TEST(PreviewLayout, EveryRowOfTheLayout) {
    using Rects = std::vector<PreviewRect>;
    const struct {
        int clientWidth, clientHeight, pageWidth, pageHeight;
        bool twoUp;
        Rects pages;
    } cases[] = {
        // A wide window: the height decides, the width is 73 per cent of it.
        {1000, 500, 850, 1100, false, {{15, 15, 343, 470}}},
        {1000, 500, 850, 1100, true, {{15, 15, 343, 470}, {388, 15, 343, 470}}},
        // A tall window: the width decides, the height is 122 per cent of it.
        {600, 900, 850, 1100, false, {{15, 15, 570, 695}}},
        // A landscape page.
        {1000, 500, 1100, 850, false, {{15, 15, 573, 470}}},
        // A window smaller than its margins.
        {20, 10, 850, 1100, false, {{15, 15, 0, 0}}},
        {1000, 500, 0, 1100, false, {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(
            PreviewPageRects(c.clientWidth, c.clientHeight, c.pageWidth, c.pageHeight, c.twoUp),
            c.pages)
            << c.clientWidth << "x" << c.clientHeight << " " << c.pageWidth << "x" << c.pageHeight;
}

}  // namespace
}  // namespace quindar::printing
