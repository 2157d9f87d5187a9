// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The main window: one menu bar (File and Help alone while no document is open), the tool
// bar in its short and long forms with the window combo box, and the status bar with the
// caret's line, the hints and the lock indicators. It answers the frame's commands: Exit,
// Tool Bar, Status Bar, Hints.

#include <QElapsedTimer>
#include <QMainWindow>
#include <vector>

#include "command_router.h"

class QComboBox;
class QLabel;
class QMenu;
class QToolBar;

namespace quindar {

class DocumentArea;
class Workbench;

class MainFrame : public QMainWindow, public CommandTarget {
    Q_OBJECT
public:
    explicit MainFrame(Workbench &workbench);
    ~MainFrame() override;

    DocumentArea *Client() const { return client; }
    QToolBar *ToolBar() const { return toolBar; }
    QComboBox *WindowCombo() const { return windowCombo; }
    QLabel *LineGadget() const { return lineGadget; }
    QLabel *HintLabel() const { return hintLabel; }
    QMenu *Menu(int index) const { return menus.at(static_cast<std::size_t>(index)); }
    int hintMode = 2;  // 1: hints while a button is pressed; 2: as soon as the pointer enters

    // A text in the hint area, such as "Loading Quindar File, Please Wait!".
    void ShowHint(const QString &text);
    // What the program does each time it goes idle: the enablers and the line gadget.
    void IdleAction();

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QAction *MakeAction(int id);
    void BuildMenus();
    void BuildToolBar();
    void BuildStatusBar();
    void RebuildRecentFiles();
    void RebuildDocumentList();
    // The document menus, the long tool bar and the combo box come with the first document
    // and go with the last.
    void DocumentsChanged();
    void CurrentDocumentChanged();

    Workbench &workbench;
    DocumentArea *client = nullptr;
    QToolBar *toolBar = nullptr;
    QComboBox *windowCombo = nullptr;
    QAction *windowComboAction = nullptr;
    QLabel *lineGadget = nullptr;
    QLabel *hintLabel = nullptr;
    std::vector<QLabel *> lockIndicators;
    std::vector<QMenu *> menus;
    std::vector<QAction *> documentMenuActions;
    std::vector<QAction *> longToolBarActions;
    QMenu *fileMenu = nullptr;
    QAction *recentFilesMark = nullptr;
    std::vector<QAction *> recentFileActions;
    QMenu *windowMenu = nullptr;
    std::vector<QAction *> documentListActions;
    bool toolBarShown = true;
    QElapsedTimer lockClock;
};

}  // namespace quindar
