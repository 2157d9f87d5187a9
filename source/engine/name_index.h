// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A hash index from a name to the first slot of a DynArray whose element carries that name,
// so that a document of thousands of variables and functions looks each one up in constant
// time instead of scanning the list. The array stays the list: its order, cursor and slot_of_name
// are untouched, the index only follows them.
//
// The index follows the array's layout stamp. Added elements are indexed as they come (a
// document load is a long run of adds); anything that moved, removed or replaced an element
// rebuilds the index at the next look-up. A name changed in place is not seen unless the
// array is touched (DynArray::touch); a hit is checked against the element all the same.

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "dynarray.h"

namespace quindar {

// Names are short: comparing them in a loop beats a call of the library's compare.
inline bool same_name(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t k = 0; k < a.size(); ++k)
        if (a[k] != b[k]) return false;
    return true;
}

template <class T, int chunk>
class NameIndex {
public:
    // The name an element is looked up by.
    using KeyOf = const std::string &(*)(const T &);

    explicit NameIndex(KeyOf keyOf) : key_of(keyOf) {}

    // The first filled slot whose element's name is exactly `name`, or -1.
    int find(const DynArray<T, chunk> &array, const std::string &name) {
        follow(array);
        // A computation asks for the same name point after point: the last hit answers
        // while the array has neither moved nor grown.
        if (last_hit >= 0) {
            const T *element = array[last_hit];
            if (element != nullptr && same_name(key_of(*element), name)) return last_hit;
        }
        const auto found = slot_of_name.find(name);
        if (found == slot_of_name.end()) return -1;
        const T *element = array[found->second];
        if (element != nullptr && key_of(*element) == name) return last_hit = found->second;
        // Changed behind the array's back: read the array afresh once.
        rebuild(array);
        const auto again = slot_of_name.find(name);
        return again == slot_of_name.end() ? -1 : again->second;
    }

private:
    void follow(const DynArray<T, chunk> &array) {
        if (array.layout() != layout || !dense || array.count() != indexed) last_hit = -1;
        if (array.layout() != layout || !dense || array.count() < indexed) {
            rebuild(array);
            return;
        }
        // Only adds since the last look-up: in a dense array they fill the slot_of_name behind it.
        for (; indexed < array.count(); ++indexed) enter(array, indexed);
    }

    void rebuild(const DynArray<T, chunk> &array) {
        slot_of_name.clear();
        slot_of_name.reserve(static_cast<std::size_t>(array.count()));
        for (int i = 0; i < array.size(); ++i) enter(array, i);
        layout = array.layout();
        indexed = array.count();
        dense = array.maxfullindex() + 1 == array.count();
    }

    void enter(const DynArray<T, chunk> &array, int slot) {
        const T *element = array[slot];
        if (element == nullptr) return;
        // The first slot keeps the name, as a scan of the list would find it.
        const auto [where, added] = slot_of_name.try_emplace(key_of(*element), slot);
        if (!added && slot < where->second) where->second = slot;
    }

    KeyOf key_of;
    std::unordered_map<std::string, int> slot_of_name;
    std::uint64_t layout = ~std::uint64_t{0};
    int indexed = 0;
    bool dense = false;
    int last_hit = -1;
};

}  // namespace quindar
