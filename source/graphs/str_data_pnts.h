// SPDX-License-Identifier: GPL-3.0-or-later
// One data set of a graph, its coordinates kept as expression texts.
#pragma once

#include <memory>
#include <string>

#include "dynarray.h"

namespace quindar {

// A data set whose coordinates are texts, evaluated when the graph is built, so that they
// may name variables and functions of the Math Editor. X and Y slot i together are point i;
// a slot may be empty. One Z stands for the whole set: a set is one row at constant Z.
class StrDataPnts {
public:
    StrDataPnts();
    StrDataPnts(const StrDataPnts &other);
    StrDataPnts &operator=(const StrDataPnts &other);

    // Null clears.
    void SetName(const char *text) { Name = text ? text : ""; }
    void SetLabel(const char *text) { Label = text ? text : ""; }
    const char *GetName() const { return Name.c_str(); }
    const char *GetLabel() const { return Label.c_str(); }

    // Text of slot i; null past the array's slots or for an empty slot.
    const char *GetXDataPoint(int i) const { return slot_text(XPoints, i); }
    const char *GetYDataPoint(int i) const { return slot_text(YPoints, i); }
    const char *GetZDataPoint() const { return ZPoint ? ZPoint->c_str() : nullptr; }

    // With text: a new string in slot i, 1 on success. With null: slot i emptied, 0.
    int PutXDataPoint(const char *text, int i) { return put(XPoints, text, i); }
    int PutYDataPoint(const char *text, int i) { return put(YPoints, text, i); }
    // Replaces the Z text; null clears.
    void PutZDataPoint(const char *text);

    // Before slot i, later slots moving up.
    int InsertXDataPoint(const char *text, int i) { return insert(XPoints, text, i); }
    int InsertYDataPoint(const char *text, int i) { return insert(YPoints, text, i); }
    // Slot i goes, later slots moving down; 1 on success.
    int DeleteXDataPoint(int i) { return erase(XPoints, i); }
    int DeleteYDataPoint(int i) { return erase(YPoints, i); }
    // True if there was a Z.
    bool DeleteZDataPoint();

    // The greatest of the highest occupied X index, the highest occupied Y index, and 0
    // when a Z exists; -1 for an empty set.
    int GetMaxXYZPoint() const;
    // The greater of the X and Y counts.
    int GetNumXYZPoints() const;

    std::string Name;
    std::string Label;
    std::unique_ptr<std::string> ZPoint;
    DynArray<std::string, 10> XPoints;
    DynArray<std::string, 10> YPoints;
    StrDataPnts *next = nullptr;
    StrDataPnts *prev = nullptr;

private:
    using Slots = DynArray<std::string, 10>;
    static const char *slot_text(const Slots &slots, int i);
    static int put(Slots &slots, const char *text, int i);
    static int insert(Slots &slots, const char *text, int i);
    static int erase(Slots &slots, int i);
    static void copy_slots(Slots &to, const Slots &from);
};

}  // namespace quindar
