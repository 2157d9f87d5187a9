// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The profile calls over plain files: sections headed "[name]", then lines "key=value".
// Section and key names match without regard to case; blanks around names and values do not
// count. A file that cannot be read reads as empty, so every reader gets its default.
// Lines may end in CR LF, LF or CR; lines written here end in CR LF, and every line that a
// write does not concern stays byte for byte as it was, free text in front of the first
// section included.
namespace quindar {

// The value of the key, cut to size - 1 bytes, or the default (its trailing blanks dropped;
// null means empty) when the section or the key is missing. A null key gives the multi-string
// list of the section's keys, a null section the list of all section names; a list that does
// not fit is cut in its last name and closed with two NULs. Returns the bytes stored, the
// final NUL not counted.
std::size_t GetPrivateProfileString(const char *section, const char *key, const char *deflt,
                                    char *buffer, std::size_t size, const char *path);

// The value read as a signed decimal integer (optional sign, then digits; what follows them
// is ignored; out-of-range values stop at the int limits), or the default when the key is
// missing or its value does not start as a number.
int GetPrivateProfileInt(const char *section, const char *key, int deflt, const char *path);

// Sets key=value in the section. A missing section is added at the end of the file, a missing
// key at the end of its section, and a missing file is created. A null value deletes the key,
// a null key deletes the section. Returns false, with the file untouched, when the file cannot
// be read or replaced, or when a name or value holds a line break.
bool WritePrivateProfileString(const char *section, const char *key, const char *value,
                               const char *path);

// The same look-ups with whole texts, for code that keeps no buffers.
std::optional<std::string> profile_value(const std::string &path, std::string_view section,
                                         std::string_view key);
std::vector<std::string> profile_keys(const std::string &path, std::string_view section);
std::vector<std::string> profile_sections(const std::string &path);

// What WritePrivateProfileString makes of a content when it sets key=value in the section,
// for writers that build a whole file in memory. The caller checks names and value first.
std::string profile_with_key(std::string content, std::string_view section, std::string_view key,
                             std::string_view value);

// What GetPrivateProfileString stores for a value found (or for none: the default).
std::size_t copy_profile_value(std::optional<std::string_view> value, const char *deflt,
                               char *buffer, std::size_t size);

// The integer reading of GetPrivateProfileInt applied to a text.
int profile_int(std::string_view value, int deflt);

}  // namespace quindar
