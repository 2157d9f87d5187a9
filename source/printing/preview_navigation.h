// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The paging of the print preview: one page or two side by side, Previous and Next within
// the printout's pages, and the "Page" text of its tool bar.

#include <string>

namespace quindar::printing {

class PreviewNavigation {
public:
    // Pages run from 1 to pageCount; the preview opens on page 1, one up.
    explicit PreviewNavigation(int pageCount) : highest(pageCount < 1 ? 1 : pageCount) {}

    int FirstPage() const { return first; }
    // The page at the right in two up; 0 for a blank one; equal to FirstPage in one up.
    int SecondPage() const { return second; }
    bool TwoUp() const { return twoUp; }

    bool CanGoPrevious() const { return first > 1; }
    bool CanGoNext() const { return LastShown() < highest; }
    void Previous();
    void Next();
    void OneUp();
    // Two pages side by side; offered for portrait pages only (see TwoUpAllowed).
    void ShowTwoUp();

    // "Page 3", or "Page 3 - 4" with two pages showing.
    std::string PageText() const;

private:
    int LastShown() const { return twoUp && second != 0 ? second : first; }

    int highest;
    int first = 1;
    int second = 1;
    bool twoUp = false;
};

// Two up is offered when the page is no wider than it is high.
constexpr bool TwoUpAllowed(int pageWidth, int pageHeight) {
    return pageWidth <= pageHeight;
}

}  // namespace quindar::printing
