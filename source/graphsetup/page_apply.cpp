// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "page_apply.h"

#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

GraphData *apply_target(GraphSetupSession &session, bool visited) {
    return visited ? session.Current() : nullptr;
}

void page_applied(GraphSetupSession &session, SetupUi &ui, int pageIndex, GraphData &current) {
    session.GraphsChanged();
    ui.PageUnchanged(pageIndex);
    current.Modified = false;
}

}  // namespace quindar
