// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Media Player page: the player it opens with, and the questions of its check box.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "media_player_page.h"

namespace quindar {
namespace {

struct ScriptedPage {
    ScriptedPage() {
        page.Ask = [this](int id) {
            asked.push_back(id);
            return answer;
        };
        page.Tell = [this](int id) { told.push_back(id); };
        page.ChoosePlayer = [this] { return chosen; };
    }
    MediaPlayerPage page;
    bool answer = true;
    std::optional<std::string> chosen;
    std::vector<int> asked;
    std::vector<int> told;
};

TEST(MediaPlayerPage, OpensWithTheOptionTheSystemPlayerOrTheFallback) {
    const struct {
        std::optional<std::string> option;
        const char *system;
        const char *fallback;
        std::optional<std::string> path;
        bool useDefault;
    } cases[] = {
        {std::nullopt, "/usr/bin/vlc", "/usr/bin/mpv", "/usr/bin/vlc", true},
        {std::nullopt, "", "/usr/bin/mpv", "/usr/bin/mpv", false},
        {std::nullopt, "", "", std::nullopt, false},
        {"/opt/Player", "/opt/player", "", "/opt/Player", true},
        {"/opt/other", "/usr/bin/vlc", "", "/opt/other", false},
    };
    for (const auto &c : cases) {
        MediaPlayerPage page;
        page.Setup(c.option, c.system, c.fallback);
        EXPECT_EQ(page.PlayerPath(), c.path) << c.system;
        EXPECT_EQ(page.UseDefault(), c.useDefault) << c.system;
        EXPECT_EQ(page.EditText(), c.path.value_or("")) << c.system;
        EXPECT_FALSE(page.Changed());
    }
}

TEST(MediaPlayerPage, CheckingTheBoxWithoutADefaultTells30601) {
    ScriptedPage scripted;
    scripted.page.Setup("/opt/mine", "", "");
    scripted.page.ClickUseDefault(true, "");
    EXPECT_EQ(scripted.told, (std::vector<int>{kNoDefaultMediaPlayer}));
    EXPECT_FALSE(scripted.page.UseDefault());
    EXPECT_EQ(scripted.page.PlayerPath(), "/opt/mine");
    EXPECT_EQ(FindNumberedText(kMediaPlayerMessages, kChangeMediaPlayer),
              "Continuing will change the current media player, do you want to procede?");
}

TEST(MediaPlayerPage, CheckingTheBoxOverAnotherPathAsks30602) {
    for (bool yes : {true, false}) {
        ScriptedPage scripted;
        scripted.answer = yes;
        scripted.page.Setup("/opt/mine", "/usr/bin/vlc", "");
        scripted.page.ClickUseDefault(true, "/usr/bin/vlc");
        EXPECT_EQ(scripted.asked, (std::vector<int>{kChangeMediaPlayer}));
        EXPECT_EQ(scripted.page.PlayerPath(), yes ? "/usr/bin/vlc" : "/opt/mine");
        EXPECT_EQ(scripted.page.UseDefault(), yes);
        EXPECT_EQ(scripted.page.Changed(), yes);
    }
    ScriptedPage empty;
    empty.page.ClickUseDefault(true, "/usr/bin/vlc");
    EXPECT_TRUE(empty.asked.empty());
    EXPECT_EQ(empty.page.PlayerPath(), "/usr/bin/vlc");
}

TEST(MediaPlayerPage, ClearingTheBoxChoosesAPlayerOrSetsTheBoxAgain) {
    const struct {
        bool answer;
        std::optional<std::string> chosen;
        bool useDefault;
        const char *path;
    } cases[] = {
        {true, "/opt/new", false, "/opt/new"},
        {true, std::nullopt, true, "/usr/bin/vlc"},  // the file dialog was cancelled
        {false, "/opt/new", true, "/usr/bin/vlc"},
    };
    for (const auto &c : cases) {
        ScriptedPage scripted;
        scripted.answer = c.answer;
        scripted.chosen = c.chosen;
        scripted.page.Setup(std::nullopt, "/usr/bin/vlc", "");
        scripted.page.ClickUseDefault(false, "/usr/bin/vlc");
        EXPECT_EQ(scripted.asked, (std::vector<int>{kChangeMediaPlayer}));
        EXPECT_EQ(scripted.page.UseDefault(), c.useDefault);
        EXPECT_EQ(scripted.page.PlayerPath(), c.path);
    }
}

}  // namespace
}  // namespace quindar
