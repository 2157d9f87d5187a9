// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Finding, opening and closing a document's calculus windows.

#include "calculus_tools.h"

#include "calculus_sheet.h"
#include "command_table.h"
#include "document_window.h"
#include "function_solver_dialog.h"
#include "workbench.h"

namespace quindar {

namespace {

constexpr const char *kActivityWired = "quindarCalculusActivity";

// The document reports a running page, besides whatever it reported before.
void ReportActivity(DocumentWindow &document) {
    if (document.property(kActivityWired).toBool()) return;
    document.setProperty(kActivityWired, true);
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
    ReportActivity(document);
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
        return before ? before(document, id) : true;
    };
}

}  // namespace quindar
