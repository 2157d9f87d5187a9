// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Key-down and character rules of the Math Editor, and the three ways a line is computed.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor_fixture.h"

namespace quindar {
namespace {

using testing::Draw;
using testing::Load;
using testing::RealEditor;

// One key press as the control delivers it: the key-downs, then the character if any.
struct Press {
    const char *name;
    std::vector<EditorKey> keys;
    char character;  // 0: none
};

const Press kEnter{"Enter", {EditorKey::Enter}, '\r'};
const Press kShiftEnter{"Shift+Enter", {EditorKey::Shift, EditorKey::Enter}, '\r'};
const Press kF4{"F4", {EditorKey::F4}, 0};

void PressKeys(MathEditor &editor, const Press &press) {
    for (EditorKey key : press.keys) editor.EvKeyDown(key);
    if (press.character != 0) editor.EvChar(press.character);
}

struct KeyCase {
    const Press &press;
    bool calculationMethod;
    const char *before;
    const char *after;
};

TEST(MathEditorKeys, EveryRowOfTheKeyTable) {
    const KeyCase cases[] = {
        // Enter computes, the caret goes to the line's end, the carriage return breaks there.
        {kEnter, true, "2+|3", "2+3 = 5\n|"},
        // Enter only breaks the line, at the caret.
        {kEnter, false, "2+|3", "2+\n|3"},
        {kShiftEnter, true, "2+|3", "2+3 = 5|"},
        {kShiftEnter, false, "2+|3", "2+3 = 5|"},
        // F4 leaves the caret behind the answer, before the comment.
        {kF4, true, "2+|3 // sum", "2+3 = 5| // sum"},
        {kF4, false, "2+|3 // sum", "2+3 = 5| // sum"},
        {kF4, true, "|2+3\n1", "2+3 = 5|\n1"},
        // Enter on a comment line computes nothing and breaks at the caret.
        {kEnter, true, "// a|b", "// a\n|b"},
        {kShiftEnter, true, "// a|b", "// a|b"},
        {kEnter, true, "|", "\n|"},
        // A failed line with Enter still breaks, behind the line as typed.
        {kEnter, true, "1|/0", "1/0\n|"},
        {kShiftEnter, false, "1|/0", "1/0|"},
    };
    for (const auto &c : cases) {
        RealEditor fixture;
        fixture.editor.CalculationMethod = c.calculationMethod;
        Load(fixture.buffer, c.before);
        PressKeys(fixture.editor, c.press);
        EXPECT_EQ(Draw(fixture.buffer), c.after) << c.press.name << " with CalculationMethod "
                                                 << c.calculationMethod << " on " << c.before;
        EXPECT_FALSE(fixture.editor.shiftPressed) << c.press.name;
    }
}

struct ComLineCase {
    bool advanceLine;
    bool keepCaret;
    const char *before;
    const char *after;
};

TEST(MathEditorKeys, AfterComputingTheCaretFollowsTheCaller) {
    const ComLineCase cases[] = {
        // The calculator's "=" key: a new line after a computed one.
        {true, false, "2+|3", "2+3 = 5\n|"},
        {true, false, "2+|3\n4", "2+3 = 5\n|\n4"},
        // A failed last line gets a line after it, the caret stays on it.
        {true, false, "1|/0", "1/0|\n"},
        // A failed line that is not the last gets none.
        {true, false, "1|/0\n4", "1/0|\n4"},
        {false, false, "2+|3 // c", "2+3 = 5 // c|"},
        {true, true, "2+|3 // c", "2+3 = 5| // c"},
    };
    for (const auto &c : cases) {
        RealEditor fixture;
        Load(fixture.buffer, c.before);
        fixture.editor.ProcessComLine(c.advanceLine, false, c.keepCaret);
        EXPECT_EQ(Draw(fixture.buffer), c.after) << c.before;
    }
}

TEST(MathEditorKeys, WithoutCalculationMethodComputingWithoutAdvanceLeavesTheCaret) {
    RealEditor fixture;
    fixture.editor.CalculationMethod = false;
    Load(fixture.buffer, "2+3 // c|");
    fixture.editor.ProcessComLine(false, false, false);
    EXPECT_EQ(Draw(fixture.buffer), "2+3 = 5| // c");
}

struct Box {
    std::string text, caption;
    MessageStyle style;
};

TEST(MathEditorKeys, OnlyTheCalculatorComplainsAboutAnEmptyLine) {
    const std::pair<const char *, bool> cases[] = {
        {"|", true},
        {"   \t|", true},
        {"|", false},
        {"  |", false},
    };
    for (const auto &[text, complain] : cases) {
        RealEditor fixture;
        std::vector<Box> boxes;
        fixture.editor.DispMessageBox = [&](std::string_view message, std::string_view caption,
                                            MessageStyle style) {
            boxes.push_back({std::string(message), std::string(caption), style});
            return true;
        };
        Load(fixture.buffer, text);
        EXPECT_TRUE(fixture.editor.ProcessComLine(true, complain, false));
        EXPECT_EQ(Draw(fixture.buffer), text) << "nothing moves";
        ASSERT_EQ(boxes.size(), complain ? 1u : 0u) << text;
        if (complain) {
            EXPECT_EQ(boxes[0].text, "No expression is pressent to Compute!");
            EXPECT_EQ(boxes[0].caption, "Math Editor Error");
            EXPECT_EQ(boxes[0].style, MessageStyle::Warning);
        }
    }
}

// Which hook a key sequence reaches, and whether the last key reached the control (shown by
// the Delete key, which the in-memory control carries out).
struct HookCase {
    std::vector<EditorKey> keys;
    const char *hook;  // "" for none
    const char *after;
    bool shiftPressed;
    bool ctrlPressed;
};

TEST(MathEditorKeys, ShortcutsReachTheirHooksAndNotTheControl) {
    const HookCase cases[] = {
        {{EditorKey::Ctrl, EditorKey::LetterF}, "find", "a|bc", false, true},
        {{EditorKey::Ctrl, EditorKey::LetterR}, "replace", "a|bc", false, true},
        {{EditorKey::Ctrl, EditorKey::Delete}, "clear", "a|bc", false, true},
        {{EditorKey::F3}, "find next", "a|bc", false, false},
        {{EditorKey::LetterF}, "", "a|bc", false, false},
        {{EditorKey::Delete}, "", "a|c", false, false},
        // Another key between Ctrl and the letter clears the flag.
        {{EditorKey::Ctrl, EditorKey::Other, EditorKey::LetterF}, "", "a|bc", false, false},
        {{EditorKey::Ctrl, EditorKey::Other, EditorKey::Delete}, "", "a|c", false, false},
        // Shift stays set over Shift, Ctrl over Ctrl; each clears the other.
        {{EditorKey::Shift, EditorKey::Shift}, "", "a|bc", true, false},
        {{EditorKey::Ctrl, EditorKey::Shift}, "", "a|bc", true, false},
        {{EditorKey::Shift, EditorKey::Ctrl}, "", "a|bc", false, true},
        {{EditorKey::Shift, EditorKey::Other}, "", "a|bc", false, false},
    };
    for (const auto &c : cases) {
        RealEditor fixture;
        std::vector<std::string> hooks;
        fixture.editor.CmEditFind = [&] { hooks.emplace_back("find"); };
        fixture.editor.CmEditReplace = [&] { hooks.emplace_back("replace"); };
        fixture.editor.CmEditClear = [&] { hooks.emplace_back("clear"); };
        fixture.editor.CmEditFindNext = [&] { hooks.emplace_back("find next"); };
        Load(fixture.buffer, "a|bc");
        for (EditorKey key : c.keys) fixture.editor.EvKeyDown(key);
        const std::vector<std::string> expected =
            *c.hook ? std::vector<std::string>{c.hook} : std::vector<std::string>{};
        EXPECT_EQ(hooks, expected) << c.hook;
        EXPECT_EQ(Draw(fixture.buffer), c.after) << c.hook;
        EXPECT_EQ(fixture.editor.shiftPressed, c.shiftPressed) << c.hook;
        EXPECT_EQ(fixture.editor.ctrlPressed, c.ctrlPressed) << c.hook;
    }
}

TEST(MathEditorKeys, ShortcutsWithoutHooksDoNothing) {
    RealEditor fixture;
    Load(fixture.buffer, "a|bc");
    for (EditorKey key : {EditorKey::Ctrl, EditorKey::Delete, EditorKey::F3})
        fixture.editor.EvKeyDown(key);
    EXPECT_EQ(Draw(fixture.buffer), "a|bc");
}

TEST(MathEditorKeys, AShiftedCarriageReturnIsDroppedOnce) {
    RealEditor fixture;
    Load(fixture.buffer, "ab|");
    fixture.editor.shiftPressed = true;
    fixture.editor.EvChar('\r');
    EXPECT_EQ(Draw(fixture.buffer), "ab|");
    EXPECT_FALSE(fixture.editor.shiftPressed);
    fixture.editor.EvChar('\r');
    EXPECT_EQ(Draw(fixture.buffer), "ab\n|");
    fixture.editor.shiftPressed = true;
    fixture.editor.EvChar('x');
    EXPECT_EQ(Draw(fixture.buffer), "ab\nx|");
    EXPECT_TRUE(fixture.editor.shiftPressed);
}

}  // namespace
}  // namespace quindar
