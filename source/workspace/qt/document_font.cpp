// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_font.h"

#include <QFontInfo>
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

DocumentFont document_font_of(const QFont &font, DocumentFont record) {
    record.FaceName = font.family().toStdString();
    const int pixels = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
    record.Height = -std::max(1, pixels);
    record.Weight = font.weight();
    record.Italic = font.italic() ? 1 : 0;
    record.Underline = font.underline() ? 1 : 0;
    record.StrikeOut = font.strikeOut() ? 1 : 0;
    return record;
}

}  // namespace quindar
