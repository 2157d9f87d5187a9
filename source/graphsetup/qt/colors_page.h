// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Colors page: sixteen colour buttons with their captions, "Set Default" and "Save As
// Default". The mesh and surface colours hide for a 2-D graph.

#include <QString>
#include <vector>

#include "colors_page_model.h"
#include "setup_page_widget.h"

class QLabel;
class QPushButton;

namespace quindar {

class ColorButton;

class ColorsPage : public SetupPageWidget {
    Q_OBJECT
public:
    // `settingsPath`: the settings file that keeps the dialog's custom colours.
    ColorsPage(ColorsPageModel &pageModel, std::string settingsPath, QWidget *parent);

    void UpdatePage() override;
    // The colour of each button from the working copy.
    void UpdateGraphColors();

    ColorButton *Button(std::size_t index) const { return buttons[index]; }
    QLabel *Caption(std::size_t index) const { return captions[index]; }
    QPushButton *SetDefaultButton() const { return setDefault; }
    QPushButton *SaveAsDefaultButton() const { return saveAsDefault; }

private:
    void Hide3DGraphColors(bool hide);
    void GetNewColor(std::size_t index);

    ColorsPageModel &model;
    std::string settingsPath;
    std::vector<ColorButton *> buttons;
    std::vector<QLabel *> captions;
    QPushButton *setDefault = nullptr;
    QPushButton *saveAsDefault = nullptr;
};

}  // namespace quindar
