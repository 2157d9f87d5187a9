// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_input_handler.h"

#include <QMouseEvent>

namespace quindar {
namespace {

// The library turns the view on a right drag: Shift with the left button is handed on as that.
QMouseEvent as_right_button(const QMouseEvent &event) {
    return QMouseEvent(event.type(), event.position(), event.scenePosition(),
                       event.globalPosition(), Qt::RightButton,
                       event.type() == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::RightButton,
                       event.modifiers() & ~Qt::ShiftModifier);
}

}  // namespace

ChartInputHandler::ChartInputHandler(QObject *parent) : Q3DInputHandler(parent) {}

void ChartInputHandler::mousePressEvent(QMouseEvent *event, const QPoint &mousePos) {
    if (event->button() == Qt::RightButton) {
        emit popupRequested(mousePos);
        return;
    }
    if (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ShiftModifier)) {
        turning = true;
        QMouseEvent turn = as_right_button(*event);
        Q3DInputHandler::mousePressEvent(&turn, mousePos);
        return;
    }
    if (event->button() == Qt::LeftButton) emit pickRequested(mousePos);
    Q3DInputHandler::mousePressEvent(event, mousePos);
}

void ChartInputHandler::mouseReleaseEvent(QMouseEvent *event, const QPoint &mousePos) {
    if (turning && event->button() == Qt::LeftButton) {
        turning = false;
        QMouseEvent turn = as_right_button(*event);
        Q3DInputHandler::mouseReleaseEvent(&turn, mousePos);
        return;
    }
    Q3DInputHandler::mouseReleaseEvent(event, mousePos);
}

}  // namespace quindar
