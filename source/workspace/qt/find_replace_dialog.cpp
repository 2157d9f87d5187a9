// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "find_replace_dialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextDocument>

#include "command_table.h"
#include "math_editor_widget.h"
#include "message_boxes.h"
#include "workbench.h"

namespace quindar {
namespace {

QPushButton *MakeButton(const QString &text, QWidget *parent) {
    auto *button = new QPushButton(text, parent);
    button->setAutoDefault(false);
    button->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    return button;
}

}  // namespace

FindReplaceDialog::FindReplaceDialog(Workbench &owner, MathEditorWidget &pane, QWidget *parent)
    : QDialog(parent), workbench(owner), text(pane) {
    setModal(false);
    findBox = new QLineEdit(this);
    findBox->setAccessibleName(QStringLiteral("Find what"));
    replaceBox = new QLineEdit(this);
    replaceBox->setAccessibleName(QStringLiteral("Replace with"));
    auto *findLabel = new QLabel(QStringLiteral("Fi&nd what:"), this);
    findLabel->setBuddy(findBox);
    replaceLabel = new QLabel(QStringLiteral("Re&place with:"), this);
    replaceLabel->setBuddy(replaceBox);
    matchCase = new QCheckBox(QStringLiteral("Match &case"), this);
    matchCase->setAccessibleName(QStringLiteral("Match case"));
    wholeWord = new QCheckBox(QStringLiteral("Match &whole word only"), this);
    wholeWord->setAccessibleName(QStringLiteral("Match whole word only"));
    auto *direction = new QGroupBox(QStringLiteral("Direction"), this);
    direction->setAccessibleName(QStringLiteral("Direction"));
    up = new QRadioButton(QStringLiteral("&Up"), direction);
    up->setAccessibleName(QStringLiteral("Up"));
    down = new QRadioButton(QStringLiteral("&Down"), direction);
    down->setAccessibleName(QStringLiteral("Down"));
    down->setChecked(true);
    auto *directionLayout = new QHBoxLayout(direction);
    directionLayout->addWidget(up);
    directionLayout->addWidget(down);

    QPushButton *findButton = MakeButton(QStringLiteral("&Find Next"), this);
    findButton->setDefault(true);
    replaceButton = MakeButton(QStringLiteral("&Replace"), this);
    replaceAllButton = MakeButton(QStringLiteral("Replace &All"), this);
    QPushButton *cancel = MakeButton(QStringLiteral("Cancel"), this);

    auto *layout = new QGridLayout(this);
    layout->addWidget(findLabel, 0, 0);
    layout->addWidget(findBox, 0, 1);
    layout->addWidget(replaceLabel, 1, 0);
    layout->addWidget(replaceBox, 1, 1);
    layout->addWidget(matchCase, 2, 0, 1, 2);
    layout->addWidget(wholeWord, 3, 0, 1, 2);
    layout->addWidget(direction, 4, 0, 1, 2);
    auto *buttons = new QVBoxLayout;
    buttons->addWidget(findButton);
    buttons->addWidget(replaceButton);
    buttons->addWidget(replaceAllButton);
    buttons->addWidget(cancel);
    buttons->addStretch();
    layout->addLayout(buttons, 0, 2, 5, 1);

    connect(findButton, &QPushButton::clicked, this, &FindReplaceDialog::FindNext);
    connect(replaceButton, &QPushButton::clicked, this, &FindReplaceDialog::ReplaceOne);
    connect(replaceAllButton, &QPushButton::clicked, this, &FindReplaceDialog::ReplaceAll);
    connect(cancel, &QPushButton::clicked, this, &QDialog::hide);
}

void FindReplaceDialog::Open(bool replace) {
    setWindowTitle(replace ? QStringLiteral("Replace") : QStringLiteral("Find"));
    setAccessibleName(windowTitle());
    for (QWidget *part :
         {static_cast<QWidget *>(replaceBox), static_cast<QWidget *>(replaceLabel),
          static_cast<QWidget *>(replaceButton), static_cast<QWidget *>(replaceAllButton)})
        part->setVisible(replace);
    const QString selected = text.textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        findBox->setText(selected);
    adjustSize();
    show();
    raise();
    activateWindow();
    findBox->setFocus();
    findBox->selectAll();
}

bool FindReplaceDialog::Command(int id) {
    switch (id) {
        case command::kEditFind:
            Open(false);
            return true;
        case command::kEditReplace:
            Open(true);
            return true;
        case command::kEditFindNext:
            if (findBox->text().isEmpty())
                Open(false);
            else
                FindNext();
            return true;
        default:
            return false;
    }
}

bool FindReplaceDialog::Search(bool wrapAround) {
    QTextDocument::FindFlags flags;
    if (matchCase->isChecked()) flags |= QTextDocument::FindCaseSensitively;
    if (wholeWord->isChecked()) flags |= QTextDocument::FindWholeWords;
    if (up->isChecked()) flags |= QTextDocument::FindBackward;
    const QString wanted = findBox->text();
    if (wanted.isEmpty()) return false;
    QTextCursor found = text.document()->find(wanted, text.textCursor(), flags);
    if (found.isNull() && wrapAround) {
        // Round the end once more before giving up.
        QTextCursor from(text.document());
        if (up->isChecked()) from.movePosition(QTextCursor::End);
        found = text.document()->find(wanted, from, flags);
    }
    if (found.isNull()) return false;
    text.setTextCursor(found);
    return true;
}

void FindReplaceDialog::NotFound() {
    workbench.PlaySound("QClick.wav");
    workbench.Messages().ShowPlain(this, QStringLiteral("Cannot find \"%1\".").arg(findBox->text()),
                                   windowTitle(), kBoxInformation);
}

bool FindReplaceDialog::FindNext() {
    if (Search(true)) return true;
    NotFound();
    return false;
}

bool FindReplaceDialog::SelectionMatches() const {
    const QString selected = text.textCursor().selectedText();
    return !selected.isEmpty() &&
           selected.compare(findBox->text(),
                            matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive) == 0;
}

void FindReplaceDialog::ReplaceOne() {
    if (SelectionMatches()) text.textCursor().insertText(replaceBox->text());
    FindNext();
}

int FindReplaceDialog::ReplaceAll() {
    const QString wanted = findBox->text();
    if (wanted.isEmpty()) return 0;
    QTextDocument::FindFlags flags;
    if (matchCase->isChecked()) flags |= QTextDocument::FindCaseSensitively;
    if (wholeWord->isChecked()) flags |= QTextDocument::FindWholeWords;
    QTextDocument *document = text.document();
    QTextCursor edit(document);
    edit.beginEditBlock();
    int replaced = 0;
    for (QTextCursor found = document->find(wanted, 0, flags); !found.isNull();
         found = document->find(wanted, found, flags)) {
        found.insertText(replaceBox->text());
        ++replaced;
    }
    edit.endEditBlock();
    if (replaced == 0) NotFound();
    return replaced;
}

}  // namespace quindar
