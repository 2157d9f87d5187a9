// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "dialog_custom_colors.h"

#include <QColorDialog>
#include <cstdint>

#include "app_settings.h"

namespace quindar {

void load_custom_colors(const AppSettings &settings) {
    for (int n = 1; n <= settings::kCustomColorCount; ++n) {
        const TColor color = settings.CustomColor(n);
        QColorDialog::setCustomColor(n - 1, QColor(color.Red(), color.Green(), color.Blue()));
    }
}

void save_custom_colors(const AppSettings &settings) {
    for (int n = 1; n <= settings::kCustomColorCount; ++n) {
        const QColor color = QColorDialog::customColor(n - 1);
        settings.SetCustomColor(n, TColor(static_cast<std::uint8_t>(color.red()),
                                          static_cast<std::uint8_t>(color.green()),
                                          static_cast<std::uint8_t>(color.blue())));
    }
}

}  // namespace quindar
