// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "documents_test_support.h"
#include "ini_file.h"
#include "profile.h"

namespace quindar {
namespace {

using testing::data_file;

struct ColorCase {
    const char *section;
    const char *key;
    bool found;
    int red, green, blue;
};

TEST(IniFileColor, ThreeFieldsLowBytesOrTheDefault) {
    const TColor deflt(9, 8, 7);
    const ColorCase cases[] = {
        {"Graph Default Colors", "Background", true, 64, 128, 128},
        {"Graph Default Colors", "GraphForegrond", true, 255, 255, 255},
        {"Graph Default Colors", "TwoFields", false, 9, 8, 7},
        {"Graph Default Colors", "Wrapped", true, 0, 1, 255},   // 256, 257, -1
        {"Graph Default Colors", "FourFields", true, 1, 2, 3},  // after a third comma: ignored
        {"Graph Default Colors", "TrailingComma", true, 10, 20, 0},
        {"Graph Default Colors", "EmptyFields", true, 0, 0, 0},
        {"Graph Default Colors", "Words", true, 0, 0, 0},
        {"Graph Default Colors", "TooLong", true, 1, 2, 0},  // only 27 characters are read
        {"Graph Default Colors", "Missing", false, 9, 8, 7},
        {"OPTIONS", "Empty", false, 9, 8, 7},
        {"No Such Section", "Background", false, 9, 8, 7},
    };
    IniFile ini(data_file("settings_crlf.ini").c_str());
    for (const auto &c : cases) {
        TColor value(1, 1, 1);
        EXPECT_EQ(ini.GetColor(c.section, c.key, deflt, value), c.found) << c.key;
        EXPECT_EQ(value,
                  TColor(static_cast<std::uint8_t>(c.red), static_cast<std::uint8_t>(c.green),
                         static_cast<std::uint8_t>(c.blue)))
            << c.key;
    }
}

TEST(IniFileColor, RedIsTheLowByte) {
    EXPECT_EQ(TColor(0x12, 0x34, 0x56).GetValue(), 0x563412u);
    EXPECT_EQ(TColor(64, 128, 255).Blue(), 255);
}

struct PointCase {
    const char *key;
    int size;
    bool found;
    const char *x, *y, *z;
};

TEST(IniFilePoint, ThreeTextsSplitAtCommas) {
    const PointCase cases[] = {
        {"Full", 16, true, "1", "2", "3"},
        {"Spaced", 16, true, "1 ", "2", "3"},  // leading white space of a field skipped
        {"OnlyX", 16, true, "5", "", ""},
        {"MiddleEmpty", 16, true, "1", "", "3"},
        {"FourFields", 16, true, "1", "2", "3"},
        {"Commas", 16, false, "", "", ""},
        {"Expressions", 16, true, "PI/2", "sin[1", "2]"},  // a comma splits wherever it is
        {"Expressions", 3, true, "PI", "si", "2]"},        // each cut to size - 1
        {"Missing", 16, false, "", "", ""},
    };
    IniFile ini(data_file("settings_lf.ini").c_str());
    for (const auto &c : cases) {
        char x[16], y[16], z[16];
        std::memset(x, '#', sizeof x);
        std::memset(y, '#', sizeof y);
        std::memset(z, '#', sizeof z);
        EXPECT_EQ(ini.GetPoint("Points", c.key, x, y, z, c.size), c.found) << c.key;
        EXPECT_STREQ(x, c.x) << c.key;
        EXPECT_STREQ(y, c.y) << c.key;
        EXPECT_STREQ(z, c.z) << c.key;
    }
}

TEST(IniFilePoint, ValueReadsAtMost127Characters) {
    testing::TempFolder folder;
    const std::string path = folder.file("point.ini");
    const std::string longX(125, 'x');
    ASSERT_TRUE(WritePrivateProfileString("P", "k", (longX + ",yy,z").c_str(), path.c_str()));
    IniFile ini(path.c_str());
    char x[200], y[200], z[200];
    EXPECT_TRUE(ini.GetPoint("P", "k", x, y, z, 200));
    EXPECT_EQ(std::string(x), longX);
    EXPECT_STREQ(y, "y");  // the 127th character is the last one read
    EXPECT_STREQ(z, "");
}

TEST(IniFile, KeepsItsOwnCopyOfTheName) {
    std::string name = data_file("settings_crlf.ini");
    IniFile ini(name.c_str());
    name.assign("changed");
    EXPECT_EQ(std::string(ini.GetFileName()), data_file("settings_crlf.ini"));
    EXPECT_STREQ(IniFile(nullptr).GetFileName(), "");
}

}  // namespace
}  // namespace quindar
