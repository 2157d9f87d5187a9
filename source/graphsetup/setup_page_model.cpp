// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "setup_page_model.h"

#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

bool *SetupPageModel::VisitedFlag() {
    GraphData &temp = session.temp;
    switch (Index()) {
        case kPageFunctions:
            return &temp.FunctionsVisited;
        case kPagePoints:
            return &temp.PointsVisited;
        case kPageVariables:
            return &temp.VariablesVisited;
        case kPageLabels:
            return &temp.LabelsVisited;
        case kPageTypes:
            return &temp.TypesVisited;
        case kPageColors:
            return &temp.ColorsVisited;
        default:
            return nullptr;
    }
}

void SetupPageModel::SetActive() {
    session.curPageId = kSetupPages[static_cast<std::size_t>(Index())].pageId;
    if (bool *visited = VisitedFlag()) *visited = true;
}

bool SetupPageModel::CheckData(GraphData &) {
    return true;
}

void SetupPageModel::Next() {
    const int next = setup_next_page(Index());
    if (next < 0 || !CheckData(session.temp)) return;
    ui.SelectPage(next);
}

void SetupPageModel::Prev() {
    const int prev =
        setup_prev_page(Index(), session.wizardPath, session.temp.GetNumFunctions() > 0,
                        session.temp.DataSets.count() > 0);
    if (prev >= 0) ui.SelectPage(prev);
}

}  // namespace quindar
