// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A list of functions whose rows the mouse drags: within the list, or onto its partner list.
// It only tells where a row was dropped; the Functions page decides what that means.

#include <QListWidget>
#include <functional>

namespace quindar {

class FunctionDragList : public QListWidget {
    Q_OBJECT
public:
    explicit FunctionDragList(QWidget *parent = nullptr) : QListWidget(parent) {}

    // The other list a row may be dropped on.
    FunctionDragList *partner = nullptr;
    // Whether dragging is allowed now.
    std::function<bool()> canDrag;

signals:
    void dragStarted();
    // Row `row` went to `target` (this list or its partner) at row `to` (-1: past the end).
    void dropped(int row, FunctionDragList *target, int to);
    void deletePressed();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    int dragRow = -1;
    QPoint pressAt;
    bool dragging = false;
};

}  // namespace quindar
