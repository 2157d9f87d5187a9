// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The text pane of a document: a QPlainTextEdit whose keys go first to the document's
// MathEditor (the line processing shared with quindar-cli), through a PlainTextBuffer. A key
// the editor lets through reaches the control as usual. It answers the Edit and Search
// commands while it has the focus.

#include <QPlainTextEdit>
#include <QStringList>
#include <functional>
#include <memory>

#include "command_router.h"
#include "editor_engine.h"
#include "math_editor.h"
#include "plain_text_buffer.h"

namespace quindar {

class Parser;

class MathEditorWidget : public QPlainTextEdit, public CommandTarget {
    Q_OBJECT
public:
    MathEditorWidget(Parser &parser, QWidget *parent = nullptr);

    MathEditor &Editor() { return editor; }
    PlainTextBuffer &Buffer() { return buffer; }

    // The text with CR LF line ends, as a document stores it, and back.
    std::string DocumentText() const;
    void SetDocumentText(std::string_view text);

    // The caret's line, counted from 1.
    int CaretLineNumber() const;

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

    // The pop-up menu's items are the program's commands, made by whoever owns them.
    std::function<QAction *(int id, QMenu *menu)> makeAction;

    // Find, Replace and Find Next, when a search window of the document's takes them.
    std::function<bool(int id)> searchCommands;

    // Files dropped on the text are opened, not pasted.
    std::function<void(const QStringList &paths)> openFiles;

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void FindText(bool askForText);

    PlainTextBuffer buffer;
    ParserEngine engine;
    MathEditor editor;
    QString lastSearch;
};

}  // namespace quindar
