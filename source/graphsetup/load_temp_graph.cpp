// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "load_temp_graph.h"

#include <string>
#include <vector>

#include "function_rows.h"
#include "message_box_rules.h"
#include "parser.h"
#include "setup_messages.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

namespace {

struct KeptFunction {
    std::string name, value, label;
};

// The current graph's functions as they stand in the Math Editor now; a function the user
// will not declare again leaves the stored graph.
std::vector<KeptFunction> CheckedFunctions(GraphSetupSession &session, SetupUi &ui,
                                           GraphData &current) {
    Parser &parser = session.parser;
    std::vector<KeptFunction> kept;
    std::vector<Function *> dropped;
    for (int i = 0; Function *function = current.GetFunction(i); ++i) {
        const std::string name = function->full_name;
        FunctionKind kind = function_kind(parser, name);
        if (kind == FunctionKind::Undefined) {
            const int answer =
                ui.Message(kMsgFunctionNoLongerDefined, {name, function->func_value, current.Name},
                           kBoxWarningYesNo);
            if (answer != kIdYes || !ui.AddEditFunction(name, function->func_value)) {
                dropped.push_back(function);
                continue;
            }
            kind = FunctionKind::Declared;
        }
        if (kind == FunctionKind::Embedded) {
            kept.push_back({name, name, function->label});
            continue;
        }
        const std::string now = declared_function_value(parser, name);
        if (now != function->func_value) {
            ui.Message(kMsgFunctionValueChanged, {name, function->func_value, now}, kBoxWarning);
            function->SetFuncValue(now.c_str());
        }
        kept.push_back({declared_function_name(parser, name), now, function->label});
    }
    for (Function *function : dropped) current.Functions.remove(function);
    return kept;
}

}  // namespace

void load_temp_graph(GraphSetupSession &session, SetupUi &ui) {
    GraphData *current = session.Current();
    if (current == nullptr) return;
    GraphData &temp = session.temp;
    const std::vector<KeptFunction> functions = CheckedFunctions(session, ui, *current);

    const std::string shownSet = temp.CurDataSet != nullptr ? temp.CurDataSet->Name : "";
    const int keepDepth = temp.DefaultDepth2D;
    const float keepPerspective = temp.DefaultPerspectiveDepth;
    const bool keepAttributes = temp.NeedsAttributes;
    temp = *current;
    temp.DefaultDepth2D = keepDepth;
    temp.DefaultPerspectiveDepth = keepPerspective;
    temp.NeedsAttributes = keepAttributes;
    temp.ReloadPoints = true;

    temp.Functions.flush();
    for (const KeptFunction &kept : functions)
        if (Function *copy = temp.AddFunction(kept.name.c_str(), kept.value.c_str()))
            copy->SetFuncLabel(kept.label.c_str());

    temp.CurDataSet = temp.DataSets.gethead();
    for (StrDataPnts *set = temp.DataSets.gethead(); set != nullptr; set = set->next)
        if (!shownSet.empty() && set->Name == shownSet) temp.CurDataSet = set;

    temp.FunctionsVisited = temp.PointsVisited = temp.VariablesVisited = false;
    temp.LabelsVisited = temp.TypesVisited = temp.ColorsVisited = false;
    temp.Modified = false;
    current->Modified = false;
}

}  // namespace quindar
