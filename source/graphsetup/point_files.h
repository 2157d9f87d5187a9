// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Point files of the Points page: one point a line, "X, Y, Z", the values kept as the texts
// the user typed. Reading goes through the one data file format of the program.

#include <string>
#include <vector>

#include "str_data_pnts.h"
#include "str_point.h"

namespace quindar {

// What a list of points is: 3-D as soon as a point has a Z, 2-D with any X or Y, else none.
enum class PointKind { None = 0, TwoD = 1, ThreeD = 2 };
PointKind point_kind(const std::vector<StrPoint> &points);

// The points of a file, or an empty list and the message that says why not (a missing
// file, no data, too many entries): nothing of a bad file is kept.
struct PointFileRead {
    std::vector<StrPoint> points;
    std::string error;
    bool ok() const { return error.empty(); }
};
PointFileRead read_point_file(const std::string &path);
inline constexpr const char *kPointFileReadCaption = "Load Data Point File";

// The file's text for a set: one line per index from 0 to the highest, X, then ", " and Y,
// then ", " and the set's Z. An absent X writes nothing, an absent Y only ", " when the set
// has a Z.
std::string point_file_text(const StrDataPnts &set);

// Writes the text through a temporary file beside `path`, so that a full disk or a failed
// write leaves any old file as it was. Empty on success, else what went wrong.
std::string write_point_file(const std::string &path, const StrDataPnts &set);

// The name part of a path, extension included.
std::string file_name_of(const std::string &path);

}  // namespace quindar
