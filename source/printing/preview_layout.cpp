// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "preview_layout.h"

#include <algorithm>

namespace quindar::printing {

std::vector<PreviewRect> PreviewPageRects(int clientWidth, int clientHeight, int pageWidth,
                                          int pageHeight, bool twoUp) {
    if (pageWidth <= 0 || pageHeight <= 0) return {};
    const long ratio =
        static_cast<long>(std::min(pageWidth, pageHeight)) * 100 / std::max(pageWidth, pageHeight);
    PreviewRect first{kPreviewMargin, kPreviewMargin, 0, 0};
    if (clientHeight < clientWidth * ratio / 100) {
        // A wide window: the height decides.
        first.height = std::max(0, clientHeight - 2 * kPreviewMargin);
        const long percent = static_cast<long>(pageWidth) * 95 / pageHeight;
        first.width = static_cast<int>(first.height * percent / 100);
    } else {
        first.width = std::max(0, clientWidth - 2 * kPreviewMargin);
        const long percent = static_cast<long>(pageHeight) * 95 / pageWidth;
        first.height = static_cast<int>(first.width * percent / 100);
    }
    std::vector<PreviewRect> pages{first};
    if (twoUp)
        pages.push_back({first.x + first.width + kPreviewGap, first.y, first.width, first.height});
    return pages;
}

}  // namespace quindar::printing
