// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What a statistical or deviate function decides beyond its computation: the tests of its
// parameters' values, and the deviations' form. A line's handlers and the map solver both
// call these, so a map fails and answers exactly where its line does.

#include "complex.h"
#include "statistics.h"

namespace quindar {

class Parser;

namespace statistics_rules {

// Each test takes the parameters in the order of the call and is true when one of them
// failed; the message is then raised. Real parts only: the callers test for imaginary parts.
bool refuses_probability(Parser &p, int fn, const complex *v);             // BERDEV
bool refuses_shapes(Parser &p, int fn, const complex *v);                  // BETADEV, GAMDEV
bool refuses_trials(Parser &p, int fn, const complex *v);                  // BNLDEV
bool refuses_nonpositive(Parser &p, int fn, const complex *v, int count);  // CHIDEV, FDEV
bool refuses_noncentral(Parser &p, int fn, const complex *v);              // NCHIDEV
bool refuses_r_above_n(Parser &p, int fn, const complex *v);               // COMB, PERM
// NORMX: only an area above 1 is refused; a negative one goes to the search.
bool refuses_area_above_one(Parser &p, int fn, const complex &area);

// SSTDEV and PSTDEV: double-precision roots of the variances.
long double sample_deviation(Statistics &s, DataList &list);
long double population_deviation(Statistics &s, DataList &list);

}  // namespace statistics_rules
}  // namespace quindar
