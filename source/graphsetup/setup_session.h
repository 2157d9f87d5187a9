// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the pages of one document's Graph Setup share. The working copy outlives the sheet:
// the document keeps the session, and the next opening reloads it from the current graph.

#include <array>
#include <functional>

#include "graph_data.h"
#include "graph_defaults.h"
#include "setup_pages.h"

namespace quindar {

class Parser;
class SetupPageModel;
class SetupUi;
struct DocumentContent;

struct GraphSetupSession {
    GraphSetupSession(Parser &parser, DocumentContent &content);

    Parser &parser;
    // The document's graphs and its current graph.
    DocumentContent &content;
    // The working copy the pages edit ("Temporary Graph Name").
    GraphData temp;
    // The user's default colours and orientation, for new graphs.
    GraphDefaults defaults;
    // Set when the list of graphs or one of them changed; the document saves it.
    bool graphsChanged = false;
    // Told at each GraphsChanged, so that the document asks to be saved.
    std::function<void()> graphsChangedHook;
    int wizardPath = kWizardNone;
    // The page id last activated (setup_pages.h), and the index showing when the sheet closed.
    int curPageId = 1006;
    int lastSetupPage = kPageGraphs;
    // The result of the last CheckGeneralData.
    bool lastCheckOk = true;
    // The page models, by index; null until their sheet has made them.
    std::array<SetupPageModel *, kSetupPageCount> pages{};

    GraphData *Current() const;
    SetupPageModel *Page(int index) const;

    // What every edit on a page does: arms Apply, marks the current graph modified, and asks
    // for new chart data (`needsData`) or only new attributes.
    void Mark(SetupUi &ui, bool needsData);
    // Sets graphsChanged and tells the document.
    void GraphsChanged();
};

}  // namespace quindar
