// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// "Edit Data Set Name": a small modeless dialog that the Points page makes once and keeps.
// OK asks the page whether the name may be taken; a refused name keeps the dialog open.

#include <QDialog>
#include <functional>

class QLineEdit;

namespace quindar {

class PointsSetNameDialog : public QDialog {
    Q_OBJECT
public:
    // `accept` renames the set and says whether the name was taken.
    PointsSetNameDialog(QWidget *parent, std::function<bool(const QString &)> accept);

    // Shows the dialog on the selected set's name.
    void ShowFor(const QString &name);
    QLineEdit *NameEdit() const { return nameEdit; }

    void accept() override;

private:
    QLineEdit *nameEdit = nullptr;
    std::function<bool(const QString &)> rename;
};

}  // namespace quindar
