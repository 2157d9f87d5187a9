// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The copy of the current graph into the working copy that Graph Setup edits. The graph's
// functions are checked against the Math Editor on the way: a changed definition is taken
// over with a message, a vanished one is offered to be declared again or dropped.

namespace quindar {

class SetupUi;
struct GraphSetupSession;

// Does nothing without a current graph.
void load_temp_graph(GraphSetupSession &session, SetupUi &ui);

}  // namespace quindar
