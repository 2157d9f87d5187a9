// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Real elementary functions of decimal values, each rounded to `places` places ties away
// from zero. The values are computed in binary at far more precision than is kept, so
// that the rounding happens once, on the decimal digits.

#include "mapm.h"

namespace quindar {

void m_apm_sqrt(M_APM result, int places, const MapmNumber *value);
// value > 0.
void m_apm_log(M_APM result, int places, const MapmNumber *value);
void m_apm_exp(M_APM result, int places, const MapmNumber *value);
void m_apm_sin(M_APM result, int places, const MapmNumber *value);
void m_apm_cos(M_APM result, int places, const MapmNumber *value);
void m_apm_log10(M_APM result, int places, const MapmNumber *value);
void m_apm_sinh(M_APM result, int places, const MapmNumber *value);
void m_apm_cosh(M_APM result, int places, const MapmNumber *value);
void m_apm_arcsinh(M_APM result, int places, const MapmNumber *value);
// The natural logarithm of 10.
void m_apm_log_10_base_e(M_APM result, int places);
// Largest whole value not above, smallest not below: exact.
void m_apm_floor(M_APM result, const MapmNumber *value);
void m_apm_ceil(M_APM result, const MapmNumber *value);
// The angle of the point (x, y), in (-pi, pi]; 0 for the origin.
void m_apm_arctan2(M_APM result, int places, const MapmNumber *y, const MapmNumber *x);

}  // namespace quindar
