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
    tail.clear();
    tailFrom = 0;
    FindLineStarts();
    selectionStart = selectionEnd = 0;
}

void MemoryTextBuffer::FindLineStarts() {
    lineStarts.assign(1, 0);
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1))
        lineStarts.push_back(static_cast<int>(at + 1));
    shiftFrom = lineStarts.size();
    shift = 0;
}

const std::string &MemoryTextBuffer::Text() const {
    if (tailFrom < tail.size()) text.append(tail, tailFrom, std::string::npos);
    tail.clear();
    tailFrom = 0;
    return text;
}

char MemoryTextBuffer::At(int offset) const {
    const auto at = static_cast<std::size_t>(offset);
    return at < text.size() ? text[at] : tail[at - text.size() + tailFrom];
}

std::string MemoryTextBuffer::Slice(int start, int end) const {
    std::string result;
    result.reserve(static_cast<std::size_t>(end - start));
    for (int at = start; at < end; ++at) result += At(at);
    return result;
}

void MemoryTextBuffer::SplitAt(int offset) {
    const auto at = static_cast<std::size_t>(offset);
    if (at >= text.size()) {
        const std::size_t taken = at - text.size();
        text.append(tail, tailFrom, taken);
        tailFrom += taken;
        return;
    }
    // Backwards: the part of `text` behind offset goes to the front of the tail.
    const std::size_t moved = text.size() - at;
    if (tailFrom >= moved) {
        tailFrom -= moved;
        tail.replace(tailFrom, moved, text, at, moved);
    } else {
        tail = text.substr(at) + tail.substr(tailFrom);
        tailFrom = 0;
    }
    text.resize(at);
}

std::size_t MemoryTextBuffer::LineAfter(int offset) const {
    std::size_t low = 0, high = lineStarts.size();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (StartOf(middle) <= offset)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

void MemoryTextBuffer::SettleShift(std::size_t line) {
    line = std::min(line, lineStarts.size());
    for (; shiftFrom < line; ++shiftFrom) lineStarts[shiftFrom] += shift;
}

void MemoryTextBuffer::FollowReplacement(int start, int end, std::string_view inserted) {
    // Lines that started inside the replaced text go; the breaks inserted bring theirs.
    const std::size_t first = LineAfter(start);
    const std::size_t last = LineAfter(end);
    SettleShift(last);
    // With nothing pending the lines behind may all be taken into the shift.
    if (shift == 0) shiftFrom = last;
    std::vector<int> added;
    for (std::size_t at = inserted.find('\n'); at != std::string_view::npos;
         at = inserted.find('\n', at + 1))
        added.push_back(start + static_cast<int>(at) + 1);
    const auto firstAt = lineStarts.begin() + static_cast<std::ptrdiff_t>(first);
    if (added.size() != last - first || !added.empty()) {
        lineStarts.erase(firstAt, lineStarts.begin() + static_cast<std::ptrdiff_t>(last));
        lineStarts.insert(lineStarts.begin() + static_cast<std::ptrdiff_t>(first), added.begin(),
                          added.end());
        shiftFrom = shiftFrom + added.size() - (last - first);
    }
    // Every line behind the replacement moves by the change of length: those already settled
    // at once, the rest through the shift.
    const int moved = static_cast<int>(inserted.size()) - (end - start);
    for (std::size_t line = first + added.size(); line < shiftFrom; ++line)
        lineStarts[line] += moved;
    shift += moved;
}

int MemoryTextBuffer::ClampOffset(int offset) const {
    return std::clamp(offset, 0, Length());
}

int MemoryTextBuffer::ClampLine(int line) const {
    return std::clamp(line, 0, LineCount() - 1);
}

int MemoryTextBuffer::LineStart(int line) const {
    return StartOf(static_cast<std::size_t>(ClampLine(line)));
}

int MemoryTextBuffer::LineEnd(int line) const {
    line = ClampLine(line);
    return line + 1 < LineCount() ? StartOf(static_cast<std::size_t>(line) + 1) - 2 : Length();
}

std::string MemoryTextBuffer::LineText(int line) const {
    const int start = LineStart(line);
    return Slice(start, LineEnd(line));
}

std::string MemoryTextBuffer::TextRange(int start, int end) const {
    start = ClampOffset(start);
    end = ClampOffset(end);
    if (start >= end) return {};
    return Slice(start, end);
}

bool MemoryTextBuffer::InsideBreak(int offset) const {
    return offset > 0 && offset < Length() && At(offset - 1) == '\r';
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
    return static_cast<int>(LineAfter(selectionStart)) - 1;
}

void MemoryTextBuffer::ReplaceSelection(std::string_view replacement) {
    const std::string inserted = ToCrLf(replacement);
    SplitAt(selectionStart);
    tailFrom += static_cast<std::size_t>(selectionEnd - selectionStart);
    text += inserted;
    FollowReplacement(selectionStart, selectionEnd, inserted);
    selectionStart += static_cast<int>(inserted.size());
    selectionEnd = selectionStart;
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
