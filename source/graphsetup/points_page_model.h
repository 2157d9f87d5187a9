// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Points page without its window: the data sets of the working copy, edited through a
// grid of five points over a set of any length, point files loaded and saved, and the check
// of whether the sets can be drawn. The window mirrors the eleven cells' texts here and
// refills its controls from this model after each step.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "point_files.h"
#include "points_grid.h"
#include "points_values.h"
#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class StrDataPnts;

// Which controls of the page can be used now.
struct PointsPageEnables {
    bool dataBoxes = false;  // the eleven edits, the radios and the spinner
    bool insert = false, deletePoint = false, clear = false, save = false;
    bool first = false, last = false;
    bool prevSet = false, nextSet = false;
    bool remove = false, editName = false;
};

class PointsPageModel : public SetupPageModel {
public:
    PointsPageModel(GraphSetupSession &session, SetupUi &ui);

    int Index() const override { return kPagePoints; }
    void SetActive() override;
    void ApplyChanges() override;
    bool CheckData(GraphData &graph) override;

    // Follows the working copy: a new current set, or one reloaded after the copy was
    // refilled, starts at point 1. True when the grid was refilled.
    bool UpdatePage();
    // The set shown; null when the working copy has none.
    StrDataPnts *CurrentSet() const;
    const PointsGrid &Grid() const { return grid; }
    PointsPageEnables Enables() const;
    // "Pt %d" for a row, numbered from 1; the point count the page shows.
    std::string RowCaption(int row) const;
    int PointCount() const;
    std::vector<std::string> SetNames() const;
    // Position of the current set in the list; -1 for none.
    int CurrentSetPosition() const;

    // The eleven cells' texts as their edits show them.
    const std::string &CellText(PointCell cell) const;
    // The user changed a cell's text; a change from the stored text marks the page.
    void EditText(PointCell cell, std::string_view text);
    // Takes a cell's text into the set: the one way typed data enters. Text that is not a
    // real number is refused with its message and the cell keeps its error flag.
    bool GetDataPoint(PointCell cell);
    // The focus enters or leaves a cell. While a cell holds a refused text, the focus goes
    // back to it once and the flags are cleared, so no focus change can loop.
    void EnterCell(PointCell cell);
    void LeaveCell(PointCell cell);
    // Where the window must put the focus now (a refused cell, an arrow key's target).
    std::optional<PointCell> TakeFocusRequest();
    // Whether the page may be left: not while a cell holds a refused text, which then gets
    // the focus back.
    bool LeavePage();
    bool InDataControl() const { return inDataControl; }

    // Scrolling from the spinner; refused while the current cell's text is refused.
    bool PointsUpDown(int delta);
    void First();
    void Last();
    // Up, Down, Left and Right in the grid (Enter goes down, Tab right).
    void Key(GridKey key);
    // A click on a row's radio.
    void ClickRow(int row);

    // Data sets: "Add Set" with the combo box's text, Remove of the named set, a set chosen
    // by the combo box or by Prev and Next, and "Edit Set Name".
    void AddSet(std::string_view comboText);
    void RemoveSet(std::string_view comboText);
    void ChangeSet(int position);
    void StepSet(int delta);
    bool SetNameUsed(std::string_view name) const;
    // False, with message 25202, when a set's name begins with it.
    bool RenameCurrentSet(std::string_view name);

    // Insert, Delete and Clear of points.
    void InsertPoint();
    void DeletePoint();
    void ClearPoints();

    // Point files: the guards before the file dialog, then the chosen path.
    bool BeginLoadFile();
    void LoadFile(const std::string &path);
    bool BeginSaveFile();
    // The file name the save dialog proposes.
    std::string SaveProposal() const;
    bool SaveFile(const std::string &path);

    // Points of a file into the sets: into the current set when it is empty, else by the
    // user's choice behind its points or into a new set `name`.
    void AddData(const std::vector<StrPoint> &points, PointKind kind, const std::string &name);
    void AddDataPoints(const std::vector<StrPoint> &points, int offset);

private:
    GraphData &Temp();
    // The edit marks the page, the current graph and the working copy.
    void DataChanged();
    // False, with message 24634 and the Graphs page, when the document has no graph.
    bool HaveGraph();
    // The guards of Insert, Delete and Clear.
    bool HaveSet(bool needRow);
    void ClearPage();
    void LoadDataSet(StrDataPnts *set);
    void FillCells();
    std::string &Cell(PointCell cell);
    const char *StoredText(PointCell cell) const;
    // Stores a cell's text (null clears) where the cell points.
    void Store(PointCell cell, const char *text);
    bool ScrollBy(int delta);
    // A Z of the list that differs in value from `reference`; false at the first evaluation
    // error, which shows its message.
    bool ZValuesDiffer(const std::vector<StrPoint> &points, const std::string &reference);

    PointValues values;
    PointsGrid grid;
    StrDataPnts *currentSet = nullptr;
    std::array<std::string, kGridCells> cells;
    std::optional<PointCell> focusRequest;
    bool pageReady = false;
    // Down while the page fills its own cells, so that filling is no edit.
    bool trackChanges = true;
    bool inDataControl = false;
};

}  // namespace quindar
