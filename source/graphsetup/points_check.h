// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Whether the data sets of a graph can be drawn at all, and for 2-D whether the sets share
// one X array (DataLayout). The first failure shows its message, selects the Points page and
// ends the check.

#include "graph_data.h"

namespace quindar {

class Parser;
class SetupUi;

bool check_data_points(GraphData &graph, Parser &parser, SetupUi &ui);

// The message the counts of one set give (x and y the occupied X and Y slots, z a Z), or 0
// when they agree.
int point_count_message(const StrDataPnts &set);

}  // namespace quindar
