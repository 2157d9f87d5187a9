// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The frame of each page's ApplyChanges: whether there is anything to copy, and what follows
// the copy.

namespace quindar {

class GraphData;
class SetupUi;
struct GraphSetupSession;

// The current graph to copy a page's share to; null without one, or when the page was not
// shown since the working copy was loaded.
GraphData *apply_target(GraphSetupSession &session, bool visited);
// After the copy: the document has changed, the page has nothing left to apply, and the
// current graph holds what the working copy holds.
void page_applied(GraphSetupSession &session, SetupUi &ui, int pageIndex, GraphData &current);

}  // namespace quindar
