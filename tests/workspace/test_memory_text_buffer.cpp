// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The in-memory text buffer: line breaks as CR LF, offsets, selection, the control's keys.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor_fixture.h"
#include "memory_text_buffer.h"

namespace quindar {
namespace {

using testing::Draw;
using testing::Load;

struct CrLfCase {
    const char *input;
    const char *expected;
};

TEST(ToCrLf, WritesEveryBreakAsCrLf) {
    const CrLfCase cases[] = {
        {"", ""},
        {"a", "a"},
        {"a\nb", "a\r\nb"},
        {"a\r\nb", "a\r\nb"},
        {"a\rb", "a\r\nb"},
        {"a\n\nb\n", "a\r\n\r\nb\r\n"},
        {"a\r\r\nb", "a\r\n\r\nb"},
        {"\n\r", "\r\n\r\n"},
    };
    for (const auto &c : cases) EXPECT_EQ(ToCrLf(c.input), c.expected) << c.input;
}

struct LineCase {
    const char *text;
    int line;
    int start;
    const char *lineText;
};

TEST(MemoryTextBuffer, LinesAndTheirStartsCountABreakAsTwo) {
    const LineCase cases[] = {
        {"", 0, 0, ""},
        {"2+3", 0, 0, "2+3"},
        {"2+3\n10", 1, 5, "10"},
        {"2+3\r\n10", 1, 5, "10"},
        {"a\n\nbc\n", 2, 5, "bc"},
        {"a\n\nbc\n", 3, 9, ""},
        {"a\n\nbc\n", 1, 3, ""},
    };
    for (const auto &c : cases) {
        MemoryTextBuffer buffer(c.text);
        EXPECT_EQ(buffer.LineStart(c.line), c.start) << c.text;
        EXPECT_EQ(buffer.LineText(c.line), c.lineText) << c.text;
    }
}

TEST(MemoryTextBuffer, CountsLines) {
    const std::pair<const char *, int> cases[] = {
        {"", 1}, {"a", 1}, {"a\n", 2}, {"a\nb", 2}, {"\n\n", 3}, {"a\r\nb\rc", 3},
    };
    for (const auto &[text, count] : cases) EXPECT_EQ(MemoryTextBuffer(text).LineCount(), count);
}

struct SelectionCase {
    const char *text;
    int start, end;
    const char *drawn;
    int caretLine;
};

TEST(MemoryTextBuffer, SelectionIsClampedOrderedAndNeverSplitsABreak) {
    const SelectionCase cases[] = {
        {"ab\ncd", 1, 1, "a|b\ncd", 0},
        {"ab\ncd", 4, 4, "ab\n|cd", 1},
        {"ab\ncd", 2, 2, "ab|\ncd", 0},
        {"ab\ncd", 3, 3, "ab|\ncd", 0},     // between CR and LF: before the break
        {"ab\ncd", 3, 5, "ab[\nc]d", 0},    // start inside: the break is taken whole
        {"ab\ncd", 1, 3, "a[b\n]cd", 0},    // end inside: the break is taken whole
        {"ab\ncd", 5, 1, "a[b\nc]d", 0},    // reversed ends
        {"ab\ncd", -4, 99, "[ab\ncd]", 0},  // clamped
        {"ab\ncd", 99, 99, "ab\ncd|", 1},
    };
    for (const auto &c : cases) {
        MemoryTextBuffer buffer(c.text);
        buffer.SetSelection(c.start, c.end);
        EXPECT_EQ(Draw(buffer), c.drawn) << c.start << ' ' << c.end;
        EXPECT_EQ(buffer.CaretLine(), c.caretLine) << c.start << ' ' << c.end;
    }
}

struct EditCase {
    const char *before;
    const char *replacement;
    const char *after;
};

TEST(MemoryTextBuffer, ReplaceSelectionLeavesTheCaretBehindTheText) {
    const EditCase cases[] = {
        {"2+3|", " = 5", "2+3 = 5|"},
        {"|", "1\n2", "1\n2|"},
        {"a|b", "\r\n", "a\n|b"},
        {"a|b", "x\ry", "ax\ny|b"},
    };
    for (const auto &c : cases) {
        MemoryTextBuffer buffer;
        Load(buffer, c.before);
        buffer.ReplaceSelection(c.replacement);
        EXPECT_EQ(Draw(buffer), c.after) << c.before;
    }
    MemoryTextBuffer buffer("12\n34\n56");
    buffer.SetSelection(1, 6);
    buffer.ReplaceSelection("");
    EXPECT_EQ(buffer.Text(), "1\r\n56");
    EXPECT_EQ(buffer.LineCount(), 2);
    EXPECT_EQ(buffer.LineStart(1), 3);
}

TEST(MemoryTextBuffer, TextRangeIsClamped) {
    const MemoryTextBuffer buffer("ab\ncd");
    EXPECT_EQ(buffer.TextRange(1, 4), "b\r\n");
    EXPECT_EQ(buffer.TextRange(-3, 2), "ab");
    EXPECT_EQ(buffer.TextRange(4, 40), "cd");
    EXPECT_EQ(buffer.TextRange(3, 1), "");
}

struct ControlCase {
    const char *before;
    char character;  // 0: the Delete key instead
    const char *after;
};

TEST(MemoryTextBuffer, HandlesCharactersAndTheDeleteKeyAsAControl) {
    const ControlCase cases[] = {
        {"ab|", 'c', "abc|"},   {"a|b", '\r', "a\n|b"},     {"a|b", '\t', "a\t|b"},
        {"a|b", '\x06', "a|b"},  // Ctrl+F's character inserts nothing
        {"ab|", '\b', "a|"},    {"ab\n|cd", '\b', "ab|cd"}, {"|ab", '\b', "|ab"},
        {"a|bc", 0, "a|c"},     {"ab|\ncd", 0, "ab|cd"},    {"ab|", 0, "ab|"},
    };
    for (const auto &c : cases) {
        MemoryTextBuffer buffer;
        Load(buffer, c.before);
        if (c.character == 0)
            buffer.HandleKey(EditorKey::Delete);
        else
            buffer.HandleChar(c.character);
        EXPECT_EQ(Draw(buffer), c.after) << c.before << " + " << int(c.character);
    }
}

TEST(MemoryTextBuffer, OtherKeysDoNotChangeTheText) {
    for (EditorKey key : {EditorKey::Enter, EditorKey::F4, EditorKey::Other, EditorKey::Shift}) {
        MemoryTextBuffer buffer;
        Load(buffer, "a|b");
        buffer.HandleKey(key);
        EXPECT_EQ(Draw(buffer), "a|b");
    }
}

}  // namespace
}  // namespace quindar
