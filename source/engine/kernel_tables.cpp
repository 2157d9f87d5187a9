// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "kernel_tables.h"

#include <gmp.h>
#include <mpfr.h>

#include "mpfr_value.h"

namespace quindar::exact {

namespace {

// Far more than the 128 bits kept, so each constant is rounded once.
constexpr mpfr_prec_t kWorkingBits = 320;

class Real : public MpfrValue {
public:
    Real() : MpfrValue(kWorkingBits) {}
};

// The integer nearest to |v| * 2^bits, which must lie below 2^256, as two halves.
U256 nearest_fixed(mpfr_ptr v, int bits) {
    Real scaled;
    mpfr_mul_2si(scaled.get(), v, bits, MPFR_RNDN);
    mpfr_abs(scaled.get(), scaled.get(), MPFR_RNDN);
    mpz_t integer;
    mpz_init(integer);
    mpfr_get_z(integer, scaled.get(), MPFR_RNDN);
    static_assert(sizeof(mp_limb_t) == 8, "limbs of 64 bits");
    U128 limbs[4];
    for (int k = 0; k < 4; ++k) limbs[k] = mpz_getlimbn(integer, k);
    mpz_clear(integer);
    return U256{limbs[2] | limbs[3] << 64, limbs[0] | limbs[1] << 64};
}

U128 nearest_unsigned(mpfr_ptr v, int bits) {
    return nearest_fixed(v, bits).low;
}

S128 nearest_signed(mpfr_ptr v, int bits) {
    const auto magnitude = static_cast<S128>(nearest_fixed(v, bits).low);
    return mpfr_sgn(v) < 0 ? -magnitude : magnitude;
}

// v > 0 as a mantissa of 128 bits (top bit set) rounded to nearest, and its exponent.
Binary nearest_binary(mpfr_ptr v) {
    const auto exponent = static_cast<int>(mpfr_get_exp(v));  // v in [2^(e-1), 2^e)
    const U256 mantissa = nearest_fixed(v, 128 - exponent);
    // A rounding up to 2^128 is the next power of two.
    if (mantissa.high != 0) return Binary{false, static_cast<U128>(1) << 127, exponent - 127};
    return Binary{false, mantissa.low, exponent - 128};
}

// round(2^bits / n) for an integer n.
U128 nearest_ratio(int bits, U128 n) {
    return ((static_cast<U128>(1) << bits) + n / 2) / n;
}

KernelTables make_tables() {
    KernelTables t{};
    Real v, w;
    for (int j = 0; j < 256; ++j) {
        t.reciprocal[j] = static_cast<std::uint32_t>(((1u << 24) + 255u + j) / (256u + j));
        mpfr_set_ui(v.get(), 1u << 16, MPFR_RNDN);
        mpfr_div_ui(v.get(), v.get(), t.reciprocal[j], MPFR_RNDN);  // exact enough: 320 bits
        mpfr_log(v.get(), v.get(), MPFR_RNDN);
        t.log_of_reciprocal[j] = nearest_unsigned(v.get(), kUnitBits);

        mpfr_set_si(v.get(), j, MPFR_RNDN);
        mpfr_div_2ui(v.get(), v.get(), 8, MPFR_RNDN);
        mpfr_exp2(v.get(), v.get(), MPFR_RNDN);
        t.exp2_step[j] = nearest_unsigned(v.get(), kUnitBits);
    }
    for (int i = 0; i < kFineSteps; ++i) {
        t.fine_reciprocal[i] =
            static_cast<std::uint32_t>(((std::uint64_t{1} << 32) + 65535u + i) / (65536u + i));
        mpfr_set_ui(v.get(), 1u << 16, MPFR_RNDN);
        mpfr_div_ui(v.get(), v.get(), t.fine_reciprocal[i], MPFR_RNDN);
        mpfr_log(v.get(), v.get(), MPFR_RNDN);
        t.log_of_fine_reciprocal[i] = nearest_unsigned(v.get(), kUnitBits);
    }
    mpfr_const_log2(w.get(), MPFR_RNDN);
    for (int k = 0; k < 64; ++k) {
        mpfr_mul_si(v.get(), w.get(), k, MPFR_RNDN);
        t.ln2_multiple[k] = nearest_signed(v.get(), kLogSumBits);
    }
    mpfr_div_2ui(v.get(), w.get(), 8, MPFR_RNDN);
    t.ln2_step = nearest_unsigned(v.get(), kLn2StepBits);
    mpfr_set_ui(w.get(), 10, MPFR_RNDN);
    mpfr_log(w.get(), w.get(), MPFR_RNDN);
    for (int e = -kLn10Range; e <= kLn10Range; ++e) {
        mpfr_mul_si(v.get(), w.get(), e, MPFR_RNDN);
        t.ln10_multiple[e + kLn10Range] = nearest_signed(v.get(), kLogSumBits);
    }
    for (int k = 1; k <= kLogTerms; ++k) t.inverse[k] = nearest_ratio(kUnitBits, k);
    U128 factorial = 1;
    for (int k = 0; k < kExpTerms; ++k) {
        if (k > 0) factorial *= k;
        t.exp_coefficient[k] = nearest_ratio(kSeriesBits, factorial);
    }
    // (2i)! and (2i + 1)! up to 33!, below 2^123.
    factorial = 1;
    for (int n = 0; n < 2 * kCosineTerms; ++n) {
        if (n > 0) factorial *= n;
        if (n % 2 == 0 && n / 2 < kCosineTerms)
            t.cosine_coefficient[n / 2] = nearest_ratio(kUnitBits, factorial);
        if (n % 2 == 1 && n / 2 < kSineTerms)
            t.sine_coefficient[n / 2] = nearest_ratio(kUnitBits, factorial);
    }
    mpfr_const_pi(v.get(), MPFR_RNDN);
    mpfr_div_2ui(v.get(), v.get(), 1, MPFR_RNDN);
    t.half_pi = nearest_fixed(v.get(), kHalfPiBits);
    for (int q = -kPowerRange; q <= kPowerRange; ++q) {
        mpfr_set_ui(v.get(), 10, MPFR_RNDN);
        mpfr_pow_si(v.get(), v.get(), q, MPFR_RNDN);
        t.power_of_ten[q + kPowerRange] = nearest_binary(v.get());
    }
    return t;
}

}  // namespace

const KernelTables &kernel_tables() {
    static const KernelTables tables = make_tables();
    return tables;
}

bool power_of_ten(int q, Binary &result) {
    if (q < -kPowerRange || q > kPowerRange) return false;
    result = kernel_tables().power_of_ten[q + kPowerRange];
    return true;
}

}  // namespace quindar::exact
