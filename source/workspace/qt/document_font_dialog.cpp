// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_font_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "document_font.h"

namespace quindar {
namespace {

struct NamedColor {
    const char *name;
    QRgb rgb;
};

// The sixteen colours a font chooser offers; black first, the only one text may have.
constexpr NamedColor kColors[] = {
    {"Black", 0x000000},  {"Maroon", 0x800000},  {"Green", 0x008000}, {"Olive", 0x808000},
    {"Navy", 0x000080},   {"Purple", 0x800080},  {"Teal", 0x008080},  {"Gray", 0x808080},
    {"Silver", 0xC0C0C0}, {"Red", 0xFF0000},     {"Lime", 0x00FF00},  {"Yellow", 0xFFFF00},
    {"Blue", 0x0000FF},   {"Fuchsia", 0xFF00FF}, {"Aqua", 0x00FFFF},  {"White", 0xFFFFFF},
};

}  // namespace

DocumentFontDialog::DocumentFontDialog(const DocumentFont &font, QWidget *parent)
    : QDialog(parent), original(font) {
    setWindowTitle(QStringLiteral("Font"));
    setAccessibleName(QStringLiteral("Font"));
    chooser = new QFontDialog(qfont_of(font), this);
    chooser->setWindowFlags(Qt::Widget);
    chooser->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
    chooser->setAccessibleName(QStringLiteral("Font chooser"));
    colorBox = new QComboBox(this);
    colorBox->setAccessibleName(QStringLiteral("Color"));
    for (const NamedColor &color : kColors) {
        QPixmap swatch(16, 12);
        swatch.fill(QColor::fromRgb(color.rgb));
        colorBox->addItem(QIcon(swatch), QString::fromLatin1(color.name));
    }
    auto *colorLabel = new QLabel(QStringLiteral("&Color:"), this);
    colorLabel->setBuddy(colorBox);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setAccessibleName(QStringLiteral("Font buttons"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *colorRow = new QHBoxLayout;
    colorRow->addWidget(colorLabel);
    colorRow->addWidget(colorBox);
    colorRow->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(chooser);
    layout->addLayout(colorRow);
    layout->addWidget(buttons);
}

DocumentFont DocumentFontDialog::Chosen() const {
    const QFont font = chooser->currentFont();
    DocumentFont record = original;
    // The face as asked for, not the one fontconfig drew it with.
    record.FaceName = font.family().toStdString();
    const int pixels = font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
    record.Height = -pixels;
    record.Weight = font.weight();
    record.Italic = font.italic() ? 1 : 0;
    record.Underline = font.underline() ? 1 : 0;
    record.StrikeOut = font.strikeOut() ? 1 : 0;
    record.Color = TColor::Black;
    return record;
}

bool DocumentFontDialog::ColorChosen() const {
    return colorBox->currentIndex() > 0;
}

}  // namespace quindar
