// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The calculus windows of a document, each one per document: the Calculus sheet and the
// Function Solver. The Calculus command reaches the sheet through the workbench's document
// tools; the lists, the Function Manager and the Function Library open the solver here.

#include <QString>

namespace quindar {

class CalculusSheet;
class DocumentWindow;
class FunctionSolverDialog;
class Workbench;

// The document's sheet, made and shown on `page` (0 Integration, 1 Differentiation) when it
// has none; an open sheet is raised as it stands.
CalculusSheet *OpenCalculusUtility(Workbench &workbench, DocumentWindow &document,
                                   const QString &function, int page);
// The document's sheet, or null.
CalculusSheet *FindCalculusSheet(DocumentWindow &document);
// Closes the sheet; false while one of its pages computes.
bool CloseCalculusUtility(DocumentWindow &document);

// The document's solver on the prototype; an open one takes the new prototype.
FunctionSolverDialog *OpenFunctionSolver(Workbench &workbench, DocumentWindow &document,
                                         const QString &prototype, const QString &description);
FunctionSolverDialog *FindFunctionSolver(DocumentWindow &document);

// Adds the Calculus command to the workbench's document tools, before those already there.
void InstallCalculusTools(Workbench &workbench);

}  // namespace quindar
