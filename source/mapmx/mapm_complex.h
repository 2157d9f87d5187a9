// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Complex arithmetic and elementary functions on pairs of decimal values. A complex
// number is passed as two values, real part then imaginary part; results come first,
// then the places where the operation rounds (`digits`), then the operands. A result
// may be the operand part it replaces (rr = ar, ri = ai). Failures are told by a return
// of -1 and leave the results as they were.
//
// The functions follow fixed algorithms with fixed working places, listed with each;
// their intermediates are exact decimals of any length, so they round exactly where
// told, and a result's parts are cut to 34 digits at the end, which keeps the caller's
// own rounding (at 14 places) exact. An operand part that is not finite (an infinity or
// nan, which the decimal values can hold) makes the result parts nan.

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
// left as they were); 0 to any other power is exactly 0. Otherwise, with L = ln |a| and
// t = arg a at digits + 2, M = exp(br L - bi t) at digits + 2; then with P = digits + 1 +
// the integer digits of M, L and t again at P and f = br t + bi L, the result is
// (M cos f, M sin f), cos and sin at P.
int m_apmc_pow(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi);

// Gaussian remainder of whole numbers: the four parts are first rounded to whole values
// (halves away from zero), q = a / b at `digits` is truncated towards zero part by part,
// and a - q b is rounded to whole values again. -1 when the rounded b is 0.
int m_apmc_mod(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai,
               const MapmNumber *br, const MapmNumber *bi);

// (ar^2 - ai^2, 2 ar ai), the square the inverse functions start from.
void m_apmc_sqr(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);

// Principal square root. With m = |a| at 2 digits: rr = sqrt((m + ar) / 2), and
// sqrt((m - ar) / 2) with the sign of ai as ri; halves at 2 digits, roots at digits. A
// negative real has the root +sqrt|x| i (a negated 0 is 0, so its sign is never seen).
void m_apmc_sqrt(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
// sqrt(ar^2 + ai^2) at digits.
void m_apmc_abs(M_APM r, int digits, const MapmNumber *ar, const MapmNumber *ai);

// e^ar (cos ai, sin ai), each factor at digits + 3.
void m_apmc_exp(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
// (ln m at digits + 3, arg a at digits + 15), m = |a| at digits + 10; -1 when a is 0.
int m_apmc_log(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
// (log10 m at digits + 3, arg a at digits + 15 divided by ln 10 at digits + 3); -1
// when a is 0.
int m_apmc_log10(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);

// Circular and hyperbolic functions from the real ones at digits + 3:
// sin (sin ar cosh ai, cos ar sinh ai), cos (cos ar cosh ai, -sin ar sinh ai),
// sinh (sinh ar cos ai, cosh ar sin ai), cosh (cosh ar cos ai, sinh ar sin ai).
void m_apmc_sin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_cos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_sinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_cosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
// tan: with sin ar, cos ar, sinh ai, cosh ai at 2 digits + 10 and D = cos^2 ar +
// sinh^2 ai, (sin ar cos ar / D, sinh ai cosh ai / D) at digits. A pole, -1, when D is
// below 1e(-2 digits - 2), that is its first digit stands further down.
int m_apmc_tan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
// tanh: the same with sinh ar, cosh ar, sin ai, cos ai and D = cosh^2 ar - sin^2 ai:
// (sinh ar cosh ar / D, sin ai cos ai / D).
int m_apmc_tanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);

// Inverse functions through a logarithm. With h = half the integer digits of |a|^2 and
// W = digits + h + 4, the square root u is taken at W and t = the sum below; when h > 3
// and |t| at W is 0 or below 1e-3, cancellation has eaten t and the difference is used
// instead (the result is then another solution, pi - arcsin a for example). ln at digits.
// arcsin: u = sqrt(1 - a^2), t = u + i a, result -i ln t.
// arccos: u = sqrt(1 - a^2), t = a + i u, result -i ln t.
// arcsinh: the real function when ai is 0 (imaginary part exactly 0); otherwise
//          u = sqrt(1 + a^2), t = a + u, result ln t.
// arccosh: u = sqrt(a^2 - 1), t = a + u, result ln t.
void m_apmc_arcsin(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arccos(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arcsinh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_arccosh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
// Inverse functions through a quotient, all steps at digits:
// arctan: v = i a, s = sqrt((1 + v) / (1 - v)), result -i ln s.
// arctanh: s = sqrt((1 + a) / (1 - a)), result ln s.
// -1 when the divisor or s is 0 (arctan of +i and -i, arctanh of 1 and -1).
int m_apmc_arctan(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);
int m_apmc_arctanh(M_APM rr, M_APM ri, int digits, const MapmNumber *ar, const MapmNumber *ai);

// Whole parts, each part for itself: floor, ceiling, nearest (halves away from zero),
// and towards zero.
void m_apmc_floor(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_ceil(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_round(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);
void m_apmc_fix(M_APM rr, M_APM ri, const MapmNumber *ar, const MapmNumber *ai);

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

// 1 when both parts are 0.
int m_apmc_is0(const MapmNumber *ar, const MapmNumber *ai);

}  // namespace quindar
