// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A calculus page during a run: a second Compute is ignored, the sheet can't be left or
// closed, and the refusal to close is told once per run.
#include <gtest/gtest.h>

#include "calculus_messages.h"
#include "page_guard.h"

namespace quindar::calculus {
namespace {

TEST(PageGuardTest, ARunRefusesASecondRunAndTheClosing) {
    PageGuard guard(kCloseDuringIntegration, kIntegrationManagerOpen);
    EXPECT_TRUE(guard.idle());
    EXPECT_TRUE(guard.can_leave(false));
    ASSERT_TRUE(guard.begin());
    EXPECT_FALSE(guard.begin());
    EXPECT_TRUE(guard.computing());
    EXPECT_FALSE(guard.can_leave(false));
    CloseDecision decision = guard.can_close(false);
    EXPECT_FALSE(decision.allowed);
    EXPECT_EQ(decision.message, 13109);
    decision = guard.can_close(false);
    EXPECT_FALSE(decision.allowed);
    EXPECT_EQ(decision.message, 0);
    guard.end();
    EXPECT_TRUE(guard.can_close(false).allowed);
    // The next run tells it again.
    ASSERT_TRUE(guard.begin());
    EXPECT_EQ(guard.can_close(false).message, 13109);
    guard.end();
}

TEST(PageGuardTest, AnOpenFunctionManagerKeepsThePage) {
    PageGuard guard(kCloseDuringDifferentiation, kDifferentiationManagerOpen);
    const CloseDecision decision = guard.can_close(true);
    EXPECT_FALSE(decision.allowed);
    EXPECT_EQ(decision.message, 13165);
    EXPECT_FALSE(guard.can_leave(true));
    ASSERT_TRUE(guard.begin());
    EXPECT_EQ(guard.can_close(true).message, 13160);
}

TEST(PageGuardTest, TheMessagesOfClosing) {
    EXPECT_STREQ(message(kCloseDuringIntegration),
                 "You must stop the integration process before closing this utility.");
    EXPECT_STREQ(message(kCloseDuringDifferentiation),
                 "You must stop the differentiation process before closing this utility.");
    EXPECT_STREQ(message(kIntegrationManagerOpen),
                 "You must first close the Function Manager dialog box before quiting.");
}

}  // namespace
}  // namespace quindar::calculus
