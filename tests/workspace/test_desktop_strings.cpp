// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The string table and the rules of the numbered message boxes.
#include <gtest/gtest.h>

#include <array>

#include "message_box_rules.h"
#include "string_table.h"

namespace quindar {
namespace {

TEST(StringTable, ReadsIdsTextsAndEscapes) {
    StringTable table;
    std::vector<std::string> problems;
    table.AddTsv(
        "# a comment\n\n100\tOne\r\n200\tTwo\\nlines\\tand a tab\n300\tback\\\\slash \\q\n",
        &problems);
    EXPECT_TRUE(problems.empty());
    EXPECT_EQ(table.Size(), 3u);
    EXPECT_EQ(table.Get(100), "One");
    EXPECT_EQ(table.Get(200), "Two\nlines\tand a tab");
    EXPECT_EQ(table.Get(300), "back\\slash \\q");
    EXPECT_EQ(table.Get(400), "");
    EXPECT_EQ(table.IdsBetween(150, 300), (std::vector<int>{200, 300}));
}

TEST(StringTable, SkipsMalformedLinesAndRepeatedIds) {
    StringTable table;
    std::vector<std::string> problems;
    table.AddTsv("12x\tbad id\nno tab here\n-5\tnegative\n7\tfirst\n7\tsecond\n", &problems);
    EXPECT_EQ(table.Size(), 1u);
    EXPECT_EQ(table.Get(7), "first");
    ASSERT_EQ(problems.size(), 4u);
    EXPECT_EQ(problems[0], "line 1: not \"id TAB text\": 12x\tbad id");
    EXPECT_EQ(problems[3], "line 5: id 7 given twice");
}

struct CompiledText {
    int id;
    const char *text;
};

// Texts the program shows word for word, spelling included.
constexpr CompiledText kCompiledTexts[] = {
    {24401, "You Have Reached The Math Editor Window Limit!"},
    {24400, "Quindar Client Window Manager"},
    {32550, "Math Editor"},
    {32553, "The text in the %s file has changed.\n\nDo you want to save the changes?"},
    {21806, "Attributes in the ' %s ' file have changed!\n\n Do you wish to save the changes?"},
    {31745,
     "\"%s\"\nThis File Is Already Open. A File Can Not Be Opened More Than Once Inside The Math "
     "Editor."},
    {24405,
     "The tutorials directory could not be found, if this directory was inadvertantly deleted, "
     "please restore it.  Otherwise, you may need to re-install the tutorial media files."},
    {24406,
     "There where no tutorial files found in the designated directory, you may need to install the "
     "tutorials."},
    {21818,
     "All trignometric angle computations will now be made using angles measured in radians."},
    {24333, "Save the active Quindar document to a file"},
    {24381, "Setup Operations"},
    {24370, "Displays the Graph Window if the Math Window Is displayed"},
};

TEST(StringTable, CompiledTableHoldsTheProgramsTexts) {
    EXPECT_TRUE(application_string_problems().empty());
    for (const CompiledText &entry : kCompiledTexts)
        EXPECT_EQ(application_strings().Get(entry.id), entry.text) << entry.id;
}

struct StyleCase {
    unsigned flags;
    BoxIcon icon;
    BoxButtons buttons;
    int escape;
};

constexpr StyleCase kStyles[] = {
    {kBoxWarning, BoxIcon::Warning, BoxButtons::Ok, kIdOk},
    {kBoxInformation, BoxIcon::Information, BoxButtons::Ok, kIdOk},
    {kBoxWarningYesNo, BoxIcon::Warning, BoxButtons::YesNo, kIdNo},
    {kBoxQuestionYesNo, BoxIcon::Question, BoxButtons::YesNo, kIdNo},
    {kBoxQuestionYesNoCancel, BoxIcon::Question, BoxButtons::YesNoCancel, kIdCancel},
    {0x2011, BoxIcon::Error, BoxButtons::OkCancel, kIdCancel},
};

TEST(MessageBoxRules, FlagsChooseIconAndButtons) {
    for (const StyleCase &entry : kStyles) {
        const BoxStyle style = box_style(entry.flags);
        EXPECT_EQ(style.icon, entry.icon) << std::hex << entry.flags;
        EXPECT_EQ(style.buttons, entry.buttons) << std::hex << entry.flags;
        EXPECT_EQ(box_escape_result(style.buttons), entry.escape) << std::hex << entry.flags;
    }
    EXPECT_EQ(kIdOk, 1);
    EXPECT_EQ(kIdCancel, 2);
    EXPECT_EQ(kIdYes, 6);
    EXPECT_EQ(kIdNo, 7);
    EXPECT_EQ(kBoxNotShown, 0);
}

struct FormatCase {
    const char *text;
    std::vector<std::string_view> arguments;
    std::optional<std::string> expected;
};

TEST(MessageBoxRules, TextArgumentsNeedTheirSpecifiers) {
    const FormatCase cases[] = {
        {"File %s missing", {"a.qnd"}, "File a.qnd missing"},
        {"' %s ' used in ' %s '", {"x", "f"}, "' x ' used in ' f '"},
        {"no specifier", {"a"}, std::nullopt},
        {"one %s only", {"a", "b"}, std::nullopt},
        {"100%% of %s", {"it"}, "100% of it"},
        {"plain", {}, "plain"},
    };
    for (const FormatCase &entry : cases)
        EXPECT_EQ(format_message(entry.text, entry.arguments), entry.expected) << entry.text;
}

TEST(MessageBoxRules, NumberArgumentTakesDOrC) {
    EXPECT_EQ(format_message("Line: %d", 12), "Line: 12");
    EXPECT_EQ(format_message("Key %c pressed", 'Q'), "Key Q pressed");
    EXPECT_EQ(format_message("no number %s", 3), std::nullopt);
    EXPECT_EQ(format_message(application_strings().Get(kMsgFormatSpecifierMissing), 24401),
              "Resource String Number 24401 Could Not Be Displayed Because The Format Specifier "
              "Could Not Be Found In The String, Please Notify Quindar!");
}

TEST(MessageBoxRules, LongTextsAreCut) {
    EXPECT_EQ(limit_box_text(std::string(2000, 'a'), kBoxTextLimit).size(), 1023u);
    EXPECT_EQ(limit_box_text("short", kBoxTitleLimit), "short");
}

}  // namespace
}  // namespace quindar
