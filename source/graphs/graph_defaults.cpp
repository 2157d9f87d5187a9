// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_defaults.h"

#include <cstddef>

#include "graph_colors.h"

namespace quindar {

GraphDefaults::GraphDefaults() {
    const auto table = graph_colors();
    for (std::size_t i = 0; i < colors.size() && i < table.size(); ++i) colors[i] = table[i].deflt;
}

}  // namespace quindar
