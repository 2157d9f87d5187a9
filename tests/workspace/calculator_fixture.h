// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The calculator keys over a buffer, an editor and the real engine, recording the messages
// they show.

#include <string>
#include <vector>

#include "calculator_operations.h"
#include "editor_fixture.h"

namespace quindar::testing {

struct ShownMessage {
    int id;
    std::string text;
    bool operator==(const ShownMessage &) const = default;
};

struct CalculatorFixture {
    CalculatorFixture() {
        operations.ShowMessage = [this](int id, std::string_view text, std::string_view caption,
                                        MessageStyle) {
            shown.push_back({id, std::string(text)});
            captions.emplace_back(caption);
        };
        operations.SetAngleMode = [this](int mode) { parser.angle_mode = mode; };
    }
    void Select(int start, int end) { buffer.SetSelection(start, end); }

    Parser parser{"", ""};
    ParserEngine engine{parser};
    MemoryTextBuffer buffer;
    MathEditor editor{buffer, engine};
    CalculatorOperations operations{buffer, editor};
    std::vector<ShownMessage> shown;
    std::vector<std::string> captions;
};

}  // namespace quindar::testing
