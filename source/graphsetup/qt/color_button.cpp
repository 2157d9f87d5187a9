// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "color_button.h"

#include <QPainter>

namespace quindar {

namespace {

// The colour stands inside the button's frame, with a margin that leaves the frame visible.
constexpr int kColorMargin = 5;

}  // namespace

ColorButton::ColorButton(QWidget *parent) : QPushButton(parent) {}

void ColorButton::SetColor(const QColor &value) {
    if (color == value) return;
    color = value;
    update();
}

QSize ColorButton::sizeHint() const {
    return {48, 24};
}

void ColorButton::paintEvent(QPaintEvent *event) {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const QRect face = rect().adjusted(kColorMargin, kColorMargin, -kColorMargin, -kColorMargin);
    painter.setPen(isEnabled() ? palette().color(QPalette::WindowText)
                               : palette().color(QPalette::Disabled, QPalette::WindowText));
    painter.setBrush(color);
    painter.drawRect(face.adjusted(0, 0, -1, -1));
}

}  // namespace quindar
