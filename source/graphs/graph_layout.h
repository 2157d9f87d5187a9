// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Whether the sets of a 2-D graph can share one X array (layout 1) or need their own (2): the
// decision the data check makes before every build.

#include "graph_data.h"
#include "parser.h"

namespace quindar {

// 1 or 2. The data sets' X texts are evaluated on the engine, silently; a text that fails
// counts as a difference.
int decide_data_layout(Parser &parser, const GraphData &graph);

// False when layout 2 is needed but the type draws only shared X values (message 24906).
bool layout_allowed(const GraphData &graph, int layout);

}  // namespace quindar
