// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The error flags, texts, message boxes and recovery of eval_exp.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parser.h"

namespace quindar {
namespace {

struct Box {
    std::string text, caption;
    MessageStyle style;
};

class RecordingParser : public ::testing::Test {
protected:
    RecordingParser() {
        parser.set_message_hook(
            [this](std::string_view text, std::string_view caption, MessageStyle style) {
                boxes.push_back({std::string(text), std::string(caption), style});
                return true;
            });
    }
    Parser parser{"", ""};
    std::vector<Box> boxes;
};

TEST_F(RecordingParser, FailedLineGivesEmptyTextAndKeepsErrorUntilCleared) {
    EXPECT_STREQ(parser.eval_exp("2+", true, true), "");
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_STREQ(parser.GetLastError(), "Number or expression expected with operator!");
    parser.ClearLastError();
    EXPECT_FALSE(parser.IsAnError());
    EXPECT_EQ(parser.GetLastError(), nullptr);
    EXPECT_EQ(parser.GetLastErrorNumber(), -1);
}

TEST_F(RecordingParser, NextEvaluationClearsTheError) {
    parser.eval_exp("1/0", true, true);
    EXPECT_TRUE(parser.IsAnError());
    EXPECT_STREQ(parser.eval_exp("1+1", true, true), " = 2");
    EXPECT_FALSE(parser.IsAnError());
}

TEST_F(RecordingParser, NullTextReturnsNullAndChangesNothing) {
    parser.eval_exp("2+", true, true);
    EXPECT_EQ(parser.eval_exp(nullptr, true, true), nullptr);
    EXPECT_TRUE(parser.IsAnError());
}

TEST_F(RecordingParser, SilentModeShowsNoBoxButStoresText) {
    parser.eval_exp("1/0", true, true);
    EXPECT_TRUE(boxes.empty());
    EXPECT_STREQ(parser.GetLastError(), "Division By Zero Encountered!");
}

TEST_F(RecordingParser, BoxesCarryTheirCaptions) {
    parser.eval_exp("2+", false, true);
    parser.eval_exp("1/0", false, true);
    parser.eval_exp("y", false, true);
    ASSERT_EQ(boxes.size(), 3u);
    EXPECT_EQ(boxes[0].caption, "Parser Error");
    EXPECT_EQ(boxes[0].text, "Number or expression expected with operator!");
    EXPECT_EQ(boxes[0].style, MessageStyle::Warning);
    EXPECT_EQ(boxes[1].caption, "Mathematics Error");
    EXPECT_EQ(boxes[2].caption, "VARIABLE");
    EXPECT_EQ(boxes[2].text, "' y ' Could Not Be Identified As A Variable Or Function.");
    EXPECT_EQ(boxes[2].style, MessageStyle::Question);
}

TEST_F(RecordingParser, NoHookMeansNoBoxAndTheTextStays) {
    Parser bare("", "");
    bare.eval_exp("2+", false, true);
    EXPECT_STREQ(bare.GetLastError(), "Number or expression expected with operator!");
}

TEST_F(RecordingParser, AnswerTextLivesUntilTheNextCall) {
    const std::string first = parser.eval_exp("2*3", true, true);
    const std::string second = parser.eval_exp("2*4", true, false);
    EXPECT_EQ(first, " = 6");
    EXPECT_EQ(second, "8");
}

TEST_F(RecordingParser, SecondParserInsideAnEvaluationLeavesTheFirstIntact) {
    // An evaluation of another engine (as a data file's entries get) may fail in the
    // middle of this one's work; each recovers for itself.
    Parser inner("", "");
    parser.set_message_hook([&](std::string_view, std::string_view, MessageStyle) {
        EXPECT_STREQ(inner.eval_exp("2+", true, true), "");
        EXPECT_TRUE(inner.IsAnError());
        EXPECT_STREQ(inner.eval_exp("3*3", true, true), " = 9");
        return true;
    });
    EXPECT_STREQ(parser.eval_exp("1/0", false, true), "");
    EXPECT_STREQ(parser.GetLastError(), "Division By Zero Encountered!");
    EXPECT_STREQ(parser.eval_exp("4+4", false, true), " = 8");
}

TEST_F(RecordingParser, OneShotTokenReading) {
    std::string token;
    char type = -1;
    const char *text = "  alpha+12";
    const char *rest = parser.get_token(text, token, type);
    ASSERT_NE(rest, nullptr);
    EXPECT_EQ(token, "alpha");
    EXPECT_EQ(type, kName);
    rest = parser.get_token(rest, token, type);
    EXPECT_EQ(token, "+");
    EXPECT_EQ(type, kDelimiter);
    rest = parser.get_token(rest, token, type);
    EXPECT_EQ(token, "12");
    EXPECT_EQ(type, kNumber);
    EXPECT_STREQ(rest, "");
    rest = parser.get_token("<=", token, type);
    EXPECT_EQ(token, std::string(2, kLessEqual));
    EXPECT_EQ(parser.get_token("1.2.3", token, type), nullptr);
    EXPECT_TRUE(parser.IsAnError());
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Too many decimal points found in number!");
}

// A token is as long as its text: names and numbers far beyond the line buffer come back whole.
TEST_F(RecordingParser, OneShotTokenReadingKeepsLongTokens) {
    for (const std::string &text : {std::string(5000, 'a'), std::string(3000, '7')}) {
        std::string token;
        char type = -1;
        const char *rest = parser.get_token((text + "+1").c_str(), token, type);
        ASSERT_NE(rest, nullptr);
        EXPECT_EQ(token, text);
        EXPECT_STREQ(rest, "+1");
    }
}

TEST_F(RecordingParser, FindTokenMatchesWholeNamesCaseSensitively) {
    parser.SetSilentMode(true);
    EXPECT_TRUE(parser.find_token("2*x+xy", "x"));
    EXPECT_TRUE(parser.find_token("2*x+xy", "xy"));
    EXPECT_FALSE(parser.find_token("2*x+xy", "X"));
    EXPECT_FALSE(parser.find_token("2*xy", "x"));
    EXPECT_FALSE(parser.find_token("2*y1", "y"));
    EXPECT_FALSE(parser.find_token(nullptr, "y"));
}

}  // namespace
}  // namespace quindar
