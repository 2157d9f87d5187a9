// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "media_player_page.h"

#include "options_pages.h"
#include "text_helpers.h"

namespace quindar {

void MediaPlayerPage::Setup(const std::optional<std::string> &option,
                            const std::string &systemPlayer, const std::string &fallbackPlayer) {
    if (option) {
        playerPath = option;
        editText = *option;
        useDefault = !systemPlayer.empty() && text::equal_no_case(*option, systemPlayer);
    } else if (!systemPlayer.empty()) {
        playerPath = systemPlayer;
        editText = systemPlayer;
        useDefault = true;
    } else if (!fallbackPlayer.empty()) {
        playerPath = fallbackPlayer;
        editText = fallbackPlayer;
        useDefault = false;
    }
    changed = false;
}

void MediaPlayerPage::Take(const std::string &path) {
    playerPath = path;
    editText = path;
    changed = true;
}

void MediaPlayerPage::ClickUseDefault(bool checked, const std::string &systemPlayer) {
    useDefault = checked;
    if (checked) {
        if (systemPlayer.empty()) {
            if (Tell) Tell(kNoDefaultMediaPlayer);
            // There is no default to use: the box does not claim one.
            useDefault = false;
        } else if (editText.empty() || editText == systemPlayer) {
            Take(systemPlayer);
        } else if (Ask && Ask(kChangeMediaPlayer)) {
            Take(systemPlayer);
        } else {
            useDefault = false;
        }
        return;
    }
    // Leaving the default means choosing another player; anything short of that keeps it.
    if (!(Ask && Ask(kChangeMediaPlayer)) || !FindMediaPlayer()) useDefault = true;
}

bool MediaPlayerPage::FindMediaPlayer() {
    const std::optional<std::string> chosen = ChoosePlayer ? ChoosePlayer() : std::nullopt;
    if (!chosen) return false;
    Take(*chosen);
    return true;
}

bool MediaPlayerPage::Apply(const AppSettings &settings) const {
    return ApplyMediaPlayerPath(settings, playerPath);
}

}  // namespace quindar
