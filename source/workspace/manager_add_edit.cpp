// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "manager_add_edit.h"

#include "manager_checks.h"
#include "manager_messages.h"

namespace quindar {

namespace {

using Focus = AddEditOutcome::Focus;

void Note(AddEditOutcome &outcome, int id, std::string_view name = {}) {
    outcome.notes.push_back({id, FormatManagerMessage(id, name)});
}

void Refuse(AddEditOutcome &outcome, const ManagerCheck &check, Focus focus) {
    outcome.notes.push_back({check.messageId, check.Message()});
    outcome.focus = focus;
}

void EditVariable(AddEditOutcome &outcome, std::string_view value, ManagerDocument &document) {
    const std::string &name = outcome.name;
    if (document.Locked(name)) return Note(outcome, 31541, name);
    if (value.empty()) return Note(outcome, 31527, name);
    const ManagerCheck check = CheckVariableValue(value);
    if (!check.Passed()) return Refuse(outcome, check, Focus::Value);
    double real = 0;
    double imaginary = 0;
    document.PresentNumber(name, real, imaginary);
    if (VariableValueUnchanged(check.text, real, imaginary)) return Note(outcome, 31528, name);
    if (!document.AddEdit(name, check.text)) return Note(outcome, 31529, name);
    outcome.changed = true;
    if (!document.ListOpen()) Note(outcome, 31540, name);
}

}  // namespace

AddEditOutcome VariableAddEdit(std::string_view name, std::string_view value,
                               ManagerDocument &document) {
    AddEditOutcome outcome;
    const ManagerCheck nameCheck = CheckVariableName(name);
    outcome.name = nameCheck.text;
    if (outcome.name.empty()) {
        outcome.focus = Focus::Name;
        Note(outcome, 31520);
        return outcome;
    }
    if (!nameCheck.Passed()) {
        Refuse(outcome, nameCheck, Focus::Name);
        return outcome;
    }
    const bool exists = document.Exists(outcome.name);
    if (value.empty()) {
        outcome.focus = Focus::Value;
        Note(outcome, 31525);
        // An existing variable goes on as an edit, which refuses the empty value again.
        if (!exists) return outcome;
    }
    if (exists) {
        EditVariable(outcome, value, document);
        return outcome;
    }
    const ManagerCheck valueCheck = CheckVariableValue(value);
    if (!valueCheck.Passed()) {
        Refuse(outcome, valueCheck, Focus::Value);
        return outcome;
    }
    if (!document.AddEdit(outcome.name, valueCheck.text)) return outcome;
    outcome.changed = true;
    outcome.added = true;
    outcome.unknownValue = !document.HasValue(outcome.name);
    if (!document.ListOpen()) Note(outcome, 31539, outcome.name);
    return outcome;
}

AddEditOutcome FunctionAddEdit(std::string_view name, std::string_view value,
                               ManagerDocument &document, bool graphSetupOpen) {
    AddEditOutcome outcome;
    const ManagerCheck nameCheck = CheckFunctionName(name);
    outcome.name = nameCheck.text;
    if (outcome.name.empty()) {
        outcome.focus = Focus::Name;
        Note(outcome, 30520);
        return outcome;
    }
    if (!nameCheck.Passed()) {
        Refuse(outcome, nameCheck, Focus::Name);
        return outcome;
    }
    const bool exists = document.Exists(outcome.name);
    if (exists && value.empty()) {
        Note(outcome, 30537, outcome.name);
        return outcome;
    }
    // A new function may come without a value: the engine decides.
    const ManagerCheck valueCheck = CheckFunctionValue(value);
    if (!valueCheck.Passed()) {
        Refuse(outcome, valueCheck, Focus::Value);
        return outcome;
    }
    if (exists && document.PresentText(outcome.name) == valueCheck.text) {
        Note(outcome, 30538, outcome.name);
        return outcome;
    }
    if (!document.AddEdit(outcome.name, valueCheck.text)) {
        if (exists) Note(outcome, 30539, outcome.name);
        return outcome;
    }
    outcome.changed = true;
    outcome.added = !exists;
    // Graph Setup's function page shows the change; otherwise an open list does.
    if (!graphSetupOpen && !document.ListOpen())
        Note(outcome, exists ? 30551 : 30550, outcome.name);
    return outcome;
}

}  // namespace quindar
