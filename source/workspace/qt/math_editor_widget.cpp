// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "math_editor_widget.h"

#include <QContextMenuEvent>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTextBlock>
#include <QUrl>

#include "command_table.h"

namespace quindar {
namespace {

struct KeyMapping {
    int qtKey;
    EditorKey key;
};

constexpr KeyMapping kKeys[] = {
    {Qt::Key_Shift, EditorKey::Shift},   {Qt::Key_Control, EditorKey::Ctrl},
    {Qt::Key_Return, EditorKey::Enter},  {Qt::Key_Enter, EditorKey::Enter},
    {Qt::Key_F3, EditorKey::F3},         {Qt::Key_F4, EditorKey::F4},
    {Qt::Key_Delete, EditorKey::Delete}, {Qt::Key_F, EditorKey::LetterF},
    {Qt::Key_R, EditorKey::LetterR},
};

EditorKey EditorKeyOf(int qtKey) {
    for (const KeyMapping &mapping : kKeys)
        if (mapping.qtKey == qtKey) return mapping.key;
    return EditorKey::Other;
}

// The character a key press types, as the editor's character handler sees it; 0 for none.
char CharacterOf(const QKeyEvent &event) {
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) return '\r';
    if (event.key() == Qt::Key_Backspace) return '\b';
    if (event.key() == Qt::Key_Tab) return '\t';
    const QString text = event.text();
    if (text.size() != 1 || (event.modifiers() & Qt::ControlModifier)) return 0;
    const char16_t code = text.front().unicode();
    return code >= 0x20 && code != 0x7f ? static_cast<char>(code < 0x100 ? code : '?') : 0;
}

// Keys the editor keeps from the menus' shortcuts and the control's own bindings.
bool IsEditorShortcut(const QKeyEvent &event) {
    const bool ctrl = event.modifiers() & Qt::ControlModifier;
    switch (event.key()) {
        case Qt::Key_F3:
        case Qt::Key_F4:
            return true;
        case Qt::Key_Delete:
        case Qt::Key_F:
        case Qt::Key_R:
            return ctrl;
        default:
            return false;
    }
}

// The commands of the text pane and whether each needs something to act on.
enum class Needs { Nothing, Selection, Text };

struct EditCommand {
    int id;
    Needs needs;
};

constexpr EditCommand kEditCommands[] = {
    {command::kEditUndo, Needs::Nothing},     {command::kEditCut, Needs::Nothing},
    {command::kEditCopy, Needs::Nothing},     {command::kEditPaste, Needs::Nothing},
    {command::kEditClear, Needs::Nothing},    {command::kEditDelete, Needs::Nothing},
    {command::kEditFind, Needs::Nothing},     {command::kEditReplace, Needs::Nothing},
    {command::kEditFindNext, Needs::Nothing},
};

}  // namespace

MathEditorWidget::MathEditorWidget(Parser &parser, QWidget *parent)
    : QPlainTextEdit(parent), buffer(*this), engine(parser), editor(buffer, engine) {
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setAccessibleName(QStringLiteral("Math Editor"));
    setAccessibleDescription(
        QStringLiteral("Type an expression and press F4 or Enter to write its answer behind it"));
    editor.CmEditFind = [this] { CommandHandler(command::kEditFind); };
    editor.CmEditReplace = [this] { CommandHandler(command::kEditReplace); };
    editor.CmEditFindNext = [this] { CommandHandler(command::kEditFindNext); };
    editor.CmEditClear = [this] { CommandHandler(command::kEditClear); };
}

std::string MathEditorWidget::DocumentText() const {
    std::string text;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block != document()->begin()) text += "\r\n";
        text += block.text().toUtf8().toStdString();
    }
    return text;
}

void MathEditorWidget::SetDocumentText(std::string_view text) {
    QString plain = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    plain.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    plain.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    setPlainText(plain);
    document()->setModified(false);
}

int MathEditorWidget::CaretLineNumber() const {
    return textCursor().blockNumber() + 1;
}

bool MathEditorWidget::event(QEvent *event) {
    if (event->type() == QEvent::ShortcutOverride &&
        IsEditorShortcut(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QPlainTextEdit::event(event);
}

void MathEditorWidget::keyPressEvent(QKeyEvent *event) {
    // The control reports modifiers with each key; the editor keeps them as key-downs.
    if (event->modifiers() & Qt::ShiftModifier) editor.shiftPressed = true;
    if (event->modifiers() & Qt::ControlModifier) editor.ctrlPressed = true;
    buffer.keyPassed = false;
    buffer.charPassed = false;
    editor.EvKeyDown(EditorKeyOf(event->key()));
    const char character = CharacterOf(*event);
    if (character != 0) editor.EvChar(character);
    const bool pass = character != 0 ? buffer.charPassed : buffer.keyPassed;
    if (pass) {
        // Shift+Enter breaks the line like Enter once the editor let it through.
        QKeyEvent plain(
            event->type(), event->key(),
            character == '\r' ? event->modifiers() & ~Qt::ShiftModifier : event->modifiers(),
            event->text(), event->isAutoRepeat(), static_cast<ushort>(event->count()));
        QPlainTextEdit::keyPressEvent(&plain);
    } else {
        event->accept();
        ensureCursorVisible();
    }
}

void MathEditorWidget::contextMenuEvent(QContextMenuEvent *event) {
    if (!makeAction) {
        QPlainTextEdit::contextMenuEvent(event);
        return;
    }
    QMenu menu(this);
    menu.setAccessibleName(QStringLiteral("Math Editor menu"));
    for (const int item : text_pane_menu()) {
        if (item == command::kSeparator)
            menu.addSeparator();
        else
            menu.addAction(makeAction(item, &menu));
    }
    menu.exec(event->globalPos());
}

bool MathEditorWidget::canInsertFromMimeData(const QMimeData *source) const {
    return source->hasUrls() || QPlainTextEdit::canInsertFromMimeData(source);
}

void MathEditorWidget::insertFromMimeData(const QMimeData *source) {
    if (source->hasUrls()) {
        QStringList paths;
        for (const QUrl &url : source->urls())
            if (url.isLocalFile()) paths << url.toLocalFile();
        if (openFiles && !paths.isEmpty()) openFiles(paths);
        return;
    }
    QPlainTextEdit::insertFromMimeData(source);
}

bool MathEditorWidget::CommandEnabler(int id, CommandState &state) {
    for (const EditCommand &command : kEditCommands) {
        if (command.id == id) {
            state.enabled = !isReadOnly();
            return true;
        }
    }
    return false;
}

void MathEditorWidget::FindText(bool askForText) {
    if (askForText || lastSearch.isEmpty()) {
        bool ok = false;
        const QString text =
            QInputDialog::getText(this, QStringLiteral("Find"), QStringLiteral("Find what:"),
                                  QLineEdit::Normal, lastSearch, &ok);
        if (!ok || text.isEmpty()) return;
        lastSearch = text;
    }
    if (!find(lastSearch)) {
        // From the top once more before giving up.
        QTextCursor cursor = textCursor();
        cursor.movePosition(QTextCursor::Start);
        setTextCursor(cursor);
        find(lastSearch);
    }
}

bool MathEditorWidget::CommandHandler(int id) {
    if (searchCommands &&
        (id == command::kEditFind || id == command::kEditReplace || id == command::kEditFindNext))
        return searchCommands(id);
    switch (id) {
        case command::kEditUndo:
            undo();
            return true;
        case command::kEditCut:
            cut();
            return true;
        case command::kEditCopy:
            copy();
            return true;
        case command::kEditPaste:
            paste();
            return true;
        case command::kEditClear:
            selectAll();
            textCursor().removeSelectedText();
            return true;
        case command::kEditDelete: {
            QTextCursor cursor = textCursor();
            if (!cursor.hasSelection())
                cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
            return true;
        }
        case command::kEditFind:
            FindText(true);
            return true;
        // Replacing keeps to finding until the replace dialog comes.
        case command::kEditReplace:
            FindText(true);
            return true;
        case command::kEditFindNext:
            FindText(false);
            return true;
        default:
            return false;
    }
}

}  // namespace quindar
