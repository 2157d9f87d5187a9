// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "color.h"

namespace quindar {

// A named settings file. Single keys are read and written with the profile calls on
// GetFileName(); this class adds the two value forms that take more than one field.
// The value forms of GetColor and GetPoint applied to a value already read (a colour's value
// at most 27 characters, a point's at most 127, as those read them).
bool color_from_text(std::string_view text, TColor deflt, TColor &value);
bool point_from_text(std::string_view text, char *x, char *y, char *z, int size);
// The three fields of a point's value, whole and however long; false when all are empty.
bool point_fields(std::string_view text, std::array<std::string, 3> &fields);

class IniFile {
public:
    explicit IniFile(const char *path);
    IniFile(const IniFile &) = default;
    IniFile &operator=(const IniFile &) = default;
    virtual ~IniFile() = default;

    const char *GetFileName() const { return fileName.c_str(); }

    // "r,g,b" in decimal; each field keeps its low 8 bits. An empty or missing value, or one
    // with fewer than three fields, gives deflt and false.
    bool GetColor(const char *section, const char *key, TColor deflt, TColor &value) const;

    // "x,y,z", each field a text that may be empty; leading white space of a field is
    // skipped and each is cut to size - 1 bytes. The outputs start empty. True if at least
    // one coordinate was stored.
    bool GetPoint(const char *section, const char *key, char *x, char *y, char *z, int size) const;

protected:
    std::string fileName;
};

}  // namespace quindar
