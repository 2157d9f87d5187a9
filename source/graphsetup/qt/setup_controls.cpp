// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "setup_controls.h"

#include <QPushButton>

namespace quindar {

QPushButton *make_setup_button(const QString &text, int controlId, QWidget *parent) {
    auto *button = new QPushButton(text, parent);
    name_setup_control(*button, text, controlId);
    button->setAutoDefault(false);
    return button;
}

void name_setup_control(QWidget &control, const QString &name, int controlId) {
    control.setAccessibleName(name);
    control.setProperty("controlId", controlId);
}

}  // namespace quindar
