// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "ini_file.h"

#include <cstddef>
#include <string_view>

#include "multi_string.h"
#include "profile.h"
#include "text_helpers.h"

namespace quindar {

namespace {

// A colour reads at most this many characters of its value.
constexpr std::size_t kColorTextLength = 27;
// A point's value is read into a buffer of this size.
constexpr std::size_t kPointBufferSize = 128;

// A field read as C's atoi does: blanks, a sign, digits; no digits reads as 0.
long field_number(std::string_view field) {
    field = text::trim_left(field);
    std::size_t at = 0;
    bool negative = false;
    if (at < field.size() && (field[at] == '+' || field[at] == '-')) {
        negative = field[at] == '-';
        ++at;
    }
    long magnitude = 0;
    for (; at < field.size() && text::is_digit(field[at]); ++at) {
        // Only the low byte survives, so the value may wrap freely on the way.
        magnitude = (magnitude * 10 + (field[at] - '0')) % 65536;
    }
    return negative ? -magnitude : magnitude;
}

std::uint8_t low_byte(long value) {
    return static_cast<std::uint8_t>(value & 0xff);
}

}  // namespace

bool color_from_text(std::string_view text, TColor deflt, TColor &value) {
    std::string_view rest = text.substr(0, kColorTextLength);
    value = deflt;
    if (rest.empty()) return false;
    std::string_view fields[3];
    for (int i = 0; i < 3; ++i) {
        std::size_t comma = rest.find(',');
        if (comma == std::string_view::npos) {
            if (i < 2) return false;  // fewer than three fields
            fields[i] = rest;
            break;
        }
        fields[i] = rest.substr(0, comma);
        rest.remove_prefix(comma + 1);
    }
    value = TColor(low_byte(field_number(fields[0])), low_byte(field_number(fields[1])),
                   low_byte(field_number(fields[2])));
    return true;
}

bool point_fields(std::string_view text, std::array<std::string, 3> &fields) {
    fields = {};
    bool stored = false;
    for (std::string &field : fields) {
        const std::size_t comma = text.find(',');
        const bool last = comma == std::string_view::npos;
        field = std::string(text::trim_left(last ? text : text.substr(0, comma)));
        stored = stored || !field.empty();
        if (last) break;
        text.remove_prefix(comma + 1);
    }
    return stored;
}

bool point_from_text(std::string_view text, char *x, char *y, char *z, int size) {
    std::array<std::string, 3> fields;
    const bool stored = point_fields(text.substr(0, kPointBufferSize - 1), fields);
    char *outputs[3] = {x, y, z};
    const std::size_t room = size > 0 ? static_cast<std::size_t>(size) : 0;
    for (std::size_t i = 0; i < 3; ++i)
        if (outputs[i] != nullptr) copy_cut(fields[i], outputs[i], room);
    return stored && room > 0;
}

IniFile::IniFile(const char *path) : fileName(path != nullptr ? path : "") {}

bool IniFile::GetColor(const char *section, const char *key, TColor deflt, TColor &value) const {
    char text[kColorTextLength + 1];
    GetPrivateProfileString(section, key, "", text, sizeof text, fileName.c_str());
    return color_from_text(text, deflt, value);
}

bool IniFile::GetPoint(const char *section, const char *key, char *x, char *y, char *z,
                       int size) const {
    char buffer[kPointBufferSize];
    GetPrivateProfileString(section, key, "", buffer, sizeof buffer, fileName.c_str());
    return point_from_text(buffer, x, y, z, size);
}

}  // namespace quindar
