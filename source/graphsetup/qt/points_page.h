// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Points page: the data sets of the working copy, a grid of five points with its
// spinner, and point files. Every rule is in PointsPageModel; the page passes the user's
// edits on and refills its controls from the model.

#include <array>
#include <optional>

#include "points_grid.h"
#include "setup_page_widget.h"
#include "setup_page_widgets.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;

namespace quindar {

class PointsPageModel;
class PointsSetNameDialog;

class PointsPage final : public SetupPageWidget {
    Q_OBJECT
public:
    PointsPage(PointsPageModel &model, SetupPageContext &context, QWidget *parent);

    void UpdatePage() override;
    bool KillActive() override;
    void Next() override;
    void Prev() override;

    QLineEdit *CellEdit(PointCell cell) const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void BuildSetRow();
    void BuildGrid();
    void BuildButtons();
    QPushButton *AddButton(const QString &text, const char *name, void (PointsPage::*slot)());

    // Refills every control from the model.
    void Refresh();
    void PaintSelection();
    // Gives the focus to the cell the model asks for, after the event that asked is over.
    void ApplyFocusRequest();
    std::optional<PointCell> CellOf(QObject *object) const;

    void AddSet();
    void RemoveSet();
    void EditSetName();
    void PrevSet();
    void NextSet();
    void First();
    void Last();
    void InsertPoint();
    void DeletePoint();
    void ClearPoints();
    void LoadFile();
    void SaveFile();
    void ScrollTo(int top);

    PointsPageModel &points;
    // A copy: the context the sheet made the page with need not outlive it.
    SetupPageContext context;
    QComboBox *setCombo = nullptr;
    QPushButton *addSet = nullptr, *editName = nullptr, *removeSet = nullptr;
    QPushButton *prevSet = nullptr, *nextSet = nullptr;
    QPushButton *first = nullptr, *last = nullptr;
    QPushButton *insert = nullptr, *deletePoint = nullptr, *clear = nullptr;
    QPushButton *load = nullptr, *save = nullptr;
    QLabel *count = nullptr;
    QScrollBar *spinner = nullptr;
    std::array<QRadioButton *, kGridRows> radios{};
    std::array<QLineEdit *, kGridCells> edits{};  // in the keyboard's order
    PointsSetNameDialog *nameDialog = nullptr;
    // Up while the page itself moves the focus or shows a box from a focus change, so that
    // the focus events this causes are not taken as the user's.
    bool busy = false;
    bool filling = false;
};

}  // namespace quindar
