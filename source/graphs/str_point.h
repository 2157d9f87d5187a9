// SPDX-License-Identifier: GPL-3.0-or-later
// Point records of three coordinates: computed values, or expression texts.
#pragma once

#include <memory>
#include <string>

#include "complex.h"

namespace quindar {

// A point of three values; an absent coordinate is null.
class Point {
public:
    Point() = default;
    Point(const Point &other) { *this = other; }
    Point &operator=(const Point &other);

    void SetXPoint(const complex *value) { X = copy_of(value); }
    void SetYPoint(const complex *value) { Y = copy_of(value); }
    void SetZPoint(const complex *value) { Z = copy_of(value); }

    std::unique_ptr<complex> X, Y, Z;

private:
    static std::unique_ptr<complex> copy_of(const complex *value) {
        return value ? std::make_unique<complex>(*value) : nullptr;
    }
};

// A point of three expression texts; an absent coordinate is null.
class StrPoint {
public:
    StrPoint() = default;
    StrPoint(const StrPoint &other) { *this = other; }
    StrPoint &operator=(const StrPoint &other);

    void SetXPoint(const char *text) { X = copy_of(text); }
    void SetYPoint(const char *text) { Y = copy_of(text); }
    void SetZPoint(const char *text) { Z = copy_of(text); }
    const char *GetXPoint() const { return X ? X->c_str() : nullptr; }
    const char *GetYPoint() const { return Y ? Y->c_str() : nullptr; }
    const char *GetZPoint() const { return Z ? Z->c_str() : nullptr; }

    std::unique_ptr<std::string> X, Y, Z;

private:
    static std::unique_ptr<std::string> copy_of(const char *text) {
        return text ? std::make_unique<std::string>(text) : nullptr;
    }
};

}  // namespace quindar
