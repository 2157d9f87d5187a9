// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "library_editor_window.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QVBoxLayout>

#include "message_boxes.h"

namespace quindar {

LibraryEditorWindow::LibraryEditorWindow(const QString &file, MessageBoxes &boxes, QWidget *parent)
    : QDialog(parent), path(file), messages(boxes) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QFileInfo(path).fileName());
    setAccessibleName(QStringLiteral("User library editor"));
    text = new QPlainTextEdit(this);
    text->setAccessibleName(QStringLiteral("User library text"));
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFile source(path);
    if (source.open(QIODevice::ReadOnly))
        text->setPlainText(QString::fromLatin1(source.readAll()).remove(QLatin1Char('\r')));
    text->document()->setModified(false);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Save)->setAccessibleName(QStringLiteral("Save"));
    buttons->button(QDialogButtonBox::Close)->setAccessibleName(QStringLiteral("Close"));
    connect(buttons->button(QDialogButtonBox::Save), &QPushButton::clicked, this,
            [this] { Save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    resize(640, 480);
}

bool LibraryEditorWindow::Save() {
    // The library keeps CR LF line ends, as the files that come with the program have them.
    QByteArray bytes = text->toPlainText().toLatin1();
    bytes.replace("\n", "\r\n");
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()) {
        messages.ShowPlain(this,
                           QStringLiteral("The file \"%1\" could not be written: %2")
                               .arg(path, file.errorString()),
                           QStringLiteral("File Access"), kBoxWarning);
        return false;
    }
    text->document()->setModified(false);
    return true;
}

}  // namespace quindar
