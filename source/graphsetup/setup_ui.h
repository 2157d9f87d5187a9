// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the Graph Setup rules ask of their window. The sheet implements it over Qt; the model
// tests over a recorder that answers message boxes from a script.

#include <initializer_list>
#include <string>
#include <string_view>

namespace quindar {

class SetupUi {
public:
    virtual ~SetupUi() = default;

    // Message `textId` titled "Graphing Utility", its "%s" fields filled in order; `flags` are
    // the message box flags (kBoxWarning, kBoxWarningYesNo, ...). Returns the button pressed.
    virtual int Message(int textId, std::initializer_list<std::string_view> fields,
                        unsigned flags) = 0;
    // A sound of the program's ("QClick.wav", "Error.wav").
    virtual void Sound(std::string_view file) = 0;

    // Brings page `index` to the front; the page showing now, or -1 without a window.
    virtual void SelectPage(int index) = 0;
    virtual int ShowingPage() const = 0;
    // Gives the focus to control `controlId` of page `index` (deferred, so that a refusal
    // made from a focus change does not loop).
    virtual void FocusControl(int index, int controlId) = 0;
    // Arms the sheet's Apply; disarms it for one page.
    virtual void PageChanged() = 0;
    virtual void PageUnchanged(int index) = 0;
    // Hands the focus to the Math Editor that owns the sheet.
    virtual void FocusEditor() = 0;

    // The document's Function Manager on `name` = `value` (add or edit); true when the function
    // is declared afterwards.
    virtual bool AddEditFunction(const std::string &name, const std::string &value) = 0;
    // The document's Variable Manager on `name`; true when it was opened.
    virtual bool EditVariable(const std::string &name) = 0;

    // Enables or disables every page but Colors while a build runs, so that the working copy
    // stays as it is meanwhile. A window without a build has nothing to do.
    virtual void EnableGraphSetup(bool /*enable*/) {}
    // The document's Function Manager, modal, on `name` (empty: none chosen); the program's
    // Function Library. Only the Functions page opens them.
    virtual void OpenFunctionManager(const std::string & /*name*/) {}
    virtual void OpenFunctionLibrary() {}
    // A text of the engine's own (an evaluation error, a point file that cannot be read) in a
    // warning box with the engine's caption.
    virtual void ShowText(std::string_view text, std::string_view caption) = 0;
    // A row at the end of the Graphs page's "Graph Errors" list: evaluation errors of a data
    // check, which never stop the check by themselves.
    virtual void AddError(std::string_view text) = 0;
};

}  // namespace quindar
