// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The index of a library's names and the stamp of its file, against the look-up that scans
// the file: a name the index turns away is one the scan never finds.
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <string>
#include <vector>

#include "documents_test_support.h"
#include "library_lookup.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::data_file;

std::string write(const testing::TempFolder &folder, const char *name, const char *content) {
    const std::string path = folder.file(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

// Names to try on a library: every entry, whole and short, in three cases, and near misses.
std::vector<std::string> names_to_try(VarFunIniFile &library) {
    std::vector<std::string> names = {"", "NOSUCH", "x", "[", "SIN", "PI"};
    for (const auto &category : library_categories(library)) {
        const long size = library.SizeOfFunctionNames(category.c_str());
        if (size <= 0) continue;
        std::vector<char> list(static_cast<std::size_t>(size) + 1, '\0');
        library.GetFunctionNames(list.data(), static_cast<int>(list.size()), category.c_str());
        for (std::string entry : split_multi_string(list.data(), list.size())) {
            for (const std::string &name : {entry, entry.substr(0, entry.find('['))}) {
                std::string lower = name, upper = name;
                for (char &c : lower)
                    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
                for (char &c : upper)
                    c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
                names.insert(names.end(), {name, lower, upper, name + "X", name.substr(1)});
            }
        }
    }
    return names;
}

void expect_index_covers_scan(const std::string &path, bool holdsFunctions = true) {
    VarFunIniFile library(path.c_str());
    LibraryIndex index;
    ASSERT_TRUE(index.read(library));
    EXPECT_EQ(index.categories(), library_categories(library));
    int found = 0;
    for (const std::string &name : names_to_try(library)) {
        for (const auto &category : library_categories(library)) {
            library.SetFunctionFlagStr(category.c_str());
            const bool scanned = lib_function_text(library, name.c_str()).has_value();
            found += scanned;
            if (scanned) {
                EXPECT_EQ(index.holders(name.c_str()).count(category), 1U)
                    << path << ": " << name << " in " << category;
            }
        }
    }
    EXPECT_EQ(found > 0, holdsFunctions) << path;
}

TEST(LibraryIndex, EveryNameTheScanFindsIsHeldByTheIndex) {
    expect_index_covers_scan(data_file("library.lib"));
    expect_index_covers_scan(std::string(QUINDAR_LIBRARY_DIR) + "Quindar.lib");
    // The user library comes with categories and no functions.
    expect_index_covers_scan(std::string(QUINDAR_LIBRARY_DIR) + "QuindarUser.lib", false);
}

TEST(LibraryIndex, NamesAndTheirCategories) {
    testing::TempFolder folder;
    const std::string path = write(folder, "some.lib",
                                   "[ONE]\nSquare[x]=x^2\nTwice[x]=2*x\n[TWO]\nsquare[y]=y*y\n"
                                   "[EMPTY]\n");
    VarFunIniFile library(path.c_str());
    LibraryIndex index;
    ASSERT_TRUE(index.read(library));
    const std::vector<std::string> categories = {"ONE", "TWO", "EMPTY"};
    EXPECT_EQ(index.categories(), categories);
    EXPECT_EQ(index.holders("SQUARE").size(), 2U);
    EXPECT_EQ(index.holders("square[x]").count("ONE"), 1U);
    EXPECT_EQ(index.holders("square[x]").count("TWO"), 0U);
    EXPECT_EQ(index.holders("twice").count("ONE"), 1U);
    EXPECT_TRUE(index.holders("thrice").empty());
    EXPECT_TRUE(index.holders("").empty());
}

TEST(FileStamp, AFreshFileIsNeverVouchedFor) {
    testing::TempFolder folder;
    const std::string path = write(folder, "a.lib", "[A]\nF[x]=x\n");
    FileStamp first, second;
    ASSERT_TRUE(first.take(path));
    ASSERT_TRUE(second.take(path));
    // Written just now: an edit within the same tick of the file clock would not show.
    EXPECT_FALSE(second.vouches_for(first));
    FileStamp missing;
    EXPECT_FALSE(missing.take(folder.file("none.lib")));
    EXPECT_FALSE(missing.vouches_for(first));
    EXPECT_FALSE(first.take(folder.path().string()));  // a folder is no library
}

TEST(FileStamp, AnotherFileOrAnotherSizeIsNeverVouchedFor) {
    testing::TempFolder folder;
    const std::string a = write(folder, "a.lib", "[A]\nF[x]=x\n");
    const std::string b = write(folder, "b.lib", "[A]\nF[x]=x\n");
    FileStamp first, other;
    ASSERT_TRUE(first.take(a));
    ASSERT_TRUE(other.take(b));
    EXPECT_FALSE(other.vouches_for(first));
    write(folder, "a.lib", "[A]\nF[x]=x+1\n");
    ASSERT_TRUE(other.take(a));
    EXPECT_FALSE(other.vouches_for(first));
}

}  // namespace
}  // namespace quindar
