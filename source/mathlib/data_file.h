// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The one format of data files: entries separated by any run of blanks, commas, tabs and
// line ends; an entry like `12)` is a label and takes no place; no comments.

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace quindar::mathlib {

enum class DataFileStatus {
    Read,
    CannotOpen,  // "Data File ' %s ' Could Not Be Located!"; also a folder, a device, no access
    NoData,      // "No Data Found In The ' %s ' Data File!"
    TooMany,     // "Too Many Data Points Found In The ' %s ' Data File, Limit Is 32767 Points!"
};

// Reading stops with an error when the count of entries reaches this.
inline constexpr int kDataEntryLimit = 32767;
// A file of more bytes than this is refused as too many data points: every entry is a line
// of the engine, which holds at most 1,024 characters, and all of them are kept in memory.
inline constexpr std::size_t kDataFileByteLimit = std::size_t{kDataEntryLimit} * 1024;

// The entries of a data file in file order.
DataFileStatus read_data_entries(const std::string &path, std::vector<std::string> &entries);

// One row of a point file: up to three coordinates; a missing one is empty.
struct PointRow {
    std::array<std::string, 3> coordinates;
    int count = 0;
};

// The rows of a point file: a line end or the end of the file ends a row, a row without
// entries makes no point, entries beyond the third are counted and dropped.
DataFileStatus read_data_points(const std::string &path, std::vector<PointRow> &rows);

// The message of a failed read, with the file name in it.
std::string data_file_message(DataFileStatus status, const std::string &path);

inline constexpr const char *kDataFileCaption = "Load Data Point File";

}  // namespace quindar::mathlib
