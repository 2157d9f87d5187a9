// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One MPFR value at a fixed number of bits, for the length of one computation.

#include <mpfr.h>

namespace quindar::exact {

class MpfrValue {
public:
    explicit MpfrValue(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
    ~MpfrValue() { mpfr_clear(value_); }
    MpfrValue(const MpfrValue &) = delete;
    MpfrValue &operator=(const MpfrValue &) = delete;
    mpfr_ptr get() { return value_; }

private:
    mpfr_t value_;
};

}  // namespace quindar::exact
