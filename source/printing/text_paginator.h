// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// How the text of a Math Editor falls into printed pages. Rows are counted from 0 at the top
// of a page, each one line height high. The header stands on row 2 of the first page that
// is not left blank; the text starts on row 4 of every page, and a page is full when the
// row reaches LinesPerPage - 2. A line longer than the page wraps at the character where it
// stops fitting, never at a word, and a character wider than the page stands alone.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quindar::printing {

inline constexpr char kFormFeed = '\f';
inline constexpr int kHeaderRow = 2;
inline constexpr int kFirstTextRow = 4;
inline constexpr int kMinimumLinesPerPage = 7;

// The width of a piece of text in the units of the page.
using MeasureText = std::function<int(std::string_view)>;

struct PageMetrics {
    int pageWidth = 0;   // of the printable area
    int pageHeight = 0;  // of the printable area
    int lineHeight = 1;  // the font's height plus its external leading
};

struct PrintedLine {
    int row;
    std::string text;
};

struct PrintedPage {
    std::size_t startOffset = 0;  // where in the text the page began
    bool header = false;          // the header stands on kHeaderRow
    std::vector<PrintedLine> lines;
};

// Lines on a page: the page height over the line height, at least kMinimumLinesPerPage.
int LinesPerPage(const PageMetrics &metrics);
// The page count offered to the print dialog: pages of LinesPerPage - 6 lines, rounded up.
// It knows nothing of wrapping or form feeds, so the printout may run longer.
int EstimatedPageCount(int textLines, int linesPerPage);
// Lines of a text as an editor counts them: one more than its line breaks.
int CountTextLines(std::string_view text);

class TextPaginator {
public:
    // The text must end its lines with CR LF, as the editor's buffer gives them; a lone LF
    // would print as a character.
    TextPaginator(std::string text, std::string header, const PageMetrics &metrics,
                  MeasureText measure);

    int LinesPerPage() const { return linesPerPage; }
    // The text drawn on kHeaderRow of a page whose header is set.
    const std::string &Header() const { return header; }
    int PageCount() const { return EstimatedPageCount(CountTextLines(text), linesPerPage); }
    bool HasPage() const { return !finished; }

    // The next page of the printout; an empty page once the text is done.
    PrintedPage NextPage();
    // Every page from the start.
    std::vector<PrintedPage> AllPages();

private:
    // The next line's characters from the cursor: the count (0 for an empty line), -1 at the
    // end of the text, -2 for a form feed at the start of a line. Moves the cursor past the
    // line and its break. The measure must grow as characters are added, as a font's does.
    int GetNextLine(std::string &line);
    std::size_t CharacterLength(std::size_t at) const;

    std::string text;
    std::string header;
    MeasureText measure;
    int pageWidth;
    int linesPerPage;
    std::size_t textOffset = 0;
    bool finished = false;
    bool firstPage = true;
};

}  // namespace quindar::printing
