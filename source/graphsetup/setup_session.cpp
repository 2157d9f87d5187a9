// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "setup_session.h"

#include "document_parts.h"
#include "setup_page_model.h"
#include "setup_ui.h"

namespace quindar {

GraphSetupSession::GraphSetupSession(Parser &parser, DocumentContent &content)
    : parser(parser), content(content), temp(kTemporaryGraphName) {}

GraphData *GraphSetupSession::Current() const {
    return content.currentGraph;
}

SetupPageModel *GraphSetupSession::Page(int index) const {
    if (index < 0 || index >= kSetupPageCount) return nullptr;
    return pages[static_cast<std::size_t>(index)];
}

void GraphSetupSession::Mark(SetupUi &ui, bool needsData) {
    ui.PageChanged();
    if (GraphData *current = Current()) current->Modified = true;
    if (needsData)
        temp.NeedsData = true;
    else
        temp.NeedsAttributes = true;
}

void GraphSetupSession::GraphsChanged() {
    graphsChanged = true;
    if (graphsChangedHook) graphsChangedHook();
}

}  // namespace quindar
