// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The controls of the Graph Setup pages: each carries its control id, by which the rules
// hand it the focus, and an accessible name; no button takes Enter from the sheet.

#include <QString>

class QPushButton;
class QWidget;

namespace quindar {

QPushButton *make_setup_button(const QString &text, int controlId, QWidget *parent);
// Names a list (or any control) and gives it its id.
void name_setup_control(QWidget &control, const QString &name, int controlId);

}  // namespace quindar
