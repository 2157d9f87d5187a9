// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "labels_page.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "graph_data.h"
#include "graph_pages_messages.h"
#include "page_controls.h"
#include "setup_page_widgets.h"

namespace quindar {

namespace {

QLineEdit *named_edit(int controlId, const QString &name) {
    auto *edit = new QLineEdit;
    name_control(edit, controlId, name);
    return edit;
}

}  // namespace

LabelsPage::LabelsPage(LabelsPageModel &pageModel, QWidget *parent)
    : SetupPageWidget(pageModel, parent), model(pageModel) {
    setAccessibleName(QStringLiteral("Labels"));
    header = named_edit(kControlHeader, QStringLiteral("Header"));
    footer = named_edit(kControlFooter, QStringLiteral("Footer"));
    titles[kTitleX] = named_edit(kControlXAxisTitle, QStringLiteral("X Axis"));
    titles[kTitleY] = named_edit(kControlYAxisTitle, QStringLiteral("Y Axis"));
    titles[kTitleZ] = named_edit(kControlZAxisTitle, QStringLiteral("Z Axis"));
    defaultTitles = new QPushButton(QStringLiteral("Set &Default Titles"));
    name_control(defaultTitles, kControlSetDefaultTitles, QStringLiteral("Set Default Titles"));
    rows = new QListWidget;
    name_control(rows, kControlLabelRows, QStringLiteral("Data Sets and Functions"));
    label = named_edit(kControlLabel, QStringLiteral("Labels"));

    auto *texts = new QGroupBox(QStringLiteral("Titles"));
    auto *form = new QFormLayout(texts);
    form->addRow(QStringLiteral("&Header:"), header);
    form->addRow(QStringLiteral("&Footer:"), footer);
    form->addRow(QStringLiteral("&X Axis:"), titles[kTitleX]);
    form->addRow(QStringLiteral("&Y Axis:"), titles[kTitleY]);
    form->addRow(QStringLiteral("&Z Axis:"), titles[kTitleZ]);
    form->addRow(QString(), defaultTitles);

    auto *legend = new QGroupBox(QStringLiteral("Legend"));
    auto *legendColumn = new QVBoxLayout(legend);
    auto *rowsCaption = new QLabel(QStringLiteral("Data &Sets and Functions"));
    rowsCaption->setBuddy(rows);
    auto *labelCaption = new QLabel(QStringLiteral("&Labels"));
    labelCaption->setBuddy(label);
    legendColumn->addWidget(rowsCaption);
    legendColumn->addWidget(rows, 1);
    legendColumn->addWidget(labelCaption);
    legendColumn->addWidget(label);

    auto *page = new QHBoxLayout(this);
    page->addWidget(texts, 1);
    page->addWidget(legend, 1);

    connect(header, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!loadingLabels) model.HeaderTyped(text.toStdString());
    });
    connect(footer, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!loadingLabels) model.FooterTyped(text.toStdString());
    });
    for (const AxisTitle axis : {kTitleX, kTitleY, kTitleZ}) {
        QLineEdit *edit = TitleEdit(axis);
        connect(edit, &QLineEdit::textChanged, this, [this, axis, edit](const QString &text) {
            if (loadingLabels || model.TitleTyped(axis, text.toStdString())) return;
            // An axis keeps its title: the working copy's text comes back whole.
            loadingLabels = true;
            edit->setText(QString::fromStdString(model.Title(axis)));
            loadingLabels = false;
        });
    }
    connect(rows, &QListWidget::currentRowChanged, this, [this](int row) {
        if (loadingLabels || row < 0) return;
        loadingLabels = true;
        label->setText(QString::fromStdString(model.SelectRow(row)));
        loadingLabels = false;
    });
    connect(label, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!loadingLabels) model.LabelTyped(text.toStdString());
    });
    connect(defaultTitles, &QPushButton::clicked, this, [this] {
        model.SetDefaultTitles();
        ShowTitles();
    });
}

void LabelsPage::ShowTitles() {
    loadingLabels = true;
    const GraphData &temp = model.Working();
    footer->setText(QString::fromStdString(temp.Footer));
    for (const AxisTitle axis : {kTitleX, kTitleY, kTitleZ})
        TitleEdit(axis)->setText(QString::fromStdString(model.Title(axis)));
    const bool z = model.ZTitleEnabled();
    titles[kTitleZ]->setEnabled(z);
    if (!z) titles[kTitleZ]->clear();
    loadingLabels = false;
}

void LabelsPage::UpdatePage() {
    loadingLabels = true;
    for (QLineEdit *edit : {header, footer, titles[0], titles[1], titles[2], label}) edit->clear();
    model.UpdatePage();
    rows->clear();
    for (const std::string &row : model.rows) rows->addItem(QString::fromStdString(row));
    const int selection = model.Working().LabelSelection;
    if (selection >= 0 && selection < rows->count()) rows->setCurrentRow(selection);
    header->setText(QString::fromStdString(model.Working().Header));
    label->setText(QString::fromStdString(model.SelectedLabel()));
    loadingLabels = false;
    ShowTitles();
}

MadeSetupPage make_labels_page(SetupPageContext &context, QWidget *parent) {
    auto model = std::make_unique<LabelsPageModel>(context.session, context.ui);
    auto *widget = new LabelsPage(*model, parent);
    return {std::move(model), widget};
}

}  // namespace quindar
