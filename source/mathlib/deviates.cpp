// SPDX-License-Identifier: GPL-3.0-or-later
// The uniform generator, the error channel and the draws that take one formula each.
#include "deviates.h"
#include "message_text.h"

#include <algorithm>
#include <cmath>

#include "deviates_state.h"

namespace quindar {

namespace {

const char *const kDeviateMessages[] = {
    "Shape Parameter In Exponential Deviate Function Can Not Be Zero.",
    "Median Is Equal To The Anchor In Rayleigh Deviate Function.",
    "The cummulative probability parameter P must be between 0 and 1 in the betav function.",
    "The shape parameter Alpha must be greater than 0 in the betav function.",
    "The shape parameter Beta must be greater than 0 in the betav function.",
    "The maximum number of iterations have been exceeded in the betav function.",
    "The the natural logarithm of the gamma function can not be evaluated with a negative "
    "number.",
    "The shape parameter Alpha must be greater than 0 in the betap function.",
    "The shape parameter Beta must be greater than 0 in the betap function.",
    "The upper bound of integration x value can not be between 0 and 1 in the betai function.",
    "The maximum number of iterations have been exceeded in the betav function.",
    "The shape parameter Alpha must be greater than 0 in the betadev function.",
    "The shape parameter Beta must be greater than 0 in the betadev function.",
    "The Random Deviate Could Not Be Drawn, Its Parameters Make Acceptance Too Rare.",
};

constexpr const char *kDeviateCaption = "Deviate Error";

// L'Ecuyer's two multiplicative generators, each stepped by Schrage's method.
struct LcgConstants {
    std::int32_t m, a, q, r;
};
constexpr LcgConstants kFirst{2147483563, 40014, 53668, 12211};
constexpr LcgConstants kSecond{2147483399, 40692, 52774, 3791};
constexpr std::int32_t kShuffleDivisor = 67108862;  // 1 + (m1 - 1) / 32
constexpr std::int32_t kFirstModulusLess1 = 2147483562;
constexpr double kInverseModulus = 4.656613057391769e-10;
constexpr double kLargestUniform = 0.99999988;
constexpr double kPi = 3.141592653589793;

std::int32_t lcg_step(std::int32_t s, const LcgConstants &c) {
    const std::int32_t k = s / c.q;
    s = c.a * (s - k * c.q) - k * c.r;
    if (s < 0) s += c.m;
    return s;
}

}  // namespace

namespace mathlib {
SharedDeviateState &shared_deviate_state() {
    static SharedDeviateState state;
    return state;
}
}  // namespace mathlib

Deviates::Deviates() {
    // Starts the shared shuffle from 5 and throws the first number away.
    randomnum();
}

std::int32_t Deviates::step_first(std::int32_t s) {
    return lcg_step(s, kFirst);
}

std::int32_t Deviates::step_second(std::int32_t s) {
    return lcg_step(s, kSecond);
}

void Deviates::clear_saved_normals() {
    auto &shared = mathlib::shared_deviate_state();
    shared.normal_waiting = false;
    shared.gauss_waiting = false;
}

long double Deviates::randomnum() {
    auto &shared = mathlib::shared_deviate_state();
    if (seed < 1) {
        const std::int64_t positive = -static_cast<std::int64_t>(seed);
        seed = positive < 1 || positive > INT32_MAX ? 1 : static_cast<std::int32_t>(positive);
        shared.seed2 = seed;
        for (int j = 39; j >= 0; --j) {
            seed = step_first(seed);
            if (j < 32) shared.shuffle_table[j] = seed;
        }
        shared.shuffle_last = shared.shuffle_table[0];
    }
    seed = step_first(seed);
    shared.seed2 = step_second(shared.seed2);
    const std::int32_t j = shared.shuffle_last / kShuffleDivisor;
    shared.shuffle_last = shared.shuffle_table[j] - shared.seed2;
    shared.shuffle_table[j] = seed;
    if (shared.shuffle_last < 1) shared.shuffle_last += kFirstModulusLess1;
    const long double u = shared.shuffle_last * static_cast<long double>(kInverseModulus);
    return std::min(u, static_cast<long double>(kLargestUniform));
}

const char *Deviates::deviate_message(int index) {
    constexpr int count = sizeof kDeviateMessages / sizeof kDeviateMessages[0];
    return index >= 0 && index < count ? kDeviateMessages[index] : "";
}

void Deviates::exception(int index) {
    mathlib::raise_class_error({silent, solving_map, error, error_text}, link,
                               deviate_message(index), kDeviateCaption);
}

void Deviates::SetLastError(const char *text) {
    error = true;
    if (text != nullptr) error_text = printable_message(text);
}

void Deviates::ClearLastError() {
    error = false;
    error_text.reset();
}

bool Deviates::another_trial(long &trials) {
    if (++trials <= max_trials) return true;
    exception(13);
    return false;
}

long double Deviates::uniformdev(long double a, long double b) {
    if (b < a) std::swap(a, b);
    return a + (b - a) * randomnum();
}

long double Deviates::polar_value(long double &saved, bool &waiting) {
    if (waiting) {
        waiting = false;
        return saved;
    }
    long double v1, v2, r;
    do {
        v1 = 2 * randomnum() - 1;
        v2 = 2 * randomnum() - 1;
        r = v1 * v1 + v2 * v2;
    } while (r >= 1 || r == 0);
    const long double f = std::sqrt(-2 * std::log(r) / r);
    saved = f * v1;
    waiting = true;
    return f * v2;
}

long double Deviates::normaldev(long double mean, long double sd) {
    auto &shared = mathlib::shared_deviate_state();
    return mean + sd * polar_value(shared.normal_saved, shared.normal_waiting);
}

long double Deviates::gasdev(long double mean, long double variance) {
    auto &shared = mathlib::shared_deviate_state();
    return mean + std::sqrt(variance) * polar_value(shared.gauss_saved, shared.gauss_waiting);
}

long double Deviates::exponentialdev(long double shape) {
    if (shape == 0) {
        exception(0);
        return 0;
    }
    return -std::log(randomnum()) / shape;
}

long double Deviates::expdev(long double b) {
    long double u;
    do u = randomnum();
    while (u == 0);
    return -b * std::log(u);
}

long double Deviates::rayleighdev(long double median, long double anchor) {
    // Close to 1 / sqrt(ln 2), but this is the factor the language has always used.
    constexpr long double k = 1.201119966536221;
    if (median == anchor) {
        exception(1);
        return 0;
    }
    const long double r = std::sqrt(-std::log(randomnum()));
    if (median > anchor) return anchor + k * (median - anchor) * r;
    return anchor - k * (anchor - median) * r;
}

long double Deviates::berdev(long double p) {
    return randomnum() <= p ? 1 : 0;
}

long double Deviates::caudev(long double mean, long double s) {
    return mean + s * std::tan(static_cast<long double>(kPi) * (randomnum() - 0.5L));
}

long double Deviates::dexpdev(long double mean, double s) {
    const long double q = 2 * randomnum() - 1;
    const long double t = Mathematics::sign(q);
    return mean - t * s * std::log(1 - t * q);
}

long double Deviates::logdev(long double mean, long double b) {
    return mean - b * std::log(1 / randomnum() - 1);
}

long double Deviates::lngamma(long double x) {
    static constexpr double c[6] = {76.18009172947146,  -86.50532032941678,   24.01409824083091,
                                    -1.231739572460166, 0.001208650973866179, -5.395239384953e-06};
    if (x <= 0) {
        exception(6);
        return 0;
    }
    long double ser = 1.000000000190015;
    for (int j = 0; j <= 5; ++j) ser += c[j] / (x + j + 1);
    const long double t = x + 5.5L;
    return -(t - (x + 0.5L) * std::log(t)) + std::log(2.5066282746310007 * ser / x);
}

}  // namespace quindar
