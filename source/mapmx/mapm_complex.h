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
// a to the power b. -1 when a is 0 and the real part of b is not positive (results
// left as they were); 0 to any other power is exactly 0.
int m_apmc_pow(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi);

// Order relations, part by part: 1 or 0. Complex numbers that are not ordered in both
// parts the same way stand in no order (neither gt, ge, lt nor le holds).
int m_apmc_eq(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi);
int m_apmc_neq(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
               const MapmNumber *bi);
int m_apmc_gt(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi);
int m_apmc_ge(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi);
int m_apmc_lt(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi);
int m_apmc_le(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi);

// Elementary functions; those returning int give -1 where they have no value (log of
// 0, poles of tan and tanh, the two points where arctan and arctanh fail).
void m_apmc_sqr(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_abs(M_APM r, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_sqrt(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_exp(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_log(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_log10(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_sin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_cos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_tan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_sinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_cosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_tanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arcsin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arccos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_arctan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arcsinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arccosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_arctanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);

// Whole parts, each part for itself: floor, ceiling, halves away from zero, towards 0.
void m_apmc_floor(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_ceil(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_round(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_fix(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
// The Gaussian remainder of a by b, on parts rounded to whole numbers; -1 when the
// rounded divisor is 0 (results untouched).
int m_apmc_mod(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi);

// 1 when both parts are 0.
int m_apmc_is0(const MapmNumber *ar, const MapmNumber *ai);

}  // namespace quindar
