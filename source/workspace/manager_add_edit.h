// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The one Add/Edit button of the Variables Manager and of the Function Manager: the checks
// in their fixed order, each refusal with its own message, then the change through the
// document, and what the dialog tells afterwards.

#include <string>
#include <string_view>
#include <vector>

namespace quindar {

// What Add/Edit asks of the document and its engine.
class ManagerDocument {
public:
    virtual ~ManagerDocument() = default;
    virtual bool Exists(const std::string &name) = 0;
    // Variables: held by another process, so not to be edited now.
    virtual bool Locked(const std::string &name) = 0;
    // Variables: the present value's real and imaginary parts.
    virtual void PresentNumber(const std::string &name, double &real, double &imaginary) = 0;
    // Functions: the present value's text, with the brackets the options choose.
    virtual std::string PresentText(const std::string &name) = 0;
    // AddEditVariable or AddEditFunction of the document window: true when it took the change.
    virtual bool AddEdit(const std::string &name, const std::string &value) = 0;
    // Variables: the value could be computed (a kept but uncomputable one has none).
    virtual bool HasValue(const std::string &name) = 0;
    // The document's list window of this kind is open, and shows a change by itself.
    virtual bool ListOpen() = 0;
};

struct ManagerNote {
    int id;
    std::string text;
    bool operator==(const ManagerNote &) const = default;
};

struct AddEditOutcome {
    enum class Focus { Stay, Name, Value };
    std::vector<ManagerNote> notes;  // the messages shown, in order
    Focus focus = Focus::Stay;       // where the focus goes after a refusal
    bool changed = false;            // the engine took the change
    bool added = false;              // a new name for the combo box
    bool unknownValue = false;       // the value box shows "?"
    std::string name;                // the name as checked (a function's loses its blanks)
};

AddEditOutcome VariableAddEdit(std::string_view name, std::string_view value,
                               ManagerDocument &document);
// graphSetupOpen: the functions page of Graph Setup takes the news in place of a message.
AddEditOutcome FunctionAddEdit(std::string_view name, std::string_view value,
                               ManagerDocument &document, bool graphSetupOpen);

}  // namespace quindar
