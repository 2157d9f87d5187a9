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
    const std::string &Text() const { return text; }

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
    int Length() const { return static_cast<int>(text.size()); }
    int ClampOffset(int offset) const;
    int ClampLine(int line) const;
    int LineEnd(int line) const;
    bool InsideBreak(int offset) const;
    void FindLineStarts();

    std::string text;
    std::vector<int> lineStarts{0};
    int selectionStart = 0;
    int selectionEnd = 0;
};

}  // namespace quindar
