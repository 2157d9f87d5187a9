// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "calculator_bar.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QPointer>
#include <QToolButton>

#include "app_services.h"
#include "calculator_keys.h"
#include "calculator_operations.h"
#include "command_table.h"
#include "document_area.h"
#include "document_panes.h"
#include "document_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "workbench.h"

namespace quindar {
namespace {

// The application's commands behind the keys that are not the editor's.
struct RoutedKey {
    CalculatorAction action;
    int command;
};

constexpr RoutedKey kRoutedKeys[] = {
    {CalculatorAction::Options, command::kOptions},
    {CalculatorAction::Find, command::kEditFind},
    {CalculatorAction::Replace, command::kEditReplace},
    {CalculatorAction::Save, command::kFileSave},
    {CalculatorAction::VariablesManager, command::kVariablesManager},
    {CalculatorAction::FunctionManager, command::kFunctionManager},
    {CalculatorAction::FunctionLibrary, command::kFunctionLibrary},
    {CalculatorAction::Integration, command::kCalculus},
    {CalculatorAction::Differentiation, command::kCalculus},
};

constexpr int kKeyWidth = 44;
constexpr int kKeyHeight = 26;

DocumentWindow *CurrentDocument(Workbench &workbench) {
    MainFrame *frame = workbench.Frame();
    return frame != nullptr ? frame->Client()->Current() : nullptr;
}

}  // namespace

CalculatorBar::CalculatorBar(Workbench &owner, QWidget *parent)
    : QWidget(parent, Qt::Tool | Qt::WindowDoesNotAcceptFocus), workbench(owner) {
    setWindowTitle(QStringLiteral("Calculator"));
    setAccessibleName(QStringLiteral("Calculator"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(2, 2, 2, 2);
    grid->setSpacing(1);
    int position = 0;
    for (const CalculatorKey &key : CalculatorKeys()) {
        auto *button = new QToolButton(this);
        const QString face =
            QString::fromUtf8(key.face.data(), static_cast<qsizetype>(key.face.size()));
        button->setText(face);
        button->setObjectName(QString::number(key.id));
        button->setAccessibleName(QStringLiteral("Calculator key ") + face);
        button->setToolTip(face);
        button->setFocusPolicy(Qt::NoFocus);
        button->setFixedSize(kKeyWidth, kKeyHeight);
        button->setAutoRaise(false);
        const CalculatorKey *pressed = &key;
        connect(button, &QToolButton::clicked, this, [this, pressed] { Press(*pressed); });
        grid->addWidget(button, position / kCalculatorColumns, position % kCalculatorColumns);
        ++position;
    }
    setFixedSize(sizeHint());
}

QToolButton *CalculatorBar::Button(int id) const {
    return findChild<QToolButton *>(QString::number(id));
}

void CalculatorBar::Press(const CalculatorKey &key) {
    if (key.action == CalculatorAction::Help) {
        workbench.Services().ShowHelpTopic(kCalculatorHelpTopic);
        return;
    }
    for (const RoutedKey &routed : kRoutedKeys) {
        if (routed.action == key.action) {
            workbench.Router().Execute(routed.command);
            return;
        }
    }
    DocumentWindow *document = CurrentDocument(workbench);
    if (document == nullptr) return;
    RunCalculatorKey(key, document->Panes().Calculator());
    document->TextPane().ensureCursorVisible();
}

void CalculatorBar::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    if (placed || parentWidget() == nullptr) return;
    // The first time a little inside the main window's corner; later where the user left it.
    placed = true;
    move(parentWidget()->mapToGlobal(QPoint(50, 50)));
}

void CalculatorBar::closeEvent(QCloseEvent *event) {
    workbench.calculatorShowing = false;
    QWidget::closeEvent(event);
    if (event->spontaneous()) emit closedByUser();
}

namespace {

// The one bar of the program, made when first shown. Closed with its close box it stays
// closed for the run, even when a first document comes again.
class CalculatorBarKeeper : public QObject {
public:
    explicit CalculatorBarKeeper(Workbench &owner) : QObject(&owner), workbench(owner) {
        setObjectName(QStringLiteral("CalculatorBarKeeper"));
    }

    void SetShowing(bool show) {
        if (show && bar.isNull()) {
            bar = new CalculatorBar(workbench, workbench.Frame());
            connect(bar, &CalculatorBar::closedByUser, this, [this] { closedByUser = true; });
        }
        workbench.calculatorShowing = show;
        if (!bar.isNull()) bar->setVisible(show);
    }

    void DocumentOpened() {
        MainFrame *frame = workbench.Frame();
        if (frame == nullptr) return;
        DocumentArea *client = frame->Client();
        if (!watching) {
            watching = true;
            // The last document takes the bar with it.
            connect(client, &DocumentArea::documentsChanged, this, [this, client] {
                if (!workbench.closing && client->Count() == 0 && workbench.calculatorShowing)
                    SetShowing(false);
            });
        }
        if (client->Count() == 0 && !closedByUser && !workbench.calculatorShowing &&
            workbench.Settings().Read(settings::kShowCalcBar))
            SetShowing(true);
    }

    QPointer<CalculatorBar> bar;
    bool closedByUser = false;

private:
    Workbench &workbench;
    bool watching = false;
};

}  // namespace

void InstallCalculatorBar(Workbench &workbench) {
    auto *keeper = new CalculatorBarKeeper(workbench);
    std::function<bool(int)> previous = workbench.clientTools;
    workbench.clientTools = [&workbench, keeper, previous](int id) {
        if (id != command::kCalculator) return previous ? previous(id) : false;
        keeper->closedByUser = false;
        keeper->SetShowing(!workbench.calculatorShowing);
        return true;
    };
}

void CalculatorBarDocumentOpened(Workbench &workbench) {
    // The keeper has no meta-object of its own, so it is found by its name; a cast by type
    // would take any child of the workbench.
    if (auto *keeper = dynamic_cast<CalculatorBarKeeper *>(workbench.findChild<QObject *>(
            QStringLiteral("CalculatorBarKeeper"), Qt::FindDirectChildrenOnly)))
        keeper->DocumentOpened();
}

}  // namespace quindar
