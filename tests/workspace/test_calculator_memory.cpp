// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The memory keys: what they keep, what they insert, and the messages they show.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "calculator_fixture.h"
#include "calculator_keys.h"

namespace quindar {
namespace {

using testing::Draw;
using testing::Load;

using Shown = testing::ShownMessage;
using MemoryKeys = testing::CalculatorFixture;

std::string Saved(std::string_view text) {
    return "The mathematical text string \"" + std::string(text) + "\" has been saved into memory.";
}

TEST(CalculatorMemory, SaveOnAnEmptyLineAsksForText) {
    MemoryKeys keys;
    Load(keys.buffer, "1\n|\n2");
    keys.operations.ExecuteMEMSAVE(false);
    EXPECT_EQ(keys.shown,
              (std::vector<Shown>{{21820,
                                   "You must select the text or place the cursor on the line "
                                   "that you would like to save in the Math Editor."}}));
    EXPECT_FALSE(keys.operations.Memory().Text());
}

TEST(CalculatorMemory, SaveTakesTheLineAndPutsTheCaretAtItsEnd) {
    MemoryKeys keys;
    Load(keys.buffer, "|2+3 = 5\nx");
    keys.operations.ExecuteMEMSAVE(false);
    EXPECT_EQ(Draw(keys.buffer), "2+3 = 5|\nx");
    EXPECT_EQ(keys.operations.Memory().Text(), "2+3 = 5");
    EXPECT_EQ(keys.shown, (std::vector<Shown>{{21822, Saved("2+3 = 5")}}));
}

TEST(CalculatorMemory, SaveTakesTheSelectionAndLeavesIt) {
    MemoryKeys keys;
    Load(keys.buffer, "SIN[x]+1");
    keys.Select(0, 6);
    keys.operations.ExecuteMEMSAVE(false);
    EXPECT_EQ(keys.operations.Memory().Text(), "SIN[x]");
    EXPECT_EQ(Draw(keys.buffer), "[SIN[x]]+1");
}

TEST(CalculatorMemory, PlusOnAnEmptyMemoryActsAsSave) {
    MemoryKeys keys;
    Load(keys.buffer, "|abc");
    keys.operations.ExecuteMEMPLUS();
    EXPECT_EQ(keys.operations.Memory().Text(), "abc");
    EXPECT_EQ(keys.shown, (std::vector<Shown>{{21822, Saved("abc")}}));
}

TEST(CalculatorMemory, PlusAppendsAndMinusTakesTheLastItemOffOnce) {
    MemoryKeys keys;
    Load(keys.buffer, "2*x+2");
    keys.Select(0, 3);
    keys.operations.ExecuteMEMSAVE(false);
    keys.Select(3, 5);
    keys.operations.ExecuteMEMPLUS();
    EXPECT_EQ(keys.operations.Memory().Text(), "2*x+2");
    keys.operations.ExecuteMEMMINUS();
    EXPECT_EQ(keys.operations.Memory().Text(), "2*x");
    keys.operations.ExecuteMEMMINUS();  // the item is gone: nothing happens
    EXPECT_EQ(keys.operations.Memory().Text(), "2*x");
    const std::vector<Shown> expected{
        {21822, Saved("2*x")},
        {21822, Saved("2*x+2")},
        {21823,
         "The mathematical text string \"+2\" has been removed from the currently saved "
         "string."},
    };
    EXPECT_EQ(keys.shown, expected);
}

TEST(CalculatorMemory, MinusCutsAtTheLastOccurrence) {
    CalculatorMemory memory;
    memory.Save("ab", false);
    memory.Save("ab", true);
    memory.Save("ab", true);
    EXPECT_EQ(memory.Remove(), "ab");
    EXPECT_EQ(memory.Text(), "abab");
    EXPECT_FALSE(memory.LastItem());
    EXPECT_FALSE(memory.Remove());
}

TEST(CalculatorMemory, MinusOfTheWholeMemoryEmptiesIt) {
    MemoryKeys keys;
    Load(keys.buffer, "|7");
    keys.operations.ExecuteMEMSAVE(false);
    keys.operations.ExecuteMEMMINUS();
    EXPECT_FALSE(keys.operations.Memory().Text());
    keys.operations.ExecuteMEMRECALL();
    ASSERT_EQ(keys.shown.size(), 3U);
    EXPECT_EQ(keys.shown[2],
              (Shown{21821,
                     "You must first save the text you would like to recall using the "
                     "memory save button MS."}));
    EXPECT_EQ(Draw(keys.buffer), "7|");
}

TEST(CalculatorMemory, RecallInsertsTheTextAsItIsAtTheCaret) {
    MemoryKeys keys;
    Load(keys.buffer, "x; y // not computed");
    keys.Select(0, 20);
    keys.operations.ExecuteMEMSAVE(false);
    Load(keys.buffer, "1+|\n2");
    keys.operations.ExecuteMEMRECALL();
    EXPECT_EQ(Draw(keys.buffer), "1+x; y // not computed|\n2");
    keys.Select(0, 1);
    keys.operations.ExecuteMEMRECALL();
    EXPECT_EQ(Draw(keys.buffer), "x; y // not computed+x; y // not computed|\n2");
}

TEST(CalculatorMemory, ClearTellsAndForgetsTheItemToo) {
    MemoryKeys keys;
    Load(keys.buffer, "|5");
    keys.operations.ExecuteMEMSAVE(false);
    keys.operations.ExecuteMEMCLEAR();
    EXPECT_FALSE(keys.operations.Memory().Text());
    EXPECT_FALSE(keys.operations.Memory().LastItem());
    EXPECT_EQ(keys.shown.back(), (Shown{21824, "The memory has been cleared."}));
    for (const std::string &caption : keys.captions) EXPECT_EQ(caption, "Calculator");
    keys.operations.ExecuteMEMMINUS();
    EXPECT_EQ(keys.shown.size(), 2U);
}

TEST(CalculatorKeys, HundredKeysNumberedByRowAndColumn) {
    const auto keys = CalculatorKeys();
    ASSERT_EQ(keys.size(), 100U);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        EXPECT_EQ(keys[i].id, kFirstCalculatorKeyId + static_cast<int>(i));
        EXPECT_FALSE(keys[i].face.empty()) << keys[i].id;
        EXPECT_EQ(FindCalculatorKey(keys[i].id), &keys[i]);
    }
    EXPECT_EQ(FindCalculatorKey(24098), nullptr);
    EXPECT_EQ(FindCalculatorKey(24199), nullptr);
}

TEST(CalculatorKeys, GridPlacesTheKeysOfTheBar) {
    const struct {
        int row;
        int column;
        CalculatorAction action;
        const char *argument;
    } cases[] = {
        {0, 0, CalculatorAction::Help, ""},
        {0, 9, CalculatorAction::Differentiation, ""},
        {1, 0, CalculatorAction::FunctionList, "MEAN"},
        {1, 1, CalculatorAction::AngleRadians, ""},
        {1, 7, CalculatorAction::InsertText, "PI"},
        {1, 9, CalculatorAction::FunctionTwo, "PERCENT"},
        {2, 1, CalculatorAction::Function, "DEG"},
        {2, 2, CalculatorAction::Function, "RAD"},
        {2, 7, CalculatorAction::Root, ""},
        {3, 3, CalculatorAction::FunctionTwo, "LOG"},
        {4, 3, CalculatorAction::LastAnswer, ""},
        {5, 7, CalculatorAction::Brackets, ""},
        {6, 9, CalculatorAction::DeleteLine, ""},
        {7, 3, CalculatorAction::MemorySave, ""},
        {8, 9, CalculatorAction::InsertText, "*"},
        {9, 0, CalculatorAction::Function, "COT"},
        {9, 8, CalculatorAction::Sign, ""},
        {9, 9, CalculatorAction::Enter, ""},
    };
    for (const auto &c : cases) {
        const CalculatorKey *key = FindCalculatorKey(24099 + 10 * c.row + c.column);
        ASSERT_NE(key, nullptr);
        EXPECT_EQ(key->action, c.action) << c.row << "," << c.column;
        EXPECT_EQ(key->argument, c.argument) << c.row << "," << c.column;
    }
}

TEST(CalculatorKeys, EditorKeysActOnTheTextAndOthersAreRouted) {
    MemoryKeys keys;
    Load(keys.buffer, "x+1");
    keys.Select(0, 3);
    EXPECT_TRUE(RunCalculatorKey(*FindCalculatorKey(24131), keys.operations));  // SIN
    EXPECT_EQ(Draw(keys.buffer), "SIN[x+1]|");
    Load(keys.buffer, "1,2");
    keys.Select(0, 3);
    EXPECT_TRUE(RunCalculatorKey(*FindCalculatorKey(24109), keys.operations));  // MEAN
    EXPECT_EQ(Draw(keys.buffer), "MEAN[{1,2,|}]");
    int routed = 0;
    for (const auto &key : CalculatorKeys()) {
        if (IsEditorKey(key)) continue;
        ++routed;
        EXPECT_FALSE(RunCalculatorKey(key, keys.operations)) << key.id;
    }
    EXPECT_EQ(routed, 10);
    Load(keys.buffer, "|");
    for (int id : {24164, 24195, 24187, 24116})
        RunCalculatorKey(*FindCalculatorKey(id), keys.operations);
    EXPECT_EQ(Draw(keys.buffer), "7.+PI|");
}

}  // namespace
}  // namespace quindar
