// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The instructions of the statistical functions and the random deviates, with the tests
// of their parameters that the solver repeats at each run. A row without a worker answers
// as its function does in a line until that function's computation arrives.
#include "map_solver.h"
#include "mathematics.h"
#include "parser.h"

namespace quindar {

namespace {

using R = MapInstructionRow;
using I = Instruction;
constexpr MapForm kValues = MapForm::Values, kNoValues = MapForm::NoValues, kList = MapForm::List;
constexpr int kMustBeReal = 12, kNonNegativeIntegers = 18, kNBelowR = 26, kProbability = 40,
              kAlpha = 41, kBeta = 42, kTrials = 43, kDegreesOfFreedom = 44;

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
    if (v[0].real < 0) return fail(p, kTrials, fn);
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
    if (v[1].real <= 0) return fail(p, kDegreesOfFreedom, fn);
    return false;
}

}  // namespace

void MapSolver::append_statistics_rows(std::vector<MapInstructionRow> &rows) {
    const R statistics[] = {
        {I::Mean, "MEAN", 0, true, kList, nullptr, nullptr},
        {I::Gmean, "GMEAN", 0, true, kList, nullptr, nullptr},
        {I::Hmean, "HMEAN", 0, true, kList, nullptr, nullptr},
        {I::Median, "MEDIAN", 0, true, kList, nullptr, nullptr},
        {I::Mode, "MODE", 0, true, kList, nullptr, nullptr},
        {I::Min, "MIN", 0, true, kList, nullptr, nullptr},
        {I::Max, "MAX", 0, true, kList, nullptr, nullptr},
        {I::Sumx, "SUMX", 0, true, kList, nullptr, nullptr},
        {I::Sumxsq, "SUMXSQ", 0, true, kList, nullptr, nullptr},
        {I::Sumdev, "SUMDEV", 0, true, kList, nullptr, nullptr},
        {I::Avgdev, "AVGDEV", 0, true, kList, nullptr, nullptr},
        {I::Sumdevsq, "SUMDEVSQ", 0, true, kList, nullptr, nullptr},
        {I::Range, "RANGE", 0, true, kList, nullptr, nullptr},
        {I::Rank, "RANK", 1, true, kList, nullptr, real<1>},
        {I::Svar, "SVAR", 0, true, kList, nullptr, nullptr},
        {I::Pvar, "PVAR", 0, true, kList, nullptr, nullptr},
        {I::Sstdev, "SSTDEV", 0, true, kList, nullptr, nullptr},
        {I::Pstdev, "PSTDEV", 0, true, kList, nullptr, nullptr},
        {I::Nordist, "NORDIST", 3, true, kValues, nullptr, real<3>},
        {I::NorprobValues, "NORPROB", 4, true, kValues, nullptr, real<4>},
        {I::NorprobList, "NORPROB", 2, true, kList, nullptr, real<2>},
        {I::NormxValues, "NORMX", 3, true, kValues, nullptr, real<3>},
        {I::NormxList, "NORMX", 1, true, kList, nullptr, real<1>},
        {I::Wsnorm, "WSNORM", 1, true, kList, nullptr, real_unnamed},
        {I::ZscoreValues, "ZSCORE", 3, true, kValues, nullptr, real<3>},
        {I::ZscoreList, "ZSCORE", 1, true, kList, nullptr, real<1>},
        {I::Skew, "SKEW", 0, true, kList, nullptr, nullptr},
        {I::Kurt, "KURT", 0, true, kList, nullptr, nullptr},
        {I::Prctle, "PRCTLE", 1, true, kList, nullptr, real<1>},
        {I::Lqrtle, "LQRTLE", 0, true, kList, nullptr, nullptr},
        {I::Uqrtle, "UQRTLE", 0, true, kList, nullptr, nullptr},
        {I::Comb, "COMB", 2, true, kValues, nullptr, choose},
        {I::Perm, "PERM", 2, true, kValues, nullptr, choose},
        {I::RandValues, "RAND", 2, true, kValues, nullptr, real<2>},
        {I::RandNone, "RAND", 0, true, kNoValues, nullptr, nullptr},
        {I::NordevValues, "NORDEV", 2, true, kValues, nullptr, real<2>},
        {I::NordevNone, "NORDEV", 0, true, kNoValues, nullptr, nullptr},
        {I::ExpdevValue, "EXPDEV", 1, true, kValues, nullptr, real<1>},
        {I::ExpdevNone, "EXPDEV", 0, true, kNoValues, nullptr, nullptr},
        {I::RaydevValues, "RAYDEV", 2, true, kValues, nullptr, real<2>},
        {I::RaydevNone, "RAYDEV", 0, true, kNoValues, nullptr, nullptr},
        {I::Berdev, "BERDEV", 1, true, kValues, nullptr, probability},
        {I::Betadev, "BETADEV", 2, true, kValues, nullptr, alpha_beta},
        {I::Bnldev, "BNLDEV", 2, true, kValues, nullptr, trials},
        {I::Caudev, "CAUDEV", 2, true, kValues, nullptr, real<2>},
        {I::Chidev, "CHIDEV", 1, true, kValues, nullptr, positive<1>},
        {I::Dexpdev, "DEXPDEV", 2, true, kValues, nullptr, real<2>},
        {I::Fdev, "FDEV", 2, true, kValues, nullptr, positive<2>},
        {I::Gamdev, "GAMDEV", 2, true, kValues, nullptr, alpha_beta},
        {I::Logdev, "LOGDEV", 2, true, kValues, nullptr, real<2>},
        {I::Nchidev, "NCHIDEV", 2, true, kValues, nullptr, noncentral},
    };
    rows.insert(rows.end(), std::begin(statistics), std::end(statistics));
}

}  // namespace quindar
