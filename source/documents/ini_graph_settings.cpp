// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The graph defaults over a profile file.
#include "ini_graph_settings.h"

#include <cstddef>
#include <cstdio>

#include "app_settings.h"
#include "graph_colors.h"
#include "ini_file.h"
#include "profile.h"

namespace quindar {

namespace {

// The integer keys of "Graph Default Orientation" and the record fields they fill; nothing
// in the program writes this section.
struct OrientationKey {
    const char *key;
    int GraphDefaults::*field;
};

constexpr OrientationKey kOrientationKeys[] = {
    {"Depth2D", &GraphDefaults::Depth2D},
    {"Inclination2D", &GraphDefaults::Inclination2D},
    {"Rotation", &GraphDefaults::Rotation2D},
    {"PerspectiveDepth", &GraphDefaults::PerspectiveDepth},
    {"XRotation3D", &GraphDefaults::XRotation},
    {"YRotation3D", &GraphDefaults::YRotation},
    {"ZRotation3D", &GraphDefaults::ZRotation},
};

}  // namespace

GraphDefaults read_graph_defaults(const char *path) {
    GraphDefaults defaults;
    for (const OrientationKey &row : kOrientationKeys)
        defaults.*row.field = static_cast<int>(
            GetPrivateProfileInt(kGraphOrientationSection, row.key, defaults.*row.field, path));
    const IniFile file(path);
    const auto table = graph_colors();
    for (std::size_t i = 0; i < table.size() && i < defaults.colors.size(); ++i)
        file.GetColor(kGraphColorsSection, table[i].settingsKey, table[i].deflt,
                      defaults.colors[i]);
    return defaults;
}

GraphDefaults read_graph_defaults() {
    return read_graph_defaults(settings_file_path().c_str());
}

bool save_graph_default_colors(const char *path, const GraphDefaults &defaults) {
    const auto table = graph_colors();
    for (std::size_t i = 0; i < table.size() && i < defaults.colors.size(); ++i) {
        const TColor value = defaults.colors[i];
        char text[40];
        std::snprintf(text, sizeof text, "%d,%d,%d", value.Red(), value.Green(), value.Blue());
        if (!WritePrivateProfileString(kGraphColorsSection, table[i].settingsKey, text, path))
            return false;
    }
    return true;
}

}  // namespace quindar
