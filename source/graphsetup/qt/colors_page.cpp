// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "colors_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app_settings.h"
#include "color_button.h"
#include "custom_colors.h"
#include "graph_pages_messages.h"
#include "page_controls.h"
#include "setup_page_widgets.h"
#include "workbench.h"

namespace quindar {

namespace {

QColor to_qcolor(TColor color) {
    return {color.Red(), color.Green(), color.Blue()};
}

TColor to_tcolor(const QColor &color) {
    return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
            static_cast<std::uint8_t>(color.blue())};
}

// Each pair of background and text colours shares a row.
constexpr int kColorColumns = 2;

}  // namespace

ColorsPage::ColorsPage(ColorsPageModel &pageModel, std::string settingsPath, QWidget *parent)
    : SetupPageWidget(pageModel, parent), model(pageModel), settingsPath(std::move(settingsPath)) {
    setAccessibleName(QStringLiteral("Colors"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    const auto table = color_buttons();
    for (std::size_t i = 0; i < table.size(); ++i) {
        const QString caption = QString::fromLatin1(table[i].caption);
        auto *button = new ColorButton;
        name_control(button, table[i].buttonId, caption);
        auto *label = new QLabel(caption);
        label->setBuddy(button);
        const int row = static_cast<int>(i) / kColorColumns;
        const int column = static_cast<int>(i) % kColorColumns * 2;
        grid->addWidget(button, row, column);
        grid->addWidget(label, row, column + 1);
        buttons.push_back(button);
        captions.push_back(label);
        connect(button, &QPushButton::clicked, this, [this, i] { GetNewColor(i); });
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    setDefault = new QPushButton(QStringLiteral("Set &Default"));
    name_control(setDefault, kControlSetDefault, QStringLiteral("Set Default"));
    saveAsDefault = new QPushButton(QStringLiteral("Save &As Default"));
    name_control(saveAsDefault, kControlSaveAsDefault, QStringLiteral("Save As Default"));
    auto *defaults = new QHBoxLayout;
    defaults->addStretch(1);
    defaults->addWidget(setDefault);
    defaults->addWidget(saveAsDefault);

    auto *page = new QVBoxLayout(this);
    page->addLayout(grid);
    page->addStretch(1);
    page->addLayout(defaults);

    connect(setDefault, &QPushButton::clicked, this, [this] {
        if (model.SetDefault()) UpdateGraphColors();
    });
    connect(saveAsDefault, &QPushButton::clicked, this, [this] { model.SaveAsDefault(); });
}

void ColorsPage::UpdatePage() {
    Hide3DGraphColors(model.Hide3DColors());
    UpdateGraphColors();
}

void ColorsPage::UpdateGraphColors() {
    for (std::size_t i = 0; i < buttons.size(); ++i)
        buttons[i]->SetColor(to_qcolor(model.Color(i)));
}

void ColorsPage::Hide3DGraphColors(bool hide) {
    const auto table = color_buttons();
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (!table[i].only3D) continue;
        buttons[i]->setVisible(!hide);
        captions[i]->setVisible(!hide);
    }
}

void ColorsPage::GetNewColor(std::size_t index) {
    const std::optional<QColor> chosen =
        choose_graph_color(buttons[index]->Color(), this, AppSettings(settingsPath));
    if (!chosen) return;
    model.SetColor(index, to_tcolor(*chosen));
    buttons[index]->SetColor(to_qcolor(model.Color(index)));
}

MadeSetupPage make_colors_page(SetupPageContext &context, QWidget *parent) {
    const std::string settingsPath = context.workbench.Settings().path();
    auto model = std::make_unique<ColorsPageModel>(context.session, context.ui, settingsPath);
    auto *widget = new ColorsPage(*model, settingsPath, parent);
    return {std::move(model), widget};
}

}  // namespace quindar
