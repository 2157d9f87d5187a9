// SPDX-License-Identifier: GPL-3.0-or-later
// Copying of the point records: every coordinate is owned, so a copy is deep.
#include "str_point.h"

namespace quindar {

Point &Point::operator=(const Point &other) {
    if (this == &other) return *this;
    SetXPoint(other.X.get());
    SetYPoint(other.Y.get());
    SetZPoint(other.Z.get());
    return *this;
}

StrPoint &StrPoint::operator=(const StrPoint &other) {
    if (this == &other) return *this;
    SetXPoint(other.GetXPoint());
    SetYPoint(other.GetYPoint());
    SetZPoint(other.GetZPoint());
    return *this;
}

}  // namespace quindar
