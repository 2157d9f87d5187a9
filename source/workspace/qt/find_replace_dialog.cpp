// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "find_replace_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

namespace quindar {
namespace {

QCheckBox *Check(const QString &label, QWidget *parent) {
    auto *box = new QCheckBox(label, parent);
    box->setAccessibleName(QString(label).remove(QLatin1Char('&')));
    return box;
}

QPushButton *Button(const QString &label, QWidget *parent) {
    auto *button = new QPushButton(label, parent);
    button->setAccessibleName(QString(label).remove(QLatin1Char('&')));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

FindReplaceDialog::FindReplaceDialog(QPlainTextEdit &text) : QDialog(&text), edit(text) {
    setModal(false);
    findText = new QLineEdit(this);
    findText->setAccessibleName(QStringLiteral("Find what"));
    replaceText = new QLineEdit(this);
    replaceText->setAccessibleName(QStringLiteral("Replace with"));
    matchCase = Check(QStringLiteral("Match &case"), this);
    wholeWords = Check(QStringLiteral("&Whole words only"), this);
    upward = Check(QStringLiteral("Search &up"), this);

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("Fi&nd what:"), findText);
    replaceRow = new QLabel(QStringLiteral("Re&place with:"), this);
    static_cast<QLabel *>(replaceRow)->setBuddy(replaceText);
    form->addRow(replaceRow, replaceText);
    auto *options = new QHBoxLayout;
    options->addWidget(matchCase);
    options->addWidget(wholeWords);
    options->addWidget(upward);

    QPushButton *findButton = Button(QStringLiteral("&Find Next"), this);
    findButton->setDefault(true);
    replaceButton = Button(QStringLiteral("&Replace"), this);
    replaceAllButton = Button(QStringLiteral("Replace &All"), this);
    QPushButton *closeButton = Button(QStringLiteral("Close"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    for (QPushButton *button : {findButton, replaceButton, replaceAllButton, closeButton})
        buttons->addWidget(button);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(options);
    layout->addLayout(buttons);

    connect(findButton, &QPushButton::clicked, this, [this] { FindNext(); });
    connect(replaceButton, &QPushButton::clicked, this, [this] { ReplaceOne(); });
    connect(replaceAllButton, &QPushButton::clicked, this, [this] { ReplaceAll(); });
    connect(closeButton, &QPushButton::clicked, this, &QDialog::hide);
}

void FindReplaceDialog::Open(bool replace) {
    const QString title = replace ? QStringLiteral("Replace") : QStringLiteral("Find");
    setWindowTitle(title);
    setAccessibleName(title);
    for (QWidget *widget :
         {replaceRow, static_cast<QWidget *>(replaceText), static_cast<QWidget *>(replaceButton),
          static_cast<QWidget *>(replaceAllButton)})
        widget->setVisible(replace);
    const QString selected = edit.textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator))
        findText->setText(selected);
    show();
    raise();
    activateWindow();
    findText->setFocus();
    findText->selectAll();
}

void FindReplaceDialog::SetSearch(const QString &text, const QString &replacement, bool caseMatters,
                                  bool words, bool up) {
    findText->setText(text);
    replaceText->setText(replacement);
    matchCase->setChecked(caseMatters);
    wholeWords->setChecked(words);
    upward->setChecked(up);
}

bool FindReplaceDialog::HasSearch() const {
    return !findText->text().isEmpty();
}

QTextDocument::FindFlags FindReplaceDialog::Flags() const {
    QTextDocument::FindFlags flags;
    if (matchCase->isChecked()) flags |= QTextDocument::FindCaseSensitively;
    if (wholeWords->isChecked()) flags |= QTextDocument::FindWholeWords;
    if (upward->isChecked()) flags |= QTextDocument::FindBackward;
    return flags;
}

bool FindReplaceDialog::FindNext() {
    if (!HasSearch()) return false;
    if (edit.find(findText->text(), Flags())) return true;
    if (notFound) notFound(findText->text());
    return false;
}

void FindReplaceDialog::ReplaceOne() {
    QTextCursor cursor = edit.textCursor();
    const Qt::CaseSensitivity sensitivity =
        matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    // The selection is the match found last: replace it, then go on to the next one.
    if (cursor.hasSelection() &&
        QString::compare(cursor.selectedText(), findText->text(), sensitivity) == 0) {
        cursor.insertText(replaceText->text());
        edit.setTextCursor(cursor);
    }
    FindNext();
}

int FindReplaceDialog::ReplaceAll() {
    if (!HasSearch()) return 0;
    QTextDocument *document = edit.document();
    const QTextDocument::FindFlags flags = Flags() & ~QTextDocument::FindBackward;
    QTextCursor editing(document);
    editing.beginEditBlock();
    int count = 0;
    QTextCursor found = document->find(findText->text(), 0, flags);
    while (!found.isNull()) {
        found.insertText(replaceText->text());
        ++count;
        found = document->find(findText->text(), found.position(), flags);
    }
    editing.endEditBlock();
    if (count == 0 && notFound) notFound(findText->text());
    return count;
}

}  // namespace quindar
