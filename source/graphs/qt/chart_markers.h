// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The point markers of 2-D sets: one drawn image per point style (2 to 16; 1 is no marker).

#include <QColor>
#include <QImage>

namespace quindar {

// The marker of a point style in a colour, `size` pixels square; a null image for style 1
// and for styles the table does not know.
QImage point_marker(int pointStyle, const QColor &color, int size);

}  // namespace quindar
