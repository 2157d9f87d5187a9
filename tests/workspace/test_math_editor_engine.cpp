// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// What the Math Editor hands the engine and does with its reply, with a scripted engine in
// its place: declarations, list refreshes, sounds, old-answer recognition.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "editor_fixture.h"

namespace quindar {
namespace {

using testing::Draw;
using testing::Load;
using testing::Reply;
using testing::ScriptedEditor;

struct RecalculatingCase {
    const char *statement;
    bool recalculating;
};

TEST(IsRecalculating, TellsOldAnswersFromAssignmentsAndComparisons) {
    const RecalculatingCase cases[] = {
        {"2+3 = 7", true},
        {"2+3=", true},
        {"2+3 = 1.5e+10", true},
        {"2+3 = 3+4i", true},
        {"2+3 = -1.5E-7-2i", true},
        {"2+3 = 5 // sum", true},
        {"2+3 = 5// a;b", true},
        {"f[x]=2", true},
        {"(x)=2", true},
        {"-x = 3", true},
        {"2 = 3", true},
        {"a#b = 5", true},
        {"a b = 5", true},
        {"  x+1 = 5", true},
        {"x = 7", false},
        {"  x   = 7", false},
        {"x1 = 2", false},
        {"_x = 2", false},
        {"f[x]=x^2", false},
        {"x = 0, 10, 11", false},
        {"a<=5", false},
        {"a==5", false},
        {"a!=5", false},
        {"a>=5", false},
        {"a<5", false},
        {"2+3", false},
        {"=5", false},
        {" = 5", false},
        {"", false},
        {"2+3 = 5/2", false},
        {"2+3 = 5 // a=b", false},
        {"2+3 = 5 /", false},
        {"2+3 = x", false},
    };
    for (const auto &c : cases) {
        ScriptedEditor fixture;
        EXPECT_EQ(fixture.editor.IsRecalculating(c.statement), c.recalculating) << c.statement;
    }
}

TEST(IsRecalculating, AKnownVariableOnTheLeftIsAnAssignment) {
    ScriptedEditor fixture;
    EXPECT_TRUE(fixture.editor.IsRecalculating("x[1] = 2"));
    fixture.engine.variables.insert("x[1]");
    EXPECT_FALSE(fixture.editor.IsRecalculating("x[1] = 2"));
    EXPECT_FALSE(fixture.editor.IsRecalculating("  x[1]   = 2"));
}

// A line, what the engine answers, and what comes of it.
struct EngineCase {
    const char *before;
    std::vector<std::pair<const char *, Reply>> replies;
    std::vector<std::string> asked;
    const char *after;
    std::vector<std::string> events;
};

const Reply kAssigned{"", false, true, false};
const Reply kDeclared{"", false, false, true};

TEST(MathEditorEngine, StatementsReachTheEngineCutAndAnswersComeBack) {
    const EngineCase cases[] = {
        {"|x = 7", {{"x = 7", kAssigned}}, {"x = 7"}, "x = 7|", {"variables", "Add.wav"}},
        {"|x = 7 // c", {{"x = 7", kAssigned}}, {"x = 7"}, "x = 7| // c", {"variables", "Add.wav"}},
        {"|x = 0, 10, 11",
         {{"x = 0, 10, 11", kAssigned}},
         {"x = 0, 10, 11"},
         "x = 0, 10, 11|",
         {"variables", "Add.wav"}},
        // A declaration whose right side is more than a number shows its value.
        {"|x = 2+3",
         {{"x = 2+3", {" = 5", false, true, false}}},
         {"x = 2+3"},
         "x = 2+3 = 5|",
         {"variables", "Add.wav"}},
        {"|f[x] = x^2",
         {{"f[x] = x^2", kDeclared}},
         {"f[x] = x^2"},
         "f[x] = x^2|",
         {"functions", "calculus", "Add.wav"}},
        {"|f[x]=2", {{"f[x]", {" = 4"}}}, {"f[x]"}, "f[x] = 4|", {"Command.wav"}},
        {"|a=1; b=2; a+b",
         {{"a=1", kAssigned}, {"b=2", kAssigned}, {"a+b", {" = 3"}}},
         {"a=1", "b=2", "a+b"},
         "a=1; b=2; a+b = 3|",
         {"variables", "Add.wav", "variables", "Add.wav", "Command.wav"}},
        {"|a=1; b=2;",
         {{"a=1", kAssigned}, {"b=2", kAssigned}},
         {"a=1", "b=2"},
         "a=1; b=2;|",
         {"variables", "Add.wav", "variables", "Add.wav"}},
        // An answer of an earlier statement is never shown.
        {"|a=1+1; a",
         {{"a=1+1", {" = 2", false, true}}, {"a", {" = 2"}}},
         {"a=1+1", "a"},
         "a=1+1; a = 2|",
         {"variables", "Add.wav", "Command.wav"}},
        {"|2+3 // a;b",
         {{"2+3", {" = 5"}}, {"b", {" = 7"}}},
         {"2+3", "b"},
         "2+3 // a;b = 7|",
         {"Command.wav", "Command.wav"}},
        // A failure: no answer, no refresh, no sound, the rest of the line is not computed.
        {"|y = 1/0; 2", {}, {"y = 1/0"}, "y = 1/0; 2|", {}},
        {"|a=1; y; 2", {{"a=1", kAssigned}}, {"a=1", "y"}, "a=1; y; 2|", {"variables", "Add.wav"}},
    };
    for (const auto &c : cases) {
        ScriptedEditor fixture;
        for (const auto &[statement, reply] : c.replies) fixture.engine.replies[statement] = reply;
        Load(fixture.buffer, c.before);
        fixture.editor.ProcessComLine(true, false, true);
        EXPECT_EQ(fixture.engine.asked, c.asked) << c.before;
        EXPECT_EQ(Draw(fixture.buffer), c.after) << c.before;
        EXPECT_EQ(fixture.events, c.events) << c.before;
        EXPECT_FALSE(fixture.engine.askedSilent) << "the engine shows its own messages";
        EXPECT_FALSE(fixture.engine.askedWithoutEquals) << "answers start with \" = \"";
    }
}

TEST(MathEditorEngine, AnErrorIsClearedBeforeTheNextStatement) {
    ScriptedEditor fixture;
    Load(fixture.buffer, "|oops");
    EXPECT_FALSE(fixture.editor.ProcessComLine(true, false, true));
    EXPECT_EQ(fixture.engine.cleared, 1);
    EXPECT_FALSE(fixture.engine.IsAnError());
    std::string statement = "oops";
    EXPECT_TRUE(fixture.editor.Calculate(statement));
    EXPECT_EQ(fixture.engine.cleared, 2);
}

TEST(MathEditorEngine, TheLastAnswerIsTheTextBehindEqualsAndBlank) {
    const std::pair<const char *, const char *> cases[] = {
        {" = 5", "5"}, {" = 1+2i", "1+2i"}, {" =5", "before"}, {"5", "before"}, {" = ", ""},
    };
    for (const auto &[answer, last] : cases) {
        ScriptedEditor fixture;
        fixture.editor.lastAnswerText = "before";
        fixture.engine.replies["q"] = Reply{answer};
        Load(fixture.buffer, "|q");
        fixture.editor.ProcessComLine(true, false, true);
        EXPECT_EQ(fixture.editor.lastAnswerText, last) << answer;
    }
}

TEST(MathEditorEngine, ACarriageReturnHandledDuringTheComputationIsTakenBack) {
    ScriptedEditor fixture;
    fixture.engine.replies["2+3 "] = Reply{" = 5"};
    // The control handles the Enter's carriage return while the engine works.
    fixture.engine.during = [&] { fixture.buffer.HandleChar('\r'); };
    Load(fixture.buffer, "|2+3 \nnext");
    fixture.editor.ProcessComLine(false, false, false);
    // The back key takes the break and the character before it (here a blank).
    EXPECT_EQ(Draw(fixture.buffer), "2+3 = 5|\nnext");
}

}  // namespace
}  // namespace quindar
