// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Types page: the 2-D type of a 2-D graph, or the attribute digits of a 3-D one. The
// dimension itself follows from what the graph holds; this page never chooses it.

#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class TypesPageModel : public SetupPageModel {
public:
    TypesPageModel(GraphSetupSession &session, SetupUi &ui) : SetupPageModel(session, ui) {}

    int Index() const override { return kPageTypes; }

    // Which group of controls the working copy can use.
    bool TwoDEnabled() const;
    bool ThreeDEnabled() const;
    // The stored 2-D type, and digit 1 to 7 of the 3-D attributes.
    int Type2D() const;
    bool Attribute3D(int digit) const;

    // A 2-D type chosen; ignored for a graph that is not 2-D.
    void Choose2DType(int stored);
    // A 3-D attribute switched (digit 7: "Bar" on, "Surface" off); ignored unless 3-D.
    void Set3DAttribute(int digit, bool on);

    void ApplyChanges() override;
    // A 2-D type that needs several functions or data sets gets them.
    bool CheckData(GraphData &graph) override;
};

}  // namespace quindar
