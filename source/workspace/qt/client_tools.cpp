// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "client_tools.h"

#include "calculus_tools.h"
#include "command_table.h"
#include "document_area.h"
#include "document_window.h"
#include "function_library_dialog.h"
#include "main_frame.h"
#include "options_sheet.h"
#include "workbench.h"

namespace quindar {

ClientTools::ClientTools(Workbench &bench) : QObject(&bench), workbench(bench), printing(bench) {
    setObjectName(QStringLiteral("ClientTools"));
}

ClientTools::~ClientTools() = default;

bool ClientTools::Run(int id) {
    switch (id) {
        case command::kFunctionLibrary:
            ShowFunctionLibrary();
            return true;
        case command::kOptions:
            ShowOptions();
            return true;
        case command::kFilePrint:
            printing.Print();
            return true;
        case command::kFilePrintPreview:
            printing.Preview();
            return true;
        case command::kFilePrintSetup:
            printing.PrintSetup();
            return true;
        case command::kExportPdf:
            printing.ExportPdf();
            return true;
        default:
            return false;
    }
}

FunctionLibraryDialog &ClientTools::ShowFunctionLibrary() {
    if (functionLibrary == nullptr) {
        functionLibrary = new FunctionLibraryDialog(workbench, workbench.Frame());
        functionLibrary->setAttribute(Qt::WA_DeleteOnClose);
        // Solve F[x] opens the current document's Function Solver on the prototype.
        Workbench *bench = &workbench;
        functionLibrary->solve = [bench](const QString &prototype, const QString &description) {
            DocumentWindow *document =
                bench->Frame() != nullptr ? bench->Frame()->Client()->Current() : nullptr;
            if (document != nullptr) OpenFunctionSolver(*bench, *document, prototype, description);
        };
    }
    functionLibrary->show();
    functionLibrary->raise();
    functionLibrary->activateWindow();
    return *functionLibrary;
}

void ClientTools::ShowOptions() {
    OptionsSheet sheet(workbench, workbench.Frame());
    if (workbench.runDialog)
        workbench.runDialog(sheet);
    else
        sheet.exec();
}

ClientTools &install_client_tools(Workbench &workbench) {
    auto *tools = new ClientTools(workbench);
    workbench.clientTools = [tools](int id) { return tools->Run(id); };
    return *tools;
}

ClientTools *client_tools_of(Workbench &workbench) {
    return workbench.findChild<ClientTools *>(QStringLiteral("ClientTools"),
                                              Qt::FindDirectChildrenOnly);
}

}  // namespace quindar
