// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Math Editor's text buffer over a QPlainTextEdit. The control keeps one position per
// line break; the editor's offsets count a break as two (CR LF), so every offset is
// converted here: offset = position + number of the position's line. Characters pass as
// Latin-1, one byte per character, so offsets and line texts agree; a character beyond
// Latin-1 reads as '?' but is never rewritten unless the editor replaces it.

#include "text_buffer.h"

class QPlainTextEdit;
class QTextDocument;

namespace quindar {

class PlainTextBuffer : public TextBuffer {
public:
    explicit PlainTextBuffer(QPlainTextEdit &control) : edit(control) {}

    int LineCount() const override;
    int LineStart(int line) const override;
    std::string LineText(int line) const override;
    std::string TextRange(int start, int end) const override;
    void GetSelection(int &start, int &end) const override;
    void SetSelection(int start, int end) override;
    int CaretLine() const override;
    void ReplaceSelection(std::string_view text) override;
    void HandleKey(EditorKey key) override;
    void HandleChar(char character) override;

    // Whether the editor let the key-down or the character of the current key through to
    // the control; the widget clears these before each key.
    bool keyPassed = false;
    bool charPassed = false;

    // Conversions between the editor's offsets and the control's positions.
    int OffsetOf(int position) const;
    int PositionOf(int offset) const;

private:
    QTextDocument &Document() const;
    int Length() const;

    QPlainTextEdit &edit;
};

}  // namespace quindar
