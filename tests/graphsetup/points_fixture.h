// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A document with one graph, its Graph Setup session and the Points page over a scripted
// window.

#include <gtest/gtest.h>

#include <vector>

#include "document_parts.h"
#include "parser.h"
#include "points_page_model.h"
#include "points_test_ui.h"
#include "setup_session.h"

namespace quindar::testing {

// Fills a set; null texts leave their slots empty.
inline void FillSet(StrDataPnts &set, const std::vector<const char *> &xs,
                    const std::vector<const char *> &ys, const char *z) {
    for (std::size_t i = 0; i < xs.size(); ++i)
        if (xs[i]) set.PutXDataPoint(xs[i], static_cast<int>(i));
    for (std::size_t i = 0; i < ys.size(); ++i)
        if (ys[i]) set.PutYDataPoint(ys[i], static_cast<int>(i));
    if (z) set.PutZDataPoint(z);
}

class PointsFixture : public ::testing::Test {
protected:
    PointsFixture() {
        GraphData *graph = content.graphs.add();
        graph->SetName("Graph1");
        content.currentGraph = graph;
        session.pages[kPagePoints] = &page;
    }
    ~PointsFixture() override { ui.Done(); }

    GraphData &Temp() { return session.temp; }

    // A set of the working copy; null texts leave their slots empty.
    StrDataPnts &AddSet(const char *name, std::vector<const char *> xs,
                        std::vector<const char *> ys, const char *z = nullptr) {
        StrDataPnts *set = Temp().DataSets.add();
        set->SetName(name);
        FillSet(*set, xs, ys, z);
        if (Temp().CurDataSet == nullptr) Temp().CurDataSet = set;
        return *set;
    }
    void SetAxes(bool x, bool z) {
        const Variable vx("x", complex{0, 0}, complex{1, 0}, 5);
        const Variable vz("z", complex{0, 0}, complex{1, 0}, 5);
        if (x) Temp().SetXAxisVar(&vx);
        if (z) Temp().SetZAxisVar(&vz);
    }
    // The user types into a cell and leaves it.
    bool Type(PointCell cell, const char *text) {
        page.EnterCell(cell);
        page.EditText(cell, text);
        const bool wasRefused = page.Grid().HasError(cell);
        page.LeaveCell(cell);
        return !wasRefused && !page.Grid().HasError(cell);
    }
    static std::string Text(const char *text) { return text ? text : "<none>"; }

    Parser parser{"", ""};
    DocumentContent content;
    GraphSetupSession session{parser, content};
    PointsTestUi ui;
    PointsPageModel page{session, ui};
};

inline constexpr PointCell X(int row) {
    return {PointColumn::X, row};
}
inline constexpr PointCell Y(int row) {
    return {PointColumn::Y, row};
}
inline constexpr PointCell Z{PointColumn::Z, 1};

}  // namespace quindar::testing
