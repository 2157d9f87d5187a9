// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Functions page: which functions a graph plots and in which order, kept in step with
// what the Math Editor declares. Two lists, "Defined Functions" and "Functions To Graph",
// with the rules of dragging rows between them.

#include <string>
#include <vector>

#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class FunctionsPageModel : public SetupPageModel {
public:
    enum List { kDefined = 0, kToGraph = 1 };

    FunctionsPageModel(GraphSetupSession &session, SetupUi &ui) : SetupPageModel(session, ui) {}

    int Index() const override { return kPageFunctions; }

    // What the controls show.
    std::vector<std::string> defined;  // "Defined Functions": "name = value"
    std::vector<std::string> toGraph;  // "Functions To Graph", in the chosen order
    int definedSelected = -1, toGraphSelected = -1;
    bool addEnabled = false, removeEnabled = false;

    // The graph whose functions the list holds, and whether the Function Manager was opened
    // from this page (so that a function gone meanwhile was deleted there).
    const GraphData *lastGraphShown = nullptr;
    bool backFromManager = false;

    void SetActive() override;
    void UpdatePage();
    void UpdateFunListBox();
    void LoadFunToGraphListBox();
    void UpdateFunToGraphListBox(bool ask);
    void UpdateTempGraph();
    bool CanDrag() const;

    // The Add and Remove buttons.
    void Add();
    void Remove();
    // Adds a row to "Functions To Graph"; the Function Manager, the Function Library and the
    // Function Solver hand their functions in here too. False for a row already there.
    bool AddFunction(const std::string &rowText);
    // "Edit Function", or a double click on a row of `list`.
    void EditFunctions(List list);
    // "Func Library".
    void FunctionLibrary();

    // Dragging: a drag starts in `list`; a row moves within its list; a row is dropped on the
    // other list at `to` (-1 for its end); the Delete key in either list.
    void StartDrag(List list);
    void MoveRow(List list, int from, int to);
    void DropOnOtherList(List from, int row, int to);
    void DeleteKey();

    bool CheckData(GraphData &graph) override;
    void ApplyChanges() override;

private:
    // What each drag that changes the graph does after it.
    void DragChanged();
    void SyncTempFunctions(bool commonVariables);
    std::vector<std::string> &Rows(List list) { return list == kDefined ? defined : toGraph; }
    bool InToGraph(const std::string &rowText) const;
    bool NothingToGraph() const;
};

}  // namespace quindar
