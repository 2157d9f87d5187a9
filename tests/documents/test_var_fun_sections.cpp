// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <string>

#include "documents_test_support.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::TempFolder;
using testing::write_content;

long length(const std::string &text) {
    return static_cast<long>(text.size());
}

const std::string kVars = "[DECLARED VARIABLES]\r\nv=1\r\n";
const std::string kFuns = "[DECLARED FUNCTIONS]\r\nf[x]=x\r\n";
const std::string kSetup = "[SETUP]\r\nA=1\r\n";
const long kFlagLength = length("DECLARED FUNCTIONS");  // the variables' flag is as long

struct SizeCase {
    const char *name;
    std::string content;
    long variables;  // SizeOfVarSection
    long functions;  // SizeOfFunSection
};

// A section measures from the end of its header's text: to the other declaration section
// less that one's flag length, else to the setup header's CR, else to the end of the file.
TEST(VarFunSections, SizesByTheOrderOfTheSections) {
    const SizeCase cases[] = {
        {"variables, functions, setup", "T\r\n" + kVars + kFuns + kSetup,
         length(kVars) - kFlagLength, 0},
        {"functions, variables, setup", "T\r\n" + kFuns + kVars + kSetup, 0,
         length(kFuns) - kFlagLength},
        {"functions, variables", kFuns + kVars, length("\r\nv=1\r\n"), length(kFuns) - kFlagLength},
        {"variables, setup", kVars + kSetup, length("\r\nv=1\r\n[SETUP]\r"), 0},
        {"functions, setup", kFuns + kSetup, 0, length("\r\nf[x]=x\r\n[SETUP]\r")},
        {"variables alone", kVars, length("\r\nv=1\r\n"), 0},
        {"functions alone", "text\r\n" + kFuns, 0, length("\r\nf[x]=x\r\n")},
        {"setup in front: measured to the end", kSetup + kVars, length("\r\nv=1\r\n"), 0},
        {"header with text behind it", "[DECLARED VARIABLES] etc\r\nv=1\r\n",
         length(" etc\r\nv=1\r\n"), 0},
        {"no sections", "just text\r\n", 0, 0},
        {"lower case header is no header", "[declared variables]\r\nv=1\r\n", 0, 0},
        {"indented header is no header", " [DECLARED VARIABLES]\r\nv=1\r\n", 0, 0},
        {"empty file", "", 0, 0},
    };
    for (const auto &c : cases) {
        TempFolder folder;
        const std::string path = folder.file("doc.qnd");
        write_content(path, c.content);
        VarFunIniFile file(path.c_str());
        EXPECT_EQ(file.SizeOfVarSection(), c.variables) << c.name;
        EXPECT_EQ(file.SizeOfFunSection(), c.functions) << c.name;
        EXPECT_EQ(file.FindVariableFlag(),
                  c.content.find("\n[DECLARED VARIABLES]") != std::string::npos ||
                      c.content.rfind("[DECLARED VARIABLES]", 0) == 0)
            << c.name;
    }
}

TEST(VarFunSections, VariablesBehindFunctionsWithSetupReadAsEmpty) {
    TempFolder folder;
    const std::string path = folder.file("odd.qnd");
    write_content(path, kFuns + kVars + kSetup);
    VarFunIniFile file(path.c_str());
    EXPECT_TRUE(file.FindVariableFlag());
    EXPECT_EQ(file.GetNumVariables(), 0);
}

struct StartCase {
    const char *name;
    std::string content;
    long start;  // GetStartOfDecs
};

TEST(VarFunSections, StartOfDeclarationsCountsNoCr) {
    const StartCase cases[] = {
        {"CR LF text", "abc\r\ndef\r\n[SETUP]\r\n", length("abc\ndef\n")},
        {"LF text", "abc\ndef\n[SETUP]\n", length("abc\ndef\n")},
        {"lone CRs are counted out too", "a\r\rb\r\n[SETUP]\r\n", length("ab\n")},
        {"blank lines belong to the text", "abc\r\n\r\n\r\n[SETUP]\r\n", length("abc\n\n\n")},
        {"functions before variables", "x\r\n" + kFuns + kVars + kSetup, length("x\n")},
        {"a declaration header wins over setup", "x\r\n" + kSetup + kVars,
         length("x\n" + kSetup) - 2},
        {"header at the very start", kSetup, 0},
        {"header without a line end", "[SETUP]", 0},
        {"no header: the whole file", "abc\r\ndef", length("abc\ndef")},
        {"NULs between lines are skipped", std::string("abc\r\n\0\0[SETUP]\r\n", 16),
         length(std::string("abc\n\0\0", 6))},
        {"empty file", "", 0},
    };
    for (const auto &c : cases) {
        TempFolder folder;
        const std::string path = folder.file("doc.qnd");
        write_content(path, c.content);
        VarFunIniFile file(path.c_str());
        EXPECT_EQ(file.GetStartOfDecs(), c.start) << c.name;
    }
}

TEST(VarFunSections, FlagsOfOtherLengths) {
    TempFolder folder;
    const std::string path = folder.file("custom.qnd");
    write_content(path,
                  "Head\r\nline\r\n[VARS]\r\nv=1\r\n[FUNCTIONS OF A LONG NAME]\r\nf[x]=x\r\n");
    VarFunIniFile file(path.c_str(), "FUNCTIONS OF A LONG NAME", "VARS");
    EXPECT_STREQ(file.GetVariableFlagStr(), "VARS");
    EXPECT_TRUE(file.FindVariableFlag());
    EXPECT_EQ(file.GetStartOfDecs(), length("Head\nline\n"));
    EXPECT_EQ(file.GetNumVariables(), 1);
    EXPECT_EQ(file.GetNumFunctions(), 1);
    // Changing a flag makes the next question scan again.
    file.SetVariableFlagStr("OTHER");
    EXPECT_FALSE(file.FindVariableFlag());
    EXPECT_EQ(file.GetStartOfDecs(), length("Head\nline\n[VARS]\nv=1\n"));
    file.SetVariableFlagStr(nullptr);  // ignored
    file.SetVariableFlagStr("");       // ignored
    EXPECT_STREQ(file.GetVariableFlagStr(), "OTHER");
    EXPECT_STREQ(file.GetSetupFlagStr(), "SETUP");
}

TEST(VarFunSections, DefaultFlags) {
    VarFunIniFile file(testing::data_file("document.qnd").c_str(), "", nullptr);
    EXPECT_STREQ(file.GetFunctionFlagStr(), "DECLARED FUNCTIONS");
    EXPECT_STREQ(file.GetVariableFlagStr(), "DECLARED VARIABLES");
}

struct LongestCase {
    const char *name;
    std::string content;
    long longest;  // SizeOfLongestLine
};

TEST(VarFunSections, LongestLinePlusTwo) {
    const LongestCase cases[] = {
        {"CR LF", "ab\r\nabcd\r\nabc\r\n", 4 + 2},
        {"LF and no last line end", "ab\nabcdef", 6 + 2},
        {"line ends do not count", "a\r\r\r\n\n\nb\r\n", 1 + 2},
        {"empty file", "", 0 + 2},
    };
    for (const auto &c : cases) {
        TempFolder folder;
        const std::string path = folder.file("lines.txt");
        write_content(path, c.content);
        VarFunIniFile file(path.c_str());
        EXPECT_EQ(file.SizeOfLongestLine(), c.longest) << c.name;
    }
}

}  // namespace
}  // namespace quindar
