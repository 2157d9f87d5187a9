// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A plain text editor window for the user library, for a desktop that has no text editor of
// its own. Save writes the file through a temporary file; the library is read again the next
// time it is loaded.

#include <QDialog>
#include <QString>

class QPlainTextEdit;

namespace quindar {

class MessageBoxes;

class LibraryEditorWindow : public QDialog {
    Q_OBJECT
public:
    LibraryEditorWindow(const QString &path, MessageBoxes &messages, QWidget *parent = nullptr);

    QPlainTextEdit &Text() { return *text; }
    // Writes the text back; false (after a message) when the file could not be written.
    bool Save();

private:
    QString path;
    MessageBoxes &messages;
    QPlainTextEdit *text = nullptr;
};

}  // namespace quindar
