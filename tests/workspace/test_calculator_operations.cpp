// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The calculator keys acting on the text: wrapping the operand, the caret afterwards, sign,
// brackets and caret moves, each as one drawn text before and after.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "calculator_fixture.h"
#include "editor_messages.h"

namespace quindar {
namespace {

// A drawn text: "|" is the caret, "«" and "»" enclose a selection, "\n" breaks a line.
constexpr std::string_view kFrom = "\xC2\xAB";
constexpr std::string_view kTo = "\xC2\xBB";

void LoadDrawn(MemoryTextBuffer &buffer, std::string_view drawn) {
    std::string text(drawn);
    std::size_t start = text.find('|');
    std::size_t end = start;
    if (start != std::string::npos) {
        text.erase(start, 1);
    } else if ((start = text.find(kFrom)) != std::string::npos) {
        text.erase(start, kFrom.size());
        end = text.find(kTo);
        text.erase(end, kTo.size());
    } else {
        start = end = 0;
    }
    const auto offset = [&](std::size_t at) {
        return static_cast<int>(ToCrLf(std::string_view(text).substr(0, at)).size());
    };
    buffer.SetText(text);
    buffer.SetSelection(offset(start), offset(end));
}

std::string DrawBuffer(const MemoryTextBuffer &buffer) {
    int start = 0;
    int end = 0;
    buffer.GetSelection(start, end);
    std::string text = buffer.Text();
    if (start == end) {
        text.insert(static_cast<std::size_t>(start), "|");
    } else {
        text.insert(static_cast<std::size_t>(end), kTo);
        text.insert(static_cast<std::size_t>(start), kFrom);
    }
    std::string drawn;
    for (char c : text)
        if (c != '\r') drawn += c;
    return drawn;
}

using Calculator = testing::CalculatorFixture;

using Operation = std::function<void(CalculatorOperations &)>;

struct OperationCase {
    const char *key;
    Operation run;
    const char *before;
    const char *after;
};

const Operation kSqr = [](CalculatorOperations &c) { c.ExecuteSQR(); };
const Operation kCube = [](CalculatorOperations &c) { c.ExecuteCUBE(); };
const Operation kRecip = [](CalculatorOperations &c) { c.ExecuteRECIP(); };
const Operation kTenX = [](CalculatorOperations &c) { c.Execute10X(); };
const Operation kFact = [](CalculatorOperations &c) { c.ExecuteFACT(); };
const Operation kInvPow = [](CalculatorOperations &c) { c.ExecuteINVPOW(); };
const Operation kSin = [](CalculatorOperations &c) { c.ExecuteFunction("SIN", 1, false); };
const Operation kLog = [](CalculatorOperations &c) { c.ExecuteFunction("LOG", 2, false); };
const Operation kMean = [](CalculatorOperations &c) { c.ExecuteFunction("MEAN", 2, true); };
const Operation kListOne = [](CalculatorOperations &c) { c.ExecuteFunction("F", 1, true); };
const Operation kSign = [](CalculatorOperations &c) { c.ExecuteSIGN(); };
const Operation kParen = [](CalculatorOperations &c) { c.ExecutePAREN(); };
const Operation kLeft = [](CalculatorOperations &c) { c.ExecuteSPACELT(); };
const Operation kRight = [](CalculatorOperations &c) { c.ExecuteSPACERT(); };
const Operation kDelete = [](CalculatorOperations &c) { c.ExecuteDELETE(); };
const Operation kDeleteLine = [](CalculatorOperations &c) { c.ExecuteDeleteLine(); };
const Operation kUp = [](CalculatorOperations &c) { c.ExecuteUP(); };
const Operation kDown = [](CalculatorOperations &c) { c.ExecuteDOWN(); };
const Operation kBegin = [](CalculatorOperations &c) { c.ExecuteBEGIN(); };
const Operation kEnd = [](CalculatorOperations &c) { c.ExecuteEND(); };
const Operation kBack = [](CalculatorOperations &c) { c.ExecuteBACK(); };

TEST(CalculatorOperations, EveryRowOfTheTable) {
    const OperationCase cases[] = {
        // An operand with an operator goes in round brackets, a negative number as well.
        {"SQR", kSqr, "|2+3", "(2+3)^2|"},
        {"SQR", kSqr,
         "\xC2\xAB"
         "2+3\xC2\xBB",
         "(2+3)^2|"},
        {"SQR", kSqr, "|-3", "(-3)^2|"},
        {"SQR", kSqr, "|5", "5^2|"},
        {"SQR", kSqr, "x = |2*y", "x = (2*y)^2|"},
        // With the caret at the line's end the operand is empty: the text is only appended.
        {"SQR", kSqr, "5|", "5^2|"},
        {"CUBE", kCube, "|4", "4^3|"},
        {"RECIP", kRecip, "|2+3", "1/(2+3)|"},
        {"RECIP", kRecip,
         "\xC2\xAB"
         "4\xC2\xBB+1",
         "1/4+1|"},
        {"10X", kTenX, "|2", "10^2|"},
        {"FACT", kFact,
         "\xC2\xAB"
         "n-1\xC2\xBB*2",
         "(n-1)!*2|"},
        {"FACT", kFact, "1\n|5\n2", "1\n5!|\n2"},
        // The root key leaves the caret in front of ")" for the root's degree.
        {"INVPOW", kInvPow, "|8", "8^(1/|)"},
        {"INVPOW", kInvPow,
         "\xC2\xAB"
         "2+6\xC2\xBB",
         "(2+6)^(1/|)"},
        {"INVPOW", kInvPow, "27|", "27^(1/|)"},
        // Function keys wrap in square brackets, never in round ones.
        {"SIN", kSin, "|x+1", "SIN[x+1]|"},
        {"SIN", kSin,
         "\xC2\xAB"
         "x+1\xC2\xBB",
         "SIN[x+1]|"},
        {"SIN", kSin,
         "2*\xC2\xAB"
         "x+1\xC2\xBB",
         "2*SIN[x+1]|"},
        {"SIN", kSin,
         "\xC2\xAB"
         "x\xC2\xBB+1",
         "SIN[x]+1|"},
        {"SIN", kSin, "y = |x", "y = SIN[x]|"},
        {"SIN", kSin, "2*|", "2*SIN[|]"},
        {"SIN", kSin, "1\n|x+1\n2", "1\nSIN[x+1]|\n2"},
        // Kind 2: behind the comma; with nothing to wrap, in front of it.
        {"LOG", kLog,
         "\xC2\xAB"
         "8\xC2\xBB",
         "LOG[8,|]"},
        {"LOG", kLog, "|8", "LOG[8,|]"},
        {"LOG", kLog, "|", "LOG[|,]"},
        {"LOG", kLog,
         "\xC2\xAB"
         "8\xC2\xBB+1",
         "LOG[8,|]+1"},
        {"MEAN", kMean,
         "\xC2\xAB"
         "1,2,3\xC2\xBB",
         "MEAN[{1,2,3,|}]"},
        {"MEAN", kMean, "m = |", "m = MEAN[{|,}]"},
        {"list kind 1", kListOne, "|", "F[{|}]"},
        {"list kind 1", kListOne, "|1,2", "F[{1,2}]|"},
        // The sign toggles; without a selection the caret stays where it was.
        {"SIGN", kSign, "|3", "|-3"},
        {"SIGN", kSign, "|-3", "|3"},
        {"SIGN", kSign, "2*|3", "2*|-3"},
        {"SIGN", kSign, "|2+3", "|-(2+3)"},
        {"SIGN", kSign,
         "\xC2\xAB"
         "3\xC2\xBB",
         "-|3"},
        {"SIGN", kSign,
         "\xC2\xAB"
         "-3\xC2\xBB",
         "\xC2\xAB"
         "3\xC2\xBB"},
        {"SIGN", kSign, "|", "|"},
        {"SIGN", kSign, "a\n|\nb", "a\n|\nb"},
        {"SIGN", kSign, "5|", "5|-"},
        // Brackets: around the operand, or empty with the caret inside.
        {"PAREN", kParen, "|", "(|)"},
        {"PAREN", kParen, "2*|", "2*(|)"},
        {"PAREN", kParen, "|2+3", "(2+3)|"},
        {"PAREN", kParen,
         "\xC2\xAB"
         "2+3\xC2\xBB*4",
         "(2+3)*4|"},
        // Caret moves; a line break is one step.
        {"SPACELT", kLeft, "ab|c", "a|bc"},
        {"SPACELT", kLeft, "|ab", "|ab"},
        {"SPACELT", kLeft, "a\n|b", "a|\nb"},
        {"SPACELT", kLeft,
         "a\xC2\xAB"
         "b\xC2\xBB"
         "c",
         "\xC2\xAB"
         "a\xC2\xBB"
         "bc"},
        {"SPACERT", kRight, "a|\nb", "a\n|b"},
        {"SPACERT", kRight, "ab|", "ab|"},
        {"SPACERT", kRight,
         "a\xC2\xAB"
         "b\xC2\xBB"
         "c",
         "ab\xC2\xAB"
         "c\xC2\xBB"},
        {"SPACERT", kRight,
         "a\xC2\xAB"
         "bc\xC2\xBB",
         "a\xC2\xAB"
         "bc\xC2\xBB"},
        {"DELETE", kDelete, "a|bc", "a|c"},
        {"DELETE", kDelete,
         "a\xC2\xAB"
         "b\xC2\xBB"
         "c",
         "a|c"},
        {"DELETE", kDelete, "a|\nb", "a|b"},
        {"DELETE", kDelete, "a\n|\nb", "a\n|\nb"},
        {"delete line", kDeleteLine, "a\n|b\nc", "a\n|c"},
        {"delete line", kDeleteLine, "a\nb|", "a\n|"},
        {"UP", kUp, "a\nb|c", "|a\nbc"},
        {"UP", kUp, "a|b", "a|b"},
        {"DOWN", kDown, "a|\nb", "a\n|b"},
        {"DOWN", kDown, "a|b", "ab\n|"},
        {"BEGIN", kBegin, "x\nab|c", "x\n|abc"},
        {"END", kEnd, "a|bc\nd", "abc|\nd"},
        {"BACK", kBack, "ab|", "a|"},
    };
    for (const auto &c : cases) {
        Calculator calc;
        LoadDrawn(calc.buffer, c.before);
        c.run(calc.operations);
        EXPECT_EQ(DrawBuffer(calc.buffer), c.after) << c.key << " on " << c.before;
        EXPECT_TRUE(calc.shown.empty()) << c.key << " on " << c.before;
    }
}

TEST(CalculatorOperations, OperatorTestLooksForTheFourArithmeticSigns) {
    const struct {
        const char *operand;
        bool holds;
    } cases[] = {{"2+3", true},  {"-3", true},  {"a*b", true},     {"1/2", true},
                 {"2^3", false}, {"x!", false}, {"SIN[x]", false}, {"", false}};
    for (const auto &c : cases) EXPECT_EQ(IsAnOperatorOnLine(c.operand), c.holds) << c.operand;
}

TEST(CalculatorOperations, AngleKeysSetTheEngineAndTellIt) {
    Calculator calc;
    calc.operations.ExecuteRAD();
    EXPECT_EQ(calc.parser.angle_mode, 1);
    calc.operations.ExecuteDEG();
    EXPECT_EQ(calc.parser.angle_mode, 0);
    ASSERT_EQ(calc.shown.size(), 2U);
    EXPECT_EQ(calc.shown[0].id, kAnglesInRadians);
    EXPECT_EQ(calc.shown[1].id, kAnglesInDegrees);
    EXPECT_EQ(calc.captions[0], "Calculator");
    EXPECT_EQ(calc.shown[0].text,
              "All trignometric angle computations will now be made using angles measured in "
              "radians.");
}

TEST(CalculatorOperations, LastAnswerWaitsForAComputedLine) {
    Calculator calc;
    LoadDrawn(calc.buffer, "|");
    calc.operations.ExecuteMEMLAST();
    EXPECT_EQ(DrawBuffer(calc.buffer), "|");
    LoadDrawn(calc.buffer, "2+3|");
    calc.operations.ExecuteENTER();
    EXPECT_EQ(DrawBuffer(calc.buffer), "2+3 = 5\n|");
    calc.operations.InsertText("1+");
    calc.operations.ExecuteMEMLAST();
    EXPECT_EQ(DrawBuffer(calc.buffer), "2+3 = 5\n1+5|");
}

TEST(CalculatorOperations, EnterComplainsAboutAnEmptyLine) {
    Calculator calc;
    std::vector<std::string> boxes;
    calc.editor.DispMessageBox = [&](std::string_view text, std::string_view, MessageStyle) {
        boxes.emplace_back(text);
        return true;
    };
    LoadDrawn(calc.buffer, "|");
    calc.operations.ExecuteENTER();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0], EditorMessageText(kNoExpressionToCompute));
}

}  // namespace
}  // namespace quindar
