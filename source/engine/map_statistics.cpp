// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The instructions of the statistical functions and the random deviates, with the tests
// of their parameters that the solver repeats at each run: the same tests, in the same
// order, as the handlers make in a line, so that a map fails where its line fails.
#include "map_solver.h"
#include "mathematics.h"
#include "parser.h"
#include "statistics_rules.h"

namespace quindar {

namespace {

using R = MapInstructionRow;
using I = Instruction;
constexpr MapForm kValues = MapForm::Values, kNoValues = MapForm::NoValues, kList = MapForm::List;
constexpr int kMustBeReal = 12;
namespace rules = statistics_rules;

// The tests of a handler's fetch, then its value tests.
template <int Count>
bool real(Parser &p, int fn, const complex *v) {
    return p.check_no_imag_compnts(kMustBeReal, fn, v[0], Count > 1 ? v[1] : complex{},
                                   Count > 2 ? v[2] : complex{}, Count > 3 ? v[3] : complex{});
}

// WSNORM names no function in its message.
bool real_unnamed(Parser &p, int, const complex *v) {
    return real<1>(p, -1, v);
}

bool choose(Parser &p, int fn, const complex *v) {
    return real<2>(p, fn, v) || p.check_pos_integers(fn, v[0], v[1]) ||
           rules::refuses_r_above_n(p, fn, v);
}

bool probability(Parser &p, int fn, const complex *v) {
    return real<1>(p, fn, v) || rules::refuses_probability(p, fn, v);
}

bool shapes(Parser &p, int fn, const complex *v) {
    return real<2>(p, fn, v) || rules::refuses_shapes(p, fn, v);
}

bool trials(Parser &p, int fn, const complex *v) {
    return real<2>(p, fn, v) || rules::refuses_trials(p, fn, v);
}

template <int Count>
bool positive(Parser &p, int fn, const complex *v) {
    return real<Count>(p, fn, v) || rules::refuses_nonpositive(p, fn, v, Count);
}

bool noncentral(Parser &p, int fn, const complex *v) {
    return real<2>(p, fn, v) || rules::refuses_noncentral(p, fn, v);
}

// The area of NORMX is its last parameter.
template <int Count>
bool normal_area(Parser &p, int fn, const complex *v) {
    return real<Count>(p, fn, v) || rules::refuses_area_above_one(p, fn, v[Count - 1]);
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

template <long double (*Compute)(Statistics &, DataList &)>
complex by_rule(Parser &p, MapRun &run, const complex *) {
    DataList *list = run.current_list();
    return list ? value(Compute(p, *list)) : complex{};
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
        {I::Sstdev, "SSTDEV", 0, true, kList, by_rule<rules::sample_deviation>, nullptr},
        {I::Pstdev, "PSTDEV", 0, true, kList, by_rule<rules::population_deviation>, nullptr},
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
        {I::Betadev, "BETADEV", 2, true, kValues, draw2<&Deviates::betadev>, shapes},
        {I::Bnldev, "BNLDEV", 2, true, kValues, binomial, trials},
        {I::Caudev, "CAUDEV", 2, true, kValues, draw2<&Deviates::caudev>, real<2>},
        {I::Chidev, "CHIDEV", 1, true, kValues, draw1<&Deviates::chidev>, positive<1>},
        {I::Dexpdev, "DEXPDEV", 2, true, kValues, double_exponential, real<2>},
        {I::Fdev, "FDEV", 2, true, kValues, draw2<&Deviates::fdev>, positive<2>},
        {I::Gamdev, "GAMDEV", 2, true, kValues, draw2<&Deviates::gamdev>, shapes},
        {I::Logdev, "LOGDEV", 2, true, kValues, draw2<&Deviates::logdev>, real<2>},
        {I::Nchidev, "NCHIDEV", 2, true, kValues, draw2<&Deviates::nchidev>, noncentral},
    };
    rows.insert(rows.end(), std::begin(statistics), std::end(statistics));
}

}  // namespace quindar
