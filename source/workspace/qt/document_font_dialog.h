// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The document's font dialog: the face, style and size of Qt's own font chooser with a
// colour choice beside it. Only black text is supported, so a colour is told about and
// dropped.

#include <QDialog>

#include "document_parts.h"

class QComboBox;
class QFontDialog;

namespace quindar {

class DocumentFontDialog : public QDialog {
    Q_OBJECT
public:
    DocumentFontDialog(const DocumentFont &font, QWidget *parent = nullptr);

    QFontDialog &Chooser() { return *chooser; }
    QComboBox &ColorBox() { return *colorBox; }
    // The record of the chosen font; its colour is black whatever was chosen.
    DocumentFont Chosen() const;
    // Whether a colour other than black was chosen.
    bool ColorChosen() const;

private:
    DocumentFont original;
    QFontDialog *chooser = nullptr;
    QComboBox *colorBox = nullptr;
};

}  // namespace quindar
