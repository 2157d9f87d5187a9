// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>
#include <vector>

#include "dynarray_exception.h"
#include "message_hook.h"

namespace quindar {

// An owning array of pointers with a built-in cursor. It starts with `chunk` empty slots and
// grows by `chunk` slots when `add` finds no empty one; removing gives the capacity back one
// chunk at a time. An empty slot is a null pointer. The array owns what its slots point to:
// an element handed to `add`, `replace` or `insert` must be a fresh `new T`, and it is
// deleted when its slot is removed, replaced or flushed, or when the array goes.
//
// The cursor (`index()`) is part of the engine's interface: the variable and function tables
// leave it on the element found, and operations that take an index take -1 for "the slot
// under the cursor". Callers read `count()`, `size()` and `index()` directly; only the array
// writes them.
//
// Index errors go through `Exception`, which shows "Index Out Of Range" through the message
// hook and, with `jump_on_error`, throws EvaluationAbort to leave for the evaluator's
// recovery point. With `jump_on_error` clear the failing operation returns false or null.
//
// Where the simple rules would lose an element or reach past the slots, the array decides:
// - `move` with `to` below `from` moves the element down: the slots to..from-1 shift one
//   place up and the element lands at `to`. Upward it is "take out, compact(from, to), store
//   at to". Both directions are one rotation of the slots between, so nothing is lost even
//   where `to` lies beyond `count`.
// - `switcher` and `move` refuse an index at or above `size` through `Exception`; negative or
//   equal indexes are ignored.
// - `compact` only closes a gap: it does nothing when the slot at `from` still holds an
//   element, which it would otherwise overwrite and leak.
// - `shrink` keeps the last chunk when any of its slots is filled (possible only in an array
//   with gaps), rather than dropping elements with it.
// - `insert` beyond the last slot grows by whole chunks until that slot exists; nothing
//   needs to shift there.
// - `add(nullptr)` stores nothing and returns -1; `replace` of an element by itself keeps it.
//
// `layout()` changes with every operation that moves, replaces or removes an element, never
// with `add`, which only fills an empty slot: an index over the elements (NameIndex) catches
// up with added elements alone and rebuilds only when the layout changed.
template <class T, int chunk>
class DynArray {
    static_assert(chunk > 0, "a DynArray grows by a positive number of slots");

public:
    // Remove closes the gap it leaves (and gives back capacity).
    bool compact_on_remove = true;
    // Index errors leave for the recovery point instead of returning.
    bool jump_on_error = true;

    DynArray() : data_(chunk) {}
    DynArray(const DynArray &) = delete;
    DynArray &operator=(const DynArray &) = delete;
    ~DynArray() = default;

    // Exchanges everything with `other`, hook and flags included. Lets a record that holds
    // arrays be swapped (LinkList::swap) although arrays themselves are not copied.
    void swap(DynArray &other) noexcept {
        data_.swap(other.data_);
        std::swap(index_, other.index_);
        std::swap(count_, other.count_);
        std::swap(compact_on_remove, other.compact_on_remove);
        std::swap(jump_on_error, other.jump_on_error);
        std::swap(hook_, other.hook_);
        std::swap(first_empty_, other.first_empty_);
        // Both are new layouts to anything that indexed either array.
        layout_ = other.layout_ = std::max(layout_, other.layout_) + 1;
    }
    friend void swap(DynArray &a, DynArray &b) noexcept { a.swap(b); }

    // The box of an index error goes through this hook; null shows nothing.
    void set_message_hook(const MessageHook *hook) { hook_ = hook; }
    const MessageHook *message_hook() const { return hook_; }

    int size() const { return static_cast<int>(data_.size()); }
    int index() const { return index_; }
    int count() const { return count_; }
    std::uint64_t layout() const { return layout_; }
    // Tells indexes over the array that its elements changed in place (a renamed element).
    void touch() { changed(); }

    // Stores `p` in the first empty slot and returns that slot; with none empty, grows by a
    // chunk and stores at the old size.
    int add(T *p) {
        if (p == nullptr) return -1;
        // Slots below first_empty_ are filled: a run of adds costs no rescan of the array.
        int slot = first_empty_;
        while (slot < size() && data_[slot]) ++slot;
        if (slot == size()) grow(chunk);
        data_[slot].reset(p);
        ++count_;
        first_empty_ = slot + 1;
        return slot;
    }

    // Grows by `n` slots, keeping the contents. Returns the new size.
    int addchunk(int n) {
        if (n > 0) grow(static_cast<std::size_t>(n));
        changed();
        return size();
    }

    // Deletes what slot `i` holds and stores `p` there (null leaves the slot empty). Beyond
    // the last slot the array first grows by i + 1 slots. -1 means the cursor.
    bool replace(T *p, int i) {
        if (i == -1) i = index_;
        if (i < 0) return fail();
        if (i >= size()) grow(static_cast<std::size_t>(i) + 1);
        changed();
        put(i, p);
        return true;
    }

    // Stores `p` at slot `i`, moving the slots from `i` on one place up; grows by a chunk
    // first when the last slot is filled. -1 means the cursor.
    bool insert(T *p, int i) {
        if (i == -1) i = index_;
        if (i < 0) return fail();
        changed();
        if (i >= size()) {
            const std::size_t missing = static_cast<std::size_t>(i) - data_.size() + 1;
            grow((missing + chunk - 1) / chunk * chunk);
        } else {
            if (data_.back()) grow(chunk);
            std::rotate(data_.begin() + i, data_.end() - 1, data_.end());
        }
        data_[i].reset(p);
        if (p != nullptr) ++count_;
        return true;
    }

    // Deletes the element at slot `i`; with `compact_on_remove` the later slots up to
    // `count` move down and the capacity may fall by a chunk. False for an empty slot.
    // -1 means the cursor.
    bool remove(int i) {
        if (i == -1) i = index_;
        if (!in_range(i)) return fail();
        if (!data_[i]) return false;
        changed();
        data_[i].reset();
        --count_;
        if (compact_on_remove) {
            compact(i, -1);
            shrink();
        }
        return true;
    }

    // As remove(int) for the slot that holds `p`; false when no slot holds it.
    bool remove(T *p) {
        if (p == nullptr) return false;
        for (int i = 0; i < size(); ++i) {
            if (data_[i].get() == p) return remove(i);
        }
        return false;
    }

    // Deletes the element at slot `i` and moves every later slot up to the last filled one
    // down by one, gaps included. Never gives back capacity. -1 means the cursor.
    bool Delete(int i) {
        if (i == -1) i = index_;
        if (!in_range(i)) return fail();
        if (!data_[i]) return false;
        changed();
        data_[i].reset();
        --count_;
        const int last = maxfullindex();
        if (last > i)
            std::rotate(data_.begin() + i, data_.begin() + i + 1, data_.begin() + last + 1);
        return true;
    }

    // The last filled slot; -1 when the array is empty.
    int maxfullindex() const {
        if (count_ == 0) return -1;
        int i = size() - 1;
        while (i >= 0 && !data_[i]) --i;
        return i;
    }

    // Cursor on the first filled slot, or on the last slot when all are empty (so that
    // next() then finds nothing).
    void resetfirst() {
        int i = 0;
        while (i < size() && !data_[i]) ++i;
        index_ = i < size() ? i : size() - 1;
    }

    // Cursor on the last filled slot, or on 0.
    void resetlast() { index_ = std::max(maxfullindex(), 0); }

    // Cursor on slot `i` when it is filled, else on the nearest filled slot below it, else
    // on 0. An `i` beyond the array counts from the last slot.
    void reset(int i) {
        i = std::min(i, size() - 1);
        while (i >= 0 && !data_[i]) --i;
        index_ = std::max(i, 0);
    }

    // Moves the cursor to the next filled slot and returns its element; null, with the
    // cursor left where it was, when there is none.
    T *next() {
        for (int i = std::max(index_ + 1, 0); i < size(); ++i) {
            if (data_[i]) {
                index_ = i;
                return data_[i].get();
            }
        }
        return nullptr;
    }

    // As next(), downwards.
    T *previous() {
        for (int i = std::min(index_ - 1, size() - 1); i >= 0; --i) {
            if (data_[i]) {
                index_ = i;
                return data_[i].get();
            }
        }
        return nullptr;
    }

    // The pointer in slot `i` (null for an empty slot); an index outside the slots raises.
    T *operator[](int i) const {
        if (!in_range(i)) {
            Exception(kDynArrayIndexOutOfRange);
            return nullptr;
        }
        return data_[i].get();
    }

    // Closes the gap at `from`: the slots from+1 to `to` move one place down and `to` is
    // left empty. -1 for `to` means `count`. Ignored unless 0 <= from < to <= count and the
    // slot at `from` is empty.
    void compact(int from, int to) {
        if (to == -1) to = count_;
        if (from < 0 || from >= to || to > count_ || data_[from]) return;
        changed();
        // `from` is empty, so at most size - 1 slots are filled and `to` is a real slot.
        std::rotate(data_.begin() + from, data_.begin() + from + 1, data_.begin() + to + 1);
    }

    // Gives back the last chunk when `count` is exactly one chunk below `size` (and not 0),
    // so that capacity falls one chunk at a time.
    void shrink() {
        if (count_ == 0 || size() - count_ != chunk) return;
        const auto tail = data_.end() - chunk;
        if (std::any_of(tail, data_.end(), [](const auto &slot) { return slot != nullptr; }))
            return;
        changed();
        data_.erase(tail, data_.end());
    }

    // Swaps slots `a` and `b`. Ignored for equal or negative indexes.
    void switcher(int a, int b) {
        if (a == b || a < 0 || b < 0) return;
        if (a >= size() || b >= size()) {
            Exception(kDynArrayIndexOutOfRange);
            return;
        }
        changed();
        data_[a].swap(data_[b]);
    }

    // Takes the element out of slot `from` and puts it at slot `to`; the slots between shift
    // one place towards `from`. Ignored for equal or negative indexes.
    void move(int from, int to) {
        if (from == to || from < 0 || to < 0) return;
        if (from >= size() || to >= size()) {
            Exception(kDynArrayIndexOutOfRange);
            return;
        }
        changed();
        const auto first = data_.begin();
        if (from < to)
            std::rotate(first + from, first + from + 1, first + to + 1);
        else
            std::rotate(first + to, first + from, first + from + 1);
    }

    // Deletes every element and returns to one chunk of empty slots, cursor on 0.
    void flush() {
        // Already so: a map run empties its lists at every point.
        if (count_ == 0 && index_ == 0 && data_.size() == static_cast<std::size_t>(chunk)) return;
        changed();
        data_.clear();
        data_.resize(chunk);
        index_ = 0;
        count_ = 0;
    }

    // Shows message `n` ("Index Out Of Range" for 0) with the caption "DYNAMIC ARRAY ERROR"
    // and, with `jump_on_error`, leaves for the recovery point by throwing EvaluationAbort.
    void Exception(int n) const { raise_dynarray_error(hook_, n, jump_on_error); }

private:
    bool in_range(int i) const { return i >= 0 && i < size(); }

    // Anything but an add: indexes rebuild, and the search for an empty slot starts over.
    void changed() {
        ++layout_;
        first_empty_ = 0;
    }

    // Raises an index error; what the operation returns when that does not jump.
    bool fail() const {
        Exception(kDynArrayIndexOutOfRange);
        return false;
    }

    void grow(std::size_t n) {
        if (n > static_cast<std::size_t>(INT_MAX) - data_.size())
            throw std::length_error("DynArray: too many slots");
        data_.resize(data_.size() + n);
    }

    // Stores `p` in slot `i`, deleting what it held and keeping `count` right.
    void put(int i, T *p) {
        std::unique_ptr<T> &slot = data_[i];
        if (slot.get() == p) return;
        if (slot) --count_;
        slot.reset(p);
        if (p != nullptr) ++count_;
    }

    std::vector<std::unique_ptr<T>> data_;
    int index_ = 0;
    int count_ = 0;
    const MessageHook *hook_ = nullptr;
    std::uint64_t layout_ = 0;
    int first_empty_ = 0;
};

}  // namespace quindar
