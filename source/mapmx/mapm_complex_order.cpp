// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm_complex.h"

namespace quindar {

int m_apmc_eq(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi) {
    return m_apm_compare(ar, br) == 0 && m_apm_compare(ai, bi) == 0;
}

int m_apmc_neq(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
               const MapmNumber *bi) {
    return !m_apmc_eq(ar, ai, br, bi);
}

int m_apmc_ge(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi) {
    return m_apm_compare(ar, br) >= 0 && m_apm_compare(ai, bi) >= 0;
}

int m_apmc_le(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi) {
    return m_apm_compare(ar, br) <= 0 && m_apm_compare(ai, bi) <= 0;
}

int m_apmc_gt(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi) {
    const int real = m_apm_compare(ar, br), imag = m_apm_compare(ai, bi);
    return real >= 0 && imag >= 0 && real + imag > 0;
}

int m_apmc_lt(const MapmNumber *ar, const MapmNumber *ai, const MapmNumber *br,
              const MapmNumber *bi) {
    const int real = m_apm_compare(ar, br), imag = m_apm_compare(ai, bi);
    return real <= 0 && imag <= 0 && real + imag < 0;
}

}  // namespace quindar
