// SPDX-License-Identifier: GPL-3.0-or-later
// The profile look-ups over one reading of a file, for readers that ask for many keys.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "color.h"
#include "profile_text.h"

namespace quindar {

// Answers exactly as the profile calls do on the file it was made from, without reading and
// taking the file apart once per key: a document with a data set of a thousand points asks
// for over a thousand keys.
class ProfileSnapshot {
public:
    explicit ProfileSnapshot(std::string content) : text(std::move(content)) {}

    std::optional<std::string_view> Value(std::string_view section, std::string_view key) const;
    // As GetPrivateProfileString into a buffer of size bytes.
    std::string String(const char *section, const char *key, const char *deflt,
                       std::size_t size) const;
    // As GetPrivateProfileInt.
    int Int(const char *section, const char *key, int deflt) const;
    // As IniFile::GetColor and IniFile::GetPoint.
    bool Color(const char *section, const char *key, TColor deflt, TColor &value) const;
    bool Point(const char *section, const char *key, char *x, char *y, char *z, int size) const;
    // The section's keys in file order; and as the profile call lists them into size bytes.
    std::vector<std::string> Keys(std::string_view section) const;
    std::vector<std::string> KeyList(std::string_view section, std::size_t size) const;

private:
    // The line of the first key of each name in a section, by its name in lower case: a
    // section of ten thousand variables is asked for each of them.
    using KeyLines = std::unordered_map<std::string, std::size_t>;
    const KeyLines &key_lines(const ProfileText::Section &section) const;

    ProfileText text;
    mutable std::unordered_map<std::size_t, KeyLines> keyLines;  // by the section's header line
};

}  // namespace quindar
