// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "points_values.h"

#include <string>

#include "parser.h"
#include "parser_messages.h"
#include "setup_ui.h"

namespace quindar {

bool PointValues::Evaluate(const char *text, complex &value) {
    // The engine may keep the text it is given; it gets a copy of its own.
    const std::string copy = text ? text : "";
    value = complex{};
    parser.eval_exp(copy.c_str(), value, true, false);
    return !parser.IsAnError();
}

bool PointValues::Compute(const char *text, complex &value) {
    if (Evaluate(text, value)) return true;
    ui.Sound("Error.wav");
    if (const char *error = parser.GetLastError()) ui.AddError(error);
    parser.ClearLastError();
    return false;
}

bool PointValues::Enter(const char *text, complex &value) {
    if (Evaluate(text, value)) return true;
    ui.Sound("Error.wav");
    const char *error = parser.GetLastError();
    ui.ShowText(error ? error : "", messages::kParserCaption);
    parser.ClearLastError();
    return false;
}

bool PointValues::Same(const complex &a, const complex &b) {
    bool chain = true;
    parser._equal(chain, a, b);
    return chain;
}

}  // namespace quindar
