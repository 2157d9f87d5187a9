// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <filesystem>

#include "temp_files.h"
#include "temp_folder.h"

namespace quindar {
namespace {

TEST(TempFiles, NamesOfEditorTemporaryFiles) {
    const struct {
        const char *name;
        bool editors;
    } cases[] = {
        {"qnd1A2B.tmp", true}, {"Qnd1A2B.tmp", true}, {"QND.TMP", true},    {"qnd.tmp", true},
        {"qndx.TMP", true},    {"qnd1.tmpx", false},  {"xqnd1.tmp", false}, {"qn1.tmp", false},
        {"qnd1.tm", false},    {"notes.tmp", false},  {"", false},
    };
    for (const auto &row : cases) {
        EXPECT_EQ(is_editor_temporary_name(row.name), row.editors) << row.name;
    }
}

TEST(TempFiles, RemovesOnlyTheEditorsFilesOfTheFolder) {
    testing::TempFolder folder;
    for (const char *name : {"qnd1.tmp", "Qnd2.tmp", "QNDabc.TMP", "keep.tmp", "qnd3.txt"}) {
        folder.write(name, "x");
    }
    std::filesystem::create_directory(folder.path() + "/qnd4.tmp");  // a folder stays
    EXPECT_EQ(remove_stale_temporary_files(folder.path()), 3);
    for (const char *name : {"keep.tmp", "qnd3.txt", "qnd4.tmp"}) {
        EXPECT_TRUE(std::filesystem::exists(folder.path() + "/" + name)) << name;
    }
    for (const char *name : {"qnd1.tmp", "Qnd2.tmp", "QNDabc.TMP"}) {
        EXPECT_FALSE(std::filesystem::exists(folder.path() + "/" + name)) << name;
    }
    EXPECT_EQ(remove_stale_temporary_files(folder.path()), 0);
}

TEST(TempFiles, AMissingFolderRemovesNothing) {
    testing::TempFolder folder;
    EXPECT_EQ(remove_stale_temporary_files(folder.path() + "/missing"), 0);
}

}  // namespace
}  // namespace quindar
