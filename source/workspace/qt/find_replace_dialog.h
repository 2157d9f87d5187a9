// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Find and Replace over a document's text pane: one modeless dialog per text pane, with the
// text to find, its replacement, match case, whole words and the direction. Find Next (F3)
// repeats the last search without the dialog.

#include <QDialog>
#include <QTextDocument>
#include <functional>

class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace quindar {

class FindReplaceDialog : public QDialog {
    Q_OBJECT
public:
    explicit FindReplaceDialog(QPlainTextEdit &text);

    // Shows the dialog for finding, or with the replace controls too.
    void Open(bool replace);
    // The next match from the caret on; false (after telling so) when there is none.
    bool FindNext();
    void ReplaceOne();
    // Replaces every match in the whole text; returns how many.
    int ReplaceAll();
    bool HasSearch() const;

    void SetSearch(const QString &text, const QString &replacement = {}, bool matchCase = false,
                   bool wholeWords = false, bool upward = false);

    // Tells that the text was not found; the owner shows it as a message box.
    std::function<void(const QString &text)> notFound;

private:
    QTextDocument::FindFlags Flags() const;

    QPlainTextEdit &edit;
    QLineEdit *findText;
    QLineEdit *replaceText;
    QCheckBox *matchCase;
    QCheckBox *wholeWords;
    QCheckBox *upward;
    QPushButton *replaceButton;
    QPushButton *replaceAllButton;
    QWidget *replaceRow;
};

}  // namespace quindar
