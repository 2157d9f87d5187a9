// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "point_files.h"

#include "data_file.h"
#include "file_io.h"

namespace quindar {

PointKind point_kind(const std::vector<StrPoint> &points) {
    PointKind kind = PointKind::None;
    for (const StrPoint &point : points) {
        if (point.Z) return PointKind::ThreeD;
        if (point.X || point.Y) kind = PointKind::TwoD;
    }
    return kind;
}

PointFileRead read_point_file(const std::string &path) {
    PointFileRead read;
    std::vector<mathlib::PointRow> rows;
    const mathlib::DataFileStatus status = mathlib::read_data_points(path, rows);
    if (status != mathlib::DataFileStatus::Read) {
        read.error = mathlib::data_file_message(status, path);
        return read;
    }
    read.points.reserve(rows.size());
    for (const mathlib::PointRow &row : rows) {
        StrPoint &point = read.points.emplace_back();
        if (row.count > 0) point.SetXPoint(row.coordinates[0].c_str());
        if (row.count > 1) point.SetYPoint(row.coordinates[1].c_str());
        if (row.count > 2) point.SetZPoint(row.coordinates[2].c_str());
    }
    return read;
}

std::string point_file_text(const StrDataPnts &set) {
    std::string text;
    const char *z = set.GetZDataPoint();
    for (int i = 0; i <= set.GetMaxXYZPoint(); ++i) {
        if (const char *x = set.GetXDataPoint(i)) text += x;
        if (const char *y = set.GetYDataPoint(i)) {
            text += ", ";
            text += y;
        } else if (z) {
            text += ", ";
        }
        if (z) {
            text += ", ";
            text += z;
        }
        text += '\n';
    }
    return text;
}

std::string write_point_file(const std::string &path, const StrDataPnts &set) {
    const ReplaceOutcome outcome = replace_file(path, point_file_text(set));
    return outcome.written ? std::string{} : outcome.reason;
}

std::string file_name_of(const std::string &path) {
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace quindar
