// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Function Solver's data files: saved in each kind, read back to the same entries.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "parser.h"
#include "solver_data_file.h"
#include "solver_form.h"

namespace quindar::calculus {
namespace {

class SolverDataFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        folder =
            std::filesystem::temp_directory_path() /
            ("quindar-solver-" + std::to_string(::testing::UnitTest::GetInstance()->random_seed()) +
             "-" + ::testing::UnitTest::GetInstance()->current_test_info()->name());
        std::filesystem::remove_all(folder);
        std::filesystem::create_directories(folder);
        ASSERT_TRUE(form.configure("MEAN[{number1,number2,...numberN}]"));
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    std::string Path(const char *name) const { return (folder / name).string(); }
    static std::string Read(const std::string &path) {
        std::ifstream in(path, std::ios::binary);
        std::ostringstream text;
        text << in.rdbuf();
        return text.str();
    }

    std::filesystem::path folder;
    Parser parser{"", ""};
    SolverForm form;
};

TEST_F(SolverDataFileTest, EachKindSavesAndLoadsTheSameEntries) {
    form.load({"1", "2.5", "a+1"}, true);
    for (const char *name : {"list.txt", "list.csv", "list.prn"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(SaveDataFile(form, Path(name)));
        SolverForm loaded;
        ASSERT_TRUE(loaded.configure("MEAN[{number1,number2,...numberN}]"));
        std::string error;
        ASSERT_TRUE(LoadDataFile(parser, loaded, Path(name), true, error)) << error;
        EXPECT_EQ(loaded.entries(), form.entries());
    }
    EXPECT_EQ(Read(Path("list.prn")), "      1\n      2.5\n      a+1\n");
    EXPECT_EQ(Read(Path("list.csv")), "1\n2.5\na+1\n");
}

TEST_F(SolverDataFileTest, AMissingFileLeavesTheListAsItWas) {
    form.load({"4"}, true);
    std::string error;
    EXPECT_FALSE(LoadDataFile(parser, form, Path("missing.txt"), false, error));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(form.entries(), (std::vector<std::string>{"4"}));
}

TEST_F(SolverDataFileTest, AFileThatCantBeWrittenKeepsItsOldContent) {
    const std::string path = Path("locked.txt");
    { std::ofstream(path) << "old\n"; }
    std::filesystem::permissions(
        path, std::filesystem::perms::owner_read | std::filesystem::perms::group_read);
    form.load({"1"}, true);
    EXPECT_FALSE(SaveDataFile(form, path));
    EXPECT_EQ(Read(path), "old\n");
    EXPECT_FALSE(SaveDataFile(form, Path("no-folder/list.txt")));
}

}  // namespace
}  // namespace quindar::calculus
