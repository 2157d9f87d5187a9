// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The program's numbered message boxes: a text and a title from the string table, flags
// that choose the icon and buttons, and the button pressed as the result (kIdOk, kIdCancel,
// kIdYes, kIdNo, or kBoxNotShown). The presenter shows the box; the program's shows a
// QMessageBox modal to the whole program, tests put one in its place that answers from a
// script.

#include <QString>
#include <functional>
#include <initializer_list>
#include <string_view>

#include "message_box_rules.h"

class QWidget;

namespace quindar {

// The text of a string id, or an empty text.
QString ui_string(int id);

struct BoxRequest {
    QWidget *parent = nullptr;
    QString text;
    QString title;
    unsigned flags = kBoxWarning;
};

using BoxPresenter = std::function<int(const BoxRequest &)>;

// Shows the box as a QMessageBox and returns the button pressed.
int present_message_box(const BoxRequest &request);

class MessageBoxes {
public:
    MessageBoxes() : presenter(present_message_box) {}

    void SetPresenter(BoxPresenter box) { presenter = std::move(box); }
    // The parent of a box asked for without one: the main window, once there is one.
    void SetDefaultParent(std::function<QWidget *()> parent) { defaultParent = std::move(parent); }

    // A text of the caller's with a numbered title.
    int Show(QWidget *parent, const QString &text, int titleId, unsigned flags);
    // A text and a title of the caller's, such as the engine's and the file layer's boxes.
    int ShowPlain(QWidget *parent, const QString &text, const QString &title, unsigned flags);
    // A numbered text.
    int Show(QWidget *parent, int textId, int titleId, unsigned flags);
    // A numbered text holding one "%s" for each argument; nothing shows when it lacks one.
    int Show(QWidget *parent, int textId, std::initializer_list<std::string_view> arguments,
             int titleId, unsigned flags);
    // A numbered text holding "%d" or "%c"; when it has neither, message 31600 tells so.
    int ShowNumber(QWidget *parent, int textId, int value, int titleId, unsigned flags);

private:
    int Present(QWidget *parent, const QString &text, const QString &title, unsigned flags);

    BoxPresenter presenter;
    std::function<QWidget *()> defaultParent;
};

}  // namespace quindar
