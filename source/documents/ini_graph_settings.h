// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file as the source of new graphs' default colours and orientation.
#pragma once

#include "app_settings.h"
#include "graph_settings.h"
#include "ini_file.h"

namespace quindar {

// Plugs a settings file into GraphData::SetDefaultColors, SetDefaultOrientation and
// SaveDefaultColors through the profile calls.
class IniGraphSettings final : public GraphSettings {
public:
    explicit IniGraphSettings(const char *path) : file(path) {}
    // The application's settings file in the user's configuration folder.
    IniGraphSettings() : IniGraphSettings(settings_file_path().c_str()) {}

    int GetInt(const char *section, const char *key, int deflt) const override;
    bool GetColor(const char *section, const char *key, TColor deflt, TColor &value) const override;
    bool WriteString(const char *section, const char *key, const char *value) override;

private:
    IniFile file;
};

}  // namespace quindar
