// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the Math Editor needs of its text control, and nothing more. Offsets count the
// characters of the whole text, and every line break counts as two (CR LF), whatever the
// control stores; an implementation over a control that keeps one character per break
// converts. Lines are numbered from 0 and their text never holds the break.

#include <string>
#include <string_view>

#include "editor_key.h"

namespace quindar {

class TextBuffer {
public:
    virtual ~TextBuffer() = default;

    virtual int LineCount() const = 0;
    // Offset of the first character of the line.
    virtual int LineStart(int line) const = 0;
    virtual std::string LineText(int line) const = 0;
    // The characters from start up to end.
    virtual std::string TextRange(int start, int end) const = 0;

    // The selection; start == end is the caret. Setting clamps to the text and orders the
    // ends; an offset between the CR and the LF of a break moves out of the break.
    virtual void GetSelection(int &start, int &end) const = 0;
    virtual void SetSelection(int start, int end) = 0;
    // The line that holds the start of the selection.
    virtual int CaretLine() const = 0;
    // Replaces the selection by text and leaves the caret behind it. Line breaks in text
    // may be written as CR LF, LF or CR.
    virtual void ReplaceSelection(std::string_view text) = 0;

    // The control's own handling of a key-down and of a character that the editor let
    // through.
    virtual void HandleKey(EditorKey key) = 0;
    virtual void HandleChar(char character) = 0;
};

}  // namespace quindar
