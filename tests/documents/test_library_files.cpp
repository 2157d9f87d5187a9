// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Hand-written function library files, well formed and damaged, against golden listings of
// what the reader makes of them: each data/libraries/NAME.lib beside its NAME.listing.
// Huge lines are made by the test; the shipped libraries are read the same way.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "documents_test_support.h"
#include "library_lookup.h"
#include "user_library.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::data_file;
using testing::file_content;
using testing::TempFolder;

// Bytes outside printable ASCII as \xNN, so that a listing is plain text.
std::string printable(const std::string &text) {
    std::string out;
    for (unsigned char c : text) {
        if (c >= 0x20 && c < 0x7f) {
            out += static_cast<char>(c);
        } else {
            char code[5];
            std::snprintf(code, sizeof code, "\\x%02x", c);
            out += code;
        }
    }
    return out;
}

std::vector<std::string> names_of(VarFunIniFile &file, const std::string &category) {
    const long size = file.SizeOfFunctionNames(category.c_str());
    if (size <= 0) return {};
    std::vector<char> list(static_cast<std::size_t>(size));
    file.GetFunctionNames(list.data(), static_cast<int>(size), category.c_str());
    return split_multi_string(list.data(), list.size());
}

std::string value_of(VarFunIniFile &file, const std::string &key, const std::string &category) {
    const long size = file.SizeOfLongestLine();
    std::vector<char> buffer(static_cast<std::size_t>(size > 0 ? size : 1));
    if (!file.GetFunctionValue(key.c_str(), buffer.data(), static_cast<int>(buffer.size()),
                               category.c_str()))
        return "(none)";
    return buffer.data();
}

// What the Function Library shows of a file: each category with its functions, each with
// its value and description.
std::string listing(const std::string &path, std::vector<std::string> &warnings) {
    VarFunIniFile file(
        path.c_str(), nullptr, nullptr,
        [&](std::string_view text, std::string_view) { warnings.emplace_back(text); });
    std::string out;
    for (const std::string &category : library_categories(file)) {
        out += "[" + printable(category) + "]\n";
        for (const std::string &full : names_of(file, category)) {
            const std::string short_name = full.substr(0, full.find('['));
            out +=
                "  " + printable(full) + " = " + printable(value_of(file, full, category)) + "\n";
            out += "    " + printable(value_of(file, short_name, category)) + "\n";
        }
    }
    return out.empty() ? "(no categories)\n" : out;
}

TEST(LibraryFiles, HandWrittenFilesMatchTheirListings) {
    int files = 0;
    for (const auto &entry : std::filesystem::directory_iterator(data_file("libraries"))) {
        if (entry.path().extension() != ".lib") continue;
        ++files;
        const std::string lib = entry.path().string();
        std::string golden = lib;
        golden.replace(golden.size() - 4, 4, ".listing");
        std::vector<std::string> warnings;
        EXPECT_EQ(listing(lib, warnings), file_content(golden)) << lib;
        EXPECT_TRUE(warnings.empty()) << lib;
    }
    EXPECT_EQ(files, 9);
}

TEST(LibraryFiles, LookUpAcrossCategoriesWithoutRegardToCase) {
    VarFunIniFile file(data_file("libraries/well_formed.lib").c_str());
    const struct {
        const char *name;
        const char *full;  // "" when not found
        const char *value;
    } cases[] = {
        {"cpound", "CPOUND[P,I,N]", "P(POW[1+I,N])"},
        {"pValue", "PVALUE[F,I,N]", "F(POW[1+I,-N])"},
        {"LOWER", "", ""},  // an indented header is a category, but its listing is empty
        {"circle", "CIRCLE[r]", "PI*r^2"},
        {"NAME", "", ""},  // free text in front of the first category
        {"SPHER", "", ""},
        {"", "", ""},
    };
    for (const auto &c : cases) {
        const auto found = find_library_function(file, c.name);
        EXPECT_EQ(found.has_value(), *c.full != '\0') << c.name;
        if (!found) continue;
        EXPECT_EQ(found->fullName, c.full);
        EXPECT_EQ(found->value, c.value);
    }
}

TEST(LibraryFiles, HugeLinesAreReadWhole) {
    TempFolder folder;
    const std::string body(200000, '1');
    const std::string category(100000, 'C');
    const std::string path = folder.file("huge.lib");
    testing::write_content(path, "[" + category + "]\nBIG[x]=x+" + body + "\nSMALL[x]=x\n");
    std::vector<std::string> warnings;
    VarFunIniFile file(path.c_str());
    EXPECT_EQ(library_categories(file), std::vector<std::string>{category});
    const auto big = find_library_function(file, "big");
    ASSERT_TRUE(big.has_value());
    EXPECT_EQ(big->value, "x+" + body);
    const auto small = find_library_function(file, "SMALL");
    ASSERT_TRUE(small.has_value());
    EXPECT_EQ(small->value, "x");
}

TEST(LibraryFiles, AMissingFileWarnsAtEachReadAndGivesNothing) {
    TempFolder folder;
    const std::string path = folder.file("gone.lib");
    std::vector<std::string> warnings;
    VarFunIniFile file(path.c_str(), nullptr, nullptr,
                       [&](std::string_view text, std::string_view caption) {
                           warnings.push_back(std::string(caption) + ": " + std::string(text));
                       });
    EXPECT_TRUE(library_categories(file).empty());
    EXPECT_FALSE(find_library_function(file, "ANY").has_value());
    ASSERT_FALSE(warnings.empty());
    EXPECT_EQ(warnings[0], "File Access: File \" " + path + " \" Could Not Be Opened!");
}

TEST(UserLibrary, TheTemplateHoldsNoCategoryAndIsTheShippedFile) {
    TempFolder folder;
    const std::string path = folder.file(kUserLibraryName);
    testing::write_content(path, user_library_template());
    VarFunIniFile file(path.c_str());
    EXPECT_TRUE(library_categories(file).empty());
    EXPECT_FALSE(find_library_function(file, "CPOUND").has_value());
    EXPECT_EQ(file_content(std::string(QUINDAR_LIBRARY_DIR) + kUserLibraryName),
              user_library_template());
}

TEST(UserLibrary, MadeWithItsFolderWhenMissingAndNeverOverwritten) {
    TempFolder folder;
    const std::string library = (folder.path() / "deep" / "Library").string() + "/";
    EXPECT_TRUE(create_user_library(library));
    EXPECT_EQ(file_content(library + kUserLibraryName), user_library_template());
    testing::write_content(library + kUserLibraryName, "[MINE]\nF[x]=x\n");
    EXPECT_TRUE(create_user_library(library));
    EXPECT_EQ(file_content(library + kUserLibraryName), "[MINE]\nF[x]=x\n");
}

TEST(UserLibrary, AFolderThatCannotBeMadeIsNotTold) {
    TempFolder folder;
    testing::write_content(folder.file("plain"), "a file where the folder should be");
    EXPECT_FALSE(create_user_library(folder.file("plain") + "/Library/"));
}

}  // namespace
}  // namespace quindar
