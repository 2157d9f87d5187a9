// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Variables and the Functions list beside a document's text: one column, one line per
// entry of the document's engine, refilled as a whole so that a line's position is the
// engine's index. The twins differ only in what they read and which commands they answer.

#include <QTreeWidget>
#include <functional>
#include <vector>

#include "command_router.h"

namespace quindar {

class DocumentPanes;

enum class ListKind { Variables, Functions };

class EngineListPane : public QTreeWidget, public CommandTarget {
    Q_OBJECT
public:
    EngineListPane(ListKind kind, DocumentPanes &panes, QWidget *parent = nullptr);

    ListKind Kind() const { return kind; }
    // Empties the list and fills it anew from the engine.
    void Refill();
    // The selected lines' indexes, in the order the control gives them.
    std::vector<int> SelectedRows() const;
    // The index of the one selected line, or -1 with none or several.
    int SelectedIndex() const;
    // Deletes the selected lines as the Delete key does; the number deleted.
    int DeleteSelected();

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

    // True while a manager that a double click opened runs.
    bool openedByDoubleClick = false;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int EntryCount() const;
    void FitColumn();
    void OpenManager();
    // The document's Function Solver on function `index`: opened when closed; reconfigured
    // only when it shows another function than the one it was last given.
    void OpenFunctionSolver(int index);

    ListKind kind;
    DocumentPanes &panes;
    int lastSolverIndex = -1;
};

}  // namespace quindar
