// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The round trip of a worker of one or two values: the value into the decimal layer at 14 digits,
// an operation of the complex layer, the result back from 15.

#include "parser.h"

namespace quindar {

template <class Operation>
complex Parser::complex_worker(const complex &z, Operation operation) {
    InitMapmValues();
    SetMapmValue(z.real, mapm_a);
    SetMapmValue(z.imag, mapm_b);
    operation();
    const complex result{static_cast<double>(GetMapmValue(mapm_r1)),
                         static_cast<double>(GetMapmValue(mapm_r2))};
    FreeMapmValues();
    return result;
}

template <class Operation>
complex Parser::complex_pair_worker(const complex &a, const complex &b, Operation operation) {
    InitMapmValues();
    SetMapmValue(a.real, mapm_a);
    SetMapmValue(a.imag, mapm_b);
    SetMapmValue(b.real, mapm_c);
    SetMapmValue(b.imag, mapm_d);
    operation();
    const complex result{static_cast<double>(GetMapmValue(mapm_r1)),
                         static_cast<double>(GetMapmValue(mapm_r2))};
    FreeMapmValues();
    return result;
}

}  // namespace quindar
