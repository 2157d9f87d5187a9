// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The managers' name and value rules, and the order in which the lists delete a selection.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "delete_questions.h"
#include "list_deletion.h"
#include "manager_checks.h"
#include "manager_messages.h"

namespace quindar {
namespace {

struct CheckCase {
    const char *text;
    int messageId;
    char character;
    const char *goesOnWith;
};

void ExpectChecks(ManagerCheck (*check)(std::string_view), std::span<const CheckCase> cases) {
    for (const auto &c : cases) {
        const ManagerCheck result = check(c.text);
        EXPECT_EQ(result.messageId, c.messageId) << '"' << c.text << '"';
        EXPECT_EQ(result.character, c.character) << '"' << c.text << '"';
        EXPECT_EQ(result.text, c.goesOnWith) << '"' << c.text << '"';
    }
}

TEST(ManagerChecks, VariableNames) {
    const CheckCase cases[] = {
        {"abc", 0, 0, "abc"},
        {"  abc", 0, 0, "abc"},
        {"x_1", 0, 0, "x_1"},
        {"1abc", 31521, 0, "1abc"},
        {"  1abc", 31521, 0, "1abc"},
        {"a b", 31522, ' ', "a b"},
        {"ab ", 31522, ' ', "ab "},
        {"a,b", 31533, ',', "a,b"},
        {"a\tb", 31533, '\t', "a\tb"},
        {"f[x]", 31533, '[', "f[x]"},
        {"a(b", 31533, '(', "a(b"},
        {"a\"", 31533, '"', "a\""},
        {"a\\", 31533, '\\', "a\\"},
        {"!a", 31533, '!', "!a"},
        // The blank is met before the character behind it.
        {"a b!", 31522, ' ', "a b!"},
        {"a!b c", 31533, '!', "a!b c"},
    };
    ExpectChecks(CheckVariableName, cases);
}

TEST(ManagerChecks, VariableValues) {
    const CheckCase cases[] = {
        {"12", 0, 0, "12"},
        {"  12", 0, 0, "12"},
        {"SIN[x]+2*(3-1)/4^2!", 0, 0, "SIN[x]+2*(3-1)/4^2!"},
        {"{1,2,3}", 0, 0, "{1,2,3}"},
        {"1 2", 31523, ' ', "1 2"},
        {"2;", 31534, ';', "2;"},
        {"a:b", 31534, ':', "a:b"},
        {"x|y", 31534, '|', "x|y"},
        {"'q'", 31534, '\'', "'q'"},
    };
    ExpectChecks(CheckVariableValue, cases);
}

TEST(ManagerChecks, FunctionNames) {
    const CheckCase cases[] = {
        {"F[x]", 0, 0, "F[x]"},           {"F(x)", 0, 0, "F(x)"},
        {"f [x]", 0, 0, "f[x]"},          {" G [ x , y ] ", 0, 0, "G[x,y]"},
        {"F[x)", 0, 0, "F[x)"},           {"F(x]", 0, 0, "F(x]"},
        {"1F[x]", 30521, 0, "1F[x]"},     {"Fx", 30526, 0, "Fx"},
        {"F(x", 30527, 0, "F(x"},         {"Fx)", 30527, 0, "Fx)"},
        {"F[x", 30527, 0, "F[x"},         {"F)x(", 30522, 0, "F)x("},
        {"F]x[", 30522, 0, "F]x["},       {"F(x)[", 30522, 0, "F(x)["},
        {"F[x]!", 30543, '!', "F[x]!"},   {"F[x;y]", 30543, ';', "F[x;y]"},
        {"F[{x}]", 30543, '{', "F[{x}]"}, {"F[x\ty]", 30523, '\t', "F[x\ty]"},
    };
    ExpectChecks(CheckFunctionName, cases);
}

TEST(ManagerChecks, FunctionValues) {
    const CheckCase cases[] = {
        {"x^2 + 1", 0, 0, "x^2+1"}, {"", 0, 0, ""},           {"x\t+1", 30524, '\t', "x\t+1"},
        {"x#2", 30544, '#', "x#2"}, {"x`", 30544, '`', "x`"},
    };
    ExpectChecks(CheckFunctionValue, cases);
}

TEST(ManagerChecks, MessagesNameTheRefusedCharacter) {
    EXPECT_EQ(CheckVariableName("a,b").Message(),
              "',' is not a legitimate character for a variable's name!");
    EXPECT_EQ(CheckFunctionName("F[x]!").Message(),
              "'!' Is Not A Legitimate Character For A Function's Name!");
    EXPECT_EQ(CheckFunctionValue("x\t").Message(),
              "No spaces are allowed between digits in the Ffunctions value!");
    EXPECT_EQ(CheckVariableName("ok").Message(), "");
    EXPECT_EQ(FormatManagerMessage(31537, "a", "F[x]"),
              "Variable ' a ' is used in the function body of ' F[x] ',\ndo you still want to "
              "delete this variable?");
    EXPECT_EQ(FormatManagerMessage(30550, "F[x]"), "Function \"F[x]\" Has Been Added.");
}

TEST(ManagerChecks, UnchangedValueComparesTheLeadingNumber) {
    const struct {
        const char *typed;
        double real;
        double imaginary;
        bool unchanged;
    } cases[] = {
        {"2", 2, 0, true},  {"2.0", 2, 0, true}, {"2+1", 2, 0, true},     {"3", 2, 0, false},
        {"2", 2, 1, false}, {"x", 0, 0, true},   {"-1e2", -100, 0, true}, {" 2", 2, 0, true},
    };
    for (const auto &c : cases)
        EXPECT_EQ(VariableValueUnchanged(c.typed, c.real, c.imaginary), c.unchanged) << c.typed;
}

TEST(ListDeletion, PlansSortedIndexesLoweredByWhatWentBefore) {
    const struct {
        std::vector<int> selected;
        std::vector<ListDeletion> plan;
    } cases[] = {
        {{4}, {{4, true, true}}},
        {{2, 3}, {{2, false, false}, {2, true, false}}},
        {{3, 2}, {{2, false, false}, {2, true, false}}},
        {{5, 0, 3}, {{0, false, false}, {2, false, false}, {3, true, false}}},
        {{1, 1}, {{1, true, true}}},
        {{}, {}},
    };
    for (const auto &c : cases) {
        const auto plan = PlanListDeletion(c.selected);
        ASSERT_EQ(plan.size(), c.plan.size());
        for (std::size_t i = 0; i < plan.size(); ++i) {
            EXPECT_EQ(std::tie(plan[i].index, plan[i].update, plan[i].ask),
                      std::tie(c.plan[i].index, c.plan[i].update, c.plan[i].ask))
                << "step " << i;
        }
    }
}

TEST(ListDeletion, DeletesTheRightEntriesOfAnEngineList) {
    std::vector<std::string> engine{"a", "b", "c", "d", "e"};
    const std::vector<int> selected{3, 1};  // "d" and "b", as an unsorted selection gives them
    std::vector<bool> updates;
    const int deleted = DeleteSelectedRows(selected, [&](int index, bool update, bool ask) {
        EXPECT_FALSE(ask);
        updates.push_back(update);
        engine.erase(engine.begin() + index);
        return true;
    });
    EXPECT_EQ(deleted, 2);
    EXPECT_EQ(engine, (std::vector<std::string>{"a", "c", "e"}));
    EXPECT_EQ(updates, (std::vector<bool>{false, true}));
}

TEST(ListDeletion, ARefusedDeleteDoesNotShiftTheRest) {
    std::vector<std::string> engine{"a", "b", "c", "d"};
    const std::vector<int> selected{0, 1, 3};
    const int deleted = DeleteSelectedRows(selected, [&](int index, bool, bool) {
        if (engine[static_cast<std::size_t>(index)] == "b") return false;  // the user said No
        engine.erase(engine.begin() + index);
        return true;
    });
    EXPECT_EQ(deleted, 2);
    EXPECT_EQ(engine, (std::vector<std::string>{"b", "c"}));
}

TEST(ListDeletion, SingleSelectionIsMinusOneForNoneOrSeveral) {
    EXPECT_EQ(SingleSelection(std::vector<int>{}), -1);
    EXPECT_EQ(SingleSelection(std::vector<int>{2}), 2);
    EXPECT_EQ(SingleSelection(std::vector<int>{2, 3}), -1);
}

TEST(ListDeletion, TheManagerSelectsTheNextEntryOrTheOneBeforeTheLast) {
    EXPECT_EQ(SelectionAfterDelete(1, 3), 1);
    EXPECT_EQ(SelectionAfterDelete(3, 3), 2);  // the last one went: the one before it
    EXPECT_EQ(SelectionAfterDelete(0, 0), -1);
    EXPECT_EQ(SelectionAfterDelete(0, 1), 0);
}

TEST(DeleteQuestions, AUseIsAskedAboutEvenWithoutAsking) {
    const struct {
        bool function;
        bool used;
        bool ask;
        int id;  // 0: no question
    } cases[] = {
        {false, true, false, 31537}, {false, true, true, 31537}, {false, false, true, 31535},
        {false, false, false, 0},    {true, true, false, 30548}, {true, false, true, 30545},
        {true, false, false, 0},
    };
    for (const auto &c : cases) {
        const auto question =
            c.function
                ? FunctionDeleteQuestion("F[x]", c.used, c.ask)
                : VariableDeleteQuestion(
                      "a", c.used ? std::optional<std::string>("F[x]") : std::nullopt, c.ask);
        EXPECT_EQ(question ? question->id : 0, c.id) << c.function << c.used << c.ask;
    }
    EXPECT_EQ(VariableDeleteQuestion("a", std::nullopt, true)->text,
              "Are you sure that you want to delete 'a'!");
    EXPECT_EQ(FunctionDeleteQuestion("F[x]", true, false)->text,
              "Function \"F[x]\" Is Required For One Or More Defined Graphs, Do You Still Want To "
              "Delete The Function?");
}

}  // namespace
}  // namespace quindar
