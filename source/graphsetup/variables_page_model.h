// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Variables page: which common variables span the X and Z axes of a function graph, with
// their limits and numbers of points, and the check that every other variable has a value.
// Limits typed here live in the working copy only; the Math Editor's variables stay as they
// are.

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "complex.h"
#include "setup_page_model.h"
#include "setup_pages.h"

namespace quindar {

class Variable;

// The eight texts of the page: the two axis names and their edits.
enum AxisText : int {
    kXName = 0,
    kXLow,
    kXHigh,
    kXPoints,
    kZName,
    kZLow,
    kZHigh,
    kZPoints,
};
inline constexpr int kAxisTextCount = 8;

// The control that shows a text (the combo boxes for the names).
int axis_text_control(AxisText text);

class VariablesPageModel : public SetupPageModel {
public:
    using Texts = std::array<std::optional<std::string>, kAxisTextCount>;

    VariablesPageModel(GraphSetupSession &session, SetupUi &ui);

    int Index() const override { return kPageVariables; }

    // What the controls show, refilled by UpdatePage.
    std::vector<std::string> functionRows;  // the working copy's functions
    std::vector<std::string> commonRows;    // the common variables, tail first
    std::vector<std::string> axisChoices;   // the same, head first, for both combo boxes
    // A text that is absent shows as an empty control.
    const std::optional<std::string> &Text(AxisText text) const {
        return current[static_cast<std::size_t>(text)];
    }
    // The page is filling its controls: what they report now is no user edit.
    bool Loading() const { return loading; }

    // First pick, lists and edits from the working copy; the saved texts follow.
    void UpdatePage();
    void PrePickXAxisVar();

    // The user chose a variable in a combo box (the texts are refilled from the axes).
    void ChooseXAxisVar(const std::string &name);
    void ChooseZAxisVar(const std::string &name);
    // "Clear Z Axis".
    void ClearZAxisVar();

    // A keystroke in an edit: a text that differs from the saved one asks for new data at once.
    void TextTyped(AxisText text, const std::string &typed);
    // The edit is left: the text is checked and stored in the axis variable. False when it
    // is refused: the message has shown, the focus is asked back, and Text() holds what the
    // edit is to show again.
    bool LeaveEdit(AxisText text, const std::string &typed);

    // "Edit Variables" (or a double click on the common variables): the Variable Manager on
    // the row's variable, the first one when no row is chosen (-1).
    void EditVariables(int commonRow);

    // Marks the edit when any text differs from the saved one.
    void SetPageChanged();
    void SaveOldParams() { saved = current; }

    void ApplyChanges() override;
    bool CheckData(GraphData &graph) override;

    // Told when a check changed the working copy's axes behind the controls' back.
    std::function<void()> axesChanged;

private:
    void AxesChanged(const GraphData &graph);
    void FillAxisTexts();
    bool LeaveLimit(AxisText text, const std::string &typed, const std::optional<std::string> &old);
    bool LeavePoints(AxisText text, const std::string &typed,
                     const std::optional<std::string> &old);
    // Refuses the edit: message (0 for none, the parser has spoken), focus back, old text
    // back or the value taken down when there was none.
    bool Refuse(AxisText text, const std::optional<std::string> &old, int messageId);
    Variable *AxisOf(AxisText text) const;
    bool Evaluate(const std::string &typed, complex &value);
    bool CheckAxis(Variable &axis, bool isX);
    bool CheckUndeclaredVariables(GraphData &graph);

    Texts current;
    Texts saved;
    bool loading = true;
};

}  // namespace quindar
