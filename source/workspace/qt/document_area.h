// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The client of the main window: the open documents (at most 50) as MDI children, their
// numbering and order, which one is current, and the commands that make, open and arrange
// them.

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QStringList>
#include <map>

#include "command_router.h"
#include "document_roster.h"

namespace quindar {

class DocumentWindow;
class Workbench;

class DocumentArea : public QMdiArea, public CommandTarget {
    Q_OBJECT
public:
    DocumentArea(Workbench &workbench, QWidget *parent = nullptr);
    ~DocumentArea() override;

    // A new untitled document; null when the limit is reached.
    DocumentWindow *NewDocument();
    // Opens a document. checked: refuse a file already open (without regard to case) or
    // missing, as opening by name does; the Open dialog's choice skips those tests.
    DocumentWindow *OpenFile(const QString &path, bool checked = true);
    void OpenFiles(const QStringList &paths, bool checked = true);

    int Count() const { return roster.Count(); }
    const DocumentRoster &Roster() const { return roster; }
    DocumentWindow *At(int index) const;
    DocumentWindow *Current() const;
    int CurrentIndex() const;
    // Activates a document: shown maximised if the active one is, the others minimised.
    void Activate(int index);

    // Closes one document or all, asking each; false when one refused.
    bool CloseDocument(DocumentWindow *document);
    bool CloseAllDocuments();
    // Minimised documents in a row along the bottom.
    void ArrangeIcons();

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

signals:
    // A document came or went, or its caption changed.
    void documentsChanged();
    void currentDocumentChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool LimitReached();
    QMdiSubWindow *AddDocument(DocumentWindow *document);
    void Removed(int key);
    void ChooseAndOpen(int titleIndex);

    Workbench &workbench;
    DocumentRoster roster;
    std::map<int, QPointer<QMdiSubWindow>> windows;
    int nextKey = 1;
};

}  // namespace quindar
