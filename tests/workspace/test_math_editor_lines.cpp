// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A line computed with F4 through the real engine: answers, old answers, comments,
// statements, failures, and offsets over CR LF.
#include <gtest/gtest.h>

#include <string>

#include "editor_fixture.h"

namespace quindar {
namespace {

using testing::Draw;
using testing::Load;
using testing::RealEditor;

struct LineCase {
    const char *before;
    const char *after;
    bool computed;
};

void ExpectF4(const LineCase &c) {
    RealEditor fixture;
    Load(fixture.buffer, c.before);
    EXPECT_EQ(fixture.editor.ProcessComLine(true, false, true), c.computed) << c.before;
    EXPECT_EQ(Draw(fixture.buffer), c.after) << c.before;
}

TEST(MathEditorLines, AnswersGoBehindTheLine) {
    const LineCase cases[] = {
        {"|2+3", "2+3 = 5|", true},
        {"2+3|", "2+3 = 5|", true},
        {"|   2+3", "   2+3 = 5|", true},
        {"|2+3   ", "2+3    = 5|", true},
        {"|(1+2i)*(3-i)", "(1+2i)*(3-i) = 5+5i|", true},
        {"|1 < 2 < 3", "1 < 2 < 3 = 1|", true},
        {"1\n|2*3\n4", "1\n2*3 = 6|\n4", true},
    };
    for (const auto &c : cases) ExpectF4(c);
}

TEST(MathEditorLines, OldAnswersAreReplaced) {
    const LineCase cases[] = {
        {"|2+3 = 7", "2+3 = 5|", true},
        {"|2+3=7", "2+3 = 5|", true},
        {"|2+3=", "2+3 = 5|", true},
        {"|2+3   =  7  ", "2+3 = 5|", true},
        {"|2+3 = 1.5e+10", "2+3 = 5|", true},
        {"|2+3 = 3+4i", "2+3 = 5|", true},
        {"|2+3 = -1.5E-7-2i", "2+3 = 5|", true},
        {"|1 < 2 < 3 = 0", "1 < 2 < 3 = 1|", true},
        {"|2+3 = 5", "2+3 = 5|", true},
    };
    for (const auto &c : cases) ExpectF4(c);
}

TEST(MathEditorLines, CommentsStayBehindTheAnswer) {
    const LineCase cases[] = {
        {"|2 + 3 // sum", "2 + 3 = 5| // sum", true},
        {"|2+3// sum", "2+3 = 5|// sum", true},
        {"|2+3 = 7 // sum", "2+3 = 5| // sum", true},
        {"|2+3 = 7// sum", "2+3 = 5|// sum", true},
        {"|2+3 // a // b", "2+3 = 5| // a // b", true},
        {"|2+3 // x = 1/2", "2+3 = 5| // x = 1/2", true},
        // An "=" in the comment is not an old answer, and the comment stays whole.
        {"|2+3 // x = 7", "2+3 = 5| // x = 7", true},
        {"|2+3 = 9 // x = 7", "2+3 = 5| // x = 7", true},
        {"|2+3 = 9 // x = 7; 1", "2+3 // x = 7; 1 = 1|", true},
        // A comment line computes nothing and nothing moves.
        {"|// 2+3", "|// 2+3", true},
        {"//|", "//|", true},
        // Blanks before the mark make it a statement, which the engine refuses.
        {"|  // 2+3", "  // 2+3|", false},
    };
    for (const auto &c : cases) ExpectF4(c);
}

TEST(MathEditorLines, StatementsSplitAtSemicolonsAndOnlyTheLastShows) {
    const LineCase cases[] = {
        {"|1+1; 2+2", "1+1; 2+2 = 4|", true},
        {"|1+1;2+2;3+3", "1+1;2+2;3+3 = 6|", true},
        {"|1+1; 2+2;", "1+1; 2+2;|", true},
        {"|1+1; 2+2;   ", "1+1; 2+2;   |", true},
        {"|1+1; 2+2 = 9", "1+1; 2+2 = 4|", true},
        // An earlier statement's old answer goes, in its own place.
        {"|2+3 = 7; 4", "2+3; 4 = 4|", true},
        {"|2+3 = 7 // c; 4", "2+3 // c; 4 = 4|", true},
        {"|1+1 // c; 2+2", "1+1 // c; 2+2 = 4|", true},
        // A semicolon inside a comment ends the statement all the same.
        {"|2+3 // a;7", "2+3 // a;7 = 7|", true},
        {"|2+3 // a;", "2+3 // a;|", true},
        // The comment mark directly after a semicolon is a statement of its own.
        {"|2+3;// c", "2+3;// c|", false},
        {"|2+3; // c", "2+3; // c|", false},
        {"|1+1;;2", "1+1;;2|", false},
        // The first error stops the line; what came before stays computed.
        {"|1/0; 2+2", "1/0; 2+2|", false},
        {"|1+1; 1/0; 2+2", "1+1; 1/0; 2+2|", false},
    };
    for (const auto &c : cases) ExpectF4(c);
}

TEST(MathEditorLines, AFailedLineKeepsItsTextLessItsOldAnswer) {
    const LineCase cases[] = {
        {"|1+", "1+|", false},
        {"|1/0", "1/0|", false},
        {"|1/0 // c", "1/0| // c", false},
        {"|1/0 = 5", "1/0|", false},
        {"|1/0 = 5 // c", "1/0| // c", false},
        {"|(1+2", "(1+2|", false},
        // Old answers only come off expressions: this reaches the engine whole.
        {"|a<=5", "a<=5|", false},
        // f[x] counts as an expression, so its "=2" is an old answer and is removed.
        {"|f[x]=2", "f[x]|", false},
    };
    for (const auto &c : cases) ExpectF4(c);
}

TEST(MathEditorLines, DeclarationsAreNeverOldAnswers) {
    const LineCase cases[] = {
        {"|x = 7", "x = 7|", true},
        {"|x = 0, 10, 11", "x = 0, 10, 11|", true},
        {"|f[x]=x^2", "f[x]=x^2|", true},
        {"|y = 2+3", "y = 2+3 = 5|", true},
        {"|y = 2+3 = 9", "y = 2+3 = 5|", true},
    };
    for (const auto &c : cases) ExpectF4(c);
}

TEST(MathEditorLines, TheLastAnswerKeepsItsValue) {
    RealEditor fixture;
    EXPECT_FALSE(fixture.editor.lastAnswerText.has_value());
    Load(fixture.buffer, "|2+3\n1/0\n1+1; 7*6 // c");
    fixture.editor.ProcessComLine(true, false, true);
    EXPECT_EQ(fixture.editor.lastAnswerText, "5");
    fixture.editor.SetCursorAtLineStart(1);
    fixture.editor.ProcessComLine(true, false, true);
    EXPECT_EQ(fixture.editor.lastAnswerText, "5");
    fixture.editor.SetCursorAtLineStart(2);
    fixture.editor.ProcessComLine(true, false, true);
    EXPECT_EQ(fixture.editor.lastAnswerText, "42");
}

TEST(MathEditorLines, SoundsFollowSuccessOnly) {
    const std::pair<const char *, std::vector<std::string>> cases[] = {
        {"|2+3", {"Command.wav"}},
        {"|1+1; 2+2;", {"Command.wav", "Command.wav"}},
        {"|1+1; 1/0", {"Command.wav"}},
        {"|1/0", {}},
        {"|// c", {}},
    };
    for (const auto &[text, sounds] : cases) {
        RealEditor fixture;
        Load(fixture.buffer, text);
        fixture.editor.ProcessComLine(true, false, true);
        EXPECT_EQ(fixture.sounds, sounds) << text;
    }
}

TEST(MathEditorLines, ComputingAgainGivesTheSameText) {
    for (const char *text : {"|2+3 // c", "|1+1; 2*3", "|(-8)^(1/3)", "|1.5e+3 / 4"}) {
        RealEditor fixture;
        Load(fixture.buffer, text);
        fixture.editor.ProcessComLine(true, false, true);
        const std::string once = fixture.buffer.Text();
        fixture.editor.SetCursorAtLineStart(0);
        fixture.editor.ProcessComLine(true, false, true);
        EXPECT_EQ(fixture.buffer.Text(), once) << text;
    }
}

struct OffsetCase {
    int line;
    int charLength;
    int back;
    const char *drawn;
};

TEST(MathEditorLines, OffsetsCountEachBreakAsTwo) {
    const OffsetCase cases[] = {
        {0, 5, 0, "1+1|\n2+2 = 9\n\n3"},  {1, 14, 0, "1+1\n2+2 = 9|\n\n3"},
        {1, 14, 4, "1+1\n2+2| = 9\n\n3"}, {2, 16, 0, "1+1\n2+2 = 9\n|\n3"},
        {3, 19, 0, "1+1\n2+2 = 9\n\n3|"},
    };
    for (const auto &c : cases) {
        RealEditor fixture;
        fixture.buffer.SetText("1+1\r\n2+2 = 9\r\n\r\n3");
        EXPECT_EQ(fixture.editor.GetCharLength(c.line), c.charLength) << c.line;
        fixture.editor.SetCursorAtLineEnd(c.line, c.back);
        EXPECT_EQ(Draw(fixture.buffer), c.drawn) << c.line;
        fixture.editor.SetCursorAtLineStart(c.line);
        EXPECT_EQ(fixture.buffer.CaretLine(), c.line);
    }
    RealEditor fixture;
    fixture.buffer.SetText("1+1\r\n2+2 = 9 // c\r\n3");
    fixture.editor.SetCursorAtLineStart(1);
    fixture.editor.ProcessComLine(true, false, true);
    EXPECT_EQ(fixture.buffer.Text(), "1+1\r\n2+2 = 4 // c\r\n3");
    int start = 0;
    int end = 0;
    fixture.buffer.GetSelection(start, end);
    EXPECT_EQ(start, 12);
    EXPECT_EQ(end, 12);
}

struct BackCase {
    const char *before;
    int selectionStart, selectionEnd;
    const char *after;
};

TEST(MathEditorLines, TheBackKeyTakesTheCharacterBeforeTheSelectionWithIt) {
    const BackCase cases[] = {
        {"abc", 2, 2, "a|c"},  {"abc", 0, 0, "|abc"},    {"abc", 0, 2, "[ab]c"},
        {"abc", 1, 3, "|"},    {"ab\ncd", 4, 4, "a|cd"}, {"ab\n\ncd", 6, 6, "a|cd"},
        {"\ncd", 2, 2, "|cd"},
    };
    for (const auto &c : cases) {
        RealEditor fixture;
        fixture.buffer.SetText(c.before);
        fixture.buffer.SetSelection(c.selectionStart, c.selectionEnd);
        fixture.editor.ExecuteBACK();
        EXPECT_EQ(Draw(fixture.buffer), c.after) << c.before;
    }
}

}  // namespace
}  // namespace quindar
