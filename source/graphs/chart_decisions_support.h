// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the 2-D and 3-D chart decisions share: the colour table rows and the legend text rule.

#include <string>

#include "graph_data.h"

namespace quindar {

// One colour property of a chart: its number, the graph's field and the key it is filed under.
struct ColorProperty {
    int id;
    TColor GraphData::*field;
    const char *name;
};

// A set's legend text: its label, or its name when it has none.
inline std::string label_or_name(const std::string &label, const std::string &name) {
    return label.empty() ? name : label;
}

}  // namespace quindar
