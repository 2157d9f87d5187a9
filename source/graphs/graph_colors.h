// SPDX-License-Identifier: GPL-3.0-or-later
// The sixteen colours of a graph: field, settings key, document key, default, kinds.
#pragma once

#include <span>

#include "graph_data.h"

namespace quindar {

// Which kinds of graph a colour is drawn in.
inline constexpr int kColorFor2D = 1;
inline constexpr int kColorFor3D = 2;

struct GraphColorInfo {
    TColor GraphData::*field;
    const char *settingsKey;  // under "Graph Default Colors" of the settings file
    const char *documentKey;  // in a graph's section of a document
    TColor deflt;
    int kinds;  // kColorFor2D | kColorFor3D
};

// In field order, which is also the order documents write them in.
std::span<const GraphColorInfo> graph_colors();

}  // namespace quindar
