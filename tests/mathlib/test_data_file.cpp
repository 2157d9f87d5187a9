// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The data file format: separators, labels, rows, limits and failures.
#include "data_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "temp_folder.h"

namespace quindar::mathlib {
namespace {

class DataFiles : public ::testing::Test {
protected:
    std::string file(const std::string &name, const std::string &content) {
        return folder.write(name, content);
    }
    quindar::testing::TempFolder folder;
};

TEST_F(DataFiles, EntriesAndSeparators) {
    struct Case {
        const char *content;
        std::vector<std::string> entries;
    };
    const Case table[] = {
        {"1, 2 3", {"1", "2", "3"}},        {"\r\n\n  1\t,,2\r\n3\n", {"1", "2", "3"}},
        {"1) 10 2) 20", {"10", "20"}},      {"f(2) 2)", {"f(2)"}},
        {"SQRT(16), 4", {"SQRT(16)", "4"}}, {"1+i", {"1+i"}},
    };
    for (const auto &c : table) {
        std::vector<std::string> entries;
        EXPECT_EQ(read_data_entries(file("d.txt", c.content), entries), DataFileStatus::Read);
        EXPECT_EQ(entries, c.entries) << c.content;
    }
}

TEST_F(DataFiles, FailuresAndTheirTexts) {
    std::vector<std::string> entries;
    const std::string missing = folder.path() + "/none.txt";
    EXPECT_EQ(read_data_entries(missing, entries), DataFileStatus::CannotOpen);
    EXPECT_EQ(data_file_message(DataFileStatus::CannotOpen, "x.dat"),
              "Data File ' x.dat ' Could Not Be Located!");
    EXPECT_EQ(read_data_entries(file("e.txt", " \r\n\n"), entries), DataFileStatus::NoData);
    EXPECT_EQ(data_file_message(DataFileStatus::NoData, "x.dat"),
              "No Data Found In The ' x.dat ' Data File!");
    EXPECT_EQ(data_file_message(DataFileStatus::TooMany, "x.dat"),
              "Too Many Data Points Found In The ' x.dat ' Data File, Limit Is 32767 Points!");
}

TEST_F(DataFiles, TheLimitIs32766Entries) {
    std::string content;
    for (int k = 0; k < 32766; ++k) content += "1 ";
    std::vector<std::string> entries;
    EXPECT_EQ(read_data_entries(file("big.txt", content), entries), DataFileStatus::Read);
    EXPECT_EQ(entries.size(), 32766u);
    EXPECT_EQ(read_data_entries(file("big.txt", content + "1"), entries), DataFileStatus::TooMany);
}

// Anything but a regular file is no data file: no exception, no wait for a writer, no
// endless read; the data-file message instead.
TEST_F(DataFiles, OnlyRegularFilesAreRead) {
    const std::string fifo = folder.path() + "/pipe";
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    const std::string unreadable = file("secret.txt", "1 2 3");
    ::chmod(unreadable.c_str(), 0);
    for (const std::string &path : {folder.path(), std::string("/"), std::string("/dev/zero"),
                                    std::string("/dev/null"), fifo, unreadable}) {
        if (path == unreadable && ::geteuid() == 0) continue;  // the superuser reads it anyway
        std::vector<std::string> entries;
        std::vector<PointRow> rows;
        EXPECT_EQ(read_data_entries(path, entries), DataFileStatus::CannotOpen) << path;
        EXPECT_EQ(read_data_points(path, rows), DataFileStatus::CannotOpen) << path;
        EXPECT_TRUE(entries.empty() && rows.empty()) << path;
    }
}

// A huge file stops being read at the limits instead of being taken whole.
TEST_F(DataFiles, ReadingStopsAtTheByteLimit) {
    const std::string sparse = file("sparse.txt", "1 2 ");
    ASSERT_EQ(::truncate(sparse.c_str(), static_cast<off_t>(kDataFileByteLimit + 4096)), 0);
    std::vector<std::string> entries;
    EXPECT_EQ(read_data_entries(sparse, entries), DataFileStatus::TooMany);
    const std::string blanks(kDataFileByteLimit + 1, ' ');
    EXPECT_EQ(read_data_entries(file("blank.txt", blanks), entries), DataFileStatus::TooMany);
    std::string exact(kDataFileByteLimit, ' ');
    exact[0] = '7';
    EXPECT_EQ(read_data_entries(file("exact.txt", exact), entries), DataFileStatus::Read);
    EXPECT_EQ(entries, std::vector<std::string>{"7"});
}

TEST_F(DataFiles, PointRows) {
    std::vector<PointRow> rows;
    EXPECT_EQ(read_data_points(file("p.txt", "1 2\n\n3 4 5 6\n7"), rows), DataFileStatus::Read);
    ASSERT_EQ(rows.size(), 3u);
    EXPECT_EQ(rows[0].count, 2);
    EXPECT_EQ(rows[0].coordinates[2], "");
    EXPECT_EQ(rows[1].coordinates[2], "5");
    EXPECT_EQ(rows[1].count, 4);
    EXPECT_EQ(rows[2].coordinates[0], "7");
}

}  // namespace
}  // namespace quindar::mathlib
