// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Calculus sheet: two pages, OK, Cancel and Apply, and the refusals during a run.

#include "calculus_sheet.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

#include "command_router.h"
#include "command_table.h"
#include "differentiation_page.h"
#include "document_window.h"
#include "integration_page.h"
#include "workbench.h"

namespace quindar {

namespace {
// Where the document keeps the page that was in front when its sheet last closed.
constexpr const char *kLastPageProperty = "quindarLastCalculusPage";
}  // namespace

CalculusSheet::CalculusSheet(Workbench &workbench, DocumentWindow &owner, const QString &function,
                             int page)
    : QDialog(&owner, Qt::Window), document(owner) {
    setWindowTitle(QStringLiteral("CALCULUS : %1").arg(owner.Caption()));
    setAccessibleName(QStringLiteral("CALCULUS"));
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetMinimumSize);
    tabBook = new QTabWidget(this);
    tabBook->setAccessibleName(QStringLiteral("Calculus Pages"));
    integration = new IntegrationPage(workbench, owner, function, tabBook);
    differentiation = new DifferentiationPage(workbench, owner, function, tabBook);
    // Graph Ans. draws the new current graph in the document's graph pane; a pane already
    // showing goes back to the text first, so that showing it again builds the new graph.
    Workbench *bench = &workbench;
    differentiation->drawGraph = [bench](DocumentWindow &document) {
        CommandState state;
        if (document.toolState && document.toolState(command::kShowGraphWindow, state) &&
            state.checked)
            bench->RunDocumentTool(document, command::kShowMathWindow);
        bench->RunDocumentTool(document, command::kShowGraphWindow);
    };
    tabBook->addTab(integration, QStringLiteral("Integration"));
    tabBook->addTab(differentiation, QStringLiteral("Differentiation"));
    layout->addWidget(tabBook);

    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    buttons->setAccessibleName(QStringLiteral("Sheet Buttons"));
    for (QAbstractButton *button : buttons->buttons()) {
        button->setAccessibleName(button->text().remove(QLatin1Char('&')));
        if (auto *push = qobject_cast<QPushButton *>(button)) push->setAutoDefault(false);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        Apply();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this,
            &CalculusSheet::Apply);
    layout->addWidget(buttons);

    for (CalculusPage *each : Pages()) {
        connect(each, &CalculusPage::runStarted, this, [this, each] { RunStarted(each); });
        connect(each, &CalculusPage::runFinished, this, &CalculusSheet::RunFinished);
    }

    SelectPage(page);
    // Leaving a page keeps its boxes in the document.
    connect(tabBook, &QTabWidget::currentChanged, this, &CalculusSheet::Apply);
    adjustSize();
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

std::array<CalculusPage *, 2> CalculusSheet::Pages() const {
    return {integration, differentiation};
}

int CalculusSheet::CurrentPage() const {
    return tabBook->currentWidget() == integration ? 0 : 1;
}

void CalculusSheet::SelectPage(int page) {
    tabBook->setCurrentWidget(page == 0 ? static_cast<QWidget *>(integration) : differentiation);
}

DocumentActivity CalculusSheet::Activity() const {
    DocumentActivity activity;
    activity.computingIntegral = integration->Computing();
    activity.computingDerivative = differentiation->Computing();
    return activity;
}

void CalculusSheet::Apply() {
    for (CalculusPage *each : Pages()) each->StoreSettings();
}

void CalculusSheet::ReloadFunctionList() {
    for (CalculusPage *each : Pages()) each->ReloadFunctionList();
}

void CalculusSheet::RunStarted(QWidget *page) {
    // The other page can't be chosen while this one runs.
    for (int index = 0; index < tabBook->count(); ++index)
        tabBook->setTabEnabled(index, tabBook->widget(index) == page);
}

void CalculusSheet::RunFinished() {
    for (int index = 0; index < tabBook->count(); ++index) tabBook->setTabEnabled(index, true);
}

bool CalculusSheet::event(QEvent *event) {
    // Functions defined in the text meanwhile show in the function boxes when the sheet comes
    // forward again.
    if (event->type() == QEvent::WindowActivate) {
        const DocumentActivity activity = Activity();
        if (!activity.computingIntegral && !activity.computingDerivative) ReloadFunctionList();
    }
    return QDialog::event(event);
}

bool CalculusSheet::CanClose() {
    for (CalculusPage *each : Pages())
        if (!each->CanClose()) return false;
    return true;
}

void CalculusSheet::done(int result) {
    if (!CanClose()) return;
    document.setProperty(kLastPageProperty, CurrentPage());
    QDialog::done(result);
    close();
}

int LastCalculusPage(const DocumentWindow &document) {
    return document.property(kLastPageProperty).toInt();
}

}  // namespace quindar
