// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Options sheet's Media Player page without its widgets: which player the tutorials play
// with, the system's default or one the user picked, and the questions on changing it.

#include <functional>
#include <optional>
#include <string>

#include "app_settings.h"
#include "message_table.h"

namespace quindar {

inline constexpr int kMediaPlayerTitle = 30600;
inline constexpr int kNoDefaultMediaPlayer = 30601;
inline constexpr int kChangeMediaPlayer = 30602;

inline constexpr NumberedText kMediaPlayerMessages[] = {
    {kMediaPlayerTitle, "Media Player"},
    {kNoDefaultMediaPlayer,
     "The default media player could not be found, you will need to locate the media player "
     "executable file manually."},
    {kChangeMediaPlayer,
     "Continuing will change the current media player, do you want to procede?"},
};

class MediaPlayerPage {
public:
    // What the page asks of the desktop: a Yes/No question, a message, and the file dialog
    // "Media Player Executable" (nothing when cancelled).
    std::function<bool(int questionId)> Ask;
    std::function<void(int messageId)> Tell;
    std::function<std::optional<std::string>()> ChoosePlayer;

    // Opening the page: the stored option, the system's player for the tutorials (empty for
    // none) and a player known to be installed, tried when the system names none.
    void Setup(const std::optional<std::string> &option, const std::string &systemPlayer,
               const std::string &fallbackPlayer);

    // The check box "Use system default media player to play tutorials" was clicked into
    // the state checked; systemPlayer is looked up again at that moment.
    void ClickUseDefault(bool checked, const std::string &systemPlayer);
    // The "..." button.
    bool FindMediaPlayer();

    const std::optional<std::string> &PlayerPath() const { return playerPath; }
    const std::string &EditText() const { return editText; }
    bool UseDefault() const { return useDefault; }
    bool Changed() const { return changed; }

    // The page's apply: MediaPlayerPath is written when there is a path.
    bool Apply(const AppSettings &settings) const;

private:
    void Take(const std::string &path);

    std::optional<std::string> playerPath;
    std::string editText;
    bool useDefault = false;
    bool changed = false;
};

}  // namespace quindar
