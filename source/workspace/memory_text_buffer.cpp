// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "memory_text_buffer.h"

#include <algorithm>
#include <utility>

namespace quindar {

std::string ToCrLf(std::string_view text) {
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            result += "\r\n";
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
        } else {
            result += c;
        }
    }
    return result;
}

void MemoryTextBuffer::SetText(std::string_view newText) {
    text = ToCrLf(newText);
    FindLineStarts();
    selectionStart = selectionEnd = 0;
}

void MemoryTextBuffer::FindLineStarts() {
    lineStarts.assign(1, 0);
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
        lineStarts.push_back(static_cast<int>(at + 1));
}

int MemoryTextBuffer::ClampOffset(int offset) const {
    return std::clamp(offset, 0, Length());
}

int MemoryTextBuffer::ClampLine(int line) const {
    return std::clamp(line, 0, LineCount() - 1);
}

int MemoryTextBuffer::LineStart(int line) const {
    return lineStarts[static_cast<std::size_t>(ClampLine(line))];
}

int MemoryTextBuffer::LineEnd(int line) const {
    line = ClampLine(line);
    return line + 1 < LineCount() ? lineStarts[static_cast<std::size_t>(line) + 1] - 2 : Length();
}

std::string MemoryTextBuffer::LineText(int line) const {
    const int start = LineStart(line);
    return text.substr(static_cast<std::size_t>(start),
                       static_cast<std::size_t>(LineEnd(line) - start));
}

std::string MemoryTextBuffer::TextRange(int start, int end) const {
    start = ClampOffset(start);
    end = ClampOffset(end);
    if (start >= end) return {};
    return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

bool MemoryTextBuffer::InsideBreak(int offset) const {
    return offset > 0 && offset < Length() && text[static_cast<std::size_t>(offset) - 1] == '\r';
}

void MemoryTextBuffer::GetSelection(int &start, int &end) const {
    start = selectionStart;
    end = selectionEnd;
}

void MemoryTextBuffer::SetSelection(int start, int end) {
    start = ClampOffset(start);
    end = ClampOffset(end);
    if (start > end) std::swap(start, end);
    const bool empty = start == end;
    // Half a line break cannot be selected: a start inside one moves before it, and an end
    // inside one takes the whole break.
    if (InsideBreak(start)) --start;
    if (empty)
        end = start;
    else if (InsideBreak(end))
        ++end;
    selectionStart = start;
    selectionEnd = end;
}

int MemoryTextBuffer::CaretLine() const {
    const auto after = std::upper_bound(lineStarts.begin(), lineStarts.end(), selectionStart);
    return static_cast<int>(after - lineStarts.begin()) - 1;
}

void MemoryTextBuffer::ReplaceSelection(std::string_view replacement) {
    const std::string inserted = ToCrLf(replacement);
    text.replace(static_cast<std::size_t>(selectionStart),
                 static_cast<std::size_t>(selectionEnd - selectionStart), inserted);
    selectionStart += static_cast<int>(inserted.size());
    selectionEnd = selectionStart;
    FindLineStarts();
}

void MemoryTextBuffer::HandleKey(EditorKey key) {
    if (key != EditorKey::Delete) return;
    if (selectionStart == selectionEnd) SetSelection(selectionStart, selectionStart + 1);
    ReplaceSelection("");
}

void MemoryTextBuffer::HandleChar(char character) {
    const auto code = static_cast<unsigned char>(character);
    if (character == '\r') {
        ReplaceSelection("\r\n");
    } else if (character == '\b') {
        if (selectionStart == selectionEnd) SetSelection(selectionStart - 1, selectionStart);
        ReplaceSelection("");
    } else if (character == '\t' || (code >= 0x20 && code != 0x7f)) {
        ReplaceSelection(std::string_view(&character, 1));
    }
}

}  // namespace quindar
