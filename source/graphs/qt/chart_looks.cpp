// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_looks.h"

#include <QFontInfo>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QStringList>
#include <algorithm>

namespace quindar {

QColor chart_color(const std::vector<ChartColor> &colors, int property, const QColor &fallback) {
    for (const ChartColor &color : colors)
        if (color.property == property) return to_qcolor(color.color);
    return fallback;
}

QFont font_from_text(const std::string &text, const QFont &fallback) {
    const QStringList parts = QString::fromStdString(text).split(QLatin1Char(','));
    if (parts.isEmpty() || parts.front().trimmed().isEmpty()) return fallback;
    QFont font(parts.front().trimmed());
    bool ok = false;
    const int size = parts.size() > 1 ? parts[1].trimmed().toInt(&ok) : 0;
    font.setPointSize(ok && size > 0 ? size : fallback.pointSize());
    for (int i = 2; i < parts.size(); ++i) {
        const QString word = parts[i].trimmed().toLower();
        if (word == QLatin1String("bold")) font.setBold(true);
        if (word == QLatin1String("italic")) font.setItalic(true);
        if (word == QLatin1String("underline")) font.setUnderline(true);
    }
    return font;
}

void show_title(QLabel &label, const std::string &text, const std::string &font,
                const QColor &background, const QColor &foreground) {
    label.setText(QString::fromStdString(text));
    label.setFont(font_from_text(font, label.font()));
    label.setAutoFillBackground(true);
    QPalette palette = label.palette();
    palette.setColor(QPalette::Window, background);
    palette.setColor(QPalette::WindowText, foreground);
    label.setPalette(palette);
    label.setVisible(!text.empty());
}

void paint_frame_label(QPainter &painter, const QLabel &label) {
    if (label.isHidden() || label.text().isEmpty()) return;
    painter.fillRect(label.geometry(), label.palette().color(QPalette::Window));
    painter.setPen(label.palette().color(QPalette::WindowText));
    QFont font = label.font();
    font.setPixelSize(QFontInfo(label.font()).pixelSize());
    painter.setFont(font);
    painter.drawText(label.geometry(), Qt::AlignCenter, label.text());
}

void paint_chart_frame(QPainter &painter, const QRect &target, QWidget &frame, const QLabel &header,
                       const QLabel &footer, const std::function<void(QPainter &)> &paintChart) {
    if (frame.size().isEmpty()) frame.resize(target.size());
    if (frame.layout() != nullptr) frame.layout()->activate();
    const double scale =
        std::min(target.width() / double(frame.width()), target.height() / double(frame.height()));
    painter.save();
    painter.translate(target.topLeft());
    painter.translate((target.width() - frame.width() * scale) / 2,
                      (target.height() - frame.height() * scale) / 2);
    painter.scale(scale, scale);
    painter.fillRect(frame.rect(), frame.palette().color(QPalette::Window));
    for (const QLabel *title : {&header, &footer}) paint_frame_label(painter, *title);
    paintChart(painter);
    painter.restore();
}

QString value_text(double value) {
    return QString::number(value, 'g', 10);
}

}  // namespace quindar
