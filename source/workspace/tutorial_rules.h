// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// How the Tutorials command finds what to show and what to play it with.

#include <functional>
#include <string>
#include <vector>

namespace quindar {

// With fewer tutorial files than this, the download of the tutorials is offered.
inline constexpr int kTutorialsExpected = 8;

inline constexpr int kMsgNoTutorialsFolder = 24405;
inline constexpr int kMsgNoTutorials = 24406;
inline constexpr int kTitleTutorial = 24402;
inline constexpr int kMsgFindMediaPlayer = 24403;
inline constexpr int kMsgPlayerFailed = 24404;

enum class TutorialStep {
    NoFolder,    // 24405, and the command ends after any download offer
    NoFiles,     // 24406, the same
    ChooseFile,  // the open dialog over the tutorials folder
};

struct TutorialPlan {
    TutorialStep step;
    bool offerDownload;  // the download dialog shows first
};

// What the command does for a folder that exists or not, with count tutorial files, when the
// download offer is still wanted.
TutorialPlan plan_tutorials(bool folderExists, int count, bool offerWanted);

// The players tried when no player is set, in order; the first that exists is used and kept.
const std::vector<std::string> &media_player_fallbacks();
// The player for a tutorial: the one set, else the first fallback that exists (which is then to
// be kept as the set one), else empty, and the user is asked to find one.
std::string choose_media_player(const std::string &setPlayer,
                                const std::function<bool(const std::string &)> &exists,
                                bool &found);

}  // namespace quindar
