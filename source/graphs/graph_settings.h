// SPDX-License-Identifier: GPL-3.0-or-later
// Where a graph takes its default colours and orientation from: the settings file's reader.
#pragma once

#include "color.h"

namespace quindar {

// The sections of the settings file that new graphs read.
inline constexpr const char *kGraphColorsSection = "Graph Default Colors";
inline constexpr const char *kGraphOrientationSection = "Graph Default Orientation";

// The settings reader as a graph sees it. The graph model knows nothing of files: the
// application plugs in its reader of the settings file; without one a graph keeps its
// built-in defaults.
class GraphSettings {
public:
    virtual ~GraphSettings() = default;
    // The key read as a decimal integer, or deflt when it is missing.
    virtual int GetInt(const char *section, const char *key, int deflt) const = 0;
    // "r,g,b", each field masked to 8 bits; deflt and false when missing or short.
    virtual bool GetColor(const char *section, const char *key, TColor deflt,
                          TColor &value) const = 0;
    // Writes the key; true on success.
    virtual bool WriteString(const char *section, const char *key, const char *value) = 0;
};

}  // namespace quindar
