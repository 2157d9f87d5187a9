// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Functions page: "Defined Functions" and "Functions To Graph" with rows dragged between
// them, Add, Remove, "Edit Function" and "Func Library", over FunctionsPageModel.

#include "setup_page_widget.h"

class QPushButton;

namespace quindar {

class FunctionDragList;
class FunctionsPageModel;

class FunctionsPage : public SetupPageWidget {
    Q_OBJECT
public:
    FunctionsPage(FunctionsPageModel &model, QWidget *parent);

    void UpdatePage() override;

    FunctionDragList &DefinedList() { return *definedList; }
    FunctionDragList &ToGraphList() { return *toGraphList; }
    QPushButton &AddButton() { return *addButton; }
    QPushButton &RemoveButton() { return *removeButton; }
    QPushButton &EditButton() { return *editButton; }
    QPushButton &LibraryButton() { return *libraryButton; }

private:
    template <typename Rule>
    void Do(Rule rule);
    // The row of `row` in `from` was dropped on `target` at `to`.
    void Dropped(FunctionDragList *from, int row, FunctionDragList *target, int to);

    FunctionsPageModel &functions;
    // The list whose row the user chose last: "Edit Function" opens the manager on it.
    int lastChosenList = 0;
    FunctionDragList *definedList = nullptr;
    FunctionDragList *toGraphList = nullptr;
    QPushButton *addButton = nullptr;
    QPushButton *removeButton = nullptr;
    QPushButton *editButton = nullptr;
    QPushButton *libraryButton = nullptr;
};

}  // namespace quindar
