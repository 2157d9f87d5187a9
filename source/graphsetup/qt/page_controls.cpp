// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "page_controls.h"

#include <QLineEdit>
#include <QPointer>
#include <QTimer>

namespace quindar {

void name_control(QWidget *control, int controlId, const QString &accessibleName) {
    control->setProperty(kControlIdProperty, controlId);
    control->setObjectName(QStringLiteral("control%1").arg(controlId));
    control->setAccessibleName(accessibleName);
}

void focus_back_later(QLineEdit *edit) {
    QPointer<QLineEdit> back(edit);
    QTimer::singleShot(0, edit, [back] {
        if (!back) return;
        back->setFocus(Qt::OtherFocusReason);
        back->selectAll();
    });
}

}  // namespace quindar
