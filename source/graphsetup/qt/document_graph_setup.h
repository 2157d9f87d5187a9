// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Graph Setup of a document: its session, kept by the document so that the working copy
// outlives the sheet, and the one sheet of the whole program. The Graph Setup command and the
// graph pane's clicks open it; the Function Solver and the Function Library hand functions to
// its Functions page.

#include <QPoint>
#include <optional>
#include <string>

namespace quindar {

class DocumentWindow;
class GraphSetupSheet;
class SetupGraphWindow;
class Workbench;
struct GraphSetupSession;

// The document's session and its graph window as Graph Setup sees them, made on first use.
GraphSetupSession &document_setup_session(Workbench &workbench, DocumentWindow &document);
SetupGraphWindow &document_setup_window(Workbench &workbench, DocumentWindow &document);

// Opens the sheet (GraphFunctionsSetup): at `at` on the screen, or centred. An open sheet of
// another document closes first; one of this document is left as it is.
GraphSetupSheet *open_graph_setup(Workbench &workbench, DocumentWindow &document,
                                  std::optional<QPoint> at = std::nullopt);
GraphSetupSheet *find_graph_setup(DocumentWindow &document);
// CmCloseGraphFunctionsSetup: closes the document's sheet; true when one was showing.
bool close_graph_setup(Workbench &workbench, DocumentWindow &document);
// The sheet shows its Functions page (IsFunToGraphListWindowOpen).
bool functions_page_showing(DocumentWindow &document);
// Adds a function to the Functions page that shows; false when none shows or it refused.
bool add_graph_function(DocumentWindow &document, const std::string &rowText);

// The Graph Setup command and entry points of every document, before the tools already
// installed (the graph tools among them).
void install_graph_setup_tools(Workbench &workbench);

}  // namespace quindar
