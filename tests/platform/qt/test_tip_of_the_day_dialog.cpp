// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>

#include "tip_of_the_day_dialog.h"

namespace quindar {
namespace {

const QStringList kTips = {"Tutorials|Watch one.", "Examples|Open one.", "A tip with no heading."};

QPushButton *button(const QDialog &dialog, const QString &name) {
    for (QPushButton *candidate : dialog.findChildren<QPushButton *>()) {
        if (candidate->accessibleName() == name) return candidate;
    }
    return nullptr;
}

TEST(TipOfTheDayDialog, OpensOnTheTipAfterTheStoredOne) {
    const struct {
        int stored;
        int shown;
        const char *heading;
    } cases[] = {{-1, 0, "Tutorials"},
                 {0, 1, "Examples"},
                 {2, 0, "Tutorials"},
                 {1, 2, "Did you know..."},
                 {9, 0, "Tutorials"}};
    for (const auto &row : cases) {
        TipOfTheDayDialog dialog(kTips, "Did you know...", row.stored, true);
        EXPECT_EQ(dialog.position(), row.shown) << row.stored;
        EXPECT_EQ(dialog.heading(), row.heading) << row.stored;
    }
}

TEST(TipOfTheDayDialog, ButtonsStepAndLeadToTutorialsAndExamples) {
    TipOfTheDayDialog dialog(kTips, "Did you know...", -1, true);
    dialog.show();
    QSignalSpy tutorials(&dialog, &TipOfTheDayDialog::tutorialsRequested);
    QSignalSpy examples(&dialog, &TipOfTheDayDialog::examplesRequested);
    EXPECT_EQ(dialog.text(), "Watch one.");
    EXPECT_TRUE(button(dialog, "Tutorials")->isVisible());
    EXPECT_FALSE(button(dialog, "Examples")->isVisible());
    button(dialog, "Tutorials")->click();
    EXPECT_EQ(tutorials.count(), 1);

    button(dialog, "Next Tip")->click();
    EXPECT_EQ(dialog.position(), 1);
    EXPECT_FALSE(button(dialog, "Tutorials")->isVisible());
    EXPECT_TRUE(button(dialog, "Examples")->isVisible());
    button(dialog, "Examples")->click();
    EXPECT_EQ(examples.count(), 1);

    button(dialog, "Next Tip")->click();
    EXPECT_EQ(dialog.heading(), "Did you know...");
    EXPECT_EQ(dialog.text(), "A tip with no heading.");
    button(dialog, "Next Tip")->click();
    EXPECT_EQ(dialog.position(), 0);
    button(dialog, "Previous Tip")->click();
    EXPECT_EQ(dialog.position(), 2);
}

TEST(TipOfTheDayDialog, CheckBoxTellsTheStartupChoice) {
    TipOfTheDayDialog dialog(kTips, "Did you know...", -1, true);
    QSignalSpy changed(&dialog, &TipOfTheDayDialog::showAtStartupChanged);
    EXPECT_TRUE(dialog.showAtStartup());
    auto *box = dialog.findChild<QCheckBox *>();
    ASSERT_NE(box, nullptr);
    box->click();
    EXPECT_FALSE(dialog.showAtStartup());
    ASSERT_EQ(changed.count(), 1);
    EXPECT_FALSE(changed.at(0).at(0).toBool());
    EXPECT_EQ(dialog.accessibleName(), "Tip Of The Day");
}

TEST(TipOfTheDayDialog, NoTipsShowsAnEmptyTip) {
    TipOfTheDayDialog dialog({}, "Did you know...", 3, false);
    EXPECT_EQ(dialog.position(), -1);
    EXPECT_EQ(dialog.heading(), "Did you know...");
    EXPECT_TRUE(dialog.text().isEmpty());
    EXPECT_FALSE(dialog.showAtStartup());
}

}  // namespace
}  // namespace quindar
