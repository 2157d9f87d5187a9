// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Labels page: header, footer, axis titles and the legend label of each row.

#include <array>

#include "labels_page_model.h"
#include "setup_page_widget.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace quindar {

class LabelsPage : public SetupPageWidget {
    Q_OBJECT
public:
    LabelsPage(LabelsPageModel &pageModel, QWidget *parent);

    void UpdatePage() override;

    QLineEdit *HeaderEdit() const { return header; }
    QLineEdit *FooterEdit() const { return footer; }
    QLineEdit *TitleEdit(AxisTitle axis) const { return titles[static_cast<std::size_t>(axis)]; }
    QListWidget *Rows() const { return rows; }
    QLineEdit *LabelEdit() const { return label; }

private:
    void ShowTitles();

    LabelsPageModel &model;
    QLineEdit *header = nullptr;
    QLineEdit *footer = nullptr;
    std::array<QLineEdit *, 3> titles{};
    QPushButton *defaultTitles = nullptr;
    QListWidget *rows = nullptr;
    QLineEdit *label = nullptr;
    // The page fills its edits: their change notices are ignored.
    bool loadingLabels = false;
};

}  // namespace quindar
