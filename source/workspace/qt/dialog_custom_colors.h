// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The sixteen custom colours of the program's colour dialog, kept in the settings file.

namespace quindar {

class AppSettings;

// The settings' custom colours into the colour dialog.
void load_custom_colors(const AppSettings &settings);
// The colour dialog's custom colours into the settings file.
void save_custom_colors(const AppSettings &settings);

}  // namespace quindar
