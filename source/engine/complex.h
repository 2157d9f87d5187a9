// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

namespace quindar {

// The one value type of the language: variables, answers, map stacks and graph points.
// There is no integer or boolean value; a comparison yields 1.0 or 0.0.
struct complex {
    double real = 0.0;
    double imag = 0.0;
};

inline bool operator==(const complex &a, const complex &b) {
    return a.real == b.real && a.imag == b.imag;
}

}  // namespace quindar
