// SPDX-License-Identifier: GPL-3.0-or-later
// Slots of a data set: texts stored, inserted and deleted by index.
#include "str_data_pnts.h"

#include <algorithm>

namespace quindar {

StrDataPnts::StrDataPnts() {
    // A bad index is the caller's mistake to report, not a jump out of an evaluation.
    XPoints.jump_on_error = false;
    YPoints.jump_on_error = false;
}

StrDataPnts::StrDataPnts(const StrDataPnts &other) : StrDataPnts() {
    *this = other;
}

StrDataPnts &StrDataPnts::operator=(const StrDataPnts &other) {
    if (this == &other) return *this;
    Name = other.Name;
    Label = other.Label;
    PutZDataPoint(other.GetZDataPoint());
    copy_slots(XPoints, other.XPoints);
    copy_slots(YPoints, other.YPoints);
    return *this;
}

void StrDataPnts::copy_slots(Slots &to, const Slots &from) {
    to.flush();
    for (int i = 0; i <= from.maxfullindex(); ++i) {
        if (const std::string *text = from[i]) to.replace(new std::string(*text), i);
    }
}

const char *StrDataPnts::slot_text(const Slots &slots, int i) {
    if (i < 0 || i >= slots.size()) return nullptr;
    const std::string *text = slots[i];
    return text ? text->c_str() : nullptr;
}

int StrDataPnts::put(Slots &slots, const char *text, int i) {
    if (i < 0) return 0;
    if (text == nullptr) {
        if (i < slots.size()) slots.replace(nullptr, i);
        return 0;
    }
    return slots.replace(new std::string(text), i) ? 1 : 0;
}

int StrDataPnts::insert(Slots &slots, const char *text, int i) {
    if (i < 0) return 0;
    return slots.insert(text ? new std::string(text) : nullptr, i) ? 1 : 0;
}

int StrDataPnts::erase(Slots &slots, int i) {
    if (i < 0 || i >= slots.size()) return 0;
    if (slots[i] == nullptr) {
        // An empty slot still closes up, so that later points keep their partners.
        const int last = slots.maxfullindex();
        if (last < i) return 0;
        slots.move(i, last);
        return 1;
    }
    return slots.Delete(i) ? 1 : 0;
}

void StrDataPnts::PutZDataPoint(const char *text) {
    if (text == nullptr)
        ZPoint.reset();
    else
        ZPoint = std::make_unique<std::string>(text);
}

bool StrDataPnts::DeleteZDataPoint() {
    const bool had = ZPoint != nullptr;
    ZPoint.reset();
    return had;
}

int StrDataPnts::GetMaxXYZPoint() const {
    int highest = std::max(XPoints.maxfullindex(), YPoints.maxfullindex());
    if (ZPoint) highest = std::max(highest, 0);
    return highest;
}

int StrDataPnts::GetNumXYZPoints() const {
    return std::max(XPoints.count(), YPoints.count());
}

}  // namespace quindar
