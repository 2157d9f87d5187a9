// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include "sound_player.h"
#include "temp_folder.h"

namespace quindar {
namespace {

TEST(SoundPlayer, PlaysOnlyWhenOnAndTheFileIsThere) {
    testing::TempFolder folder;
    folder.write("Click.wav", "RIFF");
    SoundPlayer player(QString::fromStdString(folder.path()));
    EXPECT_TRUE(player.isEnabled());
    EXPECT_TRUE(player.play("Click.wav"));  // silent on a machine without audio, still true
    EXPECT_FALSE(player.play("Missing.wav"));
    EXPECT_FALSE(player.play(QString()));
    player.setEnabled(false);
    EXPECT_FALSE(player.play("Click.wav"));
}

TEST(SoundPlayer, AMissingFolderPlaysNothing) {
    SoundPlayer player("/nonexistent/Sounds");
    EXPECT_FALSE(player.play("Click.wav"));
}

}  // namespace
}  // namespace quindar
