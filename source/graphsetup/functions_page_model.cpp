// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "functions_page_model.h"

#include <algorithm>

#include "document_parts.h"
#include "function_rows.h"
#include "message_box_rules.h"
#include "parser.h"
#include "setup_messages.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

namespace {

Function *FunctionNamed(const GraphData &graph, const std::string &fullName) {
    for (int i = 0; Function *function = graph.GetFunction(i); ++i)
        if (function->full_name == fullName) return function;
    return nullptr;
}

}  // namespace

void FunctionsPageModel::SetActive() {
    UpdatePage();
    SetupPageModel::SetActive();
}

void FunctionsPageModel::UpdatePage() {
    UpdateFunListBox();
    if (session.Current() != nullptr && session.Current() == lastGraphShown)
        UpdateFunToGraphListBox(true);
    else
        LoadFunToGraphListBox();
}

void FunctionsPageModel::UpdateFunListBox() {
    Parser &parser = session.parser;
    defined.clear();
    for (int i = 0; i < parser.functions.size(); ++i)
        if (parser.functions[i] != nullptr)
            if (const char *row = parser.get_func_str(i)) defined.emplace_back(row);
    if (definedSelected >= static_cast<int>(defined.size())) definedSelected = -1;
    addEnabled = !defined.empty();
}

void FunctionsPageModel::LoadFunToGraphListBox() {
    toGraph.clear();
    toGraphSelected = -1;
    GraphData *current = session.Current();
    Parser &parser = session.parser;
    if (current != nullptr) {
        std::vector<Function *> dropped;
        for (int i = 0; Function *function = current->GetFunction(i); ++i) {
            const std::string name = function->full_name;
            FunctionKind kind = function_kind(parser, name);
            if (kind == FunctionKind::Embedded) {
                toGraph.push_back(name);
                continue;
            }
            if (kind == FunctionKind::Undefined) {
                const int answer =
                    ui.Message(kMsgFunctionNoLongerDefined,
                               {name, function->func_value, current->Name}, kBoxQuestionYesNo);
                if (answer != kIdYes) {
                    dropped.push_back(function);
                    continue;
                }
                // A failed declaration keeps the function in the graph, without a row.
                if (!ui.AddEditFunction(name, function->func_value)) continue;
            }
            const std::string now = declared_function_value(parser, name);
            if (now != function->func_value) {
                ui.Message(kMsgFunctionValueChanged, {name, function->func_value, now},
                           kBoxWarning);
                function->SetFuncValue(now.c_str());
            }
            toGraph.push_back(declared_function_row(parser, name));
        }
        for (Function *function : dropped) current->Functions.remove(function);
    }
    removeEnabled = !toGraph.empty();
    UpdateTempGraph();
    lastGraphShown = current;
    backFromManager = false;
}

void FunctionsPageModel::UpdateFunToGraphListBox(bool ask) {
    Parser &parser = session.parser;
    const std::string graphName = session.Current() != nullptr ? session.Current()->Name : "";
    for (std::size_t i = 0; i < toGraph.size();) {
        const FunctionRow row = split_function_row(toGraph[i]);
        const FunctionKind kind = function_kind(parser, row.fullName);
        bool removeRow = false;
        if (kind == FunctionKind::Declared) {
            const std::string now = declared_function_value(parser, row.fullName);
            if (!row.value.empty() && row.value != now) {
                ui.Message(kMsgFunctionValueChanged, {row.fullName, row.value, now}, kBoxWarning);
                toGraph[i] = declared_function_row(parser, row.fullName);
                session.Mark(ui, true);
            }
        } else if (kind == FunctionKind::Undefined && backFromManager) {
            ui.Message(kMsgFunctionRemoved, {row.fullName, row.value, graphName}, kBoxWarning);
            removeRow = true;
        } else if (kind == FunctionKind::Undefined) {
            const int answer =
                !row.value.empty() && ask
                    ? ui.Message(kMsgFunctionNoLongerDefined, {row.fullName, row.value, graphName},
                                 kBoxQuestionYesNo)
                    : kIdNo;
            removeRow = answer != kIdYes || !ui.AddEditFunction(row.fullName, row.value);
        }
        if (removeRow) {
            toGraph.erase(toGraph.begin() + static_cast<std::ptrdiff_t>(i));
            session.Mark(ui, true);
        } else {
            ++i;
        }
    }
    if (toGraphSelected >= static_cast<int>(toGraph.size())) toGraphSelected = -1;
    removeEnabled = !toGraph.empty();
    UpdateTempGraph();
    backFromManager = false;
}

void FunctionsPageModel::UpdateTempGraph() {
    SyncTempFunctions(true);
}

void FunctionsPageModel::SyncTempFunctions(bool commonVariables) {
    GraphData &temp = session.temp;
    Parser &parser = session.parser;
    const auto titlesFollow = [&temp] {
        temp.SetDefaultYAxisTitle(false);
        temp.SetDefaultFooter(false);
    };
    std::vector<std::string> names;
    for (const std::string &text : toGraph) {
        const FunctionRow row = split_function_row(text);
        const FunctionKind kind = function_kind(parser, row.fullName);
        Function *function = FunctionNamed(temp, row.fullName);
        if (kind == FunctionKind::Undefined) {
            if (function != nullptr) {
                temp.Functions.remove(function);
                titlesFollow();
            }
            continue;
        }
        const std::string name =
            kind == FunctionKind::Declared ? declared_function_name(parser, row.fullName) : text;
        const std::string value =
            kind == FunctionKind::Declared ? declared_function_value(parser, row.fullName) : text;
        names.push_back(name);
        if (function != nullptr) {
            function->SetFuncName(name.c_str());
            function->SetFuncValue(value.c_str());
        } else {
            temp.AddFunction(name.c_str(), value.c_str());
            titlesFollow();
        }
    }
    std::vector<Function *> unlisted;
    for (int i = 0; Function *function = temp.GetFunction(i); ++i)
        if (std::find(names.begin(), names.end(), function->full_name) == names.end())
            unlisted.push_back(function);
    for (Function *function : unlisted) {
        temp.Functions.remove(function);
        titlesFollow();
    }
    if (commonVariables) {
        temp.SetComVarList();
        temp.DelUncommonVars();
    }
}

bool FunctionsPageModel::CanDrag() const {
    return session.Current() != nullptr && session.content.graphs.count() > 0;
}

bool FunctionsPageModel::InToGraph(const std::string &rowText) const {
    return std::any_of(toGraph.begin(), toGraph.end(), [&rowText](const std::string &row) {
        return same_text_ignoring_case(row, rowText);
    });
}

bool FunctionsPageModel::NothingToGraph() const {
    return session.temp.GetNumFunctions() == 0 && session.temp.DataSets.count() == 0;
}

void FunctionsPageModel::Add() {
    if (session.content.graphs.count() == 0) {
        ui.SelectPage(kPageGraphs);
        ui.Message(kMsgNoGraphsDefined, {}, kBoxWarning);
        return;
    }
    if (session.Current() == nullptr) {
        ui.Message(kMsgChooseGraphName, {}, kBoxWarning);
        return;
    }
    if (defined.empty()) {
        ui.Message(kMsgNoFunctionsDefined, {}, kBoxWarning);
        EditFunctions(kDefined);
        return;
    }
    if (definedSelected < 0 || definedSelected >= static_cast<int>(defined.size())) {
        ui.Message(kMsgSelectFunctionToAdd, {}, kBoxWarning);
        return;
    }
    AddFunction(defined[static_cast<std::size_t>(definedSelected)]);
}

bool FunctionsPageModel::AddFunction(const std::string &rowText) {
    if (InToGraph(rowText)) {
        ui.Message(kMsgFunctionAlreadyAdded, {}, kBoxWarning);
        return false;
    }
    toGraph.push_back(rowText);
    removeEnabled = true;
    session.Mark(ui, true);
    UpdateTempGraph();
    return true;
}

void FunctionsPageModel::Remove() {
    if (toGraph.empty()) {
        ui.Message(kMsgNothingToRemove, {}, kBoxWarning);
    } else if (toGraphSelected < 0 || toGraphSelected >= static_cast<int>(toGraph.size())) {
        ui.Message(kMsgSelectFunctionToRemove, {}, kBoxWarning);
    } else {
        toGraph.erase(toGraph.begin() + toGraphSelected);
        toGraphSelected = -1;
        session.Mark(ui, true);
        UpdateTempGraph();
    }
    if (NothingToGraph()) {
        session.temp.ClearTitles();
        removeEnabled = false;
    }
}

void FunctionsPageModel::EditFunctions(List list) {
    const std::vector<std::string> &rows = Rows(list);
    const int row = list == kDefined ? definedSelected : toGraphSelected;
    std::string name;
    if (row >= 0 && row < static_cast<int>(rows.size()))
        name = split_function_row(rows[static_cast<std::size_t>(row)]).fullName;
    backFromManager = true;
    ui.OpenFunctionManager(name);
}

void FunctionsPageModel::FunctionLibrary() {
    ui.OpenFunctionLibrary();
}

void FunctionsPageModel::StartDrag(List list) {
    (list == kDefined ? toGraphSelected : definedSelected) = -1;
}

void FunctionsPageModel::MoveRow(List list, int from, int to) {
    std::vector<std::string> &rows = Rows(list);
    const int count = static_cast<int>(rows.size());
    if (!CanDrag() || from < 0 || from >= count) return;
    to = to < 0 || to >= count ? count - 1 : to;
    if (from == to) return;
    const std::string moved = rows[static_cast<std::size_t>(from)];
    rows.erase(rows.begin() + from);
    rows.insert(rows.begin() + to, moved);
    (list == kDefined ? definedSelected : toGraphSelected) = to;
}

void FunctionsPageModel::DropOnOtherList(List from, int row, int to) {
    std::vector<std::string> &source = Rows(from);
    if (!CanDrag() || row < 0 || row >= static_cast<int>(source.size())) return;
    const std::string text = source[static_cast<std::size_t>(row)];
    if (from == kDefined) {
        // A declared function gets a row to graph; its definition stays where it was.
        if (InToGraph(text)) return;
        const int at =
            to < 0 || to > static_cast<int>(toGraph.size()) ? static_cast<int>(toGraph.size()) : to;
        toGraph.insert(toGraph.begin() + at, text);
        toGraphSelected = at;
    } else {
        // Dragged back, a function leaves the graph; an embedded one never joins the
        // defined functions.
        toGraph.erase(toGraph.begin() + row);
        toGraphSelected = -1;
    }
    DragChanged();
}

void FunctionsPageModel::DeleteKey() {
    const int count = static_cast<int>(toGraph.size());
    if (!CanDrag() || toGraphSelected < 0 || toGraphSelected >= count) return;
    const int gone = toGraphSelected;
    toGraph.erase(toGraph.begin() + gone);
    if (toGraph.empty())
        toGraphSelected = -1;
    else if (gone == 0)
        toGraphSelected = 0;
    else if (gone == count - 1)
        toGraphSelected = gone - 1;
    else
        toGraphSelected = gone;
    DragChanged();
}

void FunctionsPageModel::DragChanged() {
    GraphData &temp = session.temp;
    if (GraphData *current = session.Current()) current->Modified = true;
    ui.PageChanged();
    SyncTempFunctions(false);
    if (NothingToGraph()) temp.ClearTitles();
    temp.Modified = true;
    temp.NeedsData = true;
    removeEnabled = !toGraph.empty();
}

bool FunctionsPageModel::CheckData(GraphData &graph) {
    const int functions = graph.GetNumFunctions();
    const int sets = graph.DataSets.count();
    int refusal = 0;
    if (functions == 0 && sets == 0)
        refusal = kMsgNothingToGraphFunctions;
    else if (graph.GetGraphType() == kGraph3D && functions > 0 && sets > 0)
        refusal = kMsgFunctionsAndPoints3D;
    else if (graph.GetGraphType() == kGraph3D && functions > 1)
        refusal = kMsgOneEquation3D;
    if (refusal == 0) return true;
    ui.SelectPage(kPageFunctions);
    ui.Message(refusal, {}, kBoxWarning);
    return false;
}

void FunctionsPageModel::ApplyChanges() {
    GraphData *current = session.Current();
    GraphData &temp = session.temp;
    if (current == nullptr || !temp.FunctionsVisited) return;
    Parser &parser = session.parser;
    current->Header = temp.Header;
    current->Footer = temp.Footer;
    current->FooterSet = temp.FooterSet;
    temp.SetDefaultXAxisTitle(false);
    current->XAxisTitle = temp.XAxisTitle;
    current->XTitleSet = temp.XTitleSet;
    temp.SetDefaultYAxisTitle(false);
    current->YAxisTitle = temp.YAxisTitle;
    current->YTitleSet = temp.YTitleSet;
    temp.SetDefaultZAxisTitle(false);
    current->ZAxisTitle = temp.ZAxisTitle;
    current->ZTitleSet = temp.ZTitleSet;

    current->Functions.flush();
    for (const std::string &text : toGraph) {
        const FunctionRow row = split_function_row(text);
        const FunctionKind kind = function_kind(parser, row.fullName);
        if (kind == FunctionKind::Undefined) continue;
        const std::string name =
            kind == FunctionKind::Declared ? declared_function_name(parser, row.fullName) : text;
        const std::string value =
            kind == FunctionKind::Declared ? declared_function_value(parser, row.fullName) : text;
        Function *added = current->AddFunction(name.c_str(), value.c_str());
        const Function *working = FunctionNamed(temp, name);
        if (added != nullptr) added->SetFuncLabel(working != nullptr ? working->label.c_str() : "");
    }
    session.GraphsChanged();
    ui.PageUnchanged(kPageFunctions);
    current->Modified = false;
}

}  // namespace quindar
