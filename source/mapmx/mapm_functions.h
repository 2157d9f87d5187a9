// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Real elementary functions of decimal values, each rounded to `places` places ties away
// from zero. The values are computed in binary at far more precision than is kept, so
// that the rounding happens once, on the decimal digits. Outside a function's domain the
// result is nan; at a pole it is infinite; an infinite or nan operand gives the limit
// where there is one (exp(-inf) is 0, arctan(inf) is pi/2), else nan.

#include "mapm.h"

namespace quindar {

void m_apm_sqrt(M_APM result, int places, const MapmNumber *value);
void m_apm_exp(M_APM result, int places, const MapmNumber *value);
// value > 0.
void m_apm_log(M_APM result, int places, const MapmNumber *value);
void m_apm_log10(M_APM result, int places, const MapmNumber *value);
// x to the power y. A whole y of moderate size is worked out exactly, so a result that
// is a rounding tie rounds away from zero; a negative x needs a whole y.
void m_apm_pow(M_APM result, int places, const MapmNumber *x, const MapmNumber *y);

void m_apm_sin(M_APM result, int places, const MapmNumber *value);
void m_apm_cos(M_APM result, int places, const MapmNumber *value);
void m_apm_tan(M_APM result, int places, const MapmNumber *value);
// -1 <= value <= 1; arcsin in [-pi/2, pi/2], arccos in [0, pi].
void m_apm_arcsin(M_APM result, int places, const MapmNumber *value);
void m_apm_arccos(M_APM result, int places, const MapmNumber *value);
// In (-pi/2, pi/2).
void m_apm_arctan(M_APM result, int places, const MapmNumber *value);
// The angle of the point (x, y), in (-pi, pi]; 0 for the origin.
void m_apm_arctan2(M_APM result, int places, const MapmNumber *y, const MapmNumber *x);

void m_apm_sinh(M_APM result, int places, const MapmNumber *value);
void m_apm_cosh(M_APM result, int places, const MapmNumber *value);
void m_apm_tanh(M_APM result, int places, const MapmNumber *value);
void m_apm_arcsinh(M_APM result, int places, const MapmNumber *value);
// value >= 1.
void m_apm_arccosh(M_APM result, int places, const MapmNumber *value);
// -1 < value < 1.
void m_apm_arctanh(M_APM result, int places, const MapmNumber *value);

}  // namespace quindar
