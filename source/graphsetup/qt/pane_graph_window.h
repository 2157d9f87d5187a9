// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The document's graph pane as the Graphs page sees it: builds the working copy there and
// counts the lines the build put into the Graph Errors list.

#include "setup_graph_window.h"

namespace quindar {

class DocumentWindow;
class GraphPane;
class Workbench;

class PaneGraphWindow : public SetupGraphWindow {
public:
    PaneGraphWindow(Workbench &workbench, DocumentWindow &document)
        : workbench(workbench), document(document) {}

    bool Exists() const override;
    bool ShowsGraphNamed(const std::string &name) const override;
    bool Build(GraphData &graph, const std::function<void(std::string_view)> &addError) override;
    void Refresh(GraphData &graph) override;
    bool Recreate() override;
    bool HasBuildErrors() const override { return errorLines > 0; }

private:
    // The pane when the document has made it, else null.
    GraphPane *Pane() const;
    bool BuildCopy(const GraphData &graph, const std::function<void(std::string_view)> &addError);

    Workbench &workbench;
    DocumentWindow &document;
    int errorLines = 0;
    std::function<void(std::string_view)> lastAddError;
};

}  // namespace quindar
