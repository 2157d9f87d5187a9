// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Labels page: header, footer, axis titles and the legend label of each declared function
// and data set. Every edit here changes only how the graph looks.

#include <string>
#include <vector>

#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class GraphData;

enum AxisTitle : int { kTitleX = 0, kTitleY, kTitleZ };

class LabelsPageModel : public SetupPageModel {
public:
    LabelsPageModel(GraphSetupSession &session, SetupUi &ui) : SetupPageModel(session, ui) {}

    int Index() const override { return kPageLabels; }

    // "Data Sets and Functions": the declared functions as "name = value", then the data
    // sets by name; embedded and library functions have no row.
    std::vector<std::string> rows;

    // Refills the rows; an empty axis title gets its automatic one first.
    void UpdatePage();
    // The working copy the page shows.
    const GraphData &Working() const;
    // The Z title belongs to 3-D graphs only.
    bool ZTitleEnabled() const;
    const std::string &Title(AxisTitle axis) const;

    void HeaderTyped(const std::string &text);
    void FooterTyped(const std::string &text);
    // An axis can't lose its title: an empty text is refused with a message, and false tells
    // the edit to show Title() again.
    bool TitleTyped(AxisTitle axis, const std::string &text);

    // A row chosen; returns the label the "Labels" edit shows.
    std::string SelectRow(int row);
    // The label of the chosen row.
    std::string SelectedLabel() const;
    void LabelTyped(const std::string &text);

    // "Set Default Titles": the footer and axis titles made afresh.
    void SetDefaultTitles();

    void ApplyChanges() override;
};

}  // namespace quindar
