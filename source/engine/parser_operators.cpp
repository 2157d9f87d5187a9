// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Workers of the power, factorial and relational operators; the embedded functions
// and the map solver call the same ones, so a line and its map agree.
#include "exact_functions.h"
#include "mapm_complex.h"
#include "parser.h"
#include "parser_complex_worker.h"

namespace quindar {

namespace {
constexpr int kPlaces = 14;
}

complex Parser::_pow(const complex &a, const complex &b) {
    // A real base and exponent: the roundings decided in integer kernels where a bound does.
    if (complex power; exact::real_power(a, b, power)) return power;
    // 0 to a power that is not positive fails and leaves the results at 0.
    return complex_pair_worker(
        a, b, [this] { m_apmc_pow(mapm_r1, mapm_r2, kPlaces, mapm_a, mapm_b, mapm_c, mapm_d); });
}

complex Parser::_factorial(const complex &z) {
    if (z.imag != 0) parser_exception(15);
    if (z.real < 0 || !is_integer(z.real)) parser_exception(16);
    InitMapmValues();
    SetMapmValue(z.real, mapm_a);
    m_apm_factorial(mapm_r1, mapm_a);
    const complex result{static_cast<double>(GetMapmValue(mapm_r1)), 0.0};
    FreeMapmValues();
    return result;
}

template <class Relation>
complex Parser::relation(bool &chain, const complex &a, const complex &b, Relation holds) {
    if (chain) {
        InitMapmValues();
        SetMapmValue(a.real, mapm_a);
        SetMapmValue(a.imag, mapm_b);
        SetMapmValue(b.real, mapm_c);
        SetMapmValue(b.imag, mapm_d);
        chain = holds(mapm_a, mapm_b, mapm_c, mapm_d) != 0;
        FreeMapmValues();
    }
    return complex{chain ? 1.0 : 0.0, 0.0};
}

complex Parser::_less(bool &chain, const complex &a, const complex &b) {
    return relation(chain, a, b, m_apmc_lt);
}

complex Parser::_leseq(bool &chain, const complex &a, const complex &b) {
    return relation(chain, a, b, m_apmc_le);
}

complex Parser::_greater(bool &chain, const complex &a, const complex &b) {
    return relation(chain, a, b, m_apmc_gt);
}

complex Parser::_greateq(bool &chain, const complex &a, const complex &b) {
    return relation(chain, a, b, m_apmc_ge);
}

complex Parser::_equal(bool &chain, const complex &a, const complex &b) {
    return relation(chain, a, b, m_apmc_eq);
}

complex Parser::_nequal(bool &chain, const complex &a, const complex &b) {
    return relation(chain, a, b, m_apmc_neq);
}

}  // namespace quindar
