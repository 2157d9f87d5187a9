// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "points_data_sets.h"

#include <algorithm>

#include "text_helpers.h"

namespace quindar {

int set_point_count(const StrDataPnts &set) {
    return set.GetMaxXYZPoint() + 1;
}

bool set_has_content(const StrDataPnts &set) {
    return set.GetMaxXYZPoint() >= 0;
}

bool set_has_points(const StrDataPnts &set) {
    return set.XPoints.count() > 0 || set.YPoints.count() > 0;
}

StrDataPnts *find_data_set(const GraphData &graph, std::string_view name) {
    for (StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next)
        if (text::equal_no_case(set->Name, name)) return set;
    return nullptr;
}

bool data_set_name_taken(const GraphData &graph, std::string_view prefix) {
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next) {
        const std::string_view name = set->Name;
        if (name.size() >= prefix.size() &&
            text::equal_no_case(name.substr(0, prefix.size()), prefix))
            return true;
    }
    return false;
}

int data_set_position(const GraphData &graph, const StrDataPnts *set) {
    int position = 0;
    for (const StrDataPnts *s = graph.DataSets.gethead(); s != nullptr; s = s->next, ++position)
        if (s == set) return position;
    return -1;
}

std::vector<std::string> data_set_names(const GraphData &graph) {
    std::vector<std::string> names;
    for (const StrDataPnts *set = graph.DataSets.gethead(); set != nullptr; set = set->next)
        names.push_back(set->Name);
    return names;
}

std::string new_data_set_name(const GraphData &graph) {
    for (int n = 1;; ++n) {
        std::string name = "DataSet" + std::to_string(n);
        if (!data_set_name_taken(graph, name)) return name;
    }
}

std::string point_file_set_name(const GraphData &graph, std::string_view fileName) {
    const std::size_t dot = fileName.find('.');
    const std::string_view stem = fileName.substr(0, dot);
    const std::string_view extension =
        dot == std::string_view::npos ? std::string_view{} : fileName.substr(dot);
    std::string name(fileName);
    for (int n = 1; data_set_name_taken(graph, name); ++n)
        name = std::string(stem) + std::to_string(n) + std::string(extension);
    return name;
}

StrDataPnts &add_data_set(GraphData &graph, std::string_view name, bool copyCommonX) {
    const StrDataPnts *first = graph.DataSets.gethead();
    StrDataPnts &set = *graph.DataSets.add();
    set.Name = std::string(name);
    if (copyCommonX && first != nullptr)
        for (int i = 0; i <= first->XPoints.maxfullindex(); ++i)
            if (const char *x = first->GetXDataPoint(i)) set.PutXDataPoint(x, i);
    return set;
}

void put_x_point(GraphData &graph, StrDataPnts &set, const char *text, int index) {
    set.PutXDataPoint(text, index);
    if (graph.GetGraphType() != kGraph3D) return;
    for (StrDataPnts *other = graph.DataSets.gethead(); other != nullptr; other = other->next)
        if (other != &set) other->PutXDataPoint(text, index);
}

void insert_point(GraphData &graph, StrDataPnts &set, int index, bool allSets) {
    for (StrDataPnts *s = graph.DataSets.gethead(); s != nullptr; s = s->next) {
        if (s != &set && !allSets) continue;
        s->InsertXDataPoint(nullptr, index);
        s->InsertYDataPoint(nullptr, index);
    }
}

void delete_point(GraphData &graph, StrDataPnts &set, int index, bool allSets) {
    for (StrDataPnts *s = graph.DataSets.gethead(); s != nullptr; s = s->next) {
        if (s != &set && !allSets) continue;
        s->DeleteXDataPoint(index);
        s->DeleteYDataPoint(index);
    }
}

void copy_data_sets(const GraphData &from, GraphData &to) {
    to.DataSets.flush();
    to.CurDataSet = nullptr;
    for (const StrDataPnts *set = from.DataSets.gethead(); set != nullptr; set = set->next) {
        StrDataPnts *copy = to.DataSets.add();
        *copy = *set;
        if (set == from.CurDataSet) to.CurDataSet = copy;
    }
    if (to.CurDataSet == nullptr) to.CurDataSet = to.DataSets.gethead();
}

}  // namespace quindar
