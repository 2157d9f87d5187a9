// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Small translations from the program's chart decisions into Qt values, shared by the 2-D and
// 3-D charts.

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "chart_decisions.h"

class QLabel;
class QPainter;
class QWidget;

namespace quindar {

inline QColor to_qcolor(TColor color) {
    return QColor(color.Red(), color.Green(), color.Blue());
}
// The colour of a chart colour property, or fallback when the decisions leave it out.
QColor chart_color(const std::vector<ChartColor> &colors, int property, const QColor &fallback);
// A font from text such as "Arial,14,Bold": face, point size, then words for the weight.
QFont font_from_text(const std::string &text, const QFont &fallback);
// A header or footer label: text, font and colours; hidden when the text is empty.
void show_title(QLabel &label, const std::string &text, const std::string &font,
                const QColor &background, const QColor &foreground);
// A title, legend or other text label of a frame, as the frame shows it: its background, then
// its text (sized in pixels, since a printer's points grow with its resolution).
void paint_frame_label(QPainter &painter, const QLabel &label);
// A chart frame (header, chart, footer) scaled into target: the background, the titles as text
// (sized in pixels, since a printer's points grow with its resolution), then the chart itself.
void paint_chart_frame(QPainter &painter, const QRect &target, QWidget &frame, const QLabel &header,
                       const QLabel &footer, const std::function<void(QPainter &)> &paintChart);
// A chart value as an axis or legend shows it.
QString value_text(double value);

}  // namespace quindar
