// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Variables Manager and the Functions Manager: a name box listing what the document
// declared, a value box, Add/Edit, Delete, Insert, Quit and Help. The checks and messages
// come from the managers' rules; every change goes through the document as a typed line
// would. Enter never closes the dialog, Escape quits it.

#include <QDialog>
#include <string>

#include "document_panes.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quindar {

enum class ManagerKind { Variables, Functions };

class ManagerDialog : public QDialog {
    Q_OBJECT
public:
    // name: the entry to preselect, or empty.
    ManagerDialog(ManagerKind kind, DocumentPanes &panes, const std::string &name,
                  QWidget *parent = nullptr);
    ~ManagerDialog() override;

    QComboBox &NameBox() { return *nameBox; }
    QLineEdit &ValueBox() { return *valueBox; }
    void AddEdit();
    void Delete();
    void Insert();
    // Insert hands the name to `target` instead of writing it into the text.
    void SetInsertTarget(ManagerInsertTarget target) { insertTarget = std::move(target); }

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void FillNames();
    std::string NameAt(int index) const;
    std::string ValueOf(const std::string &name) const;
    bool Exists(const std::string &name) const;
    int IndexOf(const std::string &name) const;
    void ShowEntry(int index, bool withSound);
    void NameTyped(const QString &typed);
    void SetInstructions(bool show);
    void Tell(int id, const std::string &text);
    int TitleId() const;

    ManagerKind kind;
    DocumentPanes &panes;
    QComboBox *nameBox = nullptr;
    QLineEdit *valueBox = nullptr;
    QLabel *instructions = nullptr;
    bool showInstructions = true;
    ManagerInsertTarget insertTarget;
};

}  // namespace quindar
