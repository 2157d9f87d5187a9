// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The rules of the open documents: captions, the table of 50, the next current document, the
// dirty rule and the close questions' order.
#include <gtest/gtest.h>

#include "document_close_rules.h"
#include "document_roster.h"

namespace quindar {
namespace {

TEST(DocumentCaptions, UntitledFileAndCombo) {
    EXPECT_EQ(untitled_caption(1, "Math Editor"), "1 - MATH EDITOR");
    EXPECT_EQ(untitled_caption(37, "Math Editor"), "37 - MATH EDITOR");
    EXPECT_EQ(file_caption("Math Editor", "/tmp/x/a.qnd"), "MATH EDITOR - /TMP/X/A.QND");
    const std::pair<const char *, const char *> combos[] = {
        {"MATH EDITOR - /TMP/X/A.QND", "A.QND"},
        {"MATH EDITOR - C:\\Work\\a.qnd", "a.qnd"},
        {"MATH EDITOR - C:a.qnd", "a.qnd"},
        {"2 - MATH EDITOR", "2 - MATH EDITOR"},
    };
    for (const auto &[caption, entry] : combos)
        EXPECT_EQ(combo_entry_text(caption), entry) << caption;
    EXPECT_TRUE(same_document_path("/Tmp/A.qnd", "/tmp/a.QND"));
    EXPECT_FALSE(same_document_path("/tmp/a.qnd", "/tmp/a.qnd2"));
}

TEST(DocumentRoster, FiftyAtMostNumbersCountUp) {
    DocumentRoster roster;
    for (int key = 1; key <= kMaximumDocuments; ++key) {
        EXPECT_FALSE(roster.Full());
        EXPECT_EQ(roster.TakeNewNumber(), key);
        roster.Add(key);
    }
    EXPECT_TRUE(roster.Full());
    roster.Remove(2);
    EXPECT_FALSE(roster.Full());
    EXPECT_EQ(roster.TakeNewNumber(), 51);
}

struct RemovalCase {
    int count;
    int removedIndex;
    std::optional<int> next;
};

TEST(DocumentRoster, NextCurrentDocument) {
    const RemovalCase cases[] = {
        {3, 0, 0},  // the first: the second, now first
        {3, 1, 1},  // a middle one: the next one, which moved up
        {3, 2, 1},  // the last: the one before it
        {1, 0, std::nullopt},
        {2, 1, 0},
    };
    for (const RemovalCase &entry : cases) {
        DocumentRoster roster;
        for (int key = 10; key < 10 + entry.count; ++key) roster.Add(key);
        const int removedKey = roster.KeyAt(entry.removedIndex);
        EXPECT_EQ(roster.Remove(removedKey), entry.next)
            << entry.count << " " << entry.removedIndex;
        EXPECT_EQ(roster.IndexOf(removedKey), -1);
        EXPECT_EQ(roster.Count(), entry.count - 1);
    }
}

TEST(DocumentRoster, PathsAreFoundWithoutRegardToCase) {
    DocumentRoster roster;
    roster.Add(1);
    roster.Add(2, "/home/u/Work.qnd");
    EXPECT_EQ(roster.IndexOfPath("/HOME/U/work.QND"), 1);
    EXPECT_EQ(roster.IndexOfPath("/home/u/other.qnd"), -1);
    roster.SetPath(1, "/home/u/new.qnd");
    EXPECT_EQ(roster.IndexOfPath("/home/u/new.qnd"), 0);
    EXPECT_EQ(roster.Remove(99), std::nullopt);
}

struct CloseCase {
    const char *name;
    DocumentChanges changes;
    DocumentActivity activity;
    CloseStep step;
    bool dirty;
};

TEST(DocumentCloseRules, OrderOfTheQuestions) {
    DocumentChanges text;
    text.textModified = true;
    DocumentChanges variable;
    variable.variablesSaved = false;
    DocumentChanges graph;
    graph.graphsChanged = true;
    DocumentActivity building;
    building.buildingGraph = true;
    DocumentActivity integrating;
    integrating.computingIntegral = true;
    DocumentActivity differentiating;
    differentiating.computingDerivative = true;
    const CloseCase cases[] = {
        {"clean", {}, {}, CloseStep::Close, false},
        {"clean while computing", {}, building, CloseStep::Close, false},
        {"text", text, {}, CloseStep::AskSaveText, true},
        {"text while computing", text, building, CloseStep::AskSaveText, true},
        {"variable", variable, {}, CloseStep::AskSaveAttributes, true},
        {"graph", graph, {}, CloseStep::AskSaveAttributes, true},
        {"variable, graph building", variable, building, CloseStep::RefuseGraph, true},
        {"variable, derivative", variable, differentiating, CloseStep::RefuseDerivative, true},
        {"variable, integral", variable, integrating, CloseStep::RefuseIntegral, true},
    };
    for (const CloseCase &entry : cases) {
        EXPECT_EQ(close_step(entry.changes, entry.activity), entry.step) << entry.name;
        EXPECT_EQ(document_dirty(entry.changes), entry.dirty) << entry.name;
    }
}

TEST(DocumentCloseRules, MessagesOfTheSteps) {
    EXPECT_EQ(close_message(CloseStep::AskSaveText, false).text, 32553);
    EXPECT_EQ(close_message(CloseStep::AskSaveAttributes, true).text, 21806);
    EXPECT_EQ(close_message(CloseStep::AskSaveAttributes, false).text, 21807);
    EXPECT_EQ(close_message(CloseStep::AskSaveAttributes, false).title, 24407);
    EXPECT_EQ(close_message(CloseStep::RefuseGraph, false).text, 25109);
    EXPECT_EQ(close_message(CloseStep::RefuseGraph, false).title, 25101);
    EXPECT_EQ(close_message(CloseStep::RefuseDerivative, false).title, 13150);
    EXPECT_EQ(close_message(CloseStep::RefuseIntegral, false).title, 13100);
    EXPECT_EQ(close_message(CloseStep::Close, false).text, 0);
    EXPECT_EQ(close_question_name("/tmp/x/a.qnd", "Math Editor"), "a.qnd");
    EXPECT_EQ(close_question_name("", "Math Editor"), "Math Editor");
}

}  // namespace
}  // namespace quindar
