// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Integration Utility's parameter boxes: their lists, their number and their selections.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "parameter_boxes.h"
#include "parser.h"

namespace quindar::calculus {
namespace {

std::vector<std::string> Names(const ParameterBoxes &boxes) {
    return {boxes.name(0), boxes.name(1), boxes.name(2)};
}

TEST(ParameterBoxesTest, ListsFollowTheFunctionAndTheType) {
    Parser parser{"", ""};
    parser.eval_exp("one[t] = t^2", true, false);
    parser.eval_exp("two[a,b] = a*b", true, false);
    parser.eval_exp("four[a,b,c,d] = a*b*c*d", true, false);
    const struct {
        const char *expression;
        int type;
        int shown;
        std::vector<std::string> entries;
        std::vector<std::string> names;
    } cases[] = {
        {"x^2", 0, 1, {"x"}, {"x", "", ""}},
        {"x^2", 2, 2, {"x", "y"}, {"x", "y", ""}},
        {"x^2", 3, 3, {"x", "y", "z"}, {"x", "y", "z"}},
        {"one[t]", 0, 1, {"t"}, {"t", "", ""}},
        {"one[t]", 2, 2, {"t", "y"}, {"t", "y", ""}},
        {"one[t]", 3, 3, {"t", "y", "z"}, {"t", "y", "z"}},
        {"two[a,b]", 0, 2, {"a", "b"}, {"a", "b", ""}},
        {"two[a,b]", 1, 1, {"a", "b"}, {"a", "", ""}},
        {"two[a,b]", 3, 3, {"a", "b", "z"}, {"a", "b", "z"}},
        {"four[a,b,c,d]", 0, 3, {"a", "b", "c", "d"}, {"a", "b", "c"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(std::string(c.expression) + " " + std::to_string(c.type));
        const ParameterBoxes boxes = UpdateParamComboBoxes(parser, c.expression, c.type);
        EXPECT_EQ(boxes.type, c.shown);
        EXPECT_EQ(boxes.entries, c.entries);
        EXPECT_EQ(Names(boxes), c.names);
    }
}

TEST(ParameterBoxesTest, SelectionsStayDistinct) {
    Parser parser{"", ""};
    ParameterBoxes boxes = UpdateParamComboBoxes(parser, "x", 3);
    SelectParameter(boxes, 0, 2);  // X takes z: Z takes the x left free
    EXPECT_EQ(Names(boxes), (std::vector<std::string>{"z", "y", "x"}));
    SelectParameter(boxes, 1, 2);  // Y takes z from X, which gets y
    EXPECT_EQ(Names(boxes), (std::vector<std::string>{"y", "z", "x"}));
    SelectParameter(boxes, 2, 0);  // its own entry: nothing moves
    EXPECT_EQ(Names(boxes), (std::vector<std::string>{"y", "z", "x"}));
    ParameterBoxes two = UpdateParamComboBoxes(parser, "x", 2);
    SelectParameter(two, 1, 0);  // with two entries the other box flips
    EXPECT_EQ(Names(two), (std::vector<std::string>{"y", "x", ""}));
    SelectParameter(two, 2, 0);  // a hidden box selects nothing
    EXPECT_EQ(Names(two), (std::vector<std::string>{"y", "x", ""}));
}

}  // namespace
}  // namespace quindar::calculus
