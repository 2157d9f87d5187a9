// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The managers' Add/Edit: which messages come, in which order, and when the engine is asked.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "manager_add_edit.h"

namespace quindar {
namespace {

// A document with a few entries; numbers are what the variables hold, texts the functions.
struct FakeDocument : ManagerDocument {
    bool Exists(const std::string &name) override { return values.count(name) > 0; }
    bool Locked(const std::string &name) override { return name == locked; }
    void PresentNumber(const std::string &name, double &real, double &imaginary) override {
        real = std::stod(values.at(name));
        imaginary = name == "z" ? 1 : 0;
    }
    std::string PresentText(const std::string &name) override { return values.at(name); }
    bool AddEdit(const std::string &name, const std::string &value) override {
        asked.push_back(name + "=" + value);
        if (refuse) return false;
        values[name] = value;
        return true;
    }
    bool HasValue(const std::string &name) override { return values.at(name) != "y+1"; }
    bool ListOpen() override { return listOpen; }

    std::map<std::string, std::string> values;
    std::string locked;
    bool refuse = false;
    bool listOpen = false;
    std::vector<std::string> asked;
};

using Focus = AddEditOutcome::Focus;

struct Case {
    const char *name;
    const char *value;
    std::vector<int> notes;
    Focus focus;
    bool changed;
    const char *asked;  // the engine's call, or "" for none
};

void ExpectOutcome(const Case &c, const AddEditOutcome &outcome, const FakeDocument &document) {
    std::vector<int> ids;
    for (const auto &note : outcome.notes) ids.push_back(note.id);
    EXPECT_EQ(ids, c.notes) << '"' << c.name << "\" \"" << c.value << '"';
    EXPECT_EQ(outcome.focus, c.focus) << c.name << " " << c.value;
    EXPECT_EQ(outcome.changed, c.changed) << c.name << " " << c.value;
    EXPECT_EQ(document.asked.empty() ? "" : document.asked.front(), std::string(c.asked))
        << c.name << " " << c.value;
}

FakeDocument Variables() {
    FakeDocument document;
    document.values = {{"a", "2"}, {"z", "3"}, {"busy", "1"}};
    document.locked = "busy";
    return document;
}

TEST(ManagerAddEdit, VariablesInTheirOrder) {
    const Case cases[] = {
        {"", "1", {31520}, Focus::Name, false, ""},
        {"   ", "1", {31520}, Focus::Name, false, ""},
        {"1abc", "1", {31521}, Focus::Name, false, ""},
        {"a b", "", {31522}, Focus::Name, false, ""},
        {"a,b", "1", {31533}, Focus::Name, false, ""},
        {"new", "", {31525}, Focus::Value, false, ""},
        // An existing name with an empty box is told twice.
        {"a", "", {31525, 31527}, Focus::Value, false, ""},
        {"new", "1 2", {31523}, Focus::Value, false, ""},
        {"new", "4;", {31534}, Focus::Value, false, ""},
        {"  new", "4", {31539}, Focus::Stay, true, "new=4"},
        {"busy", "5", {31541}, Focus::Stay, false, ""},
        {"a", "2", {31528}, Focus::Stay, false, ""},
        {"a", "2.0", {31528}, Focus::Stay, false, ""},
        {"a", "2+1", {31528}, Focus::Stay, false, ""},
        {"a", "3", {31540}, Focus::Stay, true, "a=3"},
        // A complex value is never the same as a typed number.
        {"z", "3", {31540}, Focus::Stay, true, "z=3"},
        {"a", "x:", {31534}, Focus::Value, false, ""},
    };
    for (const auto &c : cases) {
        FakeDocument document = Variables();
        const AddEditOutcome outcome = VariableAddEdit(c.name, c.value, document);
        ExpectOutcome(c, outcome, document);
    }
}

TEST(ManagerAddEdit, VariableMessagesNameTheVariable) {
    FakeDocument document = Variables();
    EXPECT_EQ(VariableAddEdit("a", "2", document).notes.front().text,
              "You have not changed the value of 'a'!");
    document.listOpen = true;
    const AddEditOutcome added = VariableAddEdit("b", "y+1", document);
    EXPECT_TRUE(added.notes.empty());  // the open list shows it
    EXPECT_TRUE(added.added);
    EXPECT_TRUE(added.unknownValue);
    document.refuse = true;
    EXPECT_EQ(VariableAddEdit("a", "7", document).notes,
              (std::vector<ManagerNote>{{31529, "'a' could not be edited!"}}));
    document.listOpen = false;
    document.refuse = false;
    EXPECT_EQ(VariableAddEdit("c", "1", document).notes,
              (std::vector<ManagerNote>{{31539, "Variable \"c\" has been added."}}));
}

TEST(ManagerAddEdit, FunctionsInTheirOrder) {
    const Case cases[] = {
        {"", "x", {30520}, Focus::Name, false, ""},
        {"1F[x]", "x", {30521}, Focus::Name, false, ""},
        {"Fx", "x", {30526}, Focus::Name, false, ""},
        {"F(x", "x", {30527}, Focus::Name, false, ""},
        {"F)x(", "x", {30522}, Focus::Name, false, ""},
        {"F[x]!", "x", {30543}, Focus::Name, false, ""},
        // A new function may come without a value.
        {"G[x]", "", {30550}, Focus::Stay, true, "G[x]="},
        {"g [ x ]", "x ^ 2", {30550}, Focus::Stay, true, "g[x]=x^2"},
        {"G[x]", "x#", {30544}, Focus::Value, false, ""},
        {"F[x]", "", {30537}, Focus::Stay, false, ""},
        {"F[x]", "2 * x", {30538}, Focus::Stay, false, ""},
        {"F[x]", "3*x", {30551}, Focus::Stay, true, "F[x]=3*x"},
    };
    for (const auto &c : cases) {
        FakeDocument document;
        document.values = {{"F[x]", "2*x"}};
        const AddEditOutcome outcome = FunctionAddEdit(c.name, c.value, document, false);
        ExpectOutcome(c, outcome, document);
    }
}

TEST(ManagerAddEdit, FunctionNewsGoToGraphSetupOrAnOpenList) {
    FakeDocument document;
    document.values = {{"F[x]", "2*x"}};
    EXPECT_TRUE(FunctionAddEdit("G[x]", "x", document, true).notes.empty());
    document.listOpen = true;
    EXPECT_TRUE(FunctionAddEdit("H[x]", "x", document, false).notes.empty());
    document.listOpen = false;
    document.refuse = true;
    EXPECT_EQ(FunctionAddEdit("F[x]", "x", document, false).notes,
              (std::vector<ManagerNote>{{30539, "'F[x]' Could Not Be Edited!"}}));
    EXPECT_TRUE(FunctionAddEdit("K[x]", "x", document, false).notes.empty());
}

}  // namespace
}  // namespace quindar
