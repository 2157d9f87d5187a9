// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Finding, opening and closing a document's calculus windows.

#include "calculus_tools.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMdiSubWindow>
#include <QPointer>

#include "calculus_sheet.h"
#include "command_table.h"
#include "document_window.h"
#include "function_solver_dialog.h"
#include "workbench.h"

namespace quindar {

namespace {

constexpr const char *kActivityWired = "quindarCalculusActivity";

// A run keeps the document's engine on the stack, so its window can't close until the run is
// over, whatever the answers to the save questions: the refusal comes before them.
class RunningCloseGuard : public QObject {
public:
    RunningCloseGuard(Workbench &bench, DocumentWindow &owner, QMdiSubWindow *frame)
        : QObject(&owner), workbench(bench), document(owner), window(frame) {
        // The application's filters come before the client's own on the window.
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() != QEvent::Close || watched != window) return false;

        CalculusSheet *sheet = FindCalculusSheet(document);
        if (sheet == nullptr) return false;
        const DocumentActivity activity = sheet->Activity();
        if (!activity.computingIntegral && !activity.computingDerivative) return false;
        const CloseMessage message = close_message(
            activity.computingDerivative ? CloseStep::RefuseDerivative : CloseStep::RefuseIntegral,
            !document.Path().empty());
        workbench.Messages().Show(&document, message.text, message.title, kBoxWarning);
        event->ignore();
        return true;
    }

private:
    Workbench &workbench;
    DocumentWindow &document;
    QPointer<QMdiSubWindow> window;
};

// The document reports a running page, besides whatever it reported before.
void ReportActivity(Workbench &workbench, DocumentWindow &document) {
    if (document.property(kActivityWired).toBool()) return;
    document.setProperty(kActivityWired, true);
    if (auto *window = qobject_cast<QMdiSubWindow *>(document.parentWidget()))
        new RunningCloseGuard(workbench, document, window);
    auto before = document.activity;
    DocumentWindow *owner = &document;
    document.activity = [before, owner] {
        DocumentActivity activity = before ? before() : DocumentActivity{};
        if (CalculusSheet *sheet = FindCalculusSheet(*owner)) {
            const DocumentActivity calculus = sheet->Activity();
            activity.computingIntegral = activity.computingIntegral || calculus.computingIntegral;
            activity.computingDerivative =
                activity.computingDerivative || calculus.computingDerivative;
        }
        return activity;
    };
}

}  // namespace

CalculusSheet *FindCalculusSheet(DocumentWindow &document) {
    return document.findChild<CalculusSheet *>(QString(), Qt::FindDirectChildrenOnly);
}

CalculusSheet *OpenCalculusUtility(Workbench &workbench, DocumentWindow &document,
                                   const QString &function, int page) {
    if (CalculusSheet *open = FindCalculusSheet(document)) {
        open->raise();
        open->activateWindow();
        return open;
    }
    ReportActivity(workbench, document);
    auto *sheet = new CalculusSheet(workbench, document, function, page);
    sheet->show();
    return sheet;
}

bool CloseCalculusUtility(DocumentWindow &document) {
    CalculusSheet *sheet = FindCalculusSheet(document);
    if (sheet == nullptr) return true;
    const DocumentActivity activity = sheet->Activity();
    if (activity.computingIntegral || activity.computingDerivative) return false;
    sheet->reject();
    return true;
}

FunctionSolverDialog *FindFunctionSolver(DocumentWindow &document) {
    return document.findChild<FunctionSolverDialog *>(QString(), Qt::FindDirectChildrenOnly);
}

FunctionSolverDialog *OpenFunctionSolver(Workbench &workbench, DocumentWindow &document,
                                         const QString &prototype, const QString &description) {
    if (FunctionSolverDialog *open = FindFunctionSolver(document)) {
        open->ConfigureDialog(prototype, description);
        open->raise();
        return open;
    }
    auto *solver = new FunctionSolverDialog(workbench, document, prototype, description);
    solver->show();
    return solver;
}

void InstallCalculusTools(Workbench &workbench) {
    auto before = workbench.documentTools;
    Workbench *bench = &workbench;
    workbench.documentTools = [before, bench](DocumentWindow &document, int id) {
        if (id == command::kCalculus) {
            OpenCalculusUtility(*bench, document, QString(), LastCalculusPage(document));
            return true;
        }
        return before ? before(document, id) : false;
    };
}

}  // namespace quindar
