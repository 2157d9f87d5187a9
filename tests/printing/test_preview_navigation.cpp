// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The print preview's paging: Previous and Next stop at the ends, Two Up at the last page
// shows the last two, and the tool bar's page text.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "preview_navigation.h"

namespace quindar::printing {
namespace {

enum class Press { Previous, Next, OneUp, TwoUp };

std::string Browse(int pages, const std::vector<Press> &presses) {
    PreviewNavigation preview(pages);
    for (Press press : presses) {
        switch (press) {
            case Press::Previous:
                preview.Previous();
                break;
            case Press::Next:
                preview.Next();
                break;
            case Press::OneUp:
                preview.OneUp();
                break;
            case Press::TwoUp:
                preview.ShowTwoUp();
                break;
        }
    }
    return preview.PageText();
}

TEST(PreviewNavigation, EveryRowOfThePaging) {
    using P = Press;
    const struct {
        int pages;
        std::vector<Press> presses;
        const char *text;
    } cases[] = {
        {3, {}, "Page 1"},
        {3, {P::Next}, "Page 2"},
        {3, {P::Next, P::Next, P::Next}, "Page 3"},
        {3, {P::Previous}, "Page 1"},
        {3, {P::TwoUp}, "Page 1 - 2"},
        {3, {P::TwoUp, P::Next}, "Page 2 - 3"},
        {3, {P::TwoUp, P::Next, P::Next}, "Page 2 - 3"},
        {3, {P::Next, P::Next, P::TwoUp}, "Page 2 - 3"},
        {3, {P::TwoUp, P::OneUp}, "Page 1"},
        {3, {P::TwoUp, P::Next, P::OneUp, P::Next}, "Page 3"},
        {1, {P::TwoUp}, "Page 1"},
        {1, {P::TwoUp, P::Next}, "Page 1"},
        {2, {P::TwoUp, P::Previous}, "Page 1 - 2"},
        {0, {P::Next}, "Page 1"},
    };
    for (const auto &c : cases) EXPECT_EQ(Browse(c.pages, c.presses), c.text) << c.pages;
}

TEST(PreviewNavigation, BlankRightPageAndEnds) {
    PreviewNavigation single(1);
    single.ShowTwoUp();
    EXPECT_EQ(single.SecondPage(), 0);
    EXPECT_FALSE(single.CanGoNext());
    EXPECT_FALSE(single.CanGoPrevious());
    PreviewNavigation three(3);
    three.ShowTwoUp();
    EXPECT_TRUE(three.CanGoNext());
    three.Next();
    EXPECT_FALSE(three.CanGoNext());
    EXPECT_TRUE(three.CanGoPrevious());
    EXPECT_TRUE(TwoUpAllowed(800, 1100));
    EXPECT_TRUE(TwoUpAllowed(800, 800));
    EXPECT_FALSE(TwoUpAllowed(1100, 800));
}

}  // namespace
}  // namespace quindar::printing
