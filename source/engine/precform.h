// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

namespace quindar {

// How a number is printed: one record for answers, one for the Variables List.
struct PrecformType {
    float zero_precision = 1e-14f;  // a part below this in magnitude prints as 0
    long precision = 14;            // significant digits printed
    long format = 0;                // 0 "Decimal", 1 "Scientific Notation"
    bool show_decimal_point = false;
    bool show_lead_sign = false;
};

inline constexpr long kFormatDecimal = 0;
inline constexpr long kFormatScientific = 1;

}  // namespace quindar
