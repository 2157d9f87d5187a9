// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The sixteen custom colours of the colour dialog, kept in the settings file.

#include <QColor>
#include <optional>

class QWidget;

namespace quindar {

class AppSettings;

// The colour dialog on `initial`, with the program's custom colours, which the user may
// change; the colour chosen, or none on Cancel. The custom colours go to the settings at once,
// so that they outlive a program that does not end normally.
std::optional<QColor> choose_graph_color(const QColor &initial, QWidget *parent,
                                         const AppSettings &settings);

}  // namespace quindar
