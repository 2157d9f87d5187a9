// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "variables_page.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "graph_pages_messages.h"
#include "page_controls.h"
#include "setup_page_widgets.h"

namespace quindar {

namespace {

QString text_of(const std::optional<std::string> &text) {
    return text ? QString::fromStdString(*text) : QString();
}

QListWidget *titled_list(const QString &title, int controlId, QVBoxLayout *column) {
    auto *label = new QLabel(title);
    auto *list = new QListWidget;
    name_control(list, controlId, title);
    label->setBuddy(list);
    column->addWidget(label);
    column->addWidget(list, 1);
    return list;
}

}  // namespace

VariablesPage::VariablesPage(VariablesPageModel &pageModel, QWidget *parent)
    : SetupPageWidget(pageModel, parent), model(pageModel) {
    setAccessibleName(QStringLiteral("Variables"));
    auto *lists = new QVBoxLayout;
    functions = titled_list(QStringLiteral("Functions Selected To Be Graphed"),
                            kControlFunctionsToGraphList, lists);
    common = titled_list(QStringLiteral("Common Variables"), kControlCommonVariables, lists);

    auto *axes = new QVBoxLayout;
    axes->addWidget(MakeAxisGroup(QStringLiteral("X-Axis"), false));
    axes->addWidget(MakeAxisGroup(QStringLiteral("Z-Axis"), true));
    auto *buttons = new QHBoxLayout;
    editVariables = new QPushButton(QStringLiteral("&Edit Variables"));
    name_control(editVariables, kControlEditVariables, QStringLiteral("Edit Variables"));
    clearZ = new QPushButton(QStringLiteral("&Clear Z Axis"));
    name_control(clearZ, kControlClearZAxis, QStringLiteral("Clear Z Axis"));
    buttons->addWidget(editVariables);
    buttons->addWidget(clearZ);
    axes->addLayout(buttons);
    axes->addStretch(1);

    auto *page = new QHBoxLayout(this);
    page->addLayout(lists, 1);
    page->addLayout(axes, 1);

    connect(xAxis, &QComboBox::activated, this, [this](int row) {
        if (filling || row < 0) return;
        model.ChooseXAxisVar(xAxis->itemText(row).toStdString());
        ShowTexts();
    });
    connect(zAxis, &QComboBox::activated, this, [this](int row) {
        if (filling || row < 0) return;
        model.ChooseZAxisVar(zAxis->itemText(row).toStdString());
        ShowTexts();
    });
    connect(clearZ, &QPushButton::clicked, this, [this] {
        model.ClearZAxisVar();
        ShowTexts();
    });
    connect(editVariables, &QPushButton::clicked, this,
            [this] { model.EditVariables(common->currentRow()); });
    connect(common, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem *item) { model.EditVariables(common->row(item)); });
    model.axesChanged = [this] { ShowTexts(); };
}

VariablesPage::~VariablesPage() {
    // The model may outlive the page, and an edit that loses the focus as it goes is no edit.
    model.axesChanged = nullptr;
    for (QLineEdit *edit : edits)
        if (edit != nullptr) disconnect(edit, nullptr, this, nullptr);
}

QWidget *VariablesPage::MakeAxisGroup(const QString &title, bool z) {
    auto *group = new QGroupBox(title);
    auto *form = new QFormLayout(group);
    const QString axis = z ? QStringLiteral("Z") : QStringLiteral("X");
    QComboBox *&box = z ? zAxis : xAxis;
    box = new QComboBox;
    name_control(box, z ? kControlZAxisVar : kControlXAxisVar, title);
    form->addRow(QStringLiteral("Variable:"), box);
    const struct {
        AxisText text;
        const char *caption;
    } rows[] = {
        {z ? kZLow : kXLow, "Lower Limit"},
        {z ? kZHigh : kXHigh, "Upper Limit"},
        {z ? kZPoints : kXPoints, "Number Points"},
    };
    for (const auto &row : rows) {
        auto *edit = new QLineEdit;
        const QString caption = QString::fromLatin1(row.caption);
        name_control(edit, axis_text_control(row.text), axis + QStringLiteral(" ") + caption);
        form->addRow(caption + QStringLiteral(":"), edit);
        edits[static_cast<std::size_t>(row.text)] = edit;
        const AxisText text = row.text;
        connect(edit, &QLineEdit::textEdited, this, [this, text](const QString &typed) {
            if (!filling) model.TextTyped(text, typed.toStdString());
        });
        connect(edit, &QLineEdit::editingFinished, this, [this, text] { LeaveEdit(text); });
    }
    return group;
}

void VariablesPage::UpdatePage() {
    filling = true;
    model.UpdatePage();
    functions->clear();
    for (const std::string &row : model.functionRows)
        functions->addItem(QString::fromStdString(row));
    common->clear();
    for (const std::string &row : model.commonRows) common->addItem(QString::fromStdString(row));
    for (QComboBox *box : {xAxis, zAxis}) {
        box->clear();
        for (const std::string &name : model.axisChoices)
            box->addItem(QString::fromStdString(name));
    }
    filling = false;
    ShowTexts();
}

void VariablesPage::ShowTexts() {
    filling = true;
    xAxis->setCurrentIndex(xAxis->findText(text_of(model.Text(kXName))));
    zAxis->setCurrentIndex(zAxis->findText(text_of(model.Text(kZName))));
    for (std::size_t i = 0; i < edits.size(); ++i)
        if (edits[i] != nullptr) edits[i]->setText(text_of(model.Text(static_cast<AxisText>(i))));
    filling = false;
}

bool VariablesPage::LeaveEdit(AxisText text) {
    if (filling || checking) return true;
    QLineEdit *edit = Edit(text);
    checking = true;
    const bool taken = model.LeaveEdit(text, edit->text().toStdString());
    checking = false;
    if (taken) return true;
    filling = true;
    if (const std::optional<std::string> &back = model.Text(text)) edit->setText(text_of(back));
    filling = false;
    focus_back_later(edit);
    return false;
}

bool VariablesPage::KillActive() {
    if (checking) return false;
    // An edit whose text the model has not taken yet is left now, before the page goes.
    for (std::size_t i = 0; i < edits.size(); ++i) {
        const auto text = static_cast<AxisText>(i);
        QLineEdit *edit = edits[i];
        if (edit == nullptr || edit->text() == text_of(model.Text(text))) continue;
        if (!LeaveEdit(text)) return false;
    }
    return true;
}

MadeSetupPage make_variables_page(SetupPageContext &context, QWidget *parent) {
    auto model = std::make_unique<VariablesPageModel>(context.session, context.ui);
    auto *widget = new VariablesPage(*model, parent);
    return {std::move(model), widget};
}

}  // namespace quindar
