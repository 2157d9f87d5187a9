// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The line index the buffer keeps through edits, against the index of a buffer that takes
// the same text afresh: random replacements, deletions and typing, with and without breaks,
// anywhere in the text.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "memory_text_buffer.h"

namespace quindar {
namespace {

void expect_same_lines(const MemoryTextBuffer &edited, int step) {
    const MemoryTextBuffer fresh(edited.Text());
    ASSERT_EQ(edited.LineCount(), fresh.LineCount()) << "step " << step;
    for (int line = -1; line <= fresh.LineCount(); ++line) {
        ASSERT_EQ(edited.LineStart(line), fresh.LineStart(line))
            << "step " << step << " line " << line;
        ASSERT_EQ(edited.LineText(line), fresh.LineText(line))
            << "step " << step << " line " << line;
    }
}

TEST(TextBufferLineIndex, FollowsEveryEdit) {
    std::mt19937 random(1123);
    auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    const char *pieces[] = {"", "x", " = 3", "\r\n", "a\nb", "\r\n\r\n", "1+2\r", "long line\n\n"};
    MemoryTextBuffer buffer("first\r\nsecond\r\n\r\nthird");
    for (int step = 0; step < 3000; ++step) {
        const int length = static_cast<int>(buffer.Text().size());
        const int start = pick(length + 1);
        const int end = pick(4) == 0 ? start + pick(12) : start;
        buffer.SetSelection(start, end);
        switch (pick(4)) {
            case 0:
                buffer.HandleKey(EditorKey::Delete);
                break;
            case 1:
                buffer.HandleChar(pick(2) == 0 ? '\r' : '\b');
                break;
            default:
                buffer.ReplaceSelection(pieces[pick(8)]);
                break;
        }
        expect_same_lines(buffer, step);
        int caretStart = 0, caretEnd = 0;
        buffer.GetSelection(caretStart, caretEnd);
        MemoryTextBuffer fresh(buffer.Text());
        fresh.SetSelection(caretStart, caretEnd);
        ASSERT_EQ(buffer.CaretLine(), fresh.CaretLine()) << "step " << step;
        if (buffer.Text().size() > 600) buffer.SetText(buffer.Text().substr(0, 200));
    }
}

// Answers written line after line down a text, as a run of F4 writes them.
TEST(TextBufferLineIndex, AnswersWrittenDownTheText) {
    std::string text;
    for (int i = 0; i < 200; ++i) text += std::to_string(i) + "+1\r\n";
    MemoryTextBuffer buffer(text);
    int row = 0;  // the line of the text, behind the lines added so far
    for (int line = 0; line < 200; ++line, ++row) {
        const int end = buffer.LineStart(row) + static_cast<int>(buffer.LineText(row).size());
        buffer.SetSelection(end, end);
        buffer.ReplaceSelection(" = " + std::to_string(line + 1));
        if (line % 50 == 0) {
            buffer.ReplaceSelection("\r\nextra");
            ++row;
        }
    }
    expect_same_lines(buffer, 0);
    EXPECT_EQ(buffer.LineText(199 + 4), "199+1 = 200");
}

}  // namespace
}  // namespace quindar
