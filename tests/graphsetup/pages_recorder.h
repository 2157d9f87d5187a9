// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The window of the Graph Setup rules, recorded: message boxes are answered from a script in
// order, and a box the script did not name fails the test. The texts are filled in from the
// program's string table, so the tests see what the user reads.

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "document_parts.h"
#include "graph_data.h"
#include "message_box_rules.h"
#include "parser.h"
#include "setup_session.h"
#include "setup_ui.h"
#include "string_table.h"

namespace quindar::testing {

// The text of message `id` with its "%s" and "%d" places filled by the fields in order.
inline std::string filled_message(int id, std::initializer_list<std::string_view> fields) {
    const std::string_view pattern = application_strings().Get(id);
    std::string out;
    auto field = fields.begin();
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const bool place = pattern[i] == '%' && i + 1 < pattern.size() &&
                           (pattern[i + 1] == 's' || pattern[i + 1] == 'd');
        if (place && field != fields.end()) {
            out += *field++;
            ++i;
        } else {
            out += pattern[i];
        }
    }
    return out;
}

class RecorderUi : public SetupUi {
public:
    struct Box {
        int id;
        int answer;
    };

    ~RecorderUi() override {
        for (const Box &box : script) ADD_FAILURE() << "message " << box.id << " never came";
    }

    // The next box must be `id`, and gets `answer`.
    void Expect(int id, int answer = kIdOk) { script.push_back({id, answer}); }

    int Message(int textId, std::initializer_list<std::string_view> fields,
                unsigned flags) override {
        texts.push_back(filled_message(textId, fields));
        ids.push_back(textId);
        this->flags.push_back(flags);
        if (script.empty() || script.front().id != textId) {
            ADD_FAILURE() << "unexpected message " << textId << ": " << texts.back();
            return box_escape_result(box_style(flags).buttons);
        }
        const int answer = script.front().answer;
        script.pop_front();
        return answer;
    }
    void Sound(std::string_view file) override { sounds.emplace_back(file); }
    void ShowText(std::string_view text, std::string_view) override {
        ADD_FAILURE() << "unexpected engine message " << text;
    }
    void AddError(std::string_view text) override {
        ADD_FAILURE() << "unexpected graph error " << text;
    }
    void SelectPage(int index) override {
        selected.push_back(index);
        showing = index;
    }
    int ShowingPage() const override { return showing; }
    void FocusControl(int index, int controlId) override { focused.emplace_back(index, controlId); }
    void PageChanged() override { ++pageChanged; }
    void PageUnchanged(int index) override { unchanged.push_back(index); }
    void FocusEditor() override { ++editorFocused; }
    bool AddEditFunction(const std::string &, const std::string &) override { return false; }
    bool EditVariable(const std::string &name) override {
        editedVariables.push_back(name);
        if (onEditVariable) onEditVariable(name);
        return true;
    }

    std::deque<Box> script;
    std::vector<int> ids;
    std::vector<std::string> texts;
    std::vector<unsigned> flags;
    std::vector<std::string> sounds;
    std::vector<int> selected;
    int showing = -1;
    std::vector<std::pair<int, int>> focused;
    int pageChanged = 0;
    std::vector<int> unchanged;
    int editorFocused = 0;
    std::vector<std::string> editedVariables;
    // What the Variable Manager does when it opens on a name.
    std::function<void(const std::string &)> onEditVariable;
};

// A document's parser and graphs with one current graph "G", the session over them, and the
// recorder. The parser's own error boxes are recorded as "parser: text".
class PagesFixture : public ::testing::Test {
protected:
    PagesFixture() {
        parser.set_message_hook([this](std::string_view text, std::string_view, MessageStyle) {
            parserBoxes.push_back("parser: " + std::string(text));
            return true;
        });
        content.currentGraph = add_new_graph(content.graphs, "G", nullptr);
    }

    void Run(const char *line) {
        parser.eval_exp(line, true, false);
        ASSERT_FALSE(parser.IsAnError()) << line << ": " << parser.GetLastError();
    }
    GraphData &Temp() { return session.temp; }
    GraphData &Current() { return *content.currentGraph; }
    void AddFunction(const char *fullName) { ASSERT_NE(Temp().AddFunction(fullName, ""), nullptr); }
    void SetX(const char *name, double low, double high, long points) {
        const Variable v(name, complex{low, 0}, complex{high, 0}, points);
        Temp().SetXAxisVar(&v);
    }
    void SetZ(const char *name, double low, double high, long points) {
        const Variable v(name, complex{low, 0}, complex{high, 0}, points);
        Temp().SetZAxisVar(&v);
    }
    StrDataPnts &AddDataSet(const char *name, const char *z = nullptr) {
        StrDataPnts *set = Temp().DataSets.add();
        set->SetName(name);
        set->PutXDataPoint("1", 0);
        set->PutYDataPoint("2", 0);
        if (z) set->PutZDataPoint(z);
        return *set;
    }

    Parser parser{"", ""};
    DocumentContent content;
    GraphSetupSession session{parser, content};
    RecorderUi ui;
    std::vector<std::string> parserBoxes;
};

}  // namespace quindar::testing
