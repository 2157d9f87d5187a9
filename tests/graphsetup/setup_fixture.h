// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A document's engine and graphs with a Graph Setup session over them: the Graphs and
// Functions page models registered, a recorder for the sheet and one for the graph window.

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "document_parts.h"
#include "functions_page_model.h"
#include "graphs_page_model.h"
#include "parser.h"
#include "setup_session.h"
#include "setup_ui_recorder.h"

namespace quindar::testing {

// A page model whose check answers as a test says, and counts its calls.
class CheckStub : public SetupPageModel {
public:
    CheckStub(GraphSetupSession &session, SetupUi &ui, int index)
        : SetupPageModel(session, ui), index(index) {}
    int Index() const override { return index; }
    bool CheckData(GraphData &) override {
        ++checks;
        return pass;
    }
    void ApplyChanges() override { ++applied; }
    int index;
    bool pass = true;
    int checks = 0;
    int applied = 0;
};

class SetupFixture : public ::testing::Test {
protected:
    SetupFixture() : session(parser, content), graphs(session, ui, window), functions(session, ui) {
        session.pages[kPageGraphs] = &graphs;
        session.pages[kPageFunctions] = &functions;
        for (int index = kPagePoints; index < kSetupPageCount; ++index) {
            stubs[static_cast<std::size_t>(index)] =
                std::make_unique<CheckStub>(session, ui, index);
            session.pages[static_cast<std::size_t>(index)] =
                stubs[static_cast<std::size_t>(index)].get();
        }
        session.graphsChangedHook = [this] { ++graphsChangedCalls; };
    }

    void Run(const char *line) {
        parser.eval_exp(line, true, false);
        ASSERT_FALSE(parser.IsAnError()) << line << ": " << parser.GetLastError();
    }
    CheckStub &Stub(int index) { return *stubs[static_cast<std::size_t>(index)]; }
    GraphData &NewGraph(const char *name) {
        GraphData *graph = add_new_graph(content.graphs, name, nullptr);
        return *graph;
    }
    void Declare(const char *name, const char *value) {
        const std::string line = std::string(name) + "=" + value;
        Run(line.c_str());
    }

    Parser parser{"", ""};
    DocumentContent content;
    GraphSetupSession session;
    SetupUiRecorder ui;
    GraphWindowRecorder window;
    GraphsPageModel graphs;
    FunctionsPageModel functions;
    std::array<std::unique_ptr<CheckStub>, kSetupPageCount> stubs;
    int graphsChangedCalls = 0;
};

}  // namespace quindar::testing
