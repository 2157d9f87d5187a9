// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The instructions of the statistical functions and the random deviates, with the tests
// of their parameters that the solver repeats at each run: the same tests, in the same
// order, as the handlers make in a line, so that a map fails where its line fails.
#include <cmath>

#include "map_solver.h"
#include "mathematics.h"
#include "parser.h"

namespace quindar {

namespace {

using R = MapInstructionRow;
using I = Instruction;
constexpr MapForm kValues = MapForm::Values, kNoValues = MapForm::NoValues, kList = MapForm::List;
constexpr int kMustBeReal = 12, kNonNegativeIntegers = 18, kNBelowR = 26, kProbability = 40,
              kAlpha = 41, kBeta = 42, kTrials = 43, kDegreesOfFreedom = 44, kAlphaAboveOne = 31,
              kDofAboveOne = 45, kNoncentrality = 46;

bool fail(Parser &p, int number, int fn) {
    p.mathlib_exception(number, fn, nullptr);
    return true;
}

template <int Count>
bool real(Parser &p, int fn, const complex *v) {
    for (int k = 0; k < Count; ++k)
        if (v[k].imag != 0) return fail(p, kMustBeReal, fn);
    return false;
}

// WSNORM names no function in its message.
bool real_unnamed(Parser &p, int, const complex *v) {
    return real<1>(p, -1, v);
}

bool choose(Parser &p, int fn, const complex *v) {
    if (real<2>(p, fn, v)) return true;
    const long double n = v[0].real, r = v[1].real;
    if (!Mathematics::is_integer(n) || n < 0 || !Mathematics::is_integer(r) || r < 0)
        return fail(p, kNonNegativeIntegers, fn);
    if (n < r) return fail(p, kNBelowR, fn);
    return false;
}

bool probability(Parser &p, int fn, const complex *v) {
    if (real<1>(p, fn, v)) return true;
    if (v[0].real < 0 || v[0].real > 1) return fail(p, kProbability, fn);
    return false;
}

bool alpha_beta(Parser &p, int fn, const complex *v) {
    if (real<2>(p, fn, v)) return true;
    if (v[0].real < 0) return fail(p, kAlpha, fn);
    if (v[1].real < 0) return fail(p, kBeta, fn);
    return false;
}

bool trials(Parser &p, int fn, const complex *v) {
    if (real<2>(p, fn, v)) return true;
    if (v[0].real <= 0) return fail(p, kTrials, fn);
    if (v[1].real < 0 || v[1].real > 1) return fail(p, kProbability, fn);
    return false;
}

template <int Count>
bool positive(Parser &p, int fn, const complex *v) {
    if (real<Count>(p, fn, v)) return true;
    for (int k = 0; k < Count; ++k)
        if (v[k].real <= 0) return fail(p, kDegreesOfFreedom, fn);
    return false;
}

bool noncentral(Parser &p, int fn, const complex *v) {
    if (real<2>(p, fn, v)) return true;
    if (v[0].real <= 1) return fail(p, kDofAboveOne, fn);
    if (v[1].real < 0) return fail(p, kNoncentrality, fn);
    return false;
}

// The probability of NORMX is its last parameter; only one above 1 is refused.
template <int Count>
bool normal_area(Parser &p, int fn, const complex *v) {
    if (real<Count>(p, fn, v)) return true;
    if (v[Count - 1].real > 1) return fail(p, kAlphaAboveOne, fn);
    return false;
}

complex value(long double x) {
    return complex{static_cast<double>(x), 0.0};
}

// Workers: the same computations as the handlers, on the run's current list (which a
// recorded map always opens before its list function runs).
template <long double (Statistics::*Compute)(DataList &)>
complex of_list(Parser &p, MapRun &run, const complex *) {
    DataList *list = run.current_list();
    return list ? value((p.*Compute)(*list)) : complex{};
}

template <long double (Statistics::*Compute)(DataList &, long double)>
complex of_list_and_value(Parser &p, MapRun &run, const complex *v) {
    DataList *list = run.current_list();
    return list ? value((p.*Compute)(*list, v[0].real)) : complex{};
}

// The deviations are double-precision roots of the variances.
template <long double (Statistics::*Variance)(DataList &)>
complex deviation(Parser &p, MapRun &run, const complex *) {
    DataList *list = run.current_list();
    return list ? value(std::sqrt(static_cast<double>((p.*Variance)(*list)))) : complex{};
}

template <int Percent>
complex quartile(Parser &p, MapRun &run, const complex *) {
    DataList *list = run.current_list();
    return list ? value(p.percentile(*list, Percent)) : complex{};
}

complex wsnorm(Parser &p, MapRun &run, const complex *v) {
    DataList *list = run.current_list();
    return list ? value(p.wsnormtest(*list, Mathematics::to_int32(v[0].real))) : complex{};
}

complex normpdf(Parser &p, MapRun &, const complex *v) {
    return value(p.normpdf(v[0].real, v[1].real, v[2].real));
}
complex normprob1(Parser &p, MapRun &, const complex *v) {
    return value(p.normprob1(v[0].real, v[1].real, v[2].real, v[3].real));
}
complex normprob2(Parser &p, MapRun &run, const complex *v) {
    DataList *list = run.current_list();
    return list ? value(p.normprob2(*list, v[0].real, v[1].real)) : complex{};
}
complex normx1(Parser &p, MapRun &, const complex *v) {
    return value(p.normx1(v[0].real, v[1].real, v[2].real));
}
complex normx2(Parser &p, MapRun &run, const complex *v) {
    DataList *list = run.current_list();
    return list ? value(p.normx2(*list, v[0].real)) : complex{};
}
complex zscore1(Parser &p, MapRun &, const complex *v) {
    return value(p.zscore1(v[0].real, v[1].real, v[2].real));
}
complex zscore2(Parser &p, MapRun &run, const complex *v) {
    DataList *list = run.current_list();
    return list ? value(p.zscore2(*list, v[0].real)) : complex{};
}
complex binoco(Parser &p, MapRun &, const complex *v) {
    return value(p.binoco(v[0].real, v[1].real));
}
complex permutate(Parser &p, MapRun &, const complex *v) {
    return value(p.permutate(v[0].real, v[1].real));
}

// Deviates: with values, or with the defaults of the call without any.
template <long double (Deviates::*Draw)(long double, long double)>
complex draw2(Parser &p, MapRun &, const complex *v) {
    return value((p.*Draw)(v[0].real, v[1].real));
}
template <long double (Deviates::*Draw)(long double)>
complex draw1(Parser &p, MapRun &, const complex *v) {
    return value((p.*Draw)(v[0].real));
}
complex uniform_default(Parser &p, MapRun &, const complex *) {
    return value(p.uniformdev(0, 1));
}
complex normal_default(Parser &p, MapRun &, const complex *) {
    return value(p.normaldev(0, 1));
}
complex exponential_default(Parser &p, MapRun &, const complex *) {
    return value(p.exponentialdev(1));
}
complex rayleigh_default(Parser &p, MapRun &, const complex *) {
    return value(p.rayleighdev(1, 0));
}
complex binomial(Parser &p, MapRun &, const complex *v) {
    return value(p.bnldev(Mathematics::to_int32(v[0].real), v[1].real));
}
complex double_exponential(Parser &p, MapRun &, const complex *v) {
    return value(p.dexpdev(v[0].real, v[1].real));
}

}  // namespace

void MapSolver::append_statistics_rows(std::vector<MapInstructionRow> &rows) {
    const R statistics[] = {
        {I::Mean, "MEAN", 0, true, kList, of_list<&Statistics::mean>, nullptr},
        {I::Gmean, "GMEAN", 0, true, kList, of_list<&Statistics::gmean>, nullptr},
        {I::Hmean, "HMEAN", 0, true, kList, of_list<&Statistics::hmean>, nullptr},
        {I::Median, "MEDIAN", 0, true, kList, of_list<&Statistics::median>, nullptr},
        {I::Mode, "MODE", 0, true, kList, of_list<&Statistics::mode>, nullptr},
        {I::Min, "MIN", 0, true, kList, of_list<&Statistics::minimum>, nullptr},
        {I::Max, "MAX", 0, true, kList, of_list<&Statistics::maximum>, nullptr},
        {I::Sumx, "SUMX", 0, true, kList, of_list<&Statistics::sumx>, nullptr},
        {I::Sumxsq, "SUMXSQ", 0, true, kList, of_list<&Statistics::sumxsq>, nullptr},
        {I::Sumdev, "SUMDEV", 0, true, kList, of_list<&Statistics::sumdev>, nullptr},
        {I::Avgdev, "AVGDEV", 0, true, kList, of_list<&Statistics::avgdev>, nullptr},
        {I::Sumdevsq, "SUMDEVSQ", 0, true, kList, of_list<&Statistics::sumdevsq>, nullptr},
        {I::Range, "RANGE", 0, true, kList, of_list<&Statistics::range>, nullptr},
        {I::Rank, "RANK", 1, true, kList, of_list_and_value<&Statistics::rank>, real<1>},
        {I::Svar, "SVAR", 0, true, kList, of_list<&Statistics::svariance>, nullptr},
        {I::Pvar, "PVAR", 0, true, kList, of_list<&Statistics::pvariance>, nullptr},
        {I::Sstdev, "SSTDEV", 0, true, kList, deviation<&Statistics::svariance>, nullptr},
        {I::Pstdev, "PSTDEV", 0, true, kList, deviation<&Statistics::pvariance>, nullptr},
        {I::Nordist, "NORDIST", 3, true, kValues, normpdf, real<3>},
        {I::NorprobValues, "NORPROB", 4, true, kValues, normprob1, real<4>},
        {I::NorprobList, "NORPROB", 2, true, kList, normprob2, real<2>},
        {I::NormxValues, "NORMX", 3, true, kValues, normx1, normal_area<3>},
        {I::NormxList, "NORMX", 1, true, kList, normx2, normal_area<1>},
        {I::Wsnorm, "WSNORM", 1, true, kList, wsnorm, real_unnamed},
        {I::ZscoreValues, "ZSCORE", 3, true, kValues, zscore1, real<3>},
        {I::ZscoreList, "ZSCORE", 1, true, kList, zscore2, real<1>},
        {I::Skew, "SKEW", 0, true, kList, of_list<&Statistics::skew>, nullptr},
        {I::Kurt, "KURT", 0, true, kList, of_list<&Statistics::kurt>, nullptr},
        {I::Prctle, "PRCTLE", 1, true, kList, of_list_and_value<&Statistics::percentile>, real<1>},
        {I::Lqrtle, "LQRTLE", 0, true, kList, quartile<25>, nullptr},
        {I::Uqrtle, "UQRTLE", 0, true, kList, quartile<75>, nullptr},
        {I::Comb, "COMB", 2, true, kValues, binoco, choose},
        {I::Perm, "PERM", 2, true, kValues, permutate, choose},
        {I::RandValues, "RAND", 2, true, kValues, draw2<&Deviates::uniformdev>, real<2>},
        {I::RandNone, "RAND", 0, true, kNoValues, uniform_default, nullptr},
        {I::NordevValues, "NORDEV", 2, true, kValues, draw2<&Deviates::normaldev>, real<2>},
        {I::NordevNone, "NORDEV", 0, true, kNoValues, normal_default, nullptr},
        {I::ExpdevValue, "EXPDEV", 1, true, kValues, draw1<&Deviates::exponentialdev>, real<1>},
        {I::ExpdevNone, "EXPDEV", 0, true, kNoValues, exponential_default, nullptr},
        {I::RaydevValues, "RAYDEV", 2, true, kValues, draw2<&Deviates::rayleighdev>, real<2>},
        {I::RaydevNone, "RAYDEV", 0, true, kNoValues, rayleigh_default, nullptr},
        {I::Berdev, "BERDEV", 1, true, kValues, draw1<&Deviates::berdev>, probability},
        {I::Betadev, "BETADEV", 2, true, kValues, draw2<&Deviates::betadev>, alpha_beta},
        {I::Bnldev, "BNLDEV", 2, true, kValues, binomial, trials},
        {I::Caudev, "CAUDEV", 2, true, kValues, draw2<&Deviates::caudev>, real<2>},
        {I::Chidev, "CHIDEV", 1, true, kValues, draw1<&Deviates::chidev>, positive<1>},
        {I::Dexpdev, "DEXPDEV", 2, true, kValues, double_exponential, real<2>},
        {I::Fdev, "FDEV", 2, true, kValues, draw2<&Deviates::fdev>, positive<2>},
        {I::Gamdev, "GAMDEV", 2, true, kValues, draw2<&Deviates::gamdev>, alpha_beta},
        {I::Logdev, "LOGDEV", 2, true, kValues, draw2<&Deviates::logdev>, real<2>},
        {I::Nchidev, "NCHIDEV", 2, true, kValues, draw2<&Deviates::nchidev>, noncentral},
    };
    rows.insert(rows.end(), std::begin(statistics), std::end(statistics));
}

}  // namespace quindar
