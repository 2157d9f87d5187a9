// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A text buffer in memory, for tests and the command-line program. It stores every line
// break as CR LF, so its offsets are the buffer's offsets with no conversion. Characters
// are bytes. Of the keys it knows only Delete; moving the caret is done by offset.

#include <string>
#include <string_view>
#include <vector>

#include "text_buffer.h"

namespace quindar {

// The text with every line break written as CR LF; lone CRs and LFs count as breaks.
std::string ToCrLf(std::string_view text);

class MemoryTextBuffer : public TextBuffer {
public:
    MemoryTextBuffer() = default;
    explicit MemoryTextBuffer(std::string_view initialText) { SetText(initialText); }

    // Replaces the whole text and puts the caret at its start.
    void SetText(std::string_view newText);
    const std::string &Text() const;

    int LineCount() const override { return static_cast<int>(lineStarts.size()); }
    int LineStart(int line) const override;
    std::string LineText(int line) const override;
    std::string TextRange(int start, int end) const override;

    void GetSelection(int &start, int &end) const override;
    void SetSelection(int start, int end) override;
    int CaretLine() const override;
    void ReplaceSelection(std::string_view replacement) override;

    void HandleKey(EditorKey key) override;
    void HandleChar(char character) override;

private:
    int Length() const { return static_cast<int>(text.size() + tail.size() - tailFrom); }
    char At(int offset) const;
    std::string Slice(int start, int end) const;
    // Makes offset the end of `text`, so that an edit there is an edit at its end.
    void SplitAt(int offset);
    int ClampOffset(int offset) const;
    int ClampLine(int line) const;
    int LineEnd(int line) const;
    bool InsideBreak(int offset) const;
    void FindLineStarts();
    // The offset where line starts, with the pending shift applied.
    int StartOf(std::size_t line) const {
        return lineStarts[line] + (line >= shiftFrom ? shift : 0);
    }
    // The first line that starts beyond offset.
    std::size_t LineAfter(int offset) const;
    // Applies the pending shift to the lines below `line`.
    void SettleShift(std::size_t line);
    // Keeps the line starts right after [start, end) became `inserted`.
    void FollowReplacement(int start, int end, std::string_view inserted);

    // The text is `text` followed by `tail` from tailFrom on. Edits go down a text line by
    // line, so the text is split where the edit is: replacing there changes the end of
    // `text` and the front of the tail without moving the rest of the text.
    mutable std::string text;
    mutable std::string tail;
    mutable std::size_t tailFrom = 0;
    // The offsets behind each LF. An answer written into a line moves every later line: that
    // move is kept as one shift of all lines from shiftFrom on, settled as edits go further
    // down the text, so that computing a text line by line costs no rescan of it.
    std::vector<int> lineStarts{0};
    std::size_t shiftFrom = 1;
    int shift = 0;
    int selectionStart = 0;
    int selectionEnd = 0;
};

}  // namespace quindar
