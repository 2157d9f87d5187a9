// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "plain_text_buffer.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>

namespace quindar {
namespace {

std::string ToBytes(const QString &text) {
    return text.toLatin1().toStdString();
}

// Line breaks of any form become the control's paragraph breaks.
QString ToControlText(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char c = text[at];
        if (c == '\r') {
            if (at + 1 < text.size() && text[at + 1] == '\n') ++at;
            result += QLatin1Char('\n');
        } else {
            result += QLatin1Char(c);
        }
    }
    return result;
}

}  // namespace

QTextDocument &PlainTextBuffer::Document() const {
    return *edit.document();
}

int PlainTextBuffer::LineCount() const {
    return Document().blockCount();
}

int PlainTextBuffer::Length() const {
    const QTextBlock last = Document().lastBlock();
    return OffsetOf(last.position() + last.length() - 1);
}

int PlainTextBuffer::LineStart(int line) const {
    const QTextBlock block = Document().findBlockByNumber(std::clamp(line, 0, LineCount() - 1));
    return block.position() + block.blockNumber();
}

std::string PlainTextBuffer::LineText(int line) const {
    return ToBytes(Document().findBlockByNumber(std::clamp(line, 0, LineCount() - 1)).text());
}

int PlainTextBuffer::OffsetOf(int position) const {
    return position + Document().findBlock(position).blockNumber();
}

int PlainTextBuffer::PositionOf(int offset) const {
    offset = std::clamp(offset, 0, Length());
    // The last line whose start is not behind the offset.
    int low = 0;
    int high = LineCount() - 1;
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (LineStart(middle) <= offset)
            low = middle;
        else
            high = middle - 1;
    }
    const QTextBlock block = Document().findBlockByNumber(low);
    const int column = std::min(offset - LineStart(low), block.length() - 1);
    return block.position() + column;
}

std::string PlainTextBuffer::TextRange(int start, int end) const {
    start = std::clamp(start, 0, Length());
    end = std::clamp(end, 0, Length());
    std::string result;
    for (QTextBlock block = Document().findBlock(PositionOf(start)); block.isValid();
         block = block.next()) {
        const int lineStart = block.position() + block.blockNumber();
        if (lineStart >= end) break;
        std::string line = ToBytes(block.text());
        if (block.next().isValid()) line += "\r\n";
        const int from = std::max(start - lineStart, 0);
        const int to = std::min(end - lineStart, static_cast<int>(line.size()));
        if (to > from)
            result.append(line, static_cast<std::size_t>(from),
                          static_cast<std::size_t>(to - from));
    }
    return result;
}

void PlainTextBuffer::GetSelection(int &start, int &end) const {
    const QTextCursor cursor = edit.textCursor();
    start = OffsetOf(cursor.selectionStart());
    end = OffsetOf(cursor.selectionEnd());
}

void PlainTextBuffer::SetSelection(int start, int end) {
    if (start > end) std::swap(start, end);
    const int from = PositionOf(start);
    // An end inside a break takes the whole break, as a start inside one moves before it.
    int to = PositionOf(end);
    if (end > start && OffsetOf(to) < std::clamp(end, 0, Length())) ++to;
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(from);
    cursor.setPosition(std::max(from, to), QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
}

int PlainTextBuffer::CaretLine() const {
    return Document().findBlock(edit.textCursor().selectionStart()).blockNumber();
}

void PlainTextBuffer::ReplaceSelection(std::string_view text) {
    QTextCursor cursor = edit.textCursor();
    cursor.insertText(ToControlText(text));
    edit.setTextCursor(cursor);
}

void PlainTextBuffer::HandleKey(EditorKey) {
    keyPassed = true;
}

void PlainTextBuffer::HandleChar(char) {
    charPassed = true;
}

}  // namespace quindar
