// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The hash look-up of variables and functions against a scan of the list, the way the look-up
// was done before: the first slot holding the name, after any sequence of list operations.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "name_index.h"
#include "parser.h"

namespace quindar {
namespace {

struct Named {
    explicit Named(std::string text) : name(std::move(text)) {}
    std::string name;
};

const std::string &name_of(const Named &n) {
    return n.name;
}

// The reference: the first filled slot whose element carries the name.
int scan(const DynArray<Named, 4> &array, const std::string &name) {
    for (int i = 0; i < array.size(); ++i)
        if (array[i] != nullptr && array[i]->name == name) return i;
    return -1;
}

class NameIndexAgainstScan : public ::testing::TestWithParam<bool> {};

// Random adds, removes, moves, swaps, inserts, replacements and flushes, with names drawn
// from a small pool so that duplicates are common; every name of the pool is looked up
// after each operation.
TEST_P(NameIndexAgainstScan, AgreesAfterEveryOperation) {
    DynArray<Named, 4> array;
    array.jump_on_error = false;
    array.compact_on_remove = GetParam();
    NameIndex<Named, 4> index(&name_of);
    std::mt19937 random(20261123);
    auto pick = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    auto fresh = [&] { return new Named("n" + std::to_string(pick(40))); };
    for (int step = 0; step < 4000; ++step) {
        const int size = array.size();
        switch (pick(10)) {
            case 0:
            case 1:
            case 2:
                array.add(fresh());
                break;
            case 3:
                array.remove(pick(size));
                break;
            case 4:
                array.move(pick(size), pick(size));
                break;
            case 5:
                array.switcher(pick(size), pick(size));
                break;
            case 6:
                array.insert(fresh(), pick(size));
                break;
            case 7:
                array.replace(pick(3) == 0 ? nullptr : fresh(), pick(size));
                break;
            case 8:
                if (pick(50) == 0) array.flush();
                break;
            default:
                array.Delete(pick(size));
                break;
        }
        // The name asked last before the operation first, then each name twice: a name
        // asked again is answered from the last hit.
        ASSERT_EQ(index.find(array, "n39"), scan(array, "n39")) << "step " << step;
        for (int n = 0; n < 40; ++n) {
            const std::string name = "n" + std::to_string(n);
            ASSERT_EQ(index.find(array, name), scan(array, name)) << "step " << step << " " << name;
            ASSERT_EQ(index.find(array, name), scan(array, name)) << "step " << step << " " << name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Compacting, NameIndexAgainstScan, ::testing::Values(true, false));

TEST(NameIndex, ARenameInPlaceCountsOnceTheArrayIsTouched) {
    DynArray<Named, 4> array;
    NameIndex<Named, 4> index(&name_of);
    array.add(new Named("a"));
    array.add(new Named("b"));
    EXPECT_EQ(index.find(array, "b"), 1);
    array[1]->name = "c";
    EXPECT_EQ(index.find(array, "b"), -1);  // the hit is checked against the element
    array.touch();
    EXPECT_EQ(index.find(array, "c"), 1);
}

TEST(NameIndex, AnAddInAnEarlierGapOutranksTheLastHit) {
    DynArray<Named, 4> array;
    array.compact_on_remove = false;
    NameIndex<Named, 4> index(&name_of);
    array.add(new Named("a"));
    array.add(new Named("b"));
    array.add(new Named("c"));
    array.remove(0);
    EXPECT_EQ(index.find(array, "c"), 2);
    array.add(new Named("c"));  // fills slot 0
    EXPECT_EQ(index.find(array, "c"), 0);
}

TEST(NameIndex, SwappedArraysAreIndexedAfresh) {
    DynArray<Named, 4> first, second;
    NameIndex<Named, 4> index(&name_of);
    first.add(new Named("a"));
    second.add(new Named("b"));
    second.add(new Named("a"));
    EXPECT_EQ(index.find(first, "a"), 0);
    first.swap(second);
    EXPECT_EQ(index.find(first, "a"), 1);
    EXPECT_EQ(index.find(first, "b"), 0);
}

// The engine's tables: case counts, the cursor lands on the name found, and the lists keep
// the order they are shown in.
TEST(NameLookUp, VariablesAndFunctionsOfTheEngine) {
    Parser parser("", "");
    for (const char *line : {"x = 1", "X = 2", "y = 3", "f[a] = a+1", "F[a,b] = a*b", "g[t] = t"})
        parser.eval_exp(line, true, false);
    EXPECT_EQ(parser.find_variable("x"), 0);
    EXPECT_EQ(parser.find_variable("X"), 1);
    EXPECT_EQ(parser.variables.index(), 1);
    EXPECT_EQ(parser.find_variable("Y"), -1);
    EXPECT_EQ(parser.find_variable(""), -1);
    EXPECT_EQ(parser.find_variable(nullptr), -1);
    EXPECT_EQ(parser.find_function("F"), 1);
    EXPECT_EQ(parser.find_function("F[a,b]"), 1);
    EXPECT_EQ(parser.find_function("F(a,b)"), 1);
    EXPECT_EQ(parser.find_function("f[a,b]"), -1);
    EXPECT_EQ(parser.functions.index(), 1);
    parser.move_var(2, 0);
    EXPECT_EQ(parser.find_variable("y"), 0);
    EXPECT_EQ(parser.find_variable("x"), 1);
    EXPECT_TRUE(parser.delete_variable(0));
    EXPECT_EQ(parser.find_variable("y"), -1);
    EXPECT_EQ(parser.find_variable("X"), 1);
    parser.switch_funcs(0, 2);
    EXPECT_EQ(parser.find_function("g"), 0);
    EXPECT_EQ(parser.find_function("f[a]"), 2);
    parser.delete_all_funcs();
    EXPECT_EQ(parser.find_function("g"), -1);
    EXPECT_STREQ(parser.eval_exp("x + X", true, false), "3");
}

}  // namespace
}  // namespace quindar
