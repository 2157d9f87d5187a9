// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "app_services.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace quindar {

void AppServices::ShowAbout(QWidget *parent) {
    QMessageBox::about(parent, QStringLiteral("About Quindar"),
                       QStringLiteral("Quindar %1\nA desktop mathematics workbench.")
                           .arg(QCoreApplication::applicationVersion()));
}

}  // namespace quindar
