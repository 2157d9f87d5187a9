// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "documents_test_support.h"
#include "profile.h"

namespace quindar {
namespace {

using testing::file_content;
using testing::TempFolder;
using testing::write_content;

struct WriteCase {
    const char *name;
    const char *before;  // null: no file
    const char *section;
    const char *key;
    const char *value;
    const char *after;  // the whole file afterwards
};

const WriteCase kWriteCases[] = {
    {"creates a missing file", nullptr, "S", "k", "v", "[S]\r\nk=v\r\n"},
    {"empty file", "", "S", "k", "v", "[S]\r\nk=v\r\n"},
    {"free text kept, section at the end", "Text\r\nmore = text\r\n", "SETUP", "A", "1",
     "Text\r\nmore = text\r\n[SETUP]\r\nA=1\r\n"},
    {"free text without a last line end", "Text", "SETUP", "A", "1", "Text\r\n[SETUP]\r\nA=1\r\n"},
    {"LF free text kept byte for byte", "one\ntwo\n\n", "S", "k", "v",
     "one\ntwo\n\n[S]\r\nk=v\r\n"},
    {"new key at the end of its section", "[A]\r\nx=1\r\n[B]\r\ny=2\r\n", "a", "z", "3",
     "[A]\r\nx=1\r\nz=3\r\n[B]\r\ny=2\r\n"},
    {"new key before the blank lines that part sections", "[A]\r\nx=1\r\n\r\n[B]\r\n", "A", "z",
     "3", "[A]\r\nx=1\r\nz=3\r\n\r\n[B]\r\n"},
    {"new key in an empty section", "[A]\r\n[B]\r\n", "A", "z", "3", "[A]\r\nz=3\r\n[B]\r\n"},
    {"new key in the last section without a line end", "[A]\nx=1", "A", "z", "3",
     "[A]\nx=1\r\nz=3\r\n"},
    {"existing key keeps its spelling", "[A]\r\n  Key = old \r\n", "a", "KEY", "new",
     "[A]\r\nKey=new\r\n"},
    {"existing LF key, other lines untouched", "; c\n[A]\nx=1\ny=2\n", "A", "x", "9",
     "; c\n[A]\nx=9\r\ny=2\n"},
    {"function key with brackets and a value with =", "[DECLARED FUNCTIONS]\r\n",
     "DECLARED FUNCTIONS", "g[x,y]", "IF[x==y,1,0]",
     "[DECLARED FUNCTIONS]\r\ng[x,y]=IF[x==y,1,0]\r\n"},
    {"only the first section of a name", "[A]\r\n[a]\r\nk=1\r\n", "A", "k", "2",
     "[A]\r\nk=2\r\n[a]\r\nk=1\r\n"},
    {"blanks around names trimmed", "", " S ", " k ", "v", "[S]\r\nk=v\r\n"},
    {"null value deletes the key", "[A]\r\nx=1\r\ny=2\r\n", "A", "x", nullptr, "[A]\r\ny=2\r\n"},
    {"null value, no such key", "[A]\r\nx=1\r\n", "A", "q", nullptr, "[A]\r\nx=1\r\n"},
    {"null key deletes the section", "T\r\n[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n", "a", nullptr, nullptr,
     "T\r\n[B]\r\ny=2\r\n"},
    {"null key deletes every section of the name", "[A]\r\n[B]\r\nb=1\r\n[a]\r\nx=1\r\n", "A",
     nullptr, nullptr, "[B]\r\nb=1\r\n"},
    {"null key, no such section", "T\r\n", "Z", nullptr, nullptr, "T\r\n"},
};

TEST(ProfileWrite, EditsOnlyWhatTheWriteConcerns) {
    for (const auto &c : kWriteCases) {
        TempFolder folder;
        const std::string path = folder.file("file.ini");
        if (c.before != nullptr) write_content(path, c.before);
        EXPECT_TRUE(WritePrivateProfileString(c.section, c.key, c.value, path.c_str())) << c.name;
        EXPECT_EQ(file_content(path), c.after) << c.name;
        EXPECT_EQ(folder.entries(), std::vector<std::string>{"file.ini"}) << c.name;
    }
}

TEST(ProfileWrite, NullValueOnMissingFileCreatesNothing) {
    TempFolder folder;
    const std::string path = folder.file("absent.ini");
    EXPECT_TRUE(WritePrivateProfileString("S", "k", nullptr, path.c_str()));
    EXPECT_TRUE(WritePrivateProfileString("S", nullptr, nullptr, path.c_str()));
    EXPECT_TRUE(folder.entries().empty());
}

TEST(ProfileWrite, WhatIsWrittenReadsBack) {
    TempFolder folder;
    const std::string path = folder.file("Quindar.ini");
    write_content(path, "Header text\r\n");
    ASSERT_TRUE(WritePrivateProfileString("OPTIONS", "Sound", "0", path.c_str()));
    ASSERT_TRUE(WritePrivateProfileString("TipOfTheDay", "Pos", "-1", path.c_str()));
    ASSERT_TRUE(WritePrivateProfileString("OPTIONS", "Hints", "2", path.c_str()));
    ASSERT_TRUE(WritePrivateProfileString("options", "SOUND", "1", path.c_str()));
    EXPECT_EQ(file_content(path),
              "Header text\r\n[OPTIONS]\r\nSound=1\r\nHints=2\r\n[TipOfTheDay]\r\nPos=-1\r\n");
    EXPECT_EQ(GetPrivateProfileInt("TipOfTheDay", "Pos", -2, path.c_str()), -1);
    EXPECT_EQ(GetPrivateProfileInt("OPTIONS", "Sound", 5, path.c_str()), 1);
    EXPECT_EQ(profile_keys(path, "OPTIONS"), (std::vector<std::string>{"Sound", "Hints"}));
}

struct RefusedCase {
    const char *name;
    const char *section;
    const char *key;
    const char *value;
};

TEST(ProfileWrite, RefusedWritesLeaveTheFileAsItWas) {
    const RefusedCase cases[] = {
        {"null section", nullptr, "k", "v"},
        {"empty key", "S", "  ", "v"},
        {"line break in the value", "S", "k", "a\r\nb"},
        {"line break in the key", "S", "k\n", "v"},
        {"line break in the section", "S\rT", "k", "v"},
    };
    TempFolder folder;
    const std::string path = folder.file("file.ini");
    write_content(path, "[S]\r\nk=old\r\n");
    for (const auto &c : cases) {
        EXPECT_FALSE(WritePrivateProfileString(c.section, c.key, c.value, path.c_str())) << c.name;
        EXPECT_EQ(file_content(path), "[S]\r\nk=old\r\n") << c.name;
    }
    EXPECT_FALSE(WritePrivateProfileString("S", "k", "v", nullptr));
    EXPECT_FALSE(WritePrivateProfileString("S", "k", "v", ""));
}

TEST(ProfileWrite, MissingFolderFails) {
    TempFolder folder;
    const std::string path = folder.file("no/such/folder/file.ini");
    EXPECT_FALSE(WritePrivateProfileString("S", "k", "v", path.c_str()));
    EXPECT_TRUE(folder.entries().empty());
}

TEST(ProfileWrite, FolderInPlaceOfTheFileFails) {
    TempFolder folder;
    std::filesystem::create_directory(folder.file("taken.ini"));
    EXPECT_FALSE(WritePrivateProfileString("S", "k", "v", folder.file("taken.ini").c_str()));
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"taken.ini"});
}

TEST(ProfileWrite, ReadOnlyFileIsRefusedAndKept) {
    TempFolder folder;
    const std::string path = folder.file("locked.ini");
    write_content(path, "[S]\r\nk=old\r\n");
    ::chmod(path.c_str(), 0444);
    EXPECT_FALSE(WritePrivateProfileString("S", "k", "new", path.c_str()));
    EXPECT_EQ(file_content(path), "[S]\r\nk=old\r\n");
}

TEST(ProfileWrite, ExistingPermissionsSurvive) {
    TempFolder folder;
    const std::string path = folder.file("private.ini");
    write_content(path, "[S]\r\n");
    ::chmod(path.c_str(), 0600);
    ASSERT_TRUE(WritePrivateProfileString("S", "k", "v", path.c_str()));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

}  // namespace
}  // namespace quindar
