// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Graphs page: the document's list of graphs (add, rename, delete, choose the current
// one), the gate of checks in front of the graph window, the build, the sheet's Apply and the
// Graph Errors list. Its controls are plain fields here; the page widget shows them.

#include <string>
#include <vector>

#include "complex.h"
#include "graph_error_list.h"
#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class SetupGraphWindow;

class GraphsPageModel : public SetupPageModel {
public:
    GraphsPageModel(GraphSetupSession &session, SetupUi &ui, SetupGraphWindow &window);

    int Index() const override { return kPageGraphs; }

    // What the controls show.
    std::string name;               // the name box
    std::vector<std::string> rows;  // "Graph List", sorted
    int selected = -1;
    bool editEnabled = false, deleteEnabled = false, checkEnabled = false, buildEnabled = false;
    std::string caption;
    GraphErrorList errors;
    // The Math Editor's file, empty while it has none.
    std::string documentPath;

    // An Apply of this moment leaves the graph window alone.
    bool suppressWindowUpdate = false;
    // From the page's set-up to its first leaving.
    bool firstActivation = false;

    // The page's window is set up: the list, the buttons, the caption and the working copy.
    void SetupWindow();
    void SetActive() override;
    // Whether the page may be left: always, but never without a graph behind the others.
    bool KillActive();

    void Add();
    void Rename();
    void Delete();
    void SelectRow(int row);
    void CheckGraph();
    // Builds the working copy in the graph window. False when the build left errors in the
    // list, so that Finish keeps the sheet open on them; true otherwise, also when nothing
    // was built.
    bool BuildGraph();
    // The entry buttons "Graph Functions" and "Graph Data Points".
    void GraphFunctions();
    void GraphDataPoints();

    // The sheet's Apply: this page on the working copy, then each page's share in page order.
    // False when it was refused (the build left errors).
    bool ApplySheet();
    // This page's Apply: the graph window follows the working copy.
    bool Apply();
    bool UpdateGraphWindow();

    // The order of all checks; a failure has shown its message on its page.
    bool CheckGeneralData(GraphData &graph);
    bool DataCheck(GraphData &graph) { return CheckGeneralData(graph); }
    // Evaluates a data point's text in the Math Editor's parser; an error goes to the list
    // with a sound. Always true.
    bool ComputeValue(const char *text, complex &value);
    void AddError(const char *text) { errors.AddError(text); }
    void ClearErrors() { errors.ClearErrors(); }

    void ResetCaption();
    void LoadTempGraph();

private:
    bool HasGraph() const;
    void FillList();
    int RowOf(const std::string &graphName) const;
    void SelectCurrentRow();
    void ReportBuildErrors();
    void GraphWindowBuild();

    SetupGraphWindow &window;
};

}  // namespace quindar
