// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The client's tools that open windows of their own: the Function Library (one for all
// documents), the Options sheet, and printing. install_client_tools hands them to the
// Workbench's clientTools hook.

#include <QObject>
#include <QPointer>
#include <memory>

#include "function_library_dialog.h"
#include "print_service.h"

namespace quindar {

class Workbench;

class ClientTools : public QObject {
    Q_OBJECT
public:
    explicit ClientTools(Workbench &workbench);
    ~ClientTools() override;

    // True when the command was one of the tools.
    bool Run(int id);

    PrintService &Printing() { return printing; }
    // The Function Library dialog, opened or brought to the front.
    FunctionLibraryDialog &ShowFunctionLibrary();
    FunctionLibraryDialog *FunctionLibrary() const { return functionLibrary; }
    void ShowOptions();

private:
    Workbench &workbench;
    PrintService printing;
    QPointer<FunctionLibraryDialog> functionLibrary;
};

// Makes the tools (owned by the workbench) and sets its clientTools hook.
ClientTools &install_client_tools(Workbench &workbench);
// The tools installed for a workbench, or null.
ClientTools *client_tools_of(Workbench &workbench);

}  // namespace quindar
