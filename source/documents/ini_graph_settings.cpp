// SPDX-License-Identifier: GPL-3.0-or-later
// IniGraphSettings: the graph settings source over a profile file.
#include "ini_graph_settings.h"

#include "profile.h"

namespace quindar {

int IniGraphSettings::GetInt(const char *section, const char *key, int deflt) const {
    return GetPrivateProfileInt(section, key, deflt, file.GetFileName());
}

bool IniGraphSettings::GetColor(const char *section, const char *key, TColor deflt,
                                TColor &value) const {
    return file.GetColor(section, key, deflt, value);
}

bool IniGraphSettings::WriteString(const char *section, const char *key, const char *value) {
    return WritePrivateProfileString(section, key, value, file.GetFileName());
}

}  // namespace quindar
