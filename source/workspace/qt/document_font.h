// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A document's font record as a QFont: the face as requested (fontconfig draws a missing one
// with its metric twin), a negative height as the character height in pixels, a positive one
// as the cell height, and the weight on the same 100 to 900 scale.

#include <QFont>

#include "document_parts.h"

namespace quindar {

QFont qfont_of(const DocumentFont &font);
// The record of a chosen font, over the old record (whose other fields stay): the face, the
// character height in pixels as a negative height, the weight, italic, underline, strikeout.
DocumentFont document_font_of(const QFont &font, DocumentFont record);

}  // namespace quindar
