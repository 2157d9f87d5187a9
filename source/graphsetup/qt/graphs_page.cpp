// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graphs_page.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "document_graph_setup.h"
#include "document_window.h"
#include "graphs_page_model.h"
#include "setup_controls.h"
#include "setup_messages.h"
#include "setup_page_widgets.h"
#include "setup_session.h"

namespace quindar {

namespace {

QListWidget *MakeList(const QString &name, int controlId, QWidget *parent) {
    auto *list = new QListWidget(parent);
    name_setup_control(*list, name, controlId);
    return list;
}

}  // namespace

GraphsPage::GraphsPage(GraphsPageModel &model, QWidget *parent)
    : SetupPageWidget(model, parent), graphs(model) {
    auto *layout = new QHBoxLayout(this);

    auto *left = new QVBoxLayout;
    auto *nameLabel = new QLabel(QStringLiteral("Graph &Name:"), this);
    nameBox = new QLineEdit(this);
    name_setup_control(*nameBox, QStringLiteral("Graph Name"), kControlGraphName);
    nameLabel->setBuddy(nameBox);
    left->addWidget(nameLabel);
    left->addWidget(nameBox);
    auto *nameButtons = new QHBoxLayout;
    addButton = make_setup_button(QStringLiteral("Add"), 20603, this);
    editButton = make_setup_button(QStringLiteral("Edit"), 20604, this);
    deleteButton = make_setup_button(QStringLiteral("Delete"), 20605, this);
    for (QPushButton *button : {addButton, editButton, deleteButton})
        nameButtons->addWidget(button);
    left->addLayout(nameButtons);
    left->addWidget(new QLabel(QStringLiteral("Graph List"), this));
    graphList = MakeList(QStringLiteral("Graph List"), kControlGraphList, this);
    left->addWidget(graphList);
    layout->addLayout(left, 1);

    auto *right = new QVBoxLayout;
    auto *actions = new QHBoxLayout;
    buildButton = make_setup_button(QStringLiteral("Build Graph"), 20607, this);
    checkButton = make_setup_button(QStringLiteral("Check Graph"), 20608, this);
    actions->addWidget(buildButton);
    actions->addWidget(checkButton);
    right->addLayout(actions);
    right->addWidget(new QLabel(QStringLiteral("Graph Errors"), this));
    errorList = MakeList(QStringLiteral("Graph Errors"), kControlGraphErrors, this);
    right->addWidget(errorList);
    layout->addLayout(right, 1);

    connect(nameBox, &QLineEdit::textEdited, this,
            [this](const QString &text) { graphs.name = text.toStdString(); });
    connect(addButton, &QPushButton::clicked, this, [this] { Do([this] { graphs.Add(); }); });
    connect(editButton, &QPushButton::clicked, this, [this] { Do([this] { graphs.Rename(); }); });
    connect(deleteButton, &QPushButton::clicked, this, [this] { Do([this] { graphs.Delete(); }); });
    connect(checkButton, &QPushButton::clicked, this,
            [this] { Do([this] { graphs.CheckGraph(); }); });
    connect(buildButton, &QPushButton::clicked, this,
            [this] { Do([this] { graphs.BuildGraph(); }); });
    connect(graphList, &QListWidget::currentRowChanged, this,
            [this](int row) { Do([this, row] { graphs.SelectRow(row); }); });
    connect(graphList, &QListWidget::itemDoubleClicked, this,
            [this] { Do([this] { graphs.BuildGraph(); }); });
}

template <typename Rule>
void GraphsPage::Do(Rule rule) {
    rule();
    UpdatePage();
}

void GraphsPage::UpdatePage() {
    const QSignalBlocker blockList(graphList);
    const QString name = QString::fromStdString(graphs.name);
    if (nameBox->text() != name) nameBox->setText(name);
    graphList->clear();
    for (const std::string &row : graphs.rows) graphList->addItem(QString::fromStdString(row));
    graphList->setCurrentRow(graphs.selected);
    if (graphs.selected < 0) graphList->clearSelection();
    errorList->clear();
    for (const std::string &row : graphs.errors.rows())
        errorList->addItem(QString::fromStdString(row));
    editButton->setEnabled(graphs.editEnabled);
    deleteButton->setEnabled(graphs.deleteEnabled);
    checkButton->setEnabled(graphs.checkEnabled);
    buildButton->setEnabled(graphs.buildEnabled);
    if (QWidget *sheet = window(); sheet != nullptr && sheet != this)
        sheet->setWindowTitle(QString::fromStdString(graphs.caption));
}

bool GraphsPage::KillActive() {
    const bool leave = graphs.KillActive();
    UpdatePage();
    return leave;
}

MadeSetupPage make_graphs_page(SetupPageContext &context, QWidget *parent) {
    auto model = std::make_unique<GraphsPageModel>(
        context.session, context.ui, document_setup_window(context.workbench, context.document));
    model->documentPath = context.document.Path();
    model->SetupWindow();
    MadeSetupPage made;
    made.widget = new GraphsPage(*model, parent);
    made.widget->UpdatePage();
    made.model = std::move(model);
    return made;
}

}  // namespace quindar
