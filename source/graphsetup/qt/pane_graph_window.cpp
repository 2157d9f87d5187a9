// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "pane_graph_window.h"

#include "document_graph_tools.h"
#include "document_window.h"
#include "graph_pane.h"
#include "parser.h"

namespace quindar {

GraphPane *PaneGraphWindow::Pane() const {
    return document.findChild<GraphPane *>(QString(), Qt::FindDirectChildrenOnly);
}

bool PaneGraphWindow::Exists() const {
    const GraphPane *pane = Pane();
    return pane != nullptr && !pane->isHidden();
}

bool PaneGraphWindow::ShowsGraphNamed(const std::string &name) const {
    const GraphPane *pane = Pane();
    const GraphData *shown = pane != nullptr ? pane->Shown() : nullptr;
    return shown != nullptr && shown->Name == name;
}

bool PaneGraphWindow::BuildCopy(const GraphData &graph,
                                const std::function<void(std::string_view)> &addError) {
    errorLines = 0;
    lastAddError = addError;
    GraphBuildOutput output;
    output.add_error = [this](std::string_view line) {
        ++errorLines;
        if (lastAddError) lastAddError(line);
    };
    return build_in_graph_pane(workbench, document, graph, output);
}

bool PaneGraphWindow::Build(GraphData &graph,
                            const std::function<void(std::string_view)> &addError) {
    return BuildCopy(graph, addError);
}

void PaneGraphWindow::Refresh(GraphData &graph) {
    GraphPane *pane = Pane();
    GraphData *shown = pane != nullptr ? pane->Shown2D() : nullptr;
    // A 3-D chart takes its attributes only with its data.
    if (shown == nullptr) {
        BuildCopy(graph, lastAddError);
        return;
    }
    errorLines = 0;
    *shown = graph;
    pane->Redraw(document.Engine().angle_mode);
}

bool PaneGraphWindow::Recreate() {
    GraphPane *pane = Pane();
    if (pane == nullptr || pane->Shown() == nullptr) return false;
    const GraphData held(*pane->Shown());
    BuildCopy(held, lastAddError);
    return true;
}

}  // namespace quindar
