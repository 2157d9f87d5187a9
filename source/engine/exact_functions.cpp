// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "exact_functions.h"

#include <cmath>

#include "binary_kernels.h"
#include "decimal_reading.h"
#include "degree_reduction.h"
#include "digit_decision.h"
#include "exact_arithmetic.h"
#include "mpfr_road.h"
#include "power_phase.h"

namespace quindar::exact {

namespace {

// The decimal layer's own binary values (256 bits and more) lie within this relative distance
// of the true ones; a decision must hold for them too.
const double kRoadError = std::ldexp(1.0, -240);
// The relative bounds of the kernels are taken this much wider, for the rounding of their
// own double arithmetic.
constexpr double kWider = 1 + 1e-9;

void note(Road *road, Road taken) {
    if (road != nullptr) *road = taken;
}

// The engine's rounding of a decimal result to 15 digits, read as a double.
bool engine_value(const Decimal &wide, double &value) {
    Decimal rounded;
    return multiply(wide, Decimal{false, 1, 0}, rounded) && read_decimal(rounded, value);
}

// ln x at `digits` (then at 15 with `then_fifteen`) for x > 0; the road that decided.
bool log_digits(const Decimal &x, int digits, bool then_fifteen, Decimal &result, Road &road) {
    road = Road::kernel;
    Binary value;
    if (log_kernel(x.coefficient, x.exponent, value)) {
        if (value.mantissa == 0) {  // ln 1, exactly
            result = Decimal{};
            return true;
        }
        const double error = kLogError / approximate(value) * kWider + kRoadError;
        if (decide_digits(value, error, digits, then_fifteen, result)) return true;
    }
    road = Road::binary;
    if (!mpfr_log_digits(x, digits, result)) return false;
    return !then_fifteen || multiply(result, Decimal{false, 1, 0}, result);
}

// e^y at `digits` (then at 15 with `then_fifteen`) for y = (-1)^negative * n * 10^exponent.
bool exp_digits(bool negative, U128 n, int exponent, int digits, bool then_fifteen, Decimal &result,
                Road &road) {
    road = Road::kernel;
    if (n == 0) {
        result = Decimal{false, 1, 0};
        return true;
    }
    Binary y, value;
    double y_error = 0, error = 0;
    if (decimal_to_binary(negative, n, exponent, y, y_error) &&
        exp_kernel(y, approximate(y) * y_error * kWider, value, error) &&
        decide_digits(value, error * kWider + kRoadError, digits, then_fifteen, result))
        return true;
    road = Road::binary;
    return mpfr_exp_digits(negative, n, exponent, digits, result) &&
           (!then_fifteen || multiply(result, Decimal{false, 1, 0}, result));
}

// The imaginary part M sin(b theta) of a negative base's power, rounded to 15 digits: the
// sine rounded at `places` and the exact product rounded once. Up to 18 digits the sine's
// rounding is decided first where the product fits 128 bits; otherwise the sine's rounding
// is taken into the bound of the product instead (it moves it by half a unit of the place at
// most).
bool phase_part(const Decimal &b, const Decimal &magnitude, int places, Decimal &result) {
    Binary sine;
    double error = 0;
    if (!whole_turn_sine(b, places, sine, error)) return false;
    if (sine.mantissa == 0) {
        result = Decimal{};
        return true;
    }
    Decimal rounded;
    if (places < 18 && decide_digits(sine, error, places + 1, false, rounded) &&
        multiply(magnitude, rounded, result))
        return true;
    Binary m, product_value;
    double m_error = 0;
    if (!decimal_to_binary(false, magnitude.coefficient, magnitude.exponent, m, m_error))
        return false;
    product_value = product(m, sine);
    const double bound = error + m_error + power_of_two(-126) + 0.5 * std::pow(10.0, -places);
    return decide_digits(product_value, bound * kWider, 15, false, result);
}

bool positive_operand(const complex &z, Decimal &x) {
    return z.imag == 0 && operand(z.real, x) && x.coefficient != 0 && !x.negative;
}

bool finish(const Decimal &value, complex &result) {
    double real = 0;
    if (!read_decimal(value, real)) return false;
    result = complex{real, 0.0};
    return true;
}

}  // namespace

bool real_log(const complex &z, complex &result, Road *road) {
    Decimal x, logarithm;
    Road taken;
    // The modulus of a positive real is itself; its argument is 0.
    if (!positive_operand(z, x) || !log_digits(x, 18, true, logarithm, taken) ||
        !finish(logarithm, result))
        return false;
    note(road, taken);
    return true;
}

bool real_exp(const complex &z, complex &result, Road *road) {
    Decimal x, value;
    Road taken;
    if (z.imag != 0 || !operand(z.real, x) ||
        !exp_digits(x.negative, x.coefficient, x.exponent, 18, true, value, taken) ||
        !finish(value, result))
        return false;
    note(road, taken);
    return true;
}

bool real_sine(double x, bool cosine, bool degrees, complex &result, Road *road) {
    Decimal angle, value;
    if (!operand(x, angle)) return false;
    if (angle.coefficient == 0) {
        result = complex{cosine ? 1.0 : 0.0, 0.0};
        note(road, Road::kernel);
        return true;
    }
    Binary radians, sine;
    double angle_error = 0, error = 0;
    const bool converted = degrees ? degrees_to_radians(angle.negative, angle.coefficient,
                                                        angle.exponent, radians, angle_error)
                                   : decimal_to_binary(angle.negative, angle.coefficient,
                                                       angle.exponent, radians, angle_error);
    // The decimal layer's angle lies within kRoadError of the angle, relative, and its value
    // within kRoadError of the function's, relative.
    if (converted && sine_kernel(radians, angle_error * kWider, cosine, sine, error)) {
        const double road_error = kRoadError * (approximate(radians) + 1) / approximate(sine);
        if (decide_digits(sine, error * kWider + road_error + kRoadError, 18, true, value) &&
            finish(value, result)) {
            note(road, Road::kernel);
            return true;
        }
    }
    // In degrees an angle next to a whole number of quarter turns is reduced exactly.
    ReducedAngle reduced;
    if (converted && degrees && reduce_degrees(angle.coefficient, angle.exponent, reduced) &&
        quadrant_sine(reduced.rest, reduced.delta * kWider, reduced.quarters, cosine, sine,
                      error)) {
        if (angle.negative && !cosine) sine.negative = !sine.negative;
        const double road_error = kRoadError * (approximate(radians) + 1) / approximate(sine);
        if (decide_digits(sine, error * kWider + road_error + kRoadError, 18, true, value) &&
            finish(value, result)) {
            note(road, Road::kernel);
            return true;
        }
    }
    if (!mpfr_sine_digits(angle, cosine, degrees, value) || !engine_value(value, result.real))
        return false;
    result.imag = 0.0;
    note(road, Road::binary);
    return true;
}

bool real_power(const complex &a, const complex &b, complex &result, Road *road) {
    Decimal base, exponent, logarithm, magnitude;
    Road first, second;
    bool odd = false;
    if (a.imag != 0 || b.imag != 0 || !operand(b.real, exponent) || !operand(a.real, base))
        return false;
    if (base.coefficient == 0) {
        // 0 to a positive power is exactly 0; to any other the decimal road reports it.
        if (exponent.negative || exponent.coefficient == 0) return false;
        result = complex{0.0, 0.0};
        note(road, Road::kernel);
        return true;
    }
    // A negative base only to a whole power, whose phase is known (power_phase.h).
    const bool negative_base = base.negative;
    if (negative_base && !whole_exponent(exponent, odd)) return false;
    base.negative = false;
    if (!log_digits(base, 17, false, logarithm, first)) return false;
    // y = b L exactly (14 and 17 digits), M = exp(y) at 17 digits, then the engine's 15. The
    // modulus of the base is the base itself, exactly, and its logarithm that of a positive.
    const U128 y = static_cast<U128>(exponent.coefficient) * logarithm.coefficient;
    const bool y_negative = exponent.negative != logarithm.negative;
    const int y_exponent = exponent.exponent + logarithm.exponent;
    if (!negative_base) {
        if (!exp_digits(y_negative, y, y_exponent, 17, true, magnitude, second) ||
            !finish(magnitude, result))
            return false;
    } else {
        // M at 17 digits; the phase at P = 15 + E(M) places, P + 1 digits.
        Decimal real, imaginary;
        if (!exp_digits(y_negative, y, y_exponent, 17, false, magnitude, second)) return false;
        int leading = magnitude.exponent;  // the exponent of M's first digit
        for (std::uint64_t n = magnitude.coefficient; n >= 10; n /= 10) ++leading;
        const int places = 15 + (leading > 0 ? leading : 0);
        double re = 0, im = 0;
        if (!multiply(magnitude, Decimal{odd, 1, 0}, real) ||
            !phase_part(exponent, magnitude, places, imaginary) || !read_decimal(real, re) ||
            !read_decimal(imaginary, im))
            return false;
        result = complex{re, im};
    }
    note(road, first == Road::kernel && second == Road::kernel ? Road::kernel : Road::binary);
    return true;
}

}  // namespace quindar::exact
