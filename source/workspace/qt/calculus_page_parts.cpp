// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The shared controls of the calculus windows.

#include "calculus_page_parts.h"

#include <QComboBox>
#include <QProgressBar>
#include <QPushButton>

#include "calculus_page.h"
#include "command_table.h"
#include "document_panes.h"
#include "document_window.h"
#include "integration_run.h"
#include "page_guard.h"
#include "workbench.h"

namespace quindar {

namespace {
constexpr int kCalculusHelpTopic = 19486;
}

QPushButton *PageButton(const QString &text, QWidget *parent) {
    auto *button = new QPushButton(text, parent);
    button->setAccessibleName(QString(text).remove(QLatin1Char('&')).simplified());
    button->setAutoDefault(false);
    return button;
}

QComboBox *FunctionBox(QWidget *parent) {
    auto *box = new QComboBox(parent);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMinimumContentsLength(36);
    box->setAccessibleName(QStringLiteral("Function"));
    return box;
}

void FillFunctionBox(QComboBox *box, Parser &parser) {
    const QString text = box->currentText();
    const bool blocked = box->blockSignals(true);
    box->clear();
    for (const std::string &entry : calculus::FunctionEntries(parser)) box->addItem(FromStd(entry));
    ShowFunctionText(box, text);
    box->blockSignals(blocked);
}

void ShowFunctionText(QComboBox *box, const QString &text) {
    const int index = box->findText(text);
    if (index >= 0)
        box->setCurrentIndex(index);
    else
        box->setEditText(text);
}

QProgressBar *RunGauge(QWidget *parent) {
    auto *gauge = new QProgressBar(parent);
    gauge->setRange(0, 100);
    gauge->setFormat(QStringLiteral("%p% Done"));
    gauge->setAccessibleName(QStringLiteral("Progress"));
    gauge->hide();
    return gauge;
}

void ConnectPageTools(const PageToolButtons &buttons, Workbench &workbench,
                      DocumentWindow &document, CalculusPage &page,
                      const calculus::PageGuard &guard,
                      const std::function<void()> &afterFunctionManager) {
    Workbench *bench = &workbench;
    DocumentWindow *owner = &document;
    CalculusPage *target = &page;
    const calculus::PageGuard *run = &guard;
    // The managers are the document's own (modal) dialogs: the page is refilled after them.
    QObject::connect(buttons.editFunction, &QPushButton::clicked, buttons.editFunction,
                     [owner, run, target, afterFunctionManager] {
                         if (!run->idle()) return;
                         owner->Panes().OpenFunctionManager({}, [target](const std::string &name) {
                             target->AppendToFunction(QString::fromStdString(name));
                         });
                         if (afterFunctionManager) afterFunctionManager();
                     });
    QObject::connect(buttons.editVariable, &QPushButton::clicked, buttons.editVariable,
                     [owner, run] {
                         if (run->idle()) owner->Panes().OpenVariableManager({});
                     });
    QObject::connect(buttons.library, &QPushButton::clicked, buttons.library, [bench, run] {
        if (run->idle()) bench->RunClientTool(command::kFunctionLibrary);
    });
    QObject::connect(buttons.help, &QPushButton::clicked, buttons.help,
                     [bench] { bench->Services().ShowHelpTopic(kCalculusHelpTopic); });
}

}  // namespace quindar
