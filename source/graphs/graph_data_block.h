// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The data block that opens a graph file: the chart's numbers as text, each written so that
// it reads back to the same double. The reader is strict: anything out of place fails it.
//
//   QUINDAR GRAPH DATA 1
//   KIND 2D                          KIND 3D
//   LAYOUT l SETS s POINTS p         GRID REGULAR|IRREGULAR NX nx NZ nz
//   HOLE h                           HOLE h
//   X x...        (layout 1)         ORIGIN xo zo STEP dx dz   (regular)
//   SET k / X x... (layout 2) / Y y...   XVALUES x... / ZVALUES z...  (irregular)
//                                    ROW ix v(iz = 0) ...   (one line per ix)
//   END GRAPH DATA

#include <string>
#include <string_view>

#include "chart_data.h"

namespace quindar {

std::string data_block_text(const ChartData2D &data);
std::string data_block_text(const ChartGrid3D &grid);

// The block at the start of text; rest is set to what follows it.
bool parse_data_block(std::string_view text, ChartData2D &data, std::string_view &rest,
                      std::string &error);
bool parse_data_block(std::string_view text, ChartGrid3D &grid, std::string_view &rest,
                      std::string &error);

}  // namespace quindar
