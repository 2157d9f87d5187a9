// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Point files loaded into the sets and saved from them.
#include "message_box_rules.h"
#include "point_files.h"
#include "points_data_sets.h"
#include "points_messages.h"
#include "points_page_model.h"
#include "setup_session.h"
#include "setup_ui.h"

namespace quindar {

bool PointsPageModel::BeginLoadFile() {
    if (!HaveGraph()) return false;
    GraphData &temp = Temp();
    if (temp.DataSets.count() == 0 && temp.XAxisVar && temp.ZAxisVar) {
        ui.Message(kMsgPointsWith3DFunction, {}, kBoxWarning);
        return false;
    }
    return true;
}

void PointsPageModel::LoadFile(const std::string &path) {
    GraphData &temp = Temp();
    const std::string name = point_file_set_name(temp, file_name_of(path));
    const PointFileRead read = read_point_file(path);
    if (!read.ok()) {
        ui.ShowText(read.error, kPointFileReadCaption);
        return;
    }
    const PointKind kind = point_kind(read.points);
    const int type = temp.GetGraphType();
    if (temp.GetNumFunctions() > 0 && type == kGraph3D) {
        ui.Message(kMsgFunctionWith3DPoints, {}, kBoxWarning);
        return;
    }
    if (kind == PointKind::None) {
        ui.Message(kMsgNoDataInFile, {}, kBoxWarning);
        return;
    }
    if (kind == PointKind::TwoD && type == kGraph3D &&
        ui.Message(kMsg2DInto3D, {}, kBoxWarningYesNo) != kIdYes)
        return;
    if (kind == PointKind::ThreeD && type == kGraph2D &&
        ui.Message(kMsg3DInto2D, {}, kBoxWarningYesNo) != kIdYes)
        return;
    AddData(read.points, kind, name);
}

bool PointsPageModel::ZValuesDiffer(const std::vector<StrPoint> &points,
                                    const std::string &reference) {
    complex first;
    bool haveFirst = false;
    for (const StrPoint &point : points) {
        if (!point.Z || *point.Z == reference) continue;
        complex z;
        if (!haveFirst && !values.Enter(reference.c_str(), first)) return false;
        haveFirst = true;
        if (!values.Enter(point.Z->c_str(), z)) return false;
        if (!values.Same(z, first)) return true;
    }
    return false;
}

void PointsPageModel::AddData(const std::vector<StrPoint> &points, PointKind kind,
                              const std::string &name) {
    GraphData &temp = Temp();
    StrDataPnts *set = CurrentSet();
    if (set == nullptr) {
        temp.CurDataSet = &add_data_set(temp, name, false);
        ClearPage();
        LoadDataSet(temp.CurDataSet);
        AddDataPoints(points, 0);
        FillCells();
        return;
    }
    int offset = 0;
    const bool xOnly = set->XPoints.count() > 0 && set->YPoints.count() == 0 && !set->ZPoint;
    if (!set_has_content(*set)) {
        set->SetName(name.c_str());
    } else if (kind == PointKind::ThreeD && xOnly) {
        // A row of a surface whose X was copied from the first set takes the file's own.
        set->XPoints.flush();
    } else {
        const int answer = ui.Message(kMsgAddToCurrentSet, {}, kBoxQuestionYesNoCancel);
        if (answer == kIdNo) {
            const StrPoint *firstZ = nullptr;
            for (const StrPoint &point : points)
                if (point.Z && !firstZ) firstZ = &point;
            if (firstZ && ZValuesDiffer(points, *firstZ->Z))
                ui.Message(kMsgZForcedToFirst, {}, kBoxWarning);
            temp.CurDataSet = &add_data_set(temp, name, false);
            ClearPage();
            LoadDataSet(temp.CurDataSet);
            set = temp.CurDataSet;
        } else if (answer == kIdYes) {
            offset = set_point_count(*set);
            const int highest = offset + static_cast<int>(points.size()) - 1;
            if (kind == PointKind::ThreeD) {
                for (const StrDataPnts *other = temp.DataSets.gethead(); other;
                     other = other->next) {
                    if (other != set && other->GetMaxXYZPoint() < highest) {
                        ui.Message(kMsgXAddedToOtherSets, {}, kBoxWarning);
                        break;
                    }
                }
            }
            if (set->ZPoint && ZValuesDiffer(points, *set->ZPoint))
                ui.Message(kMsgZOfCurrentSetKept, {}, kBoxWarning);
        } else {
            return;
        }
    }
    AddDataPoints(points, offset);
    // The cells show the new points before Last takes the current cell's text.
    FillCells();
    Last();
}

void PointsPageModel::AddDataPoints(const std::vector<StrPoint> &points, int offset) {
    StrDataPnts *set = CurrentSet();
    if (set == nullptr) return;
    GraphData &temp = Temp();
    bool stored = false;
    bool zFromFile = false;
    bool warned = false;
    if (!set->ZPoint && !points.empty() && points.front().Z) {
        set->PutZDataPoint(points.front().GetZPoint());
        zFromFile = stored = true;
    }
    for (std::size_t i = 0; i < points.size(); ++i) {
        const StrPoint &point = points[i];
        const int index = offset + static_cast<int>(i);
        put_x_point(temp, *set, point.GetXPoint(), index);
        set->PutYDataPoint(point.GetYPoint(), index);
        stored = stored || point.X || point.Y;
        if (!point.Z) continue;
        if (!set->ZPoint) {
            set->PutZDataPoint(point.GetZPoint());
            stored = true;
        } else if (zFromFile && !warned && *point.Z != *set->ZPoint) {
            ui.Message(kMsgInconsistentZ, {*set->ZPoint}, kBoxWarning);
            warned = true;
        }
    }
    if (stored) DataChanged();
}

bool PointsPageModel::BeginSaveFile() {
    const StrDataPnts *set = CurrentSet();
    if (set == nullptr) {
        ui.Message(kMsgNoDataSet, {}, kBoxWarning);
        return false;
    }
    if (!set_has_points(*set)) {
        ui.Message(kMsgNothingToSave, {}, kBoxWarning);
        return false;
    }
    return true;
}

std::string PointsPageModel::SaveProposal() const {
    const StrDataPnts *set = CurrentSet();
    return set ? set->Name : std::string{};
}

bool PointsPageModel::SaveFile(const std::string &path) {
    const StrDataPnts *set = CurrentSet();
    if (set == nullptr) return false;
    const std::string reason = write_point_file(path, *set);
    if (reason.empty()) return true;
    ui.Message(kMsgPointFileNotSaved, {path, reason}, kBoxWarning);
    return false;
}

}  // namespace quindar
