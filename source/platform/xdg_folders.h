// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The per-user folders of the freedesktop base directories, read from the environment.

#include <string>

namespace quindar {

// $XDG_DATA_HOME, or ~/.local/share; no trailing "/". Empty when neither can be told.
std::string xdg_data_home();

// $XDG_RUNTIME_DIR, or the system's temporary folder when it is not set.
std::string xdg_runtime_dir();

// $TMPDIR, or /tmp.
std::string temporary_folder();

// Where this program keeps its user files: xdg_data_home() + "/Quindar".
std::string user_data_folder();

}  // namespace quindar
