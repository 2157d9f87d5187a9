// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A SetupUi for the Points page's model tests: message boxes are answered from a script, in
// order, and any box the script does not expect fails the test.

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "message_box_rules.h"
#include "setup_ui.h"
#include "string_table.h"

namespace quindar::testing {

class PointsTestUi final : public SetupUi {
public:
    struct Box {
        int id;
        std::vector<std::string> fields;
        unsigned flags;
    };

    // The next box must be `id`; it is answered with `answer`. Id 0 stands for a text of the
    // engine's own (ShowText).
    PointsTestUi &Expect(int id, int answer = kIdOk) {
        script.push_back({id, answer});
        return *this;
    }
    // Every scripted box came.
    void Done() const { EXPECT_TRUE(script.empty()) << script.size() << " boxes did not come"; }

    // The text the last box showed, its fields put in.
    std::string LastText() const {
        if (boxes.empty()) return {};
        const Box &box = boxes.back();
        std::vector<std::string_view> fields(box.fields.begin(), box.fields.end());
        return format_message(application_strings().Get(box.id), fields).value_or("<unformatted>");
    }

    int Message(int textId, std::initializer_list<std::string_view> fields,
                unsigned flags) override {
        boxes.push_back({textId, {fields.begin(), fields.end()}, flags});
        return Answer(textId);
    }
    void Sound(std::string_view file) override { sounds.emplace_back(file); }
    void SelectPage(int index) override {
        selected.push_back(index);
        showing = index;
    }
    int ShowingPage() const override { return showing; }
    void FocusControl(int index, int controlId) override { focused.push_back({index, controlId}); }
    void PageChanged() override { ++pageChanged; }
    void PageUnchanged(int index) override { unchanged.push_back(index); }
    void FocusEditor() override { ADD_FAILURE() << "the editor was focused"; }
    bool AddEditFunction(const std::string &name, const std::string &) override {
        ADD_FAILURE() << "the Function Manager was opened on " << name;
        return false;
    }
    bool EditVariable(const std::string &name) override {
        ADD_FAILURE() << "the Variable Manager was opened on " << name;
        return false;
    }
    void ShowText(std::string_view text, std::string_view caption) override {
        texts.push_back({std::string(text), std::string(caption)});
        Answer(0);
    }
    void AddError(std::string_view text) override { errors.emplace_back(text); }

    std::vector<Box> boxes;
    std::vector<std::pair<std::string, std::string>> texts;
    std::vector<std::string> sounds, errors;
    std::vector<int> selected, unchanged;
    std::vector<std::pair<int, int>> focused;
    int pageChanged = 0;
    int showing = 2;

private:
    int Answer(int id) {
        if (script.empty() || script.front().first != id) {
            ADD_FAILURE() << "unexpected box " << id
                          << (script.empty()
                                  ? std::string()
                                  : ", expected " + std::to_string(script.front().first));
            return kIdCancel;
        }
        const int answer = script.front().second;
        script.pop_front();
        return answer;
    }
    std::deque<std::pair<int, int>> script;
};

}  // namespace quindar::testing
