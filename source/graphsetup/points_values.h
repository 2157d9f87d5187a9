// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Values of point texts on the document's engine. A cell's text is kept as typed and
// evaluated again at each check and build, so it may name the document's variables.

#include "complex.h"

namespace quindar {

class Parser;
class SetupUi;

class PointValues {
public:
    PointValues(Parser &parser, SetupUi &ui) : parser(parser), ui(ui) {}

    // For a check: an error sounds and goes to "Graph Errors", and never stops the check
    // by itself. False when the text did not evaluate.
    bool Compute(const char *text, complex &value);
    // For a typed text: an error sounds and shows the engine's own message. False when the
    // text did not evaluate.
    bool Enter(const char *text, complex &value);
    // Equal in both parts, as the engine compares.
    bool Same(const complex &a, const complex &b);

private:
    bool Evaluate(const char *text, complex &value);

    Parser &parser;
    SetupUi &ui;
};

}  // namespace quindar
