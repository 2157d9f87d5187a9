// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <string>

#include "documents_test_support.h"
#include "profile.h"

namespace quindar {
namespace {

using testing::data_file;
using testing::joined;

struct ValueCase {
    const char *section;
    const char *key;
    const char *deflt;
    std::size_t size;
    const char *expected;
};

const ValueCase kValueCases[] = {
    {"OPTIONS", "Sound", "x", 64, "1"},
    {"options", "SOUND", "x", 64, "1"},                 // names ignore case
    {"  OPTIONS ", "  Sound\t", "x", 64, "1"},          // and blanks around them
    {"OPTIONS", "IncrementalVariables", "x", 64, "0"},  // blanks in the file trimmed
    {"OPTIONS", "MediaPlayerPath", "", 64, "C:\\Program Files\\Player\\player.exe"},
    {"OPTIONS", "MediaPlayerPath", "", 8, "C:\\Prog"},  // cut to size - 1
    {"OPTIONS", "MediaPlayerPath", "", 1, ""},
    {"OPTIONS", "Empty", "default", 64, ""},  // present but empty: not the default
    {"OPTIONS", "Spaced", "", 64, "42"},
    {"OPTIONS", "Equation", "", 64, "a=b==c"},  // the key ends at the first "="
    {"OPTIONS", "Missing", "fallback", 64, "fallback"},
    {"OPTIONS", "Missing", "fallback  \t", 64, "fallback"},  // default's trailing blanks go
    {"OPTIONS", "Missing", "fallback", 5, "fall"},
    {"OPTIONS", "Missing", nullptr, 64, ""},
    {"OPTIONS", "NoEqualsLine", "d", 64, "d"},  // a line without "=" is no key
    {"OPTIONS", "; Commented", "d", 64, "d"},   // nor is a comment
    {"OPTIONS", "Window Width", "d", 64, "d"},  // keys of other sections stay there
    {"NO SECTION", "Sound", "d", 64, "d"},
    {"WINDOW ATTRIBUTES", "Window Width", "d", 64, "1000"},
    {"Duplicate", "Key", "d", 64, "first"},  // the first key of the name wins
    {"Duplicate", "Other", "d", 64, "d"},    // and the first section of the name
};

TEST(ProfileRead, ValuesDefaultsAndCuts) {
    for (const char *file : {"settings_crlf.ini", "settings_lf.ini"}) {
        const std::string path = data_file(file);
        for (const auto &c : kValueCases) {
            char buffer[64];
            std::memset(buffer, '#', sizeof buffer);
            std::size_t n =
                GetPrivateProfileString(c.section, c.key, c.deflt, buffer, c.size, path.c_str());
            EXPECT_STREQ(buffer, c.expected) << file << " [" << c.section << "] " << c.key;
            EXPECT_EQ(n, std::strlen(c.expected)) << file << " " << c.key;
        }
    }
}

TEST(ProfileRead, SizeZeroWritesNothing) {
    char buffer[4] = {'#', '#', '#', '#'};
    EXPECT_EQ(GetPrivateProfileString("OPTIONS", "Sound", "", buffer, 0,
                                      data_file("settings_crlf.ini").c_str()),
              0u);
    EXPECT_EQ(buffer[0], '#');
}

struct ListCase {
    const char *section;  // null: the list of sections
    std::size_t size;
    const char *expected;  // entries joined with "|"
    std::size_t returned;
};

TEST(ProfileRead, KeyAndSectionLists) {
    const ListCase cases[] = {
        {"Duplicate", 64, "Key|key", 8},
        {"duplicate", 64, "Key|key", 8},
        {"WINDOW ATTRIBUTES", 64, "Window Width", 13},
        {"NO SECTION", 64, "", 0},
        {"Duplicate", 7, "Key|k", 5},  // cut in the last name, two NULs, size - 2
        {"Duplicate", 6, "Key", 4},
        {"Duplicate", 2, "", 0},
        {nullptr, 256, "OPTIONS|WINDOW ATTRIBUTES|Graph Default Colors|Points|Duplicate|duplicate",
         74},
        {nullptr, 11, "OPTIONS|W", 9},
    };
    const std::string path = data_file("settings_crlf.ini");
    for (const auto &c : cases) {
        char buffer[256];
        std::memset(buffer, '#', sizeof buffer);
        std::size_t n =
            GetPrivateProfileString(c.section, nullptr, "ignored", buffer, c.size, path.c_str());
        EXPECT_EQ(joined(buffer, c.size), c.expected) << (c.section ? c.section : "(sections)");
        EXPECT_EQ(n, c.returned) << (c.section ? c.section : "(sections)");
        // Every list ends in two NULs: the count leaves out the last one, or, when the list
        // was cut, the two that close it.
        EXPECT_EQ(buffer[n], '\0');
        EXPECT_TRUE(n == 0 || buffer[n - 1] == '\0' || buffer[n + 1] == '\0');
    }
}

TEST(ProfileRead, NullSectionAndNullKeyListSections) {
    char buffer[256];
    GetPrivateProfileString(nullptr, nullptr, "", buffer, sizeof buffer,
                            data_file("settings_lf.ini").c_str());
    EXPECT_EQ(joined(buffer, sizeof buffer),
              "OPTIONS|WINDOW ATTRIBUTES|Graph Default Colors|Points|Duplicate|duplicate");
}

TEST(ProfileRead, StringHelpersMatchTheBufferCalls) {
    const std::string path = data_file("settings_crlf.ini");
    EXPECT_EQ(profile_value(path, "options", "hints"), "2");
    EXPECT_EQ(profile_value(path, "options", "nothing"), std::nullopt);
    EXPECT_EQ(profile_keys(path, "WINDOW ATTRIBUTES"), std::vector<std::string>{"Window Width"});
    EXPECT_EQ(profile_sections(path).size(), 6u);
}

struct IntCase {
    const char *key;
    int deflt;
    int expected;
};

TEST(ProfileRead, IntegersAreSignedDecimalOrTheDefault) {
    const IntCase cases[] = {
        {"Sound", 7, 1},         {"Hints", 7, 2},    {"Negative", 7, -2}, {"Plus", 7, 17},
        {"Spaced", 7, 42},       {"Lead", 7, 12},  // digits first: what follows is ignored
        {"Junk", 7, 7},                            // not a number: the default
        {"Empty", 7, 7},         {"SignOnly", 7, 7}, {"Missing", -2, -2}, {"Huge", 7, INT_MAX},
        {"NegHuge", 7, INT_MIN},
    };
    for (const char *file : {"settings_crlf.ini", "settings_lf.ini"}) {
        for (const auto &c : cases) {
            EXPECT_EQ(GetPrivateProfileInt("OPTIONS", c.key, c.deflt, data_file(file).c_str()),
                      c.expected)
                << file << " " << c.key;
        }
    }
}

struct IntTextCase {
    const char *text;
    int expected;
};

TEST(ProfileRead, IntegerTexts) {
    const IntTextCase cases[] = {
        {"0", 0},
        {"-0", 0},
        {"  +5  ", 5},
        {"2147483647", INT_MAX},
        {"2147483648", INT_MAX},
        {"-2147483648", INT_MIN},
        {"-2147483649", INT_MIN},
        {"12.7", 12},
        {"1e5", 1},
        {"- 5", -99},
        {"0x10", 0},
        {"", -99},
        {"+", -99},
        {"x1", -99},
    };
    for (const auto &c : cases) EXPECT_EQ(profile_int(c.text, -99), c.expected) << c.text;
}

TEST(ProfileRead, MissingFileGivesEveryDefault) {
    testing::TempFolder folder;
    const std::string path = folder.file("absent.ini");
    char buffer[16];
    EXPECT_EQ(GetPrivateProfileString("S", "k", "dflt", buffer, sizeof buffer, path.c_str()), 4u);
    EXPECT_STREQ(buffer, "dflt");
    EXPECT_EQ(GetPrivateProfileString("S", nullptr, "dflt", buffer, sizeof buffer, path.c_str()),
              0u);
    EXPECT_EQ(buffer[0], '\0');
    EXPECT_EQ(GetPrivateProfileString(nullptr, nullptr, "", buffer, sizeof buffer, path.c_str()),
              0u);
    EXPECT_EQ(GetPrivateProfileInt("S", "k", 150, path.c_str()), 150);
    EXPECT_EQ(GetPrivateProfileInt("S", "k", 150, nullptr), 150);
    // A folder is not a settings file either.
    EXPECT_EQ(GetPrivateProfileInt("S", "k", 3, folder.path().c_str()), 3);
    EXPECT_TRUE(folder.entries().empty());
}

}  // namespace
}  // namespace quindar
