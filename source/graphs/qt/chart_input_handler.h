// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The mouse on a 3-D chart: the right button opens the graph's pop-up instead of turning the
// view, Shift with the left button turns it, a plain left click picks, the wheel zooms.

#include <Q3DInputHandler>

namespace quindar {

class ChartInputHandler : public Q3DInputHandler {
    Q_OBJECT
public:
    explicit ChartInputHandler(QObject *parent = nullptr);

    void mousePressEvent(QMouseEvent *event, const QPoint &mousePos) override;
    void mouseReleaseEvent(QMouseEvent *event, const QPoint &mousePos) override;

signals:
    // The right button at this position of the chart's window.
    void popupRequested(QPoint position);
    // A plain left click: the chart picks at this position on a later frame.
    void pickRequested(QPoint position);

private:
    bool turning = false;
};

}  // namespace quindar
