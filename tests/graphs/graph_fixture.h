// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A document's engine and a graph to build on it, with the Graph Errors list and the boxes
// recorded.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "graph_builder.h"
#include "parser.h"

namespace quindar::testing {

// Cancels at report number `cancelAt` (1-based; 0 never) and counts the reports.
class FakeHost final : public ComputeHost {
public:
    void set_progress_percent(int percent) override {
        ++reports;
        highest = std::max(highest, percent);
    }
    bool progress_cancelled() override { return cancelAt > 0 && reports >= cancelAt; }
    int cancelAt = 0;
    int reports = 0;
    int highest = 0;
};

class GraphFixture : public ::testing::Test {
protected:
    GraphFixture() { parser.set_computation_hooks(&host); }

    // Lines of the engine: declarations.
    void Run(const char *line) {
        parser.eval_exp(line, true, false);
        ASSERT_FALSE(parser.IsAnError()) << line << ": " << parser.GetLastError();
    }
    void AddFunction(const char *fullName, const char *value = "") {
        ASSERT_NE(graph.AddFunction(fullName, value), nullptr);
    }
    void SetX(const char *name, double low, double high, long points) {
        const Variable v(name, complex{low, 0}, complex{high, 0}, points);
        graph.SetXAxisVar(&v);
    }
    void SetZ(const char *name, double low, double high, long points) {
        const Variable v(name, complex{low, 0}, complex{high, 0}, points);
        graph.SetZAxisVar(&v);
    }
    StrDataPnts &AddDataSet(const char *name, std::vector<const char *> xs,
                            std::vector<const char *> ys, const char *z = nullptr) {
        StrDataPnts *set = graph.DataSets.add();
        set->SetName(name);
        for (std::size_t i = 0; i < xs.size(); ++i)
            if (xs[i]) set->PutXDataPoint(xs[i], static_cast<int>(i));
        for (std::size_t i = 0; i < ys.size(); ++i)
            if (ys[i]) set->PutYDataPoint(ys[i], static_cast<int>(i));
        if (z) set->PutZDataPoint(z);
        return *set;
    }
    bool Build() {
        GraphBuildOutput output;
        output.add_error = [this](std::string_view line) { errors.emplace_back(line); };
        output.show_message = [this](std::string_view text, std::string_view caption) {
            boxes.push_back(std::string(caption) + ": " + std::string(text));
        };
        builder = std::make_unique<GraphBuilder>(parser, graph, output);
        return builder->Build();
    }

    Parser parser{"", ""};
    FakeHost host;
    GraphData graph{"G"};
    std::unique_ptr<GraphBuilder> builder;
    std::vector<std::string> errors;
    std::vector<std::string> boxes;
};

}  // namespace quindar::testing
