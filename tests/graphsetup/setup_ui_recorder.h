// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A SetupUi for model tests: it records every call, answers message boxes from a script in
// order, and fails the test on a message nobody scripted or a script left unused.

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "graph_data.h"
#include "message_box_rules.h"
#include "setup_graph_window.h"
#include "setup_ui.h"

namespace quindar::testing {

struct RecordedMessage {
    int id = 0;
    std::vector<std::string> fields;
    unsigned flags = 0;
};

class SetupUiRecorder : public SetupUi {
public:
    ~SetupUiRecorder() override {
        EXPECT_TRUE(script.empty())
            << script.size() << " scripted answers left, the first for " << script.front().id;
    }

    // The next message must be `id`; it is answered with `answer`.
    void Expect(int id, int answer = kIdOk) { script.push_back({id, answer}); }

    int Message(int textId, std::initializer_list<std::string_view> fields,
                unsigned flags) override {
        RecordedMessage message{textId, {}, flags};
        for (std::string_view field : fields) message.fields.emplace_back(field);
        messages.push_back(message);
        if (script.empty()) {
            ADD_FAILURE() << "unexpected message " << textId;
            return kIdNo;
        }
        const Scripted next = script.front();
        script.pop_front();
        EXPECT_EQ(next.id, textId) << "a different message came";
        return next.answer;
    }
    void Sound(std::string_view file) override { sounds.emplace_back(file); }
    void ShowText(std::string_view text, std::string_view) override {
        ADD_FAILURE() << "unexpected engine message " << text;
    }
    void AddError(std::string_view text) override { addedErrors.emplace_back(text); }
    void SelectPage(int index) override {
        selected.push_back(index);
        showing = index;
    }
    int ShowingPage() const override { return showing; }
    void FocusControl(int index, int controlId) override { focused.push_back({index, controlId}); }
    void PageChanged() override { ++pageChanged; }
    void PageUnchanged(int index) override { unchanged.push_back(index); }
    void FocusEditor() override { ++editorFocused; }
    bool AddEditFunction(const std::string &name, const std::string &value) override {
        declared.push_back(name + "=" + value);
        return declare ? declare(name, value) : false;
    }
    bool EditVariable(const std::string &name) override {
        variablesEdited.push_back(name);
        return true;
    }
    void EnableGraphSetup(bool enable) override { enables.push_back(enable); }
    void OpenFunctionManager(const std::string &name) override {
        managerOpened.push_back(name);
        if (inManager) inManager();
    }
    void OpenFunctionLibrary() override { ++libraryOpened; }

    std::vector<int> Ids() const {
        std::vector<int> ids;
        for (const RecordedMessage &message : messages) ids.push_back(message.id);
        return ids;
    }

    int showing = 0;
    std::vector<RecordedMessage> messages;
    std::vector<std::string> addedErrors;
    std::vector<std::string> sounds;
    std::vector<int> selected;
    std::vector<std::pair<int, int>> focused;
    int pageChanged = 0;
    std::vector<int> unchanged;
    int editorFocused = 0;
    std::vector<std::string> declared;
    std::function<bool(const std::string &, const std::string &)> declare;
    std::vector<std::string> variablesEdited;
    std::vector<bool> enables;
    std::vector<std::string> managerOpened;
    std::function<void()> inManager;
    int libraryOpened = 0;

private:
    struct Scripted {
        int id;
        int answer;
    };
    std::deque<Scripted> script;
};

// A graph window that records what it is asked and reports the errors it is told to.
class GraphWindowRecorder : public SetupGraphWindow {
public:
    bool Exists() const override { return exists; }
    bool ShowsGraphNamed(const std::string &name) const override { return shown == name; }
    bool Build(GraphData &graph, const std::function<void(std::string_view)> &addError) override {
        builds.push_back(graph.Name);
        for (const std::string &line : errorLines) addError(line);
        buildErrors = !errorLines.empty();
        shown = graph.Name;
        return !buildErrors;
    }
    void Refresh(GraphData &graph) override {
        refreshes.push_back(graph.Name);
        buildErrors = false;
    }
    bool Recreate() override {
        ++recreated;
        buildErrors = false;
        return holdsGraph;
    }
    bool HasBuildErrors() const override { return buildErrors; }

    bool exists = true;
    bool holdsGraph = true;
    std::string shown;
    std::vector<std::string> errorLines;
    bool buildErrors = false;
    std::vector<std::string> builds;
    std::vector<std::string> refreshes;
    int recreated = 0;
};

}  // namespace quindar::testing
