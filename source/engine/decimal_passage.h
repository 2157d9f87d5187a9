// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The two conversions of the decimal passage done on digits instead of text, for the values
// where integer arithmetic gives exactly what the text would: an operand rounded to 14
// significant digits, and a result's digits read back as a long double.

#include <cstdint>

namespace quindar::decimal_passage {

// `value` rounded to 14 significant digits (ties to even) as coefficient * 10^exponent, with
// the trailing zeros behind the point dropped as in its general-format text. False for 0,
// infinities, NaN and magnitudes outside 1e-9 to 1e14, which take the text.
bool operand_digits(double value, bool &negative, std::uint64_t &coefficient, int &exponent);
// The same before the trailing zeros are dropped: a significand of exactly 14 digits.
bool operand_significand(double value, bool &negative, std::uint64_t &significand, int &exponent);

// The correctly rounded long double of (-1)^negative * coefficient * 10^exponent, where one
// exact division or none gives it. False where the text must be read instead.
bool read_digits(bool negative, std::uint64_t coefficient, int exponent, long double &result);

}  // namespace quindar::decimal_passage
