// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graphs_page_model.h"

#include <algorithm>
#include <cctype>

#include "document_parts.h"
#include "function_rows.h"
#include "load_temp_graph.h"
#include "message_box_rules.h"
#include "parser.h"
#include "setup_graph_window.h"
#include "setup_messages.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

namespace {

// The list box sorts as the user reads, whatever the case.
bool SortsBefore(const std::string &a, const std::string &b) {
    return std::lexicographical_compare(
        a.begin(), a.end(), b.begin(), b.end(),
        [](unsigned char x, unsigned char y) { return std::tolower(x) < std::tolower(y); });
}

bool HasSomethingToGraph(const GraphData &graph) {
    return graph.GetNumFunctions() > 0 || graph.DataSets.count() > 0;
}

GraphData *GraphNamed(GraphList &list, const std::string &name) {
    for (GraphData *graph = list.gethead(); graph != nullptr; graph = graph->next)
        if (graph->Name == name) return graph;
    return nullptr;
}

// The pages whose changes a No to "save your changes?" forgets.
constexpr int kPagesForgotten[] = {kPageGraphs, kPageFunctions, kPageVariables,
                                   kPagePoints, kPageLabels,    kPageTypes};

}  // namespace

GraphsPageModel::GraphsPageModel(GraphSetupSession &session, SetupUi &ui, SetupGraphWindow &window)
    : SetupPageModel(session, ui), window(window) {}

bool GraphsPageModel::HasGraph() const {
    return session.content.graphs.count() > 0 && session.Current() != nullptr;
}

void GraphsPageModel::FillList() {
    rows.clear();
    for (const GraphData *graph = session.content.graphs.gethead(); graph != nullptr;
         graph = graph->next)
        rows.push_back(graph->Name);
    std::stable_sort(rows.begin(), rows.end(), SortsBefore);
    selected = -1;
}

int GraphsPageModel::RowOf(const std::string &graphName) const {
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (same_text_ignoring_case(rows[row], graphName)) return static_cast<int>(row);
    return -1;
}

void GraphsPageModel::SelectCurrentRow() {
    const GraphData *current = session.Current();
    selected = -1;
    if (current == nullptr) return;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows[row] == current->Name) selected = static_cast<int>(row);
}

void GraphsPageModel::SetupWindow() {
    DocumentContent &content = session.content;
    FillList();
    firstActivation = true;
    if (content.graphs.count() == 0) name = kDefaultGraphName;
    if (content.graphs.count() == 0 ||
        (content.currentGraph == nullptr && content.graphs.gethead() == nullptr)) {
        editEnabled = deleteEnabled = checkEnabled = buildEnabled = false;
    } else {
        if (content.currentGraph == nullptr || content.graphs.count() == 1)
            content.currentGraph = content.graphs.gethead();
        SelectCurrentRow();
        name = content.currentGraph->Name;
        editEnabled = deleteEnabled = checkEnabled = true;
        buildEnabled = HasSomethingToGraph(*content.currentGraph);
    }
    ResetCaption();
    LoadTempGraph();
}

void GraphsPageModel::SetActive() {
    SetupPageModel::SetActive();
    buildEnabled = HasSomethingToGraph(session.temp);
    // A setup opened on a graph that is not on show offers Apply at once.
    const GraphData *current = session.Current();
    if (firstActivation && current != nullptr &&
        !(window.Exists() && window.ShowsGraphNamed(current->Name)))
        ui.PageChanged();
}

bool GraphsPageModel::KillActive() {
    if (firstActivation) {
        firstActivation = false;
        return true;
    }
    // No page but this one is ever shown without a graph behind it.
    if (!HasGraph()) {
        ui.FocusEditor();
        if (name.empty()) name = kDefaultGraphName;
        Add();
    }
    return true;
}

void GraphsPageModel::Add() {
    if (name.empty()) {
        ui.Message(kMsgEnterGraphName, {}, kBoxWarning);
        return;
    }
    if (RowOf(name) >= 0) {
        ui.Message(kMsgGraphNameTaken, {}, kBoxWarning);
        return;
    }
    if (GraphData *current = session.Current(); current != nullptr && current->Modified) {
        if (ui.Message(kMsgSaveGraphChanges, {current->Name}, kBoxQuestionYesNo) == kIdYes)
            ApplySheet();
    }
    GraphData *graph = add_new_graph(session.content.graphs, name.c_str(), &session.defaults);
    if (graph == nullptr) return;
    session.content.currentGraph = graph;
    session.GraphsChanged();
    ResetCaption();
    LoadTempGraph();
    FillList();
    SelectCurrentRow();
    editEnabled = deleteEnabled = checkEnabled = true;
    buildEnabled = false;
}

void GraphsPageModel::Rename() {
    if (session.content.graphs.count() == 0) {
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        return;
    }
    if (name.empty() || selected < 0) {
        ui.Message(kMsgChooseGraphName, {}, kBoxWarning);
        return;
    }
    if (RowOf(name) >= 0) {
        ui.Message(kMsgGraphNameTaken, {}, kBoxWarning);
        return;
    }
    GraphData *graph = GraphNamed(session.content.graphs, rows[static_cast<std::size_t>(selected)]);
    if (graph == nullptr) return;
    // A header that was the old name follows the new one; one the user wrote stays.
    if (graph->Header == graph->Name) graph->SetHeader(name.c_str());
    graph->SetName(name.c_str());
    session.GraphsChanged();
    FillList();
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows[row] == graph->Name) selected = static_cast<int>(row);
    ResetCaption();
    LoadTempGraph();
}

void GraphsPageModel::Delete() {
    DocumentContent &content = session.content;
    if (content.graphs.count() == 0) {
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        return;
    }
    if (selected < 0) {
        ui.Message(kMsgChooseGraphName, {}, kBoxWarning);
        return;
    }
    const std::string doomed = rows[static_cast<std::size_t>(selected)];
    if (ui.Message(kMsgDeleteGraph, {doomed}, kBoxQuestionYesNo) != kIdYes) return;
    if (GraphData *graph = GraphNamed(content.graphs, doomed)) content.graphs.del(graph);
    session.GraphsChanged();
    if (content.graphs.count() > 0) ui.PageChanged();
    // The head becomes current whichever graph went.
    content.currentGraph = content.graphs.gethead();
    ResetCaption();
    LoadTempGraph();
    FillList();
    if (content.currentGraph == nullptr) {
        editEnabled = deleteEnabled = checkEnabled = buildEnabled = false;
        name = kDefaultGraphName;
    } else {
        SelectCurrentRow();
        name = content.currentGraph->Name;
    }
}

void GraphsPageModel::SelectRow(int row) {
    selected = row >= 0 && row < static_cast<int>(rows.size()) ? row : -1;
    if (selected < 0) {
        editEnabled = deleteEnabled = false;
        return;
    }
    name = rows[static_cast<std::size_t>(selected)];
    GraphData *graph = GraphNamed(session.content.graphs, name);
    GraphData *current = session.Current();
    if (graph != nullptr && graph != current) {
        if (current != nullptr && current->Modified) {
            if (ui.Message(kMsgSaveGraphChanges, {current->Name}, kBoxQuestionYesNo) == kIdYes) {
                // The changes go to the old graph; the window is left alone.
                suppressWindowUpdate = true;
                ApplySheet();
                suppressWindowUpdate = false;
            } else {
                for (int page : kPagesForgotten) ui.PageUnchanged(page);
                current->Modified = false;
            }
        }
        session.content.currentGraph = graph;
        ResetCaption();
        LoadTempGraph();
        ui.PageChanged();
    }
    editEnabled = deleteEnabled = true;
    buildEnabled = HasSomethingToGraph(session.temp);
}

void GraphsPageModel::CheckGraph() {
    if (!HasGraph()) {
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        return;
    }
    if (DataCheck(session.temp)) ui.Message(kMsgGraphReady, {}, kBoxWarning);
}

void GraphsPageModel::ReportBuildErrors() {
    ui.SelectPage(kPageGraphs);
    ui.FocusControl(kPageGraphs, kControlGraphErrors);
    ui.Message(kMsgBuildErrors, {session.temp.Name}, kBoxInformation);
}

void GraphsPageModel::GraphWindowBuild() {
    ClearErrors();
    GraphData &temp = session.temp;
    if (window.Build(temp, [this](std::string_view line) { errors.AddError(line); })) {
        temp.NeedsData = false;
        temp.NeedsAttributes = false;
    }
}

bool GraphsPageModel::BuildGraph() {
    ui.FocusEditor();
    if (!HasGraph()) {
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        return true;
    }
    if (!DataCheck(session.temp)) return true;
    ui.EnableGraphSetup(false);
    // A document never saved has nothing new to compute: the window is made again from what
    // it holds, if it holds anything.
    if (session.temp.NeedsData || !documentPath.empty() || !window.Recreate()) GraphWindowBuild();
    const bool failed = window.HasBuildErrors();
    if (failed) ReportBuildErrors();
    ui.EnableGraphSetup(true);
    return !failed;
}

void GraphsPageModel::GraphFunctions() {
    if (session.content.graphs.count() == 0 && session.Current() == nullptr && !name.empty()) Add();
    ui.FocusEditor();
    if (!HasGraph()) {
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        ui.FocusControl(kPageGraphs, kControlGraphName);
        return;
    }
    ui.SelectPage(kPageFunctions);
    session.wizardPath = kWizardFunctions;
}

void GraphsPageModel::GraphDataPoints() {
    if (session.content.graphs.count() == 0 && session.Current() == nullptr) Add();
    ui.FocusEditor();
    if (!HasGraph()) {
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        ui.FocusControl(kPageGraphs, kControlGraphName);
        return;
    }
    ui.SelectPage(kPagePoints);
    session.wizardPath = kWizardPoints;
}

bool GraphsPageModel::ApplySheet() {
    if (!Apply()) return false;
    ui.PageUnchanged(kPageGraphs);
    for (int index = kPageGraphs + 1; index < kSetupPageCount; ++index)
        if (SetupPageModel *page = session.Page(index)) page->ApplyChanges();
    return true;
}

bool GraphsPageModel::Apply() {
    return !(UpdateGraphWindow() && window.HasBuildErrors());
}

bool GraphsPageModel::UpdateGraphWindow() {
    GraphData &temp = session.temp;
    if (suppressWindowUpdate || session.content.graphs.count() == 0 || !window.Exists())
        return false;
    ui.FocusEditor();
    if ((temp.NeedsData || !session.lastCheckOk) && DataCheck(temp)) {
        ui.EnableGraphSetup(false);
        GraphWindowBuild();
        ui.EnableGraphSetup(true);
        if (window.HasBuildErrors()) ReportBuildErrors();
        return true;
    }
    if (temp.NeedsAttributes && session.lastCheckOk && DataCheck(temp)) {
        ui.EnableGraphSetup(false);
        window.Refresh(temp);
        temp.NeedsAttributes = false;
        ui.EnableGraphSetup(true);
        return true;
    }
    return false;
}

bool GraphsPageModel::CheckGeneralData(GraphData &graph) {
    session.lastCheckOk = true;
    const auto pageCheck = [this, &graph](int index) {
        SetupPageModel *page = session.Page(index);
        return page == nullptr || page->CheckData(graph);
    };
    bool ok = true;
    if (ui.ShowingPage() == kPageGraphs) {
        if (!HasSomethingToGraph(session.temp)) {
            ui.Message(kMsgNothingToGraph, {}, kBoxWarning);
            ok = false;
        }
    } else {
        ok = pageCheck(kPageFunctions);
    }
    if (ok && graph.GetNumFunctions() > 0) ok = pageCheck(kPageVariables);
    if (ok && graph.DataSets.count() > 0) ok = pageCheck(kPagePoints);
    session.lastCheckOk = ok;
    if (!ok) return false;
    if (graph.GetGraphType() == kGraph2D && !pageCheck(kPageTypes)) return false;
    if (graph.DataSets.count() == 0) graph.DataLayout = 1;
    return true;
}

bool GraphsPageModel::ComputeValue(const char *text, complex &value) {
    const std::string copy = text != nullptr ? text : "";
    Parser &parser = session.parser;
    parser.eval_exp(copy.c_str(), value, true, false);
    if (parser.IsAnError()) {
        ui.Sound("Error.wav");
        AddError(parser.GetLastError());
        parser.ClearLastError();
    }
    return true;
}

void GraphsPageModel::ResetCaption() {
    const std::size_t cut = documentPath.find_last_of("/\\");
    const std::string folder = cut == std::string::npos ? "" : documentPath.substr(0, cut);
    const std::string file = cut == std::string::npos ? documentPath : documentPath.substr(cut + 1);
    GraphData *current = session.Current();
    if (current != nullptr) current->SetDirectory(folder.c_str());
    if (!file.empty() && current != nullptr)
        caption = "Graph Setup For \"" + file + "\" : " + current->Name;
    else if (current != nullptr)
        caption = "Graph Setup For : " + current->Name;
    else if (!file.empty())
        caption = "Graph Setup For \"" + file + "\"";
    else
        caption = "Graph Setup";
}

void GraphsPageModel::LoadTempGraph() {
    load_temp_graph(session, ui);
}

}  // namespace quindar
