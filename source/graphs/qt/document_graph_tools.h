// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The graph commands of a document: its graph pane, which takes the document's place while it
// shows (the text stays, hidden, and comes back unchanged), the build of the current graph,
// Copy, Print, Save Graph To File and Open Graph From File.

#include <QObject>

#include "graph_builder.h"

class QMenu;
class QWidget;

namespace quindar {

class DocumentWindow;
class GraphData;
class GraphPane;
class Workbench;

// Answers the graph commands of every document through the workbench's document tools,
// handing other commands to the tools installed before.
void install_graph_tools(Workbench &workbench);

// The graph pane's pop-up: the Graph menu's items, then the way back to the text. The caller
// shows it.
QMenu *make_graph_popup(Workbench &workbench, QWidget *parent);

// The graph pane of a document, made on first use.
GraphPane &document_graph_pane(Workbench &workbench, DocumentWindow &document);

// Shows the document's graph pane and builds graph there (Graph Setup's working copy); true
// when the data is complete.
bool build_in_graph_pane(Workbench &workbench, DocumentWindow &document, const GraphData &graph,
                         const GraphBuildOutput &output);

}  // namespace quindar
