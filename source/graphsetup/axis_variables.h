// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Which variables span the axes of a function graph: the first pick, and the user's choice of
// an X or Z variable with the swaps it may cause. The working copy holds copies; the Math
// Editor's own variables are only read.

#include <string>

#include "variable.h"

namespace quindar {

class GraphData;
class Parser;

// The variable an axis gets for `name`: the parser's variable of that name when it carries a
// range, else a new one from 1 to 10 in 25 points.
Variable axis_candidate(Parser &parser, const std::string &name);

// With no X variable yet: the common variables are listed again, X takes the last of them,
// and Z the one before when there are exactly two. So one variable gives a 2-D graph, two a
// 3-D graph, with no action by the user.
void pre_pick_axis_vars(GraphData &graph, Parser &parser);

// The user chose `name` for the X axis (for the Z axis). An empty name leaves the variables
// as they are; the present variable's name changes nothing; the other axis's name swaps the
// two axes with the titles the user set. Choosing for Z the X variable while Z is empty moves
// it to Z and gives X the next common variable.
void choose_x_axis_var(GraphData &graph, Parser &parser, const std::string &name);
void choose_z_axis_var(GraphData &graph, Parser &parser, const std::string &name);

// Puts an axis's limits in rising order of their real parts, keeping its number of points;
// true when they were turned round.
bool order_axis_limits(Variable &variable);

}  // namespace quindar
