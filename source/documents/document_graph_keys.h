// SPDX-License-Identifier: GPL-3.0-or-later
// The numeric keys of a graph's section in a document, and the kinds of graph they serve.
#pragma once

#include <span>

#include "graph_data.h"

namespace quindar {

// Kinds of graph as bits: GetGraphType 0, 1 and 2.
inline constexpr int kKindNone = 1;
inline constexpr int kKind2D = 2;
inline constexpr int kKind3D = 4;

inline constexpr int kind_bit(int graphType) {
    return 1 << graphType;
}

// One numeric key: an int field or a float field, the kinds it is written for, and the
// value a missing (or, for a float, empty) key reads as.
struct GraphNumberKey {
    const char *key;
    int kinds;
    int GraphData::*number;
    float GraphData::*real;
    float deflt;
};

// The 2-D keys, then the 3-D keys, each in writing order.
std::span<const GraphNumberKey> graph_keys_2d();
std::span<const GraphNumberKey> graph_keys_3d();

// Written between the first three colours and the rest, for every kind.
inline constexpr GraphNumberKey kShowGridLinesKey{"ShowGridLines", kKindNone | kKind2D | kKind3D,
                                                  &GraphData::ShowGridLines, nullptr, 1.0f};
// Colours up to this one come before ShowGridLines.
inline constexpr int kColorsBeforeGridLines = 3;

}  // namespace quindar
