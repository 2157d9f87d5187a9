// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_font.h"

#include <QFontMetrics>
#include <algorithm>
#include <cstdlib>

namespace quindar {

QFont qfont_of(const DocumentFont &record) {
    QFont font(QString::fromStdString(record.FaceName));
    const int height = std::max(1, std::abs(record.Height != 0 ? record.Height : -13));
    font.setPixelSize(height);
    if (record.Height > 0) {
        // A cell height includes the internal leading: shrink until the line fits.
        while (font.pixelSize() > 1 && QFontMetrics(font).height() > height)
            font.setPixelSize(font.pixelSize() - 1);
    }
    font.setWeight(
        static_cast<QFont::Weight>(std::clamp(record.Weight != 0 ? record.Weight : 400, 100, 900)));
    font.setItalic(record.Italic != 0);
    font.setUnderline(record.Underline != 0);
    font.setStrikeOut(record.StrikeOut != 0);
    return font;
}

}  // namespace quindar
