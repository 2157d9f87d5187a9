// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "decimal_reading.h"

#include <cmath>

#include "kernel_tables.h"
#include "wide_integer.h"

namespace quindar::exact {

namespace {

// The product n 10^e below is within 2^-126 of the decimal (relative), so within 4 units of
// the 128-bit mantissa's last bit; a 64-bit rounding is decided when the dropped half lies
// further than that (and one unit for the cut) from its midpoint.
constexpr std::uint64_t kUndecided = 6;
constexpr std::uint64_t kMidpoint = std::uint64_t{1} << 63;
constexpr int kExactPowerOfTen = 38;

}  // namespace

bool read_decimal(const Decimal &x, double &result) {
    // Within its range the decimal passage reads exactly, ties included.
    if (value_of(x, result)) return true;
    Binary power;
    if (!power_of_ten(x.exponent, power) || x.coefficient == 0) return false;
    const Binary n = normalised(x.negative, x.coefficient, 0);
    const U256 wide = multiply_wide(n.mantissa, power.mantissa);
    const Binary value = normalised(x.negative, wide, n.exponent + power.exponent);
    // Powers from 10^0 to 10^38 are exact, and so is the product when the cut took only
    // zeros: then a midpoint is a true tie, which goes to the even neighbour.
    const bool exact = x.exponent >= 0 && x.exponent <= kExactPowerOfTen &&
                       (wide.high >> 127 != 0 ? wide.low == 0 : (wide.low << 1) == 0);
    auto top = static_cast<std::uint64_t>(value.mantissa >> 64);
    const auto dropped = static_cast<std::uint64_t>(value.mantissa);
    const std::uint64_t distance = dropped > kMidpoint ? dropped - kMidpoint : kMidpoint - dropped;
    const bool up = exact && distance == 0 ? (top & 1) != 0 : dropped > kMidpoint;
    if (!exact && distance <= kUndecided) return false;
    int exponent = value.exponent + 64;
    if (up && ++top == 0) {  // rounded up into the next power of two
        top = kMidpoint;
        ++exponent;
    }
    // The long double is top * 2^exponent; converting its 64 bits to a double rounds to
    // nearest, ties to even, as the second reading does. Only normal doubles here.
    const int binary = exponent + 63;
    if (binary < -1022 || binary > 1023) return false;
    result = std::ldexp(static_cast<double>(top), exponent);
    if (x.negative) result = -result;
    return true;
}

}  // namespace quindar::exact
