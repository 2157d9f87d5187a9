// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_drag_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace quindar {

namespace {

// The row under a point of a list, -1 past its rows.
int RowAt(const QListWidget &list, QPoint local) {
    const QModelIndex index = list.indexAt(list.viewport()->mapFrom(&list, local));
    return index.isValid() ? index.row() : -1;
}

}  // namespace

void FunctionDragList::mousePressEvent(QMouseEvent *event) {
    QListWidget::mousePressEvent(event);
    dragging = false;
    dragRow = -1;
    if (event->button() != Qt::LeftButton) return;
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && (!canDrag || canDrag())) {
        dragRow = index.row();
        pressAt = event->position().toPoint();
    }
}

void FunctionDragList::mouseMoveEvent(QMouseEvent *event) {
    if (dragRow < 0 || !(event->buttons() & Qt::LeftButton)) {
        QListWidget::mouseMoveEvent(event);
        return;
    }
    if (!dragging && (event->position().toPoint() - pressAt).manhattanLength() >=
                         QApplication::startDragDistance()) {
        dragging = true;
        setCursor(Qt::DragMoveCursor);
        emit dragStarted();
    }
}

void FunctionDragList::mouseReleaseEvent(QMouseEvent *event) {
    const bool wasDragging = dragging;
    const int row = dragRow;
    dragging = false;
    dragRow = -1;
    unsetCursor();
    if (!wasDragging || row < 0) {
        QListWidget::mouseReleaseEvent(event);
        return;
    }
    // The viewport reports the mouse in its own coordinates.
    const QPoint global = viewport()->mapToGlobal(event->position().toPoint());
    for (FunctionDragList *target : {this, partner}) {
        if (target == nullptr) continue;
        const QPoint local = target->mapFromGlobal(global);
        if (target->rect().contains(local)) {
            emit dropped(row, target, RowAt(*target, local));
            return;
        }
    }
}

void FunctionDragList::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Delete) {
        emit deletePressed();
        return;
    }
    QListWidget::keyPressEvent(event);
}

}  // namespace quindar
