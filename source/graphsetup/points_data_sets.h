// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The data sets of a graph as the Points page edits them: finding and naming sets, and the
// edits that reach every set of a surface, whose sets share their X values.

#include <string>
#include <string_view>
#include <vector>

#include "graph_data.h"

namespace quindar {

// Points as the page counts them: the highest index plus one (slots may be empty).
int set_point_count(const StrDataPnts &set);
// Anything at all: a point or a Z.
bool set_has_content(const StrDataPnts &set);
// X or Y values.
bool set_has_points(const StrDataPnts &set);

// The set of that name (exactly, ignoring case), or null.
StrDataPnts *find_data_set(const GraphData &graph, std::string_view name);
// Some set's name begins with `prefix`, ignoring case: the test the set list's search makes.
bool data_set_name_taken(const GraphData &graph, std::string_view prefix);
int data_set_position(const GraphData &graph, const StrDataPnts *set);
std::vector<std::string> data_set_names(const GraphData &graph);

// "DataSet" with the first number from 1 that no set's name begins with.
std::string new_data_set_name(const GraphData &graph);
// A point file's name for a new set: the name itself, or while a set's name begins with it,
// the part from the first "." replaced by a counter from 1 with the extension added back
// (data.txt, data1.txt, data2.txt).
std::string point_file_set_name(const GraphData &graph, std::string_view fileName);

// A new set at the end of the graph's sets; in 3-D it starts with the X values of the first
// set, so that a new row of a surface has the common X.
StrDataPnts &add_data_set(GraphData &graph, std::string_view name, bool copyCommonX);

// X of point `index` in `set`, and in a 3-D graph the same index of every set. Null clears.
void put_x_point(GraphData &graph, StrDataPnts &set, const char *text, int index);
// An empty point opens at `index` (later points move up), or the point goes; in every set
// when `allSets`.
void insert_point(GraphData &graph, StrDataPnts &set, int index, bool allSets);
void delete_point(GraphData &graph, StrDataPnts &set, int index, bool allSets);

// Copies every set of `from` into `to` (names, labels, slots and Z); `to`'s current set
// becomes its set named as `from`'s current one, or its first.
void copy_data_sets(const GraphData &from, GraphData &to);

}  // namespace quindar
