// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Where the print preview draws its pages in its client area: a margin of 15 at the left and
// the top, the page as large as the client allows at the page's own proportions (kept to 95
// per cent), and a second page 30 to the right in two up.

#include <vector>

namespace quindar::printing {

struct PreviewRect {
    int x;
    int y;
    int width;
    int height;
    bool operator==(const PreviewRect &) const = default;
};

inline constexpr int kPreviewMargin = 15;
inline constexpr int kPreviewGap = 30;

// pageWidth and pageHeight are the page's size in printer units.
std::vector<PreviewRect> PreviewPageRects(int clientWidth, int clientHeight, int pageWidth,
                                          int pageHeight, bool twoUp);

}  // namespace quindar::printing
