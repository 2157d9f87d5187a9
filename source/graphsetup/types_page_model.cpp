// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "types_page_model.h"

#include <string>

#include "graph_data.h"
#include "graph_pages_messages.h"
#include "graph_types.h"
#include "message_box_rules.h"
#include "page_apply.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

namespace {

// The message of a 2-D type with too few functions and data sets; some name how many
// functions there are.
struct TooFewSets {
    int stored;
    int messageId;
    bool tellsFunctions;
};

constexpr TooFewSets kTooFewSets[] = {
    {6, kMsgHiLoNeedsTwo, false},
    {7, kMsgHiLoOpenCloseNeedsFour, true},
    {8, kMsgCandleNeedsFour, true},
};

}  // namespace

bool TypesPageModel::TwoDEnabled() const {
    return session.temp.GetGraphType() == kGraph2D;
}

bool TypesPageModel::ThreeDEnabled() const {
    return session.temp.GetGraphType() == kGraph3D;
}

int TypesPageModel::Type2D() const {
    return session.temp.GraphType2D;
}

bool TypesPageModel::Attribute3D(int digit) const {
    return session.temp.Get3DTypeBit(digit) == 1;
}

void TypesPageModel::Choose2DType(int stored) {
    if (!TwoDEnabled() || find_graph_type_2d(stored) == nullptr) return;
    if (stored == session.temp.GraphType2D) return;
    session.temp.GraphType2D = stored;
    session.Mark(ui, false);
}

void TypesPageModel::Set3DAttribute(int digit, bool on) {
    if (!ThreeDEnabled() || digit < 1 || digit > kBarOrSurfaceDigit) return;
    const int value = on ? 1 : 0;
    if (session.temp.Get3DTypeBit(digit) == value) return;
    session.temp.Set3DTypeBit(digit, value);
    session.Mark(ui, false);
}

void TypesPageModel::ApplyChanges() {
    GraphData *current = apply_target(session, session.temp.TypesVisited);
    if (current == nullptr) return;
    if (TwoDEnabled()) current->GraphType2D = session.temp.GraphType2D;
    if (ThreeDEnabled()) current->GraphType3D = session.temp.GraphType3D;
    page_applied(session, ui, Index(), *current);
}

bool TypesPageModel::CheckData(GraphData &graph) {
    if (graph.GetGraphType() != kGraph2D) return true;
    const GraphType2DInfo *type = find_graph_type_2d(graph.GraphType2D);
    const int sets = graph.GetNumFunctions() + graph.DataSets.count();
    if (type == nullptr || sets >= type->minimumSets) return true;
    for (const TooFewSets &rule : kTooFewSets) {
        if (rule.stored != graph.GraphType2D) continue;
        ui.SelectPage(kPageTypes);
        if (rule.tellsFunctions)
            ui.Message(rule.messageId, {std::to_string(graph.GetNumFunctions())}, kBoxWarning);
        else
            ui.Message(rule.messageId, {}, kBoxWarning);
        return false;
    }
    return true;
}

}  // namespace quindar
