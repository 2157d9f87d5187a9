// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Tutorials command: the tutorials folder, the download offer, the choice of a file and of
// a media player, and the player's start.

class QWidget;

namespace quindar {

class Workbench;

// Runs the command over the workbench's tutorials folder.
void play_tutorial(Workbench &workbench, QWidget *parent);

// The download offer (dialog "Download Tutorial File Installer"); writes the option when its
// box "Do not show this dialog again" is checked.
void offer_tutorial_download(Workbench &workbench, QWidget *parent);

}  // namespace quindar
