// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "functions_page.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "function_drag_list.h"
#include "functions_page_model.h"
#include "setup_controls.h"
#include "setup_messages.h"
#include "setup_page_widgets.h"

namespace quindar {

namespace {

FunctionDragList *MakeList(const QString &name, int controlId, QWidget *parent) {
    auto *list = new FunctionDragList(parent);
    name_setup_control(*list, name, controlId);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    return list;
}

void Fill(FunctionDragList &list, const std::vector<std::string> &rows, int selected) {
    const QSignalBlocker blocker(&list);
    list.clear();
    for (const std::string &row : rows) list.addItem(QString::fromStdString(row));
    list.setCurrentRow(selected);
    if (selected < 0) list.clearSelection();
}

}  // namespace

FunctionsPage::FunctionsPage(FunctionsPageModel &model, QWidget *parent)
    : SetupPageWidget(model, parent), functions(model) {
    auto *layout = new QGridLayout(this);
    layout->addWidget(new QLabel(QStringLiteral("Defined Functions"), this), 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Functions To Graph"), this), 0, 2);
    definedList = MakeList(QStringLiteral("Defined Functions"), kControlDefinedFunctions, this);
    toGraphList = MakeList(QStringLiteral("Functions To Graph"), kControlFunctionsToGraph, this);
    definedList->partner = toGraphList;
    toGraphList->partner = definedList;
    layout->addWidget(definedList, 1, 0);
    layout->addWidget(toGraphList, 1, 2);

    auto *middle = new QVBoxLayout;
    addButton = make_setup_button(QStringLiteral("Add >>"), 24624, this);
    removeButton = make_setup_button(QStringLiteral("<< Remove"), 24625, this);
    editButton = make_setup_button(QStringLiteral("Edit Function"), 24626, this);
    libraryButton = make_setup_button(QStringLiteral("Func Library"), 24627, this);
    addButton->setAccessibleName(QStringLiteral("Add"));
    removeButton->setAccessibleName(QStringLiteral("Remove"));
    middle->addStretch();
    for (QPushButton *button : {addButton, removeButton, editButton, libraryButton})
        middle->addWidget(button);
    middle->addStretch();
    layout->addLayout(middle, 1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(2, 1);

    for (FunctionDragList *list : {definedList, toGraphList}) {
        list->canDrag = [this] { return functions.CanDrag(); };
        const auto which =
            list == definedList ? FunctionsPageModel::kDefined : FunctionsPageModel::kToGraph;
        connect(list, &FunctionDragList::dragStarted, this,
                [this, which] { Do([this, which] { functions.StartDrag(which); }); });
        connect(list, &FunctionDragList::dropped, this,
                [this, list](int row, FunctionDragList *target, int to) {
                    Dropped(list, row, target, to);
                });
        connect(list, &FunctionDragList::deletePressed, this,
                [this] { Do([this] { functions.DeleteKey(); }); });
        connect(list, &QListWidget::itemDoubleClicked, this,
                [this, which] { Do([this, which] { functions.EditFunctions(which); }); });
    }
    connect(definedList, &QListWidget::currentRowChanged, this, [this](int row) {
        functions.definedSelected = row;
        if (row >= 0) lastChosenList = FunctionsPageModel::kDefined;
    });
    connect(toGraphList, &QListWidget::currentRowChanged, this, [this](int row) {
        functions.toGraphSelected = row;
        if (row >= 0) lastChosenList = FunctionsPageModel::kToGraph;
    });
    connect(addButton, &QPushButton::clicked, this, [this] { Do([this] { functions.Add(); }); });
    connect(removeButton, &QPushButton::clicked, this,
            [this] { Do([this] { functions.Remove(); }); });
    connect(editButton, &QPushButton::clicked, this, [this] {
        Do([this] {
            functions.EditFunctions(static_cast<FunctionsPageModel::List>(lastChosenList));
        });
    });
    connect(libraryButton, &QPushButton::clicked, this, [this] { functions.FunctionLibrary(); });
}

template <typename Rule>
void FunctionsPage::Do(Rule rule) {
    rule();
    // Back from the Function Manager, the lists are checked against what it changed.
    if (functions.backFromManager) functions.UpdatePage();
    UpdatePage();
}

void FunctionsPage::Dropped(FunctionDragList *from, int row, FunctionDragList *target, int to) {
    const auto which =
        from == definedList ? FunctionsPageModel::kDefined : FunctionsPageModel::kToGraph;
    Do([&] {
        if (target == from)
            functions.MoveRow(which, row, to);
        else
            functions.DropOnOtherList(which, row, to);
    });
}

void FunctionsPage::UpdatePage() {
    Fill(*definedList, functions.defined, functions.definedSelected);
    Fill(*toGraphList, functions.toGraph, functions.toGraphSelected);
    addButton->setEnabled(functions.addEnabled);
    removeButton->setEnabled(functions.removeEnabled);
}

MadeSetupPage make_functions_page(SetupPageContext &context, QWidget *parent) {
    auto model = std::make_unique<FunctionsPageModel>(context.session, context.ui);
    MadeSetupPage made;
    made.widget = new FunctionsPage(*model, parent);
    made.model = std::move(model);
    return made;
}

}  // namespace quindar
