// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Complex arithmetic on pairs of decimal values. A complex number is passed as two
// values, real part then imaginary part; results come first, then the places where
// the operation rounds, then the operands. Failures are told by a return of -1 and
// leave the results as they were.

#include "mapm.h"

namespace quindar {

// Start and end of a stretch of complex work. Each operation keeps its scratch values
// on its own stack, so an evaluation inside another one leaves the outer one's work
// untouched and these have nothing to do; the engine still brackets its work in them.
void m_apmc_init();
void m_apmc_done();

void m_apmc_add(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai,
                const MapmNumber *br, const MapmNumber *bi);
void m_apmc_sub(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai,
                const MapmNumber *br, const MapmNumber *bi);
void m_apmc_mul(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai,
                const MapmNumber *br, const MapmNumber *bi);
// -1 when b is 0.
int m_apmc_div(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi);
// 1 when both parts are 0.
int m_apmc_is0(const MapmNumber *ar, const MapmNumber *ai);

}  // namespace quindar
