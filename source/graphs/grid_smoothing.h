// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Smoothing of a computed 3-D grid (the graph window's Smooth command): each value moves
// towards the mean of its neighbours by a weight. Holes stay holes and never lend a value.

#include "chart_data.h"

namespace quindar {

inline constexpr double kSmoothWeight = 0.5;

// Every cell that is not a hole becomes (1 - weight) * itself + weight * the mean of its
// up to eight neighbours that are not holes; a cell with no such neighbour keeps its value.
void smooth_grid(ChartGrid3D &grid, double weight = kSmoothWeight);

}  // namespace quindar
