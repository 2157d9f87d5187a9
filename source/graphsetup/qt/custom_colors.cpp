// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "custom_colors.h"

#include <QColorDialog>

#include "app_settings.h"
#include "dialog_custom_colors.h"

namespace quindar {

std::optional<QColor> choose_graph_color(const QColor &initial, QWidget *parent,
                                         const AppSettings &settings) {
    QColorDialog dialog(initial, parent);
    // The program's own dialog: it is the one that shows and keeps the custom colours.
    dialog.setOption(QColorDialog::DontUseNativeDialog);
    dialog.setAccessibleName(QStringLiteral("Color"));
    const bool chosen = dialog.exec() == QDialog::Accepted;
    save_custom_colors(settings);
    if (!chosen) return std::nullopt;
    return dialog.selectedColor();
}

}  // namespace quindar
