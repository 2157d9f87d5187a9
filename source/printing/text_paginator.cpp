// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "text_paginator.h"

#include <algorithm>
#include <utility>
#include <vector>

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
    line.clear();
    const std::size_t stop = std::min(text.find_first_of("\r\f", start), text.size());
    std::size_t count = stop - start;
    if (count > 0 && measure && measure(std::string_view(text).substr(start, count)) > pageWidth) {
        // The line stops fitting somewhere: find the longest run of whole characters that
        // fits (widths only grow as characters are added), and never less than one character.
        std::vector<std::size_t> ends;
        for (std::size_t at = start; at < stop; at += CharacterLength(at)) ends.push_back(at);
        ends.push_back(stop);
        std::size_t fitting = 1;  // characters
        std::size_t low = 2;
        std::size_t high = ends.size() - 2;
        while (low <= high) {
            const std::size_t middle = (low + high) / 2;
            if (measure(std::string_view(text).substr(start, ends[middle] - start)) > pageWidth) {
                high = middle - 1;
            } else {
                fitting = middle;
                low = middle + 1;
            }
        }
        count = ends[fitting] - start;
        textOffset += count;
        line = text.substr(start, count);
        return static_cast<int>(count);
    }
    line = text.substr(start, count);
    if (stop >= text.size()) {
        textOffset += count;
        return count > 0 ? static_cast<int>(count) : -1;
    }
    if (text[stop] == kFormFeed) {
        if (count == 0) {
            ++textOffset;
            return -2;
        }
        textOffset += count + 1;
        return static_cast<int>(count);
    }
    const bool lineFeed = stop + 1 < text.size() && text[stop + 1] == '\n';
    textOffset += count + (lineFeed ? 2 : 1);
    return static_cast<int>(count);
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
