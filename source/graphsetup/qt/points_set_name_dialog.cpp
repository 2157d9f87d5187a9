// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "points_set_name_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>

namespace quindar {

PointsSetNameDialog::PointsSetNameDialog(QWidget *parent,
                                         std::function<bool(const QString &)> accept)
    : QDialog(parent), rename(std::move(accept)) {
    setWindowTitle(tr("Edit Data Set Name"));
    setAccessibleName(windowTitle());
    setModal(false);
    nameEdit = new QLineEdit(this);
    nameEdit->setAccessibleName(tr("Data Set Name"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setAccessibleName(tr("OK"));
    buttons->button(QDialogButtonBox::Cancel)->setAccessibleName(tr("Cancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &PointsSetNameDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PointsSetNameDialog::reject);
    auto *layout = new QFormLayout(this);
    layout->addRow(tr("&Data Set Name:"), nameEdit);
    layout->addRow(buttons);
}

void PointsSetNameDialog::ShowFor(const QString &name) {
    nameEdit->setText(name);
    nameEdit->selectAll();
    show();
    raise();
    activateWindow();
    nameEdit->setFocus();
}

void PointsSetNameDialog::accept() {
    if (rename && !rename(nameEdit->text())) {
        nameEdit->setFocus();
        return;
    }
    QDialog::accept();
}

}  // namespace quindar
