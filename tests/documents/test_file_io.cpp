// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Replacing a file: links, refusals with their reasons, the lock, and temporary files of runs
// that died.
#include "file_io.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "documents_test_support.h"

namespace quindar::testing {
namespace {

namespace fs = std::filesystem;

TEST(FileReplace, ThroughALinkTheLinkedFileIsReplaced) {
    TempFolder folder;
    write_content(folder.file("real.txt"), "old");
    fs::create_symlink("real.txt", folder.file("link.txt"));
    fs::create_symlink("made.txt", folder.file("dangling.txt"));
    ASSERT_TRUE(replace_file(folder.file("link.txt"), "new").written);
    ASSERT_TRUE(replace_file(folder.file("dangling.txt"), "made").written);
    EXPECT_TRUE(fs::is_symlink(folder.file("link.txt")));
    EXPECT_TRUE(fs::is_symlink(folder.file("dangling.txt")));
    EXPECT_EQ(file_content(folder.file("real.txt")), "new");
    EXPECT_EQ(file_content(folder.file("made.txt")), "made");
    EXPECT_EQ(folder.entries().size(), 4u);
}

TEST(FileReplace, RefusalsGiveTheirReasons) {
    TempFolder folder;
    fs::create_directory(folder.file("sub"));
    write_content(folder.file("ro.txt"), "kept");
    ::chmod(folder.file("ro.txt").c_str(), 0444);
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    const struct {
        std::string path;
        const char *reason;
    } table[] = {
        {folder.file("sub"), "it is a folder"},
        {folder.file("pipe"), "it is not a regular file"},
        {folder.file("ro.txt"), "it is read-only"},
        {folder.file("missing/x.txt"), "No such file or directory"},
        {"", "no file name"},
    };
    for (const auto &row : table) {
        const ReplaceOutcome outcome = replace_file(row.path, "new");
        EXPECT_FALSE(outcome.written) << row.path;
        EXPECT_EQ(outcome.reason, row.reason) << row.path;
    }
    EXPECT_EQ(file_content(folder.file("ro.txt")), "kept");
}

TEST(FileReplace, ModeIsKept) {
    TempFolder folder;
    write_content(folder.file("m.txt"), "old");
    ::chmod(folder.file("m.txt").c_str(), 0604);
    const ReplaceOutcome outcome = replace_file(folder.file("m.txt"), "new");
    ASSERT_TRUE(outcome.written);
    EXPECT_EQ(outcome.warning, "");
    struct stat status {};
    ASSERT_EQ(::stat(folder.file("m.txt").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0604u);
}

// A lock held on the file lets the holder replace it; a new lock afterwards is on the new
// file, and one on a folder is refused.
TEST(FileReplace, LockIsOnTheFileThatIsThere) {
    TempFolder folder;
    write_content(folder.file("l.txt"), "old");
    std::string reason;
    auto lock = FileLock::Acquire(folder.file("l.txt"), reason);
    ASSERT_TRUE(lock) << reason;
    ASSERT_TRUE(replace_file(folder.file("l.txt"), "new", &*lock).written);
    auto again = FileLock::Acquire(folder.file("l.txt"), reason);
    ASSERT_TRUE(again) << reason;
    EXPECT_EQ(again->Target(), folder.file("l.txt"));
    EXPECT_FALSE(FileLock::Acquire(folder.path().string(), reason));
    EXPECT_EQ(reason, "it is a folder");
    EXPECT_TRUE(FileLock::Acquire(folder.file("none.txt"), reason));
}

TEST(FileReplace, StaleTemporariesOfEndedRunsAreRemoved) {
    TempFolder folder;
    long dead = 999999;
    while (::kill(static_cast<pid_t>(dead), 0) == 0 || errno != ESRCH) ++dead;
    const std::string ended = std::to_string(dead);
    const std::string alive = std::to_string(static_cast<long>(::getpid()));
    const struct {
        std::string name;
        bool removed;
    } table[] = {
        {".a.qnd.quindar-save-" + ended + "-0123abcd.tmp", true},
        {".a.qnd.quindar-save-" + alive + "-0123abcd.tmp", false},
        {".a.qnd.quindar-save-" + ended + "-0123abc.tmp", false},
        {".a.qnd.quindar-save-" + ended + "-0123abcz.tmp", false},
        {".a.qnd.quindar-save--0123abcd.tmp", false},
        {".a.qnd.~0123abcd", false},
        {"a.qnd.X1y2Z3", false},
        {".b.qnd.quindar-save-" + ended + "-0123abcd.tmp", false},
    };
    for (const auto &row : table) write_content(folder.file(row.name), "x");
    EXPECT_EQ(remove_stale_temporaries(folder.path().string(), "a.qnd"), 1);
    for (const auto &row : table)
        EXPECT_EQ(fs::exists(folder.file(row.name)), !row.removed) << row.name;
    // Without a name, those of every file: the start of the desktop program.
    EXPECT_EQ(remove_stale_temporaries(folder.path().string()), 1);
    EXPECT_FALSE(fs::exists(folder.file(".b.qnd.quindar-save-" + ended + "-0123abcd.tmp")));
    // A save removes those of its own file.
    write_content(folder.file(table[0].name), "x");
    ASSERT_TRUE(replace_file(folder.file("a.qnd"), "doc").written);
    EXPECT_FALSE(fs::exists(folder.file(table[0].name)));
}

}  // namespace
}  // namespace quindar::testing
