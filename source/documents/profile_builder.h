// SPDX-License-Identifier: GPL-3.0-or-later
// A profile file built in memory by a run of key writes, for saving a whole file at once.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quindar {

// Gives the bytes that the same run of WritePrivateProfileString calls would leave in a file
// that held only the free text, without writing the file once per key. While every section
// is new to the file and every key line reads back as that key, keys are collected per
// section (a key equal to an earlier one but for case replaces its value and keeps the first
// spelling, as the profile write does). A free text that holds a header line, or a key that
// would not read back as itself, switches to applying the profile rules write by write.
class ProfileBuilder {
public:
    explicit ProfileBuilder(std::string freeText);

    // As WritePrivateProfileString with a value: false, and nothing changed, for a line break
    // in any of the three texts or a key of blanks only.
    bool WriteString(std::string_view section, std::string_view key, std::string_view value);

    // The file's content after the writes so far.
    std::string Content() const;

    // Every later write goes through the profile rules one by one (tests compare the two).
    void UseProfileRules();

private:
    struct Key {
        std::string name;
        std::string value;
    };
    struct Section {
        std::string name;
        std::vector<Key> keys;
        std::unordered_map<std::string, std::size_t> byLowerName;
    };

    static bool KeyReadsBack(std::string_view key);

    std::string head;
    bool profileRules = false;
    std::vector<Section> sections;
    std::unordered_map<std::string, std::size_t> sectionByLowerName;
};

}  // namespace quindar
