// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The parameter tests and deviation forms shared by the handlers and the map solver.
#include "statistics_rules.h"

#include <cmath>

#include "parser.h"

namespace quindar::statistics_rules {

namespace {

constexpr int kNBelowR = 26, kAlphaAboveOne = 31, kProbability = 40, kAlphaPositive = 41,
              kBetaPositive = 42, kTrialsPositive = 43, kDofPositive = 44, kDofAboveOne = 45,
              kNoncentrality = 46;

bool refuse(Parser &p, bool fails, int number, int fn) {
    if (!fails) return false;
    p.mathlib_exception(number, fn, nullptr);
    return true;
}

bool outside_unit(double x) {
    return x < 0 || x > 1;
}

}  // namespace

bool refuses_probability(Parser &p, int fn, const complex *v) {
    return refuse(p, outside_unit(v[0].real), kProbability, fn);
}

bool refuses_shapes(Parser &p, int fn, const complex *v) {
    return refuse(p, v[0].real < 0, kAlphaPositive, fn) ||
           refuse(p, v[1].real < 0, kBetaPositive, fn);
}

bool refuses_trials(Parser &p, int fn, const complex *v) {
    return refuse(p, v[0].real <= 0, kTrialsPositive, fn) ||
           refuse(p, outside_unit(v[1].real), kProbability, fn);
}

bool refuses_nonpositive(Parser &p, int fn, const complex *v, int count) {
    for (int k = 0; k < count; ++k)
        if (refuse(p, v[k].real <= 0, kDofPositive, fn)) return true;
    return false;
}

bool refuses_noncentral(Parser &p, int fn, const complex *v) {
    return refuse(p, v[0].real <= 1, kDofAboveOne, fn) ||
           refuse(p, v[1].real < 0, kNoncentrality, fn);
}

bool refuses_r_above_n(Parser &p, int fn, const complex *v) {
    return refuse(p, v[1].real > v[0].real, kNBelowR, fn);
}

bool refuses_area_above_one(Parser &p, int fn, const complex &area) {
    return refuse(p, area.real > 1, kAlphaAboveOne, fn);
}

long double sample_deviation(Statistics &s, DataList &list) {
    return static_cast<long double>(std::sqrt(static_cast<double>(s.svariance(list))));
}

long double population_deviation(Statistics &s, DataList &list) {
    return static_cast<long double>(std::sqrt(static_cast<double>(s.pvariance(list))));
}

}  // namespace quindar::statistics_rules
