// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The one equation map of a run: the expression is read once, every sample solves the map,
// and the map is deleted on every way out.

#include <string>

#include "parser.h"

namespace quindar::calculus {

class RunMap {
public:
    explicit RunMap(Parser &parser) : parser(parser) {}
    ~RunMap() { drop(); }
    RunMap(const RunMap &) = delete;
    RunMap &operator=(const RunMap &) = delete;

    // Records `expression`. On failure the engine's text, with `assignMessage`'s text joined
    // behind it when the expression names something unknown and isn't a user function.
    bool build(const std::string &expression, int assignMessage, std::string &error);
    // The map's 1-based position in the engine's list; 0 when there is none.
    int index() const { return map_index; }
    void drop();

private:
    Parser &parser;
    int map_index = 0;
};

}  // namespace quindar::calculus
