// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "documents_test_support.h"
#include "library_lookup.h"
#include "profile.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::data_file;
using testing::file_content;
using testing::joined;
using testing::TempFolder;
using testing::write_content;

struct Messages {
    std::vector<std::string> shown;
    WarningHook hook() {
        return [this](std::string_view text, std::string_view caption) {
            shown.push_back(std::string(caption) + ": " + std::string(text));
        };
    }
};

struct Operation {
    const char *name;
    std::function<long(VarFunIniFile &)> call;
};

// Every read operation, with its result as a number (true is 1); buffers are prefilled so
// that an empty result shows.
const std::vector<Operation> &read_operations() {
    static const std::vector<Operation> operations = {
        {"GetStartOfDecs", [](VarFunIniFile &f) { return f.GetStartOfDecs(); }},
        {"OffsetOfFirstHeader", [](VarFunIniFile &f) { return f.OffsetOfFirstHeader(); }},
        {"SizeOfFile", [](VarFunIniFile &f) { return f.SizeOfFile(); }},
        {"SizeOfAsciiFile", [](VarFunIniFile &f) { return f.SizeOfAsciiFile(); }},
        {"SizeOfVarSection", [](VarFunIniFile &f) { return f.SizeOfVarSection(); }},
        {"SizeOfFunSection", [](VarFunIniFile &f) { return f.SizeOfFunSection(); }},
        {"FindVariableFlag", [](VarFunIniFile &f) { return long{f.FindVariableFlag()}; }},
        {"FindFunctionFlag", [](VarFunIniFile &f) { return long{f.FindFunctionFlag()}; }},
        {"FindSetupFlag", [](VarFunIniFile &f) { return long{f.FindSetupFlag()}; }},
        {"SizeOfLongestLine", [](VarFunIniFile &f) { return f.SizeOfLongestLine(); }},
        {"GetNumVariables", [](VarFunIniFile &f) { return long{f.GetNumVariables()}; }},
        {"GetNumFunctions", [](VarFunIniFile &f) { return long{f.GetNumFunctions()}; }},
        {"SizeOfFunctionNames", [](VarFunIniFile &f) { return f.SizeOfFunctionNames(); }},
        {"SizeOfFunctionCatagories", [](VarFunIniFile &f) { return f.SizeOfFunctionCatagories(); }},
        {"IsFunctionCatagory", [](VarFunIniFile &f) { return long{f.IsFunctionCatagory("A")}; }},
        {"IsFunction", [](VarFunIniFile &f) { return long{f.IsFunction("f")}; }},
        {"IsFunction in a category", [](VarFunIniFile &f) { return long{f.IsFunction("f", "A")}; }},
        {"SizeOfLongestFuncName", [](VarFunIniFile &f) { return f.SizeOfLongestFuncName(); }},
        {"SizeOfLongestFuncValue", [](VarFunIniFile &f) { return f.SizeOfLongestFuncValue(); }},
        {"SizeOfLongestFuncNameAndValue",
         [](VarFunIniFile &f) { return f.SizeOfLongestFuncNameAndValue(); }},
        {"GetFunctionNames",
         [](VarFunIniFile &f) {
             char b[8] = "#######";
             return long{f.GetFunctionNames(b, sizeof b)} + (b[0] != '\0');
         }},
        {"GetFunctionCatagories",
         [](VarFunIniFile &f) {
             char b[8] = "#######";
             return long{f.GetFunctionCatagories(b, sizeof b)} + (b[0] != '\0');
         }},
        {"GetFunctionValue",
         [](VarFunIniFile &f) {
             char b[8] = "#######";
             return long{f.GetFunctionValue("f[x]", b, sizeof b)} + (b[0] != '\0');
         }},
        {"GetFuncFullName",
         [](VarFunIniFile &f) {
             char b[8] = "#######";
             return long{f.GetFuncFullName("f", b, sizeof b)} + (b[0] != '\0');
         }},
    };
    return operations;
}

TEST(VarFunRobustness, MissingFileWarnsOncePerOperation) {
    TempFolder folder;
    const std::string path = folder.file("gone.qnd");
    const std::string expected = "File Access: File \" " + path + " \" Could Not Be Opened!";
    for (const auto &operation : read_operations()) {
        Messages messages;
        VarFunIniFile file(path.c_str(), nullptr, nullptr, messages.hook());
        EXPECT_EQ(file.GetErrorMessage(), "File \" " + path + " \" Could Not Be Opened!");
        EXPECT_EQ(operation.call(file), 0) << operation.name;
        EXPECT_EQ(messages.shown, std::vector<std::string>{expected}) << operation.name;
    }
}

TEST(VarFunRobustness, FolderInPlaceOfTheFileWarns) {
    TempFolder folder;
    Messages messages;
    VarFunIniFile file(folder.path().c_str(), nullptr, nullptr, messages.hook());
    EXPECT_EQ(file.SizeOfFile(), 0);
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST(VarFunRobustness, ProfileReadsOfAMissingFileGiveTheDefaultQuietly) {
    Messages messages;
    VarFunIniFile file("/nonexistent/folder/x.qnd", nullptr, nullptr, messages.hook());
    char buffer[8];
    EXPECT_EQ(file.GetVariable("a", "?", buffer, sizeof buffer), 1u);
    EXPECT_STREQ(buffer, "?");
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_FALSE(file.WriteVariable("a", "1"));
}

TEST(VarFunRobustness, NullPathWarnsOnceAndThenFailsQuietly) {
    Messages messages;
    VarFunIniFile file(nullptr, nullptr, nullptr, messages.hook());
    EXPECT_EQ(
        messages.shown,
        std::vector<std::string>{"File Access: File Name Not Provided, File Could Not Be Opened!"});
    EXPECT_EQ(file.GetErrorMessage(), "");
    for (const auto &operation : read_operations()) {
        EXPECT_EQ(operation.call(file), 0) << operation.name;
    }
    char buffer[4] = "###";
    EXPECT_EQ(file.GetVariable("a", "?", buffer, sizeof buffer), 0u);
    EXPECT_STREQ(buffer, "");
    EXPECT_FALSE(file.WriteVariable("a", "1"));
    EXPECT_FALSE(file.WriteFunction("f[x]", "x"));
    EXPECT_EQ(messages.shown.size(), 1u);
}

// Runs every operation, the look-ups with buffers sized as callers size them, and checks
// only what must hold for any content: no crash, lists closed inside their buffers, sizes
// consistent with one another.
void exercise(const std::string &path) {
    Messages messages;
    VarFunIniFile file(path.c_str(), nullptr, nullptr, messages.hook());
    for (const auto &operation : read_operations()) operation.call(file);
    const long size = file.SizeOfFile();
    EXPECT_EQ(size, static_cast<long>(file_content(path).size()));
    EXPECT_LE(file.SizeOfAsciiFile(), size);
    EXPECT_GE(file.GetStartOfDecs(), 0);
    EXPECT_LE(file.GetStartOfDecs(), file.SizeOfAsciiFile());
    EXPECT_LE(file.OffsetOfFirstHeader(), size);
    EXPECT_GE(file.SizeOfVarSection(), 0);
    EXPECT_GE(file.SizeOfFunSection(), 0);

    long categoriesSize = file.SizeOfFunctionCatagories();
    std::vector<char> categories(static_cast<std::size_t>(std::max(categoriesSize, 1L)), '#');
    file.GetFunctionCatagories(categories.data(), static_cast<int>(categories.size()));
    EXPECT_EQ(categories.back(), '\0');
    for (const auto &category : split_multi_string(categories.data(), categories.size())) {
        long namesSize = file.SizeOfFunctionNames(category.c_str());
        std::vector<char> names(static_cast<std::size_t>(std::max(namesSize, 1L)), '#');
        file.GetFunctionNames(names.data(), static_cast<int>(names.size()));
        EXPECT_EQ(names.back(), '\0');
        long line = file.SizeOfLongestLine();
        std::vector<char> value(static_cast<std::size_t>(line));
        for (const auto &name : split_multi_string(names.data(), names.size())) {
            file.GetFunctionValue(name.c_str(), value.data(), static_cast<int>(line));
            EXPECT_LT(std::strlen(value.data()), static_cast<std::size_t>(line));
            file.GetFuncFullName(name.c_str(), value.data(), static_cast<int>(line));
        }
        find_library_function(file, "f");
    }
    std::vector<char> keys(static_cast<std::size_t>(std::max(file.SizeOfVarSection(), 2L)));
    file.GetVariable(nullptr, "", keys.data(), static_cast<int>(keys.size()));
    // Profile reads of the same bytes.
    char buffer[256];
    GetPrivateProfileString(nullptr, nullptr, "", buffer, sizeof buffer, path.c_str());
    for (const auto &section : split_multi_string(buffer, sizeof buffer)) {
        char keyList[256];
        GetPrivateProfileString(section.c_str(), nullptr, "", keyList, sizeof keyList,
                                path.c_str());
        for (const auto &key : split_multi_string(keyList, sizeof keyList)) {
            GetPrivateProfileInt(section.c_str(), key.c_str(), 0, path.c_str());
        }
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST(VarFunRobustness, GarbageAndBinaryFilesDoNotBreakAnything) {
    for (const char *golden : {"garbage.bin", "truncated.qnd", "document.qnd", "library.lib",
                               "document_fake_header.qnd", "settings_crlf.ini"}) {
        SCOPED_TRACE(golden);
        exercise(data_file(golden));
    }
}

// Random files made of the bytes that mean something to the scanners, with a fixed seed so
// that a failure repeats: every operation runs, and a key written into the file reads back.
TEST(VarFunRobustness, RandomStructuralBytes) {
    const char bytes[] = "[]=;,. \t\r\n\r\nabcAB1\xff";
    const std::string alphabet(bytes, sizeof bytes);  // the closing NUL included
    std::mt19937 random(20260101);
    TempFolder folder;
    const std::string path = folder.file("random.qnd");
    for (int round = 0; round < 200; ++round) {
        SCOPED_TRACE(round);
        std::string content(random() % 400, ' ');
        for (char &c : content) c = alphabet[random() % alphabet.size()];
        write_content(path, content);
        exercise(path);
        auto sections = profile_sections(path);
        const std::string section = sections.empty() ? "Fresh" : sections.front();
        ASSERT_TRUE(WritePrivateProfileString(section.c_str(), "Q9k", "v 1", path.c_str()));
        EXPECT_EQ(profile_value(path, section, "q9K"), "v 1");
        EXPECT_GE(file_content(path).size(), content.size() + std::strlen("Q9k=v 1\r\n"));
    }
}

TEST(VarFunRobustness, TruncatedDocument) {
    VarFunIniFile file(data_file("truncated.qnd").c_str());
    EXPECT_EQ(file.GetStartOfDecs(), static_cast<long>(std::strlen("Some text\n")));
    EXPECT_TRUE(file.FindFunctionFlag());
    EXPECT_FALSE(file.FindSetupFlag());
    EXPECT_EQ(file.GetNumVariables(), 1);
    char names[32];
    EXPECT_TRUE(file.GetFunctionNames(names, sizeof names));
    EXPECT_EQ(joined(names, sizeof names), "f[x]");
}

TEST(VarFunRobustness, WritingIntoGarbageKeepsEveryByte) {
    TempFolder folder;
    const std::string path = folder.copy_of("garbage.bin");
    const std::string before = file_content(path);
    ASSERT_TRUE(WritePrivateProfileString("Fresh Section", "k", "v", path.c_str()));
    const std::string after = file_content(path);
    ASSERT_GE(after.size(), before.size());
    EXPECT_EQ(after.substr(0, before.size()), before);
    EXPECT_EQ(GetPrivateProfileInt("Fresh Section", "k", 7, path.c_str()), 7);  // "v": default
    char value[4];
    GetPrivateProfileString("Fresh Section", "k", "", value, sizeof value, path.c_str());
    EXPECT_STREQ(value, "v");
}

TEST(VarFunRobustness, VeryLongLines) {
    TempFolder folder;
    const std::string path = folder.file("long.qnd");
    const std::string text(1 << 20, 'x');
    const std::string body(100000, '1');
    write_content(path, text + "\r\n");
    VarFunIniFile file(path.c_str());
    ASSERT_TRUE(file.WriteFunction("f[x]", (body + "+x").c_str()));
    ASSERT_TRUE(file.WriteVariable("v", body.c_str()));
    EXPECT_EQ(file.SizeOfLongestLine(), static_cast<long>(text.size()) + 2);
    EXPECT_EQ(file.GetStartOfDecs(), static_cast<long>(text.size()) + 1);
    std::vector<char> buffer(static_cast<std::size_t>(file.SizeOfLongestLine()));
    EXPECT_TRUE(file.GetFunctionValue("f[x]", buffer.data(), static_cast<int>(buffer.size())));
    EXPECT_EQ(std::string(buffer.data()), body + "+x");
    EXPECT_EQ(file.SizeOfLongestFuncValue("DECLARED FUNCTIONS"),
              static_cast<long>(body.size()) + 3);
    EXPECT_EQ(file.GetVariable("v", "", buffer.data(), static_cast<int>(buffer.size())),
              body.size());
    EXPECT_EQ(GetPrivateProfileInt("DECLARED VARIABLES", "v", 5, path.c_str()), INT_MAX);
    // A header far beyond the head that the section finder compares is not a header.
    write_content(path, std::string(5000, ' ') + "[SETUP]\r\n" + text);
    VarFunIniFile spaced(path.c_str());
    EXPECT_FALSE(spaced.FindSetupFlag());
    EXPECT_EQ(spaced.GetStartOfDecs(), spaced.SizeOfAsciiFile());
}

TEST(VarFunRobustness, ManyShortLines) {
    TempFolder folder;
    const std::string path = folder.file("many.lib");
    std::string content = "[MANY]\r\n";
    for (int i = 0; i < 20000; ++i)
        content += "F" + std::to_string(i) + "[x]=x*" + std::to_string(i) + "\r\n";
    write_content(path, content);
    VarFunIniFile file(path.c_str());
    EXPECT_EQ(file.SizeOfFunctionNames("MANY") > 0, true);
    EXPECT_EQ(file.GetNumFunctions(), 20000);
    EXPECT_TRUE(file.IsFunction("f19999"));
    auto found = find_library_function(file, "F12345");
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->value, "x*12345");
}

}  // namespace
}  // namespace quindar
