// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "dynarray.h"
#include "dynarray_exception.h"
#include "dynlist.h"
#include "evaluation_abort.h"
#include "message_hook.h"

namespace quindar {
namespace {

using Ids = std::vector<int>;

// An element that records its destruction, so that tests see which elements an array
// deleted and that none was deleted twice.
struct Probe {
    Probe(int id_, Ids *log_) : id(id_), log(log_) {}
    Probe(const Probe &) = delete;
    Probe &operator=(const Probe &) = delete;
    ~Probe() { log->push_back(id); }
    int id;
    Ids *log;
};

using Array = DynArray<Probe, 10>;

struct Box {
    std::string text;
    std::string caption;
    MessageStyle style;
};

Ids iota(int n) {
    Ids ids(n);
    std::iota(ids.begin(), ids.end(), 0);
    return ids;
}

class DynArrayTest : public ::testing::Test {
protected:
    Probe *make(int id) { return new Probe(id, &destroyed); }

    // Adds the ids first, first + 1, ... and checks that they land in slots 0, 1, ...
    void fill(Array &array, int n, int first = 0) {
        for (int id = first; id < first + n; ++id) ASSERT_EQ(array.add(make(id)), id - first);
    }

    // The id in every slot up to the last filled one, -1 for an empty slot.
    static Ids slots(const Array &array) {
        Ids ids;
        for (int i = 0; i <= array.maxfullindex(); ++i) ids.push_back(array[i] ? array[i]->id : -1);
        return ids;
    }

    // Errors show through the recording hook and return instead of jumping.
    void stay_on_error(Array &array) {
        array.jump_on_error = false;
        array.set_message_hook(&hook);
    }

    Ids destroyed;
    std::vector<Box> boxes;
    MessageHook hook = [this](std::string_view text, std::string_view caption, MessageStyle style) {
        boxes.push_back({std::string(text), std::string(caption), style});
        return true;
    };
};

// ---------------------------------------------------------------------------------------------
// Construction, add, addchunk

TEST_F(DynArrayTest, StartsWithOneChunkOfEmptySlotsAndBothFlagsSet) {
    Array array;
    EXPECT_EQ(array.size(), 10);
    EXPECT_EQ(array.count(), 0);
    EXPECT_EQ(array.index(), 0);
    EXPECT_TRUE(array.compact_on_remove);
    EXPECT_TRUE(array.jump_on_error);
    EXPECT_EQ(array.message_hook(), nullptr);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(array[i], nullptr) << i;
}

TEST_F(DynArrayTest, EleventhAddGrowsToTwentyAndReturnsTen) {
    Array array;
    fill(array, 10);
    EXPECT_EQ(array.size(), 10);
    EXPECT_EQ(array.add(make(10)), 10);
    EXPECT_EQ(array.size(), 20);
    EXPECT_EQ(array.count(), 11);
    EXPECT_EQ(slots(array), iota(11));
}

TEST_F(DynArrayTest, TwentyFirstAddGrowsToThirty) {
    Array array;
    fill(array, 20);
    EXPECT_EQ(array.size(), 20);
    EXPECT_EQ(array.add(make(20)), 20);
    EXPECT_EQ(array.size(), 30);
}

TEST_F(DynArrayTest, AddTakesTheFirstEmptySlot) {
    Array array;
    fill(array, 4);
    array.compact_on_remove = false;
    ASSERT_TRUE(array.remove(1));
    EXPECT_EQ(array.add(make(7)), 1);
    EXPECT_EQ(slots(array), (Ids{0, 7, 2, 3}));
    EXPECT_EQ(array.count(), 4);
}

TEST_F(DynArrayTest, AddOfNullStoresNothing) {
    Array array;
    EXPECT_EQ(array.add(nullptr), -1);
    EXPECT_EQ(array.count(), 0);
    EXPECT_EQ(array.size(), 10);
}

TEST_F(DynArrayTest, AddchunkGrowsByTheGivenNumberAndKeepsTheContents) {
    const std::pair<int, int> cases[] = {{5, 15}, {1, 11}, {0, 10}, {-3, 10}};  // n, new size
    for (auto [n, size] : cases) {
        Array array;
        fill(array, 3);
        EXPECT_EQ(array.addchunk(n), size) << n;
        EXPECT_EQ(array.size(), size) << n;
        EXPECT_EQ(slots(array), iota(3)) << n;
    }
}

// ---------------------------------------------------------------------------------------------
// replace, insert

TEST_F(DynArrayTest, ReplaceWithinTheSlotsDeletesTheOldElement) {
    Array array;
    fill(array, 3);
    EXPECT_TRUE(array.replace(make(9), 1));
    EXPECT_EQ(destroyed, Ids{1});
    EXPECT_EQ(slots(array), (Ids{0, 9, 2}));
    EXPECT_EQ(array.count(), 3);
}

TEST_F(DynArrayTest, ReplaceWithNullEmptiesTheSlot) {
    Array array;
    fill(array, 3);
    EXPECT_TRUE(array.replace(nullptr, 0));
    EXPECT_EQ(destroyed, Ids{0});
    EXPECT_EQ(slots(array), (Ids{-1, 1, 2}));
    EXPECT_EQ(array.count(), 2);
    EXPECT_TRUE(array.replace(make(5), 0));
    EXPECT_EQ(array.count(), 3);
}

TEST_F(DynArrayTest, ReplaceBeyondTheSizeGrowsByIndexPlusOne) {
    const std::pair<int, int> cases[] = {{10, 21}, {12, 23}, {35, 46}};  // index, new size
    for (auto [i, size] : cases) {
        Array array;
        fill(array, 2);
        EXPECT_TRUE(array.replace(make(99), i)) << i;
        EXPECT_EQ(array.size(), size) << i;
        EXPECT_EQ(array[i]->id, 99) << i;
        EXPECT_EQ(array.count(), 3) << i;
        EXPECT_EQ(array.maxfullindex(), i) << i;
    }
}

TEST_F(DynArrayTest, ReplaceOfAnElementByItselfKeepsIt) {
    Array array;
    fill(array, 2);
    EXPECT_TRUE(array.replace(array[1], 1));
    EXPECT_TRUE(destroyed.empty());
    EXPECT_EQ(slots(array), iota(2));
    EXPECT_EQ(array.count(), 2);
}

TEST_F(DynArrayTest, InsertShiftsTheLaterSlotsUpAndGrowsOnlyForAFullLastSlot) {
    // elements before, index, slots after, size after
    const std::tuple<int, int, Ids, int> cases[] = {
        {3, 1, {0, 50, 1, 2}, 10},
        {3, 3, {0, 1, 2, 50}, 10},
        {9, 4, {0, 1, 2, 3, 50, 4, 5, 6, 7, 8}, 10},
        {10, 0, {50, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, 20},
    };
    for (const auto &[n, i, after, size] : cases) {
        Array array;
        fill(array, n);
        EXPECT_TRUE(array.insert(make(50), i)) << n << ", " << i;
        EXPECT_EQ(slots(array), after) << n << ", " << i;
        EXPECT_EQ(array.size(), size) << n << ", " << i;
        EXPECT_EQ(array.count(), n + 1) << n << ", " << i;
    }
}

TEST_F(DynArrayTest, InsertBeyondTheSizeGrowsByWholeChunks) {
    const std::pair<int, int> cases[] = {{10, 20}, {19, 20}, {20, 30}, {34, 40}};  // index, size
    for (auto [i, size] : cases) {
        Array array;
        fill(array, 2);
        EXPECT_TRUE(array.insert(make(99), i)) << i;
        EXPECT_EQ(array.size(), size) << i;
        EXPECT_EQ(array[i]->id, 99) << i;
        EXPECT_EQ(array.count(), 3) << i;
    }
}

// ---------------------------------------------------------------------------------------------
// -1 means the cursor

TEST_F(DynArrayTest, MinusOneWorksAtTheCursor) {
    struct Case {
        const char *name;
        std::function<bool(Array &, Probe *)> run;
        Ids after;
    };
    const Case cases[] = {
        {"replace", [](Array &a, Probe *p) { return a.replace(p, -1); }, {0, 1, 50, 3}},
        {"insert", [](Array &a, Probe *p) { return a.insert(p, -1); }, {0, 1, 50, 2, 3}},
        {"remove", [](Array &a, Probe *) { return a.remove(-1); }, {0, 1, 3}},
        {"Delete", [](Array &a, Probe *) { return a.Delete(-1); }, {0, 1, 3}},
    };
    for (const Case &c : cases) {
        Array array;
        fill(array, 4);
        array.reset(2);
        Probe *spare = make(50);
        EXPECT_TRUE(c.run(array, spare)) << c.name;
        EXPECT_EQ(slots(array), c.after) << c.name;
        EXPECT_EQ(array.index(), 2) << c.name;
        if (std::find(c.after.begin(), c.after.end(), 50) == c.after.end()) delete spare;
    }
}

// ---------------------------------------------------------------------------------------------
// remove, Delete

TEST_F(DynArrayTest, RemoveDeletesTheElementAndClosesTheGap) {
    const std::pair<int, Ids> cases[] = {{1, {0, 2, 3}}, {0, {1, 2, 3}}, {3, {0, 1, 2}}};
    for (const auto &[i, after] : cases) {
        Array array;
        fill(array, 4);
        destroyed.clear();
        EXPECT_TRUE(array.remove(i)) << i;
        EXPECT_EQ(destroyed, Ids{i}) << i;
        EXPECT_EQ(slots(array), after) << i;
        EXPECT_EQ(array.count(), 3) << i;
        EXPECT_EQ(array[3], nullptr) << i;
    }
}

TEST_F(DynArrayTest, RemoveAndDeleteOfAnEmptySlotAreFalse) {
    Array array;
    fill(array, 3);
    EXPECT_FALSE(array.remove(5));
    EXPECT_FALSE(array.Delete(5));
    EXPECT_EQ(array.count(), 3);
    EXPECT_TRUE(destroyed.empty());
}

TEST_F(DynArrayTest, RemovingDownFromTwentySlotsGivesBackOneChunkAtCountTen) {
    Array array;
    fill(array, 11);
    ASSERT_EQ(array.size(), 20);
    const std::pair<int, int> steps[] = {{10, 10}, {9, 10}, {1, 10}, {0, 10}};  // count, size
    for (auto [count, size] : steps) {
        while (array.count() > count) ASSERT_TRUE(array.remove(0));
        EXPECT_EQ(array.size(), size) << "at count " << count;
    }
}

TEST_F(DynArrayTest, CapacityFallsOneChunkAtATime) {
    Array array;
    fill(array, 25);
    ASSERT_EQ(array.size(), 30);
    const std::pair<int, int> steps[] = {{21, 30}, {20, 20}, {11, 20}, {10, 10}, {0, 10}};
    for (auto [count, size] : steps) {
        while (array.count() > count) ASSERT_TRUE(array.remove(array.count() - 1));
        EXPECT_EQ(array.size(), size) << "at count " << count;
    }
}

TEST_F(DynArrayTest, RemoveWithoutCompactingLeavesTheGapAndTheSize) {
    Array array;
    array.compact_on_remove = false;
    fill(array, 11);
    EXPECT_TRUE(array.remove(3));
    EXPECT_EQ(slots(array), (Ids{0, 1, 2, -1, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(array.count(), 10);
    EXPECT_EQ(array.size(), 20);
}

TEST_F(DynArrayTest, RemoveByPointerFindsTheSlot) {
    Array array;
    fill(array, 3);
    EXPECT_TRUE(array.remove(array[1]));
    EXPECT_EQ(destroyed, Ids{1});
    EXPECT_EQ(slots(array), (Ids{0, 2}));
}

TEST_F(DynArrayTest, RemoveByPointerIsFalseForAStrangerOrNull) {
    Array array;
    array.set_message_hook(&hook);
    fill(array, 3);
    Probe stranger(42, &destroyed);
    EXPECT_FALSE(array.remove(&stranger));
    EXPECT_FALSE(array.remove(static_cast<Probe *>(nullptr)));
    EXPECT_EQ(array.count(), 3);
    EXPECT_TRUE(destroyed.empty());
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DynArrayTest, DeleteShiftsUpToTheLastFilledSlotWhereRemoveStopsAtCount) {
    // Slots 0, 2 and 3 filled, count 3: remove moves slots 1..2 only, Delete every later
    // slot, the gap included.
    Array removing;
    Array deleting;
    for (Array *array : {&removing, &deleting}) {
        fill(*array, 4);
        array->replace(nullptr, 1);
    }
    destroyed.clear();
    EXPECT_TRUE(removing.remove(0));
    EXPECT_TRUE(deleting.Delete(0));
    EXPECT_EQ(slots(removing), (Ids{-1, 2, -1, 3}));
    EXPECT_EQ(slots(deleting), (Ids{-1, 2, 3}));
    EXPECT_EQ(destroyed, (Ids{0, 0}));
    EXPECT_EQ(removing.count(), 2);
    EXPECT_EQ(deleting.count(), 2);
}

TEST_F(DynArrayTest, DeleteNeverGivesBackCapacity) {
    Array array;
    fill(array, 11);
    for (int n = 11; n > 0; --n) ASSERT_TRUE(array.Delete(0));
    EXPECT_EQ(array.size(), 20);
    EXPECT_EQ(array.count(), 0);
    EXPECT_EQ(destroyed, iota(11));
}

TEST_F(DynArrayTest, DeleteClosesTheGapEvenWithoutCompactOnRemove) {
    Array array;
    array.compact_on_remove = false;
    fill(array, 4);
    EXPECT_TRUE(array.Delete(1));
    EXPECT_EQ(slots(array), (Ids{0, 2, 3}));
}

// ---------------------------------------------------------------------------------------------
// maxfullindex and the cursor

TEST_F(DynArrayTest, MaxfullindexIsTheLastFilledSlot) {
    Array array;
    EXPECT_EQ(array.maxfullindex(), -1);
    fill(array, 3);
    EXPECT_EQ(array.maxfullindex(), 2);
    array.replace(make(9), 7);
    EXPECT_EQ(array.maxfullindex(), 7);
    array.replace(nullptr, 7);
    EXPECT_EQ(array.maxfullindex(), 2);
}

TEST_F(DynArrayTest, ResetfirstOnAnEmptyArrayGoesToTheLastSlotAndNextFindsNothing) {
    Array array;
    array.resetfirst();
    EXPECT_EQ(array.index(), 9);
    EXPECT_EQ(array.next(), nullptr);
    EXPECT_EQ(array.index(), 9);
}

TEST_F(DynArrayTest, ResetfirstAndResetlastFindTheOuterFilledSlots) {
    Array array;
    array.reset(5);
    array.resetlast();
    EXPECT_EQ(array.index(), 0);  // empty: 0
    array.replace(make(4), 4);
    array.replace(make(6), 6);
    array.resetfirst();
    EXPECT_EQ(array.index(), 4);
    array.resetlast();
    EXPECT_EQ(array.index(), 6);
}

TEST_F(DynArrayTest, ResetGoesToTheSlotOrTheNearestFilledOneBelow) {
    Array array;
    array.replace(make(2), 2);
    array.replace(make(5), 5);
    // asked, cursor
    const std::pair<int, int> cases[] = {{5, 5}, {4, 2}, {2, 2},  {1, 0},
                                         {0, 0}, {9, 5}, {40, 5}, {-3, 0}};
    for (auto [i, index] : cases) {
        array.reset(i);
        EXPECT_EQ(array.index(), index) << i;
    }
}

TEST_F(DynArrayTest, NextWalksTheFilledSlotsAndStaysAtTheEnd) {
    Array array;
    for (int i : {0, 3, 9}) array.replace(make(i), i);
    array.resetfirst();
    Ids seen{array[array.index()]->id};
    while (Probe *p = array.next()) seen.push_back(p->id);
    EXPECT_EQ(seen, (Ids{0, 3, 9}));
    EXPECT_EQ(array.index(), 9);
    EXPECT_EQ(array.next(), nullptr);
    EXPECT_EQ(array.index(), 9);
}

TEST_F(DynArrayTest, NextAtTheLastFilledSlotReturnsNullAndKeepsTheCursor) {
    Array array;
    fill(array, 3);
    array.reset(2);
    EXPECT_EQ(array.next(), nullptr);
    EXPECT_EQ(array.index(), 2);
}

TEST_F(DynArrayTest, PreviousWalksDownAndReturnsNullAtZero) {
    Array array;
    for (int i : {0, 4, 7}) array.replace(make(i), i);
    array.resetlast();
    Ids seen;
    while (Probe *p = array.previous()) seen.push_back(p->id);
    EXPECT_EQ(seen, (Ids{4, 0}));
    EXPECT_EQ(array.index(), 0);
    EXPECT_EQ(array.previous(), nullptr);
    EXPECT_EQ(array.index(), 0);
}

TEST_F(DynArrayTest, PreviousAboveOnlyEmptySlotsKeepsTheCursor) {
    Array array;
    array.replace(make(5), 5);
    array.reset(5);
    EXPECT_EQ(array.previous(), nullptr);
    EXPECT_EQ(array.index(), 5);
}

TEST_F(DynArrayTest, CursorLeftBeyondAShrunkArrayStillWalksSafely) {
    Array array;
    fill(array, 16);
    array.reset(15);
    while (array.count() > 10) ASSERT_TRUE(array.remove(0));
    ASSERT_EQ(array.size(), 10);
    EXPECT_EQ(array.index(), 15);
    EXPECT_EQ(array.next(), nullptr);
    ASSERT_NE(array.previous(), nullptr);
    EXPECT_EQ(array.index(), 9);
    EXPECT_EQ(array[9]->id, 15);
}

// ---------------------------------------------------------------------------------------------
// compact, shrink

TEST_F(DynArrayTest, CompactMovesTheSlotsAboveAGapDownAsFarAsTo) {
    // Slot 0 removed without compacting: count 4.
    const std::pair<int, Ids> cases[] = {
        {-1, {1, 2, 3, 4}}, {4, {1, 2, 3, 4}}, {2, {1, 2, -1, 3, 4}}};
    for (const auto &[to, after] : cases) {
        Array array;
        fill(array, 5);
        array.compact_on_remove = false;
        ASSERT_TRUE(array.remove(0));
        array.compact(0, to);
        EXPECT_EQ(slots(array), after) << to;
    }
}

TEST_F(DynArrayTest, CompactIsIgnoredOutsideItsRangeOrWithoutAGap) {
    // Slot 1 is the gap and count is 4. from, to:
    const std::pair<int, int> cases[] = {{-1, 3}, {1, 1}, {2, 1}, {1, 5}, {1, 9}, {0, 3}};
    for (auto [from, to] : cases) {
        Array array;
        fill(array, 5);
        array.compact_on_remove = false;
        ASSERT_TRUE(array.remove(1));
        array.compact(from, to);
        EXPECT_EQ(slots(array), (Ids{0, -1, 2, 3, 4})) << from << ", " << to;
    }
}

TEST_F(DynArrayTest, ShrinkOnlyWhenCountIsExactlyOneChunkBelowSize) {
    // size, count, size after
    const std::tuple<int, int, int> cases[] = {{20, 10, 10}, {20, 11, 20}, {20, 9, 20},
                                               {30, 20, 20}, {30, 10, 30}, {20, 0, 20},
                                               {11, 1, 1},   {10, 0, 10}};
    for (auto [size, count, after] : cases) {
        Array array;
        array.addchunk(size - 10);
        fill(array, count);
        array.shrink();
        EXPECT_EQ(array.size(), after) << size << ", " << count;
        EXPECT_EQ(slots(array), iota(count)) << size << ", " << count;
    }
}

TEST_F(DynArrayTest, ShrinkKeepsAChunkThatStillHoldsAnElement) {
    Array array;
    array.addchunk(10);
    fill(array, 9);
    array.replace(make(15), 15);
    ASSERT_EQ(array.count(), 10);
    array.shrink();
    EXPECT_EQ(array.size(), 20);
    EXPECT_EQ(array[15]->id, 15);
    EXPECT_TRUE(destroyed.empty());
}

// ---------------------------------------------------------------------------------------------
// switcher, move

TEST_F(DynArrayTest, SwitcherSwapsTwoSlots) {
    Array array;
    fill(array, 4);
    array.switcher(0, 3);
    EXPECT_EQ(slots(array), (Ids{3, 1, 2, 0}));
    array.switcher(1, 6);
    EXPECT_EQ(slots(array), (Ids{3, -1, 2, 0, -1, -1, 1}));
    EXPECT_EQ(array.count(), 4);
}

TEST_F(DynArrayTest, SwitcherIgnoresEqualOrNegativeIndexes) {
    const std::pair<int, int> cases[] = {{2, 2}, {-1, 2}, {2, -1}, {-4, -4}};
    for (auto [a, b] : cases) {
        Array array;
        array.set_message_hook(&hook);
        fill(array, 4);
        array.switcher(a, b);
        EXPECT_EQ(slots(array), iota(4)) << a << ", " << b;
    }
    EXPECT_TRUE(boxes.empty());
}

TEST_F(DynArrayTest, MoveShiftsTheSlotsBetween) {
    // from, to, slots after
    const std::tuple<int, int, Ids> cases[] = {
        {0, 3, {1, 2, 3, 0, 4}},  // up: take out, compact(from, to), store at to
        {1, 4, {0, 2, 3, 4, 1}},
        {3, 0, {3, 0, 1, 2, 4}},  // down: the mirror image
        {4, 1, {0, 4, 1, 2, 3}},
        {2, 3, {0, 1, 3, 2, 4}},  // neighbours
        {3, 2, {0, 1, 3, 2, 4}},
        {0, 6, {1, 2, 3, 4, -1, -1, 0}},  // beyond the filled slots: nothing lost
        {2, 2, {0, 1, 2, 3, 4}},          // ignored
        {-1, 2, {0, 1, 2, 3, 4}},
        {2, -1, {0, 1, 2, 3, 4}},
    };
    for (const auto &[from, to, after] : cases) {
        Array array;
        fill(array, 5);
        array.move(from, to);
        EXPECT_EQ(slots(array), after) << from << " -> " << to;
        EXPECT_EQ(array.count(), 5) << from << " -> " << to;
    }
}

// ---------------------------------------------------------------------------------------------
// flush and ownership

TEST_F(DynArrayTest, FlushDeletesEverythingAndReturnsToTenEmptySlots) {
    Array array;
    fill(array, 23);
    array.reset(17);
    array.flush();
    EXPECT_EQ(array.size(), 10);
    EXPECT_EQ(array.count(), 0);
    EXPECT_EQ(array.index(), 0);
    EXPECT_EQ(array.maxfullindex(), -1);
    std::sort(destroyed.begin(), destroyed.end());
    EXPECT_EQ(destroyed, iota(23));
    EXPECT_EQ(array.add(make(100)), 0);
}

TEST_F(DynArrayTest, EveryElementIsDeletedExactlyOnce) {
    {
        Array array;
        fill(array, 30);              // ids 0..29
        array.remove(3);              // deletes 3
        array.remove(array[4]);       // deletes 5
        array.Delete(0);              // deletes 0
        array.replace(make(30), 2);   // deletes 4
        array.replace(nullptr, 1);    // deletes 2
        array.replace(make(31), 40);  // grows
        array.insert(make(32), 5);
        array.switcher(6, 7);
        array.move(8, 2);
        array.move(2, 9);
        array.compact(1, -1);
        array.shrink();
        EXPECT_EQ(destroyed, (Ids{3, 5, 0, 4, 2}));
        EXPECT_EQ(array.count(), 28);
    }
    std::sort(destroyed.begin(), destroyed.end());
    EXPECT_EQ(destroyed, iota(33));
}

TEST_F(DynArrayTest, SwapExchangesWholeArrays) {
    Array a;
    Array b;
    fill(a, 12);
    fill(b, 2, 50);
    a.reset(11);
    stay_on_error(b);
    swap(a, b);
    EXPECT_EQ(slots(a), (Ids{50, 51}));
    EXPECT_EQ(a.size(), 10);
    EXPECT_FALSE(a.jump_on_error);
    EXPECT_EQ(a.message_hook(), &hook);
    EXPECT_EQ(slots(b), iota(12));
    EXPECT_EQ(b.size(), 20);
    EXPECT_EQ(b.index(), 11);
    EXPECT_TRUE(b.jump_on_error);
    EXPECT_EQ(b.message_hook(), nullptr);
    EXPECT_TRUE(destroyed.empty());
}

TEST_F(DynArrayTest, HoldsValueTypes) {
    DynArray<std::string, 10> names;
    names.add(new std::string("x"));
    names.add(new std::string("y"));
    names.insert(new std::string("w"), 0);
    EXPECT_EQ(*names[0], "w");
    EXPECT_EQ(*names[2], "y");
    DynArray<long double, 10> list;
    for (int i = 0; i < 12; ++i) list.add(new long double(i * 0.5L));
    list.switcher(0, 11);
    EXPECT_EQ(*list[0], 5.5L);
    EXPECT_EQ(list.size(), 20);
}

// ---------------------------------------------------------------------------------------------
// Index errors

TEST(DynArrayMessages, TableHoldsOneRow) {
    EXPECT_EQ(dynarray_message(0), "Index Out Of Range");
    EXPECT_EQ(dynarray_message(1), "");
    EXPECT_EQ(dynarray_message(-1), "");
    EXPECT_EQ(kDynArrayCaption, "DYNAMIC ARRAY ERROR");
}

TEST_F(DynArrayTest, ExceptionShowsTheBoxAndThrowsEvaluationAbort) {
    Array array;
    array.set_message_hook(&hook);
    EXPECT_THROW(array.Exception(0), EvaluationAbort);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0].text, "Index Out Of Range");
    EXPECT_EQ(boxes[0].caption, "DYNAMIC ARRAY ERROR");
    EXPECT_EQ(boxes[0].style, MessageStyle::Warning);
}

TEST_F(DynArrayTest, ExceptionWithoutHookShowsNothingAndStillThrows) {
    Array array;
    EXPECT_THROW(array.Exception(0), EvaluationAbort);
    MessageHook empty;
    array.set_message_hook(&empty);
    EXPECT_THROW(array.Exception(0), EvaluationAbort);
    EXPECT_TRUE(boxes.empty());
}

struct IndexErrorCase {
    const char *name;
    // Runs the operation on an array of three elements; true if its result tells failure.
    std::function<bool(Array &)> run;
};

const IndexErrorCase kIndexErrors[] = {
    {"replace(p, -2)", [](Array &a) { return !a.replace(nullptr, -2); }},
    {"insert(p, -2)", [](Array &a) { return !a.insert(nullptr, -2); }},
    {"remove(-2)", [](Array &a) { return !a.remove(-2); }},
    {"remove(10)", [](Array &a) { return !a.remove(10); }},
    {"Delete(-2)", [](Array &a) { return !a.Delete(-2); }},
    {"Delete(10)", [](Array &a) { return !a.Delete(10); }},
    {"[-1]", [](Array &a) { return a[-1] == nullptr; }},
    {"[10]", [](Array &a) { return a[10] == nullptr; }},
    {"switcher(0, 10)",
     [](Array &a) {
         a.switcher(0, 10);
         return true;
     }},
    {"switcher(10, 0)",
     [](Array &a) {
         a.switcher(10, 0);
         return true;
     }},
    {"move(10, 0)",
     [](Array &a) {
         a.move(10, 0);
         return true;
     }},
    {"move(0, 10)",
     [](Array &a) {
         a.move(0, 10);
         return true;
     }},
};

TEST_F(DynArrayTest, IndexErrorsShowTheBoxAndJump) {
    for (const IndexErrorCase &c : kIndexErrors) {
        Array array;
        array.set_message_hook(&hook);
        fill(array, 3);
        boxes.clear();
        EXPECT_THROW(c.run(array), EvaluationAbort) << c.name;
        ASSERT_EQ(boxes.size(), 1u) << c.name;
        EXPECT_EQ(boxes[0].text, "Index Out Of Range") << c.name;
        EXPECT_EQ(boxes[0].caption, "DYNAMIC ARRAY ERROR") << c.name;
        EXPECT_EQ(slots(array), iota(3)) << c.name;
    }
}

TEST_F(DynArrayTest, IndexErrorsWithoutJumpReturnFailureAndChangeNothing) {
    for (const IndexErrorCase &c : kIndexErrors) {
        Array array;
        stay_on_error(array);
        fill(array, 3);
        boxes.clear();
        EXPECT_TRUE(c.run(array)) << c.name;
        EXPECT_EQ(boxes.size(), 1u) << c.name;
        EXPECT_EQ(slots(array), iota(3)) << c.name;
        EXPECT_EQ(array.size(), 10) << c.name;
        EXPECT_EQ(array.count(), 3) << c.name;
    }
}

TEST_F(DynArrayTest, CursorOpsOnAStaleCursorRaiseWhereTheyCannotGrow) {
    Array array;
    stay_on_error(array);
    fill(array, 11);
    array.reset(10);
    ASSERT_TRUE(array.remove(0));  // size falls to 10, the cursor stays on 10
    ASSERT_EQ(array.size(), 10);
    EXPECT_FALSE(array.remove(-1));
    EXPECT_FALSE(array.Delete(-1));
    EXPECT_EQ(boxes.size(), 2u);
    EXPECT_TRUE(array.replace(make(77), -1));  // replace grows instead
    EXPECT_EQ(array.size(), 21);
    EXPECT_EQ(array[10]->id, 77);
}

// ---------------------------------------------------------------------------------------------
// LinkList

struct Node {
    Node() { ++live; }
    Node(const Node &other) : value(other.value) { ++live; }
    Node &operator=(const Node &) = default;
    ~Node() { --live; }
    int value = 0;
    Node *next = nullptr;
    Node *prev = nullptr;
    static inline int live = 0;
};

// A record that can be neither copied nor moved and brings its own swap, as records holding
// DynArray tables do.
struct Table {
    std::string name;
    DynArray<std::string, 10> rows;
    Table *next = nullptr;
    Table *prev = nullptr;
    friend void swap(Table &a, Table &b) noexcept {
        a.name.swap(b.name);
        a.rows.swap(b.rows);
    }
};

class LinkListTest : public ::testing::Test {
protected:
    void SetUp() override { Node::live = 0; }

    static void build(LinkList<Node> &list, std::initializer_list<int> values) {
        for (int v : values) list.add()->value = v;
    }

    // The values from head to tail, after checking the links both ways and the count.
    static Ids values(const LinkList<Node> &list) {
        Ids forward;
        for (Node *n = list.gethead(); n != nullptr; n = n->next) forward.push_back(n->value);
        Ids backward;
        for (Node *n = list.gettail(); n != nullptr; n = n->prev) backward.push_back(n->value);
        std::reverse(backward.begin(), backward.end());
        EXPECT_EQ(forward, backward);
        EXPECT_EQ(static_cast<int>(forward.size()), list.count());
        EXPECT_EQ(list.gethead() == nullptr, list.gettail() == nullptr);
        return forward;
    }

    static std::vector<Node *> nodes(const LinkList<Node> &list) {
        std::vector<Node *> all;
        for (Node *n = list.gethead(); n != nullptr; n = n->next) all.push_back(n);
        return all;
    }
};

TEST_F(LinkListTest, StartsEmpty) {
    LinkList<Node> list;
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.gethead(), nullptr);
    EXPECT_EQ(list.gettail(), nullptr);
}

TEST_F(LinkListTest, AddAppendsAtTheTail) {
    LinkList<Node> list;
    Node *first = list.add();
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(list.gethead(), first);
    EXPECT_EQ(list.gettail(), first);
    first->value = 1;
    build(list, {2, 3});
    EXPECT_EQ(values(list), (Ids{1, 2, 3}));
    EXPECT_EQ(list.gethead(), first);
    EXPECT_EQ(list.gettail()->value, 3);
    EXPECT_EQ(Node::live, 3);
}

TEST_F(LinkListTest, InsertPutsANewElementInFront) {
    // position of `before`, values after
    const std::pair<int, Ids> cases[] = {{0, {9, 1, 2, 3}}, {1, {1, 9, 2, 3}}, {2, {1, 2, 9, 3}}};
    for (const auto &[position, after] : cases) {
        LinkList<Node> list;
        build(list, {1, 2, 3});
        Node *made = list.insert(nodes(list)[position]);
        ASSERT_NE(made, nullptr) << position;
        made->value = 9;
        EXPECT_EQ(values(list), after) << position;
    }
}

TEST_F(LinkListTest, InsertBeforeNullMakesNothing) {
    LinkList<Node> list;
    build(list, {1});
    EXPECT_EQ(list.insert(nullptr), nullptr);
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(Node::live, 1);
}

TEST_F(LinkListTest, DelReturnsTheFollowingElement) {
    // position, values left, value of the element returned (-1: null)
    const std::tuple<int, Ids, int> cases[] = {
        {0, {2, 3}, 2},  // the head: the new head
        {1, {1, 3}, 3},
        {2, {1, 2}, -1},  // the tail
    };
    for (const auto &[position, left, returned] : cases) {
        LinkList<Node> list;
        build(list, {1, 2, 3});
        Node *following = list.del(nodes(list)[position]);
        EXPECT_EQ(following ? following->value : -1, returned) << position;
        EXPECT_EQ(values(list), left) << position;
        EXPECT_EQ(Node::live, 2) << position;
    }
}

TEST_F(LinkListTest, DelOfTheHeadReturnsTheNewHead) {
    LinkList<Node> list;
    build(list, {1, 2});
    Node *following = list.del(list.gethead());
    EXPECT_EQ(following, list.gethead());
    EXPECT_EQ(following->value, 2);
    EXPECT_EQ(following->prev, nullptr);
}

TEST_F(LinkListTest, DelOfTheOnlyElementLeavesAnEmptyList) {
    LinkList<Node> list;
    build(list, {1});
    EXPECT_EQ(list.del(list.gethead()), nullptr);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.gethead(), nullptr);
    EXPECT_EQ(list.gettail(), nullptr);
    EXPECT_EQ(Node::live, 0);
    build(list, {5});
    EXPECT_EQ(values(list), Ids{5});
}

TEST_F(LinkListTest, DelOfNullDoesNothing) {
    LinkList<Node> list;
    build(list, {1, 2});
    EXPECT_EQ(list.del(nullptr), nullptr);
    EXPECT_EQ(values(list), (Ids{1, 2}));
}

TEST_F(LinkListTest, SwapExchangesContentsAndKeepsPositions) {
    // positions a, b, values after
    const std::tuple<int, int, Ids> cases[] = {
        {0, 3, {4, 2, 3, 1}},                        // head and tail
        {1, 2, {1, 3, 2, 4}},                        // neighbours
        {2, 1, {1, 3, 2, 4}},                        // neighbours, the other way round
        {0, 1, {2, 1, 3, 4}}, {2, 2, {1, 2, 3, 4}},  // itself
    };
    for (const auto &[a, b, after] : cases) {
        LinkList<Node> list;
        build(list, {1, 2, 3, 4});
        const std::vector<Node *> before = nodes(list);
        list.swap(before[a], before[b]);
        EXPECT_EQ(values(list), after) << a << ", " << b;
        EXPECT_EQ(nodes(list), before) << a << ", " << b;
        EXPECT_EQ(Node::live, 4);
    }
}

TEST_F(LinkListTest, SwapWithNullDoesNothing) {
    LinkList<Node> list;
    build(list, {1, 2});
    list.swap(list.gethead(), nullptr);
    list.swap(nullptr, list.gethead());
    EXPECT_EQ(values(list), (Ids{1, 2}));
}

TEST_F(LinkListTest, SwapUsesTheElementsOwnSwap) {
    LinkList<Table> list;
    Table *a = list.add();
    Table *b = list.add();
    Table *c = list.add();
    a->name = "first";
    a->rows.add(new std::string("row"));
    c->name = "third";
    list.swap(a, c);
    EXPECT_EQ(list.gethead(), a);
    EXPECT_EQ(a->next, b);
    EXPECT_EQ(c->prev, b);
    EXPECT_EQ(list.gettail(), c);
    EXPECT_EQ(a->name, "third");
    EXPECT_EQ(a->rows.count(), 0);
    EXPECT_EQ(c->name, "first");
    EXPECT_EQ(*c->rows[0], "row");
}

TEST_F(LinkListTest, FlushDestroysEveryElement) {
    LinkList<Node> list;
    build(list, {1, 2, 3});
    list.flush();
    EXPECT_EQ(Node::live, 0);
    EXPECT_EQ(values(list), Ids{});
    build(list, {4});
    EXPECT_EQ(values(list), Ids{4});
}

TEST_F(LinkListTest, DestructionDestroysEveryElement) {
    {
        LinkList<Node> list;
        build(list, {1, 2, 3, 4, 5});
        list.del(list.gethead()->next);
        list.insert(list.gettail());
        EXPECT_EQ(Node::live, 5);
    }
    EXPECT_EQ(Node::live, 0);
}

}  // namespace
}  // namespace quindar
