// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The quotient of two sums of products, computed on exact integers. Complex division
// needs it when a numerator or the denominator does not fit 34 digits (parts of very
// different magnitude): cutting them there could move a result that lies at or near a
// rounding tie to the wrong side.

#include "bid.h"

namespace quindar::bid {

// (a*b + c*d) / (e*f + g*h), cut towards zero at 34 digits. The denominator must not be 0.
BID_UINT128 exact_quotient_of_sums(const BID_UINT128 &a, const BID_UINT128 &b,
                                   const BID_UINT128 &c, const BID_UINT128 &d,
                                   const BID_UINT128 &e, const BID_UINT128 &f,
                                   const BID_UINT128 &g, const BID_UINT128 &h);

}  // namespace quindar::bid
