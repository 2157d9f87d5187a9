// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Messages that echo the user's text show whole characters and code points, never control
// bytes or half a UTF-8 character; the comma and character checks walk from the start.
#include "message_text.h"

#include <gtest/gtest.h>

#include <string>

#include "line_table.h"
#include "parser.h"

namespace quindar {
namespace {

TEST(MessageText, PrintableForms) {
    const struct {
        std::string text;
        bool one_line;
        const char *printable;
    } table[] = {
        {"plain ' x ' text", false, "plain ' x ' text"},
        {"caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80", false,
         "caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80"},
        {"bell\x07", false, "bellU+0007"},
        {"esc\x1b[31m", false, "escU+001B[31m"},
        {std::string("nul\0x", 5), false, "nulU+0000x"},
        {"tab\there", false, "tabU+0009here"},
        {"del\x7f", false, "delU+007F"},
        {"c1 \xc2\x85", false, "c1 U+0085"},
        {"half \xc3", false, "half U+00C3"},
        {"cut \xe2\x82", false, "cut U+00E2U+0082"},
        {"overlong \xc0\xaf", false, "overlong U+00C0U+00AF"},
        {"surrogate \xed\xa0\x80", false, "surrogate U+00EDU+00A0U+0080"},
        {"two\nlines\r\nand\rthree", false, "two\nlines\r\nand\rthree"},
        {"two\nlines\r\nand\rthree", true, "two lines and three"},
    };
    for (const auto &row : table)
        EXPECT_EQ(printable_message(row.text, row.one_line), row.printable) << row.text;
    EXPECT_EQ(character_at("\xc3\xa9x"), "\xc3\xa9");
    EXPECT_EQ(character_at("\xc3x"), "\xc3");
    EXPECT_EQ(character_at("#"), "#");
}

TEST(MessageText, EngineMessagesEchoWholeCharacters) {
    const testing::LineCase table[] = {
        {"1,2#3",
         "A comma ' , ' can only be used to separate function parameters or define an incremental "
         "variable!"},
        {"1#2,3", "' # ' is not a legitimate mathematical character!"},
        {"2+\xc3\xa9", "' \xc3\xa9 ' is not a legitimate mathematical character!"},
        {"2\xe2\x82\xac", "' \xe2\x82\xac ' is not a legitimate mathematical character!"},
        {"2+\xc3", "' U+00C3 ' is not a legitimate mathematical character!"},
        {"2+\x1b[31m", "' U+001B ' is not a legitimate mathematical character!"},
        {"x\x07y", "' xU+0007y ' Could Not Be Identified As A Variable Or Function."},
    };
    testing::check_lines(table);
}

// What a box shows is cleaned the same way as the error text.
TEST(MessageText, BoxesShowTheCleanText) {
    Parser parser("", "");
    std::string shown;
    parser.set_message_hook([&](std::string_view text, std::string_view, MessageStyle) {
        shown = std::string(text);
        return true;
    });
    parser.eval_exp("x\x07y", false, false);
    EXPECT_EQ(shown, "' xU+0007y ' Could Not Be Identified As A Variable Or Function.");
}

}  // namespace
}  // namespace quindar
