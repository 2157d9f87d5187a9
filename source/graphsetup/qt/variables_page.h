// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Variables page: the functions to graph, their common variables, and the X and Z axes
// with their limits and numbers of points.

#include <array>

#include "setup_page_widget.h"
#include "variables_page_model.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace quindar {

class VariablesPage : public SetupPageWidget {
    Q_OBJECT
public:
    VariablesPage(VariablesPageModel &pageModel, QWidget *parent);
    ~VariablesPage() override;

    void UpdatePage() override;
    // An edit left with a text the page refuses keeps the page.
    bool KillActive() override;

    QLineEdit *Edit(AxisText text) const { return edits[static_cast<std::size_t>(text)]; }
    QComboBox *AxisBox(bool z) const { return z ? zAxis : xAxis; }
    QListWidget *FunctionsList() const { return functions; }
    QListWidget *CommonList() const { return common; }

private:
    QWidget *MakeAxisGroup(const QString &title, bool z);
    // The combo boxes and edits from the model's texts.
    void ShowTexts();
    // The edit is left: the model checks its text; false when refused.
    bool LeaveEdit(AxisText text);

    VariablesPageModel &model;
    QListWidget *functions = nullptr;
    QListWidget *common = nullptr;
    QComboBox *xAxis = nullptr;
    QComboBox *zAxis = nullptr;
    // Null at the two names, which are the combo boxes.
    std::array<QLineEdit *, kAxisTextCount> edits{};
    QPushButton *editVariables = nullptr;
    QPushButton *clearZ = nullptr;
    // The page fills its controls: their signals are no user edits.
    bool filling = false;
    // A refusal is showing its message, which takes the focus from the edit.
    bool checking = false;
};

}  // namespace quindar
