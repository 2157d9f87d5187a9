// SPDX-License-Identifier: GPL-3.0-or-later
// The profile look-ups over one reading of a file, for readers that ask for many keys.
#pragma once

#include <array>
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
    explicit ProfileSnapshot(std::string content);

    std::optional<std::string_view> Value(std::string_view section, std::string_view key) const;
    // As GetPrivateProfileString into a buffer of size bytes.
    std::string String(const char *section, const char *key, const char *deflt,
                       std::size_t size) const;
    // The same with a buffer that holds the whole value, however long.
    std::string Whole(const char *section, const char *key, const char *deflt) const;
    // As GetPrivateProfileInt.
    int Int(const char *section, const char *key, int deflt) const;
    // As IniFile::GetColor and IniFile::GetPoint.
    bool Color(const char *section, const char *key, TColor deflt, TColor &value) const;
    bool Point(const char *section, const char *key, char *x, char *y, char *z, int size) const;
    // The three fields of a point, whole.
    std::array<std::string, 3> PointFields(const char *section, const char *key) const;
    // The section's keys in file order; and as the profile call lists them into size bytes.
    std::vector<std::string> Keys(std::string_view section) const;
    std::vector<std::string> KeyList(std::string_view section, std::size_t size) const;

private:
    const ProfileText::Section *FindSection(std::string_view name) const;

    ProfileText text;
    // Names folded to lower case: the first section of each name, and for each section the
    // first key line of each name, so that a look-up does not scan a document of thousands of
    // graphs or variables from its start.
    std::unordered_map<std::string, std::size_t> sectionIndex;
    std::vector<std::unordered_map<std::string, std::size_t>> keyIndex;
};

}  // namespace quindar
