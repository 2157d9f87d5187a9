// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the Graphs page needs of the document's graph window: build the working copy there,
// draw it again with new attributes, or make the window afresh, and what it shows.

#include <functional>
#include <string>
#include <string_view>

namespace quindar {

class GraphData;

class SetupGraphWindow {
public:
    virtual ~SetupGraphWindow() = default;

    // The document has a graph window to draw into.
    virtual bool Exists() const = 0;
    // The window's chart carries the graph of that name.
    virtual bool ShowsGraphNamed(const std::string &name) const = 0;
    // Computes the graph and draws it; each failed point's line goes to addError. True when
    // the data is complete.
    virtual bool Build(GraphData &graph, const std::function<void(std::string_view)> &addError) = 0;
    // Draws the shown graph again with the attributes of graph; its data stays.
    virtual void Refresh(GraphData &graph) = 0;
    // Makes the window afresh from the graph it holds, data computed again; false when it
    // holds none.
    virtual bool Recreate() = 0;
    // The last build or refresh left rows in the error list.
    virtual bool HasBuildErrors() const = 0;
};

}  // namespace quindar
