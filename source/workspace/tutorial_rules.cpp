// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "tutorial_rules.h"

namespace quindar {

TutorialPlan plan_tutorials(bool folderExists, int count, bool offerWanted) {
    TutorialPlan plan{TutorialStep::ChooseFile, false};
    if (!folderExists) {
        plan.step = TutorialStep::NoFolder;
        count = 0;
    } else if (count == 0) {
        plan.step = TutorialStep::NoFiles;
    }
    plan.offerDownload = offerWanted && count < kTutorialsExpected;
    return plan;
}

const std::vector<std::string> &media_player_fallbacks() {
    static const std::vector<std::string> players = {
        "/usr/bin/vlc",       "/usr/bin/mpv",    "/usr/bin/totem",
        "/usr/bin/celluloid", "/usr/bin/parole", "/usr/bin/smplayer",
    };
    return players;
}

std::string choose_media_player(const std::string &setPlayer,
                                const std::function<bool(const std::string &)> &exists,
                                bool &found) {
    found = false;
    if (!setPlayer.empty()) return setPlayer;
    for (const std::string &player : media_player_fallbacks()) {
        if (exists(player)) {
            found = true;
            return player;
        }
    }
    return {};
}

}  // namespace quindar
