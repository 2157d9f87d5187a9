// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One open document: a child window of the client holding its own engine, its content
// (text, font, calculus settings, graphs) and its text pane. It answers the document's
// commands (Save, Save As, the pane and view commands), knows its caption and whether it is
// dirty, and asks the close questions in their order.

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "command_router.h"
#include "document_close_rules.h"
#include "document_parts.h"

namespace quindar {

class DocumentPanes;
class MathEditorWidget;
class Parser;
class Workbench;

class DocumentWindow : public QWidget, public CommandTarget {
    Q_OBJECT
public:
    // A new untitled document with its number; a path is loaded by Load.
    DocumentWindow(Workbench &workbench, int number, QWidget *parent = nullptr);
    ~DocumentWindow() override;

    // Reads the document at path; false (after its message) when it cannot be read.
    bool Load(const std::string &path);

    const std::string &Path() const { return path; }
    int Number() const { return number; }
    QString Caption() const;

    MathEditorWidget &TextPane() { return *textPane; }
    DocumentPanes &Panes() { return *panes; }
    Parser &Engine() { return *parser; }
    DocumentContent &Content() { return content; }

    // A font chosen for the document: the text and its lists take it, and the document's
    // settings count as changed.
    void ApplyFont(const DocumentFont &font);

    DocumentChanges Changes() const;
    // The caption while another pane stands in for the text (the graph pane); empty for the
    // document's own. Whoever sets it emits captionChanged when it changes.
    std::function<QString()> paneCaption;
    // A graph of the document changed outside the text (the graph window's view commands).
    void MarkGraphsChanged();
    bool IsDirty() const { return document_dirty(Changes()); }
    // A tool window changed the settings the document keeps (Options, the calculus pages'
    // boxes): it asks to be saved.
    void MarkSettingsChanged() {
        settingsChanged = true;
        emit stateChanged();
    }
    // What the document is busy with; nothing computes yet, so this stays idle until the
    // graph and calculus windows report through it.
    std::function<DocumentActivity()> activity;
    // The states of the commands that the document's tool windows answer (the graph pane),
    // asked before the document's own; false for an id they leave alone.
    std::function<bool(int id, CommandState &state)> toolState;

    // Save: to its file, or through Save As when it has none. True when saved.
    bool Save();
    bool SaveAs();
    // Asks the close questions; true when the document may close. The answer holds for the
    // next close until ForgetCloseAnswer, which a refused close of several documents calls.
    bool CanClose();
    void ForgetCloseAnswer() { closeChecked = false; }

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

signals:
    // The caption changed (a first save, Save As).
    void captionChanged();
    // The caret moved or the text changed: the frame's line gadget and Save follow.
    void stateChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool WriteTo(const std::string &target);
    void ClearChangeFlags();

    Workbench &workbench;
    int number;
    std::string path;
    std::unique_ptr<Parser> parser;
    DocumentContent content;
    MathEditorWidget *textPane = nullptr;
    DocumentPanes *panes = nullptr;
    bool graphsChanged = false;
    bool settingsChanged = false;
    bool textChanged = false;
    bool closeChecked = false;
};

}  // namespace quindar
