// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Find and Replace in a document's text: one modeless window in two forms, with match case,
// whole word and direction; Replace All changes every match in one undo step. Find Next
// (F3) repeats the last search, or opens Find when there was none.

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quindar {

class MathEditorWidget;
class Workbench;

class FindReplaceDialog : public QDialog {
    Q_OBJECT
public:
    FindReplaceDialog(Workbench &workbench, MathEditorWidget &text, QWidget *parent = nullptr);

    // Shows the window as Find or as Replace, with the selection as the text to find.
    void Open(bool replace);
    // The search commands of the text pane.
    bool Command(int id);

    // The next match from the caret in the chosen direction; false (after telling so) when
    // there is none.
    bool FindNext();
    // Replaces the selected match, then finds the next.
    void ReplaceOne();
    // Replaces every match; the number replaced.
    int ReplaceAll();

    QLineEdit &FindBox() { return *findBox; }
    QLineEdit &ReplaceBox() { return *replaceBox; }
    QCheckBox &MatchCase() { return *matchCase; }
    QCheckBox &WholeWord() { return *wholeWord; }
    QRadioButton &Up() { return *up; }

private:
    bool Search(bool wrapAround);
    bool SelectionMatches() const;
    void NotFound();

    Workbench &workbench;
    MathEditorWidget &text;
    QLineEdit *findBox = nullptr;
    QLineEdit *replaceBox = nullptr;
    QLabel *replaceLabel = nullptr;
    QCheckBox *matchCase = nullptr;
    QCheckBox *wholeWord = nullptr;
    QRadioButton *up = nullptr;
    QRadioButton *down = nullptr;
    QPushButton *replaceButton = nullptr;
    QPushButton *replaceAllButton = nullptr;
};

}  // namespace quindar
