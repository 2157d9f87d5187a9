// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Pages of a printed text: lines per page, the page count offered, the header, form feeds
// and wrapping, each page drawn as "row:text" lines.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "list_printout.h"
#include "text_paginator.h"

namespace quindar::printing {
namespace {

// Ten units a character, a "W" twenty-five.
int Measure(std::string_view text) {
    int width = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0) == 0x80) continue;  // a UTF-8 continuation byte
        width += text[i] == 'W' ? 25 : 10;
    }
    return width;
}

// Ten lines a page (rows 4 to 7 hold text), five characters a line unless told.
std::vector<std::string> Pages(std::string_view text, int pageWidth = 50, int pageHeight = 100) {
    std::string crLf;
    for (char c : text) crLf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    TextPaginator paginator(crLf, "HEAD", {pageWidth, pageHeight, 10}, Measure);
    std::vector<std::string> drawn;
    for (const PrintedPage &page : paginator.AllPages()) {
        std::string lines = page.header ? "2:" + paginator.Header() : "";
        for (const PrintedLine &line : page.lines)
            lines += (lines.empty() ? "" : " ") + std::to_string(line.row) + ":" + line.text;
        drawn.push_back(lines);
    }
    return drawn;
}

using Drawn = std::vector<std::string>;

TEST(TextPaginator, LinesPerPageAreAtLeastSeven) {
    const struct {
        int height;
        int lineHeight;
        int lines;
    } cases[] = {{100, 10, 10}, {95, 10, 9}, {70, 10, 7},    {69, 10, 7},
                 {0, 10, 7},    {100, 0, 7}, {6600, 50, 132}};
    for (const auto &c : cases)
        EXPECT_EQ(LinesPerPage({100, c.height, c.lineHeight}), c.lines)
            << c.height << "/" << c.lineHeight;
}

TEST(TextPaginator, PageCountIsLinesOverLinesPerPageLessSixRoundedUp) {
    const struct {
        int textLines;
        int linesPerPage;
        int pages;
    } cases[] = {
        {1, 7, 1},  {2, 7, 2},   {4, 10, 1},  {5, 10, 2},   {8, 10, 2}, {9, 10, 3},
        {1, 56, 1}, {50, 56, 1}, {51, 56, 2}, {120, 66, 2}, {3, 3, 3}};  // fewer than seven lines a
                                                                         // page count as seven
    for (const auto &c : cases)
        EXPECT_EQ(EstimatedPageCount(c.textLines, c.linesPerPage), c.pages)
            << c.textLines << " lines at " << c.linesPerPage;
}

TEST(TextPaginator, EveryRowOfTheLayout) {
    const struct {
        const char *text;
        Drawn pages;
    } cases[] = {
        // The header on row 2 of the first page only; text from row 4; four rows a page.
        {"a\nb\nc\nd\ne", {"2:HEAD 4:a 5:b 6:c 7:d", "4:e"}},
        {"a\nb\nc\nd", {"2:HEAD 4:a 5:b 6:c 7:d"}},
        {"a\nb\nc\nd\n", {"2:HEAD 4:a 5:b 6:c 7:d"}},
        {"a\n", {"2:HEAD 4:a"}},
        {"", {"2:HEAD"}},
        // An empty line takes its row.
        {"a\n\nb", {"2:HEAD 4:a 6:b"}},
        // Wrapping at the character that no longer fits.
        {"abcdefghijkl", {"2:HEAD 4:abcde 5:fghij 6:kl"}},
        {"abcdeabcde", {"2:HEAD 4:abcde 5:abcde"}},
        {"aWb", {"2:HEAD 4:aWb"}},
        {"aWbc", {"2:HEAD 4:aWb 5:c"}},
        {"aaaWb", {"2:HEAD 4:aaa 5:Wb"}},
        // A UTF-8 character is measured whole.
        {"\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC",
         {"2:HEAD 4:\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC 5:\xE2\x82\xAC"}},
        // A form feed at the start of a line ends the page.
        {"a\n\fb", {"2:HEAD 4:a", "4:b"}},
        {"a\n\f", {"2:HEAD 4:a"}},
        // Behind text it only ends that line.
        {"a\fb", {"2:HEAD 4:a 5:b"}},
        // A text that opens with one leaves the first page blank, and the header moves on.
        {"\fa", {"", "2:HEAD 4:a"}},
        {"\f\fa", {"", "", "2:HEAD 4:a"}},
        // A form feed where a full page ends is not a second page break.
        {"1\n2\n3\n4\n\f5", {"2:HEAD 4:1 5:2 6:3 7:4", "4:5"}},
        {"1\n2\n3\n4\n\f\f5", {"2:HEAD 4:1 5:2 6:3 7:4", "", "4:5"}},
    };
    for (const auto &c : cases) EXPECT_EQ(Pages(c.text), c.pages) << '"' << c.text << '"';
}

TEST(TextPaginator, AWideCharacterStandsAloneOnItsLine) {
    EXPECT_EQ(Pages("aWb", 20), (Drawn{"2:HEAD 4:a 5:W 6:b"}));
    EXPECT_EQ(Pages("WWW", 5), (Drawn{"2:HEAD 4:W 5:W 6:W"}));
}

TEST(TextPaginator, EveryLineOfALongTextComesOnceInOrder) {
    std::string text;
    for (int i = 1; i <= 30; ++i) text += std::to_string(i) + "\r\n";
    TextPaginator paginator(text, "T", {1000, 100, 10}, Measure);
    EXPECT_EQ(paginator.PageCount(), (31 + 3) / 4);
    const auto pages = paginator.AllPages();
    ASSERT_EQ(pages.size(), 8U);
    int expected = 1;
    for (const auto &page : pages) {
        EXPECT_EQ(page.header, &page == &pages.front());
        for (const auto &line : page.lines) EXPECT_EQ(line.text, std::to_string(expected++));
    }
    EXPECT_EQ(expected, 31);
    EXPECT_EQ(pages[1].startOffset, text.find("5\r\n"));
    EXPECT_FALSE(paginator.HasPage());
    EXPECT_TRUE(paginator.NextPage().lines.empty());
}

TEST(TextPaginator, LinesAreCountedByTheirCrLfBreaks) {
    EXPECT_EQ(CountTextLines(""), 1);
    EXPECT_EQ(CountTextLines("a\r\nb\r\n"), 3);
    // A lone line feed is no break to the paginator: the caller converts first.
    TextPaginator raw("a\nb", "", {1000, 100, 10}, Measure);
    ASSERT_EQ(raw.NextPage().lines.size(), 1U);
}

TEST(TextPaginator, AnyTextPrintsEachCharacterOnceAndEnds) {
    // Texts made of pieces that break, wrap and end pages in every order: printed in a row,
    // the pages hold the text without its line breaks and form feeds.
    const char *pieces[] = {"a", "W", "\r\n", "\f", "\xE2\x82\xAC", "bcdefg"};
    std::mt19937 random(20261123);
    for (int round = 0; round < 500; ++round) {
        std::string text;
        const int length = static_cast<int>(random() % 60);
        for (int i = 0; i < length; ++i) text += pieces[random() % std::size(pieces)];
        const int width = 10 + static_cast<int>(random() % 60);
        const int height = static_cast<int>(random() % 140);
        TextPaginator paginator(text, "H", {width, height, 10}, Measure);
        std::string printed;
        int pages = 0;
        while (paginator.HasPage() && pages < 1000) {
            for (const auto &line : paginator.NextPage().lines) {
                EXPECT_TRUE(line.row >= kFirstTextRow && line.row < paginator.LinesPerPage() - 2);
                printed += line.text;
            }
            ++pages;
        }
        std::string expected;
        for (char c : text)
            if (c != '\r' && c != '\n' && c != kFormFeed) expected += c;
        ASSERT_LT(pages, 1000) << "no end";
        EXPECT_EQ(printed, expected) << "round " << round;
    }
}

TEST(ListPrintout, PagesAreRowsOverRowsPerPagePlusOne) {
    const struct {
        int rows;
        int perPage;
        int pages;
    } cases[] = {{0, 10, 1}, {9, 10, 1}, {10, 10, 2}, {25, 10, 3}, {5, 0, 0}};
    for (const auto &c : cases) EXPECT_EQ(ListPageCount(c.rows, c.perPage), c.pages) << c.rows;
    EXPECT_EQ(ListPageFirstRow(3, 10), 20);
}

}  // namespace
}  // namespace quindar::printing
