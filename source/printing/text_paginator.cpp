// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "text_paginator.h"

#include <algorithm>
#include <utility>

namespace quindar::printing {

int LinesPerPage(const PageMetrics &metrics) {
    if (metrics.lineHeight <= 0) return kMinimumLinesPerPage;
    return std::max(kMinimumLinesPerPage, metrics.pageHeight / metrics.lineHeight);
}

int EstimatedPageCount(int textLines, int linesPerPage) {
    linesPerPage = std::max(kMinimumLinesPerPage, linesPerPage);
    return (textLines + linesPerPage - 7) / (linesPerPage - 6);
}

int CountTextLines(std::string_view text) {
    int lines = 1;
    for (std::size_t at = text.find("\r\n"); at != std::string_view::npos;
         at = text.find("\r\n", at + 2))
        ++lines;
    return lines;
}

TextPaginator::TextPaginator(std::string printedText, std::string headerText,
                             const PageMetrics &metrics, MeasureText measureText)
    : text(std::move(printedText)),
      header(std::move(headerText)),
      measure(std::move(measureText)),
      pageWidth(metrics.pageWidth),
      linesPerPage(printing::LinesPerPage(metrics)) {}

std::size_t TextPaginator::CharacterLength(std::size_t at) const {
    // A UTF-8 character is measured whole: its lead byte and the continuation bytes behind it.
    std::size_t length = 1;
    while (at + length < text.size() &&
           (static_cast<unsigned char>(text[at + length]) & 0xC0) == 0x80)
        ++length;
    return length;
}

int TextPaginator::GetNextLine(std::string &line) {
    const std::size_t start = textOffset;
    std::size_t count = 0;
    line.clear();
    for (;;) {
        const std::size_t at = start + count;
        if (at >= text.size()) {
            textOffset += count;
            line = text.substr(start, count);
            return count > 0 ? static_cast<int>(count) : -1;
        }
        const char c = text[at];
        if (c == kFormFeed) {
            if (count == 0) {
                ++textOffset;
                return -2;
            }
            textOffset += count + 1;
            line = text.substr(start, count);
            return static_cast<int>(count);
        }
        if (c == '\r') {
            const bool lineFeed = at + 1 < text.size() && text[at + 1] == '\n';
            textOffset += count + (lineFeed ? 2 : 1);
            line = text.substr(start, count);
            return static_cast<int>(count);
        }
        const std::size_t length = CharacterLength(at);
        if (count > 0 && measure &&
            measure(std::string_view(text).substr(start, count + length)) > pageWidth) {
            textOffset += count;
            line = text.substr(start, count);
            return static_cast<int>(count);
        }
        count += length;
    }
}

PrintedPage TextPaginator::NextPage() {
    PrintedPage page;
    page.startOffset = textOffset;
    if (finished) return page;
    if (firstPage) {
        if (textOffset < text.size() && text[textOffset] == kFormFeed) {
            // A text that opens with a form feed leaves the first page blank.
            ++textOffset;
            finished = textOffset >= text.size();
            return page;
        }
        page.header = true;
        firstPage = false;
    }
    std::string line;
    for (int row = kFirstTextRow; row < linesPerPage - 2; ++row) {
        const int count = GetNextLine(line);
        if (count > 0) page.lines.push_back({row, line});
        if (count == -1) {
            finished = true;
            return page;
        }
        if (count == -2) {
            finished = textOffset >= text.size();
            return page;
        }
    }
    // The page is full: a form feed here would only end it again.
    if (textOffset < text.size() && text[textOffset] == kFormFeed) ++textOffset;
    finished = textOffset >= text.size();
    return page;
}

std::vector<PrintedPage> TextPaginator::AllPages() {
    textOffset = 0;
    finished = false;
    firstPage = true;
    std::vector<PrintedPage> pages;
    while (HasPage()) pages.push_back(NextPage());
    return pages;
}

}  // namespace quindar::printing
