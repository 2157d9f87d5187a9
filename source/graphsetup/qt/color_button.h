// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A push button that paints its face in the colour it holds.

#include <QColor>
#include <QPushButton>

namespace quindar {

class ColorButton : public QPushButton {
    Q_OBJECT
public:
    explicit ColorButton(QWidget *parent = nullptr);

    QColor Color() const { return color; }
    void SetColor(const QColor &value);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor color;
};

}  // namespace quindar
