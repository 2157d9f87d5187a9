// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "documents_test_support.h"
#include "profile.h"
#include "var_fun_ini_file.h"

namespace quindar {
namespace {

using testing::data_file;
using testing::file_content;
using testing::joined;

// The golden document: free text, then variables, functions, setup and font.
constexpr const char *kFreeText =
    "Notes for the week\r\nx = 5 + 2\r\nf[x] = x^2 is typed here\r\n\r\nlast line of text\r\n";
constexpr const char *kFreeTextLf =
    "Notes for the week\nx = 5 + 2\nf[x] = x^2 is typed here\n\nlast line of text\n";
constexpr const char *kVariableSection =
    "[DECLARED VARIABLES]\r\na=3\r\nb=?\r\nt=0 (0,10,11,1)\r\n";

struct Messages {
    std::vector<std::string> shown;
    WarningHook hook() {
        return [this](std::string_view text, std::string_view caption) {
            shown.push_back(std::string(caption) + ": " + std::string(text));
        };
    }
};

TEST(VarFunDocument, FindsTheSectionsBehindTheFreeText) {
    const std::string path = data_file("document.qnd");
    const std::string content = file_content(path);
    ASSERT_EQ(content.substr(0, std::strlen(kFreeText)), kFreeText);
    Messages messages;
    VarFunIniFile doc(path.c_str(), nullptr, nullptr, messages.hook());
    EXPECT_TRUE(doc.FindVariableFlag());
    EXPECT_TRUE(doc.FindFunctionFlag());
    EXPECT_TRUE(doc.FindSetupFlag());
    EXPECT_EQ(doc.OffsetOfFirstHeader(), static_cast<long>(std::strlen(kFreeText)));
    EXPECT_EQ(doc.GetStartOfDecs(), static_cast<long>(std::strlen(kFreeTextLf)));
    EXPECT_EQ(doc.SizeOfFile(), static_cast<long>(content.size()));
    // The LF twin holds the same text, so its size is the CR LF file's size less its CRs.
    VarFunIniFile twin(data_file("document_lf.qnd").c_str());
    EXPECT_EQ(doc.SizeOfAsciiFile(), twin.SizeOfFile());
    EXPECT_EQ(twin.SizeOfAsciiFile(), twin.SizeOfFile());
    EXPECT_EQ(twin.GetStartOfDecs(), doc.GetStartOfDecs());
    EXPECT_EQ(doc.SizeOfLongestLine(),
              static_cast<long>(std::strlen("AnsZeroPrecision=1.0e-14")) + 2);
    EXPECT_TRUE(messages.shown.empty());
}

TEST(VarFunDocument, SectionSizesInDocumentOrder) {
    ASSERT_NE(file_content(data_file("document.qnd")).find(kVariableSection), std::string::npos);
    for (const char *file : {"document.qnd", "document_lf.qnd"}) {
        VarFunIniFile doc(data_file(file).c_str());
        const long expected =
            static_cast<long>(std::strlen(kVariableSection) - std::strlen("DECLARED FUNCTIONS"));
        if (std::strcmp(file, "document.qnd") == 0) {
            EXPECT_EQ(doc.SizeOfVarSection(), expected);
        }
        EXPECT_GT(doc.SizeOfVarSection(), 0) << file;
        // Variables come first and setup follows: the function section measures 0.
        EXPECT_EQ(doc.SizeOfFunSection(), 0) << file;
    }
}

TEST(VarFunDocument, VariablesThroughTheProfileReads) {
    VarFunIniFile doc(data_file("document.qnd").c_str());
    EXPECT_EQ(doc.GetNumVariables(), 3);
    char buffer[64];
    doc.GetVariable(nullptr, "", buffer, sizeof buffer);
    EXPECT_EQ(joined(buffer, sizeof buffer), "a|b|t");
    struct {
        const char *name;
        int size;
        const char *expected;
    } cases[] = {
        {"a", 64, "3"},         {"B", 64, "?"}, {"t", 64, "0 (0,10,11,1)"},
        {"t", 4, "0 ("},        {"x", 64, "?"},  // "x = 5 + 2" is free text, no key
        {"AngleType", 64, "?"},
    };
    for (const auto &c : cases) {
        doc.GetVariable(c.name, "?", buffer, c.size);
        EXPECT_STREQ(buffer, c.expected) << c.name;
    }
}

TEST(VarFunDocument, FunctionsListedAndLookedUp) {
    VarFunIniFile doc(data_file("document.qnd").c_str());
    const char *names[] = {"f[x]", "g[x,y]", "h[a,b,c]"};
    long needed = 1;
    for (const char *name : names) needed += static_cast<long>(std::strlen(name)) + 1;
    EXPECT_EQ(doc.SizeOfFunctionNames(), needed);
    EXPECT_EQ(doc.GetNumFunctions(), 3);
    struct {
        int size;
        bool stored;
        const char *expected;
    } listCases[] = {
        {64, true, "f[x]|g[x,y]|h[a,b,c]"},
        {22, true, "f[x]|g[x,y]|h[a,b,c]"},  // exactly SizeOfFunctionNames
        {21, true, "f[x]|g[x,y]"},           // a name that does not fit ends the list
        {13, true, "f[x]|g[x,y]"},
        {12, true, "f[x]"},
        {6, true, "f[x]"},
        {5, false, ""},
        {1, false, ""},
    };
    for (const auto &c : listCases) {
        char buffer[64];
        std::memset(buffer, '#', sizeof buffer);
        EXPECT_EQ(doc.GetFunctionNames(buffer, c.size), c.stored) << c.size;
        EXPECT_EQ(joined(buffer, static_cast<std::size_t>(c.size)), c.expected) << c.size;
    }
    struct {
        const char *name;
        bool found;
        const char *expected;
    } valueCases[] = {
        {"f[x]", true, "x^2"},
        {"g[x,y]", true, "IF[x==y,1,0]"},  // the key ends at the first "="
        {"h[a,b,c]", true, "a+b*c"},
        {"f", false, ""},  // keys compare exactly
        {"F[x]", false, ""},
        {"AngleType", true, "1"},  // the scan runs on to the end of the file
        {"a", false, ""},          // the variables stand in front of the header
    };
    for (const auto &c : valueCases) {
        char buffer[64];
        EXPECT_EQ(doc.GetFunctionValue(c.name, buffer, sizeof buffer), c.found) << c.name;
        EXPECT_STREQ(buffer, c.expected) << c.name;
    }
}

TEST(VarFunDocument, LibraryLookUpsFindNothingInADocument) {
    // They size their lists by the function section, which a document measures as 0.
    VarFunIniFile doc(data_file("document.qnd").c_str());
    char buffer[64];
    EXPECT_FALSE(doc.IsFunction("f"));
    EXPECT_FALSE(doc.GetFuncFullName("f", buffer, sizeof buffer));
    EXPECT_STREQ(buffer, "");
    EXPECT_EQ(doc.SizeOfLongestFuncName(), 0);
}

TEST(VarFunDocument, HeaderTypedInTheFreeText) {
    const std::string path = data_file("document_fake_header.qnd");
    VarFunIniFile doc(path.c_str());
    // The scanners take the later header: the typed one stays in the free text.
    const std::string freeText =
        "Free text that mentions\n[DECLARED VARIABLES]\nas a header of its own\nz=1\n";
    EXPECT_EQ(doc.GetStartOfDecs(), static_cast<long>(freeText.size()));
    const long expected = static_cast<long>(std::strlen("[DECLARED VARIABLES]\r\na=3\r\n") -
                                            std::strlen("DECLARED FUNCTIONS"));
    EXPECT_EQ(doc.SizeOfVarSection(), expected);
    // The profile reads stop at the first section of the name, as the platform's do.
    char buffer[64];
    doc.GetVariable(nullptr, "", buffer, sizeof buffer);
    EXPECT_EQ(joined(buffer, sizeof buffer), "z");
}

TEST(VarFunDocument, PlainTextWithoutSections) {
    Messages messages;
    const std::string path = data_file("text_only.qnd");
    VarFunIniFile doc(path.c_str(), nullptr, nullptr, messages.hook());
    EXPECT_FALSE(doc.FindVariableFlag());
    EXPECT_FALSE(doc.FindFunctionFlag());
    EXPECT_FALSE(doc.FindSetupFlag());
    EXPECT_EQ(doc.GetStartOfDecs(), doc.SizeOfAsciiFile());
    EXPECT_EQ(doc.OffsetOfFirstHeader(), doc.SizeOfFile());
    EXPECT_EQ(doc.SizeOfVarSection(), 0);
    EXPECT_EQ(doc.SizeOfFunSection(), 0);
    EXPECT_EQ(doc.GetNumVariables(), 0);
    EXPECT_EQ(doc.GetNumFunctions(), 0);
    EXPECT_EQ(doc.SizeOfFunctionNames(), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST(VarFunDocument, SaveAndReadBack) {
    testing::TempFolder folder;
    const std::string path = folder.file("saved.qnd");
    testing::write_content(path, "Line one\r\nLine two\r\n");
    VarFunIniFile doc(path.c_str());
    EXPECT_TRUE(doc.WriteVariable("a", "3"));
    EXPECT_TRUE(doc.WriteVariable("b", "?"));
    EXPECT_TRUE(doc.WriteFunction("f[x]", "x==2"));
    EXPECT_TRUE(doc.WriteFunction("g[x,y]", "x+y"));
    EXPECT_TRUE(WritePrivateProfileString("SETUP", "AngleType", "0", path.c_str()));
    EXPECT_EQ(file_content(path),
              "Line one\r\nLine two\r\n"
              "[DECLARED VARIABLES]\r\na=3\r\nb=?\r\n"
              "[DECLARED FUNCTIONS]\r\nf[x]=x==2\r\ng[x,y]=x+y\r\n"
              "[SETUP]\r\nAngleType=0\r\n");
    // The object's own writes are noticed; the setup section came from outside, so a new
    // object reads the finished file.
    VarFunIniFile reader(path.c_str());
    EXPECT_EQ(reader.GetStartOfDecs(), static_cast<long>(std::strlen("Line one\nLine two\n")));
    EXPECT_EQ(reader.GetNumVariables(), 2);
    EXPECT_EQ(reader.GetNumFunctions(), 2);
    char value[32];
    EXPECT_TRUE(reader.GetFunctionValue("f[x]", value, sizeof value));
    EXPECT_STREQ(value, "x==2");
    EXPECT_EQ(folder.entries(), std::vector<std::string>{"saved.qnd"});
}

TEST(VarFunDocument, EmptyEditorSavesStraightIntoSetup) {
    testing::TempFolder folder;
    const std::string path = folder.file("empty.qnd");
    testing::write_content(path, "");
    ASSERT_TRUE(WritePrivateProfileString("SETUP", "AnsPrecision", "14", path.c_str()));
    EXPECT_EQ(file_content(path).rfind("[SETUP]\r\n", 0), 0u);
    VarFunIniFile doc(path.c_str());
    EXPECT_EQ(doc.GetStartOfDecs(), 0);
    EXPECT_EQ(doc.SizeOfVarSection(), 0);
}

TEST(VarFunDocument, OwnWritesForgetTheCachedPositions) {
    testing::TempFolder folder;
    const std::string path = folder.file("grow.qnd");
    testing::write_content(path, "Text\r\n");
    VarFunIniFile doc(path.c_str());
    EXPECT_FALSE(doc.FindVariableFlag());
    EXPECT_EQ(doc.GetStartOfDecs(), static_cast<long>(std::strlen("Text\n")));
    const long before = doc.SizeOfFile();
    ASSERT_TRUE(doc.WriteVariable("a", "1"));
    EXPECT_TRUE(doc.FindVariableFlag());
    EXPECT_EQ(doc.SizeOfFile(),
              before + static_cast<long>(std::strlen("[DECLARED VARIABLES]\r\na=1\r\n")));
    EXPECT_EQ(doc.GetStartOfDecs(), static_cast<long>(std::strlen("Text\n")));
}

}  // namespace
}  // namespace quindar
