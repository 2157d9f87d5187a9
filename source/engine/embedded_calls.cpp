// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "embedded_calls.h"

#include <cstring>

#include "embedded_tables.h"

namespace quindar {

namespace {

struct HandlerRow {
    const char *name;
    EmbeddedCalls::Handler handler;
};

const HandlerRow kHandlers[] = {
    {"SQRT", EmbeddedCalls::call_sqrt},
    {"LN", EmbeddedCalls::call_log},
    {"LOG10", EmbeddedCalls::call_log10},
    {"EXP", EmbeddedCalls::call_exp},
    {"ABS", EmbeddedCalls::call_abs},
    {"ROUND", EmbeddedCalls::call_round},
    {"TRUNC", EmbeddedCalls::call_trunc},
    {"REM", EmbeddedCalls::call_fmod},
    {"FLOOR", EmbeddedCalls::call_floor},
    {"CEIL", EmbeddedCalls::call_ceil},
    {"DEG", EmbeddedCalls::call_degree},
    {"RAD", EmbeddedCalls::call_radian},
    {"SIN", EmbeddedCalls::call_sin},
    {"COS", EmbeddedCalls::call_cos},
    {"TAN", EmbeddedCalls::call_tan},
    {"SINH", EmbeddedCalls::call_sinh},
    {"COSH", EmbeddedCalls::call_cosh},
    {"TANH", EmbeddedCalls::call_tanh},
    {"ASIN", EmbeddedCalls::call_asin},
    {"ACOS", EmbeddedCalls::call_acos},
    {"ATAN", EmbeddedCalls::call_atan},
    {"ASINH", EmbeddedCalls::call_asinh},
    {"ACOSH", EmbeddedCalls::call_acosh},
    {"ATANH", EmbeddedCalls::call_atanh},
    {"POW", EmbeddedCalls::call_pow},
    {"CUBERT", EmbeddedCalls::call_cubert},
    {"LOG", EmbeddedCalls::call_logarithm},
    {"GCD", EmbeddedCalls::call_gcd},
    {"LCM", EmbeddedCalls::call_lcm},
    {"RTOP", EmbeddedCalls::call_rtop},
    {"PTOR", EmbeddedCalls::call_ptor},
    {"BASECON", EmbeddedCalls::call_basecon},
    {"REAL", EmbeddedCalls::call_real},
    {"IMAG", EmbeddedCalls::call_imag},
    {"NORM", EmbeddedCalls::call_norm},
    {"CMAG", EmbeddedCalls::call_mag},
    {"CANGLE", EmbeddedCalls::call_angle},
    {"PTOC", EmbeddedCalls::call_polar},
    {"CONJ", EmbeddedCalls::call_conj},
    {"AND", EmbeddedCalls::call_and},
    {"OR", EmbeddedCalls::call_or},
    {"NOT", EmbeddedCalls::call_not},
    {"IF", EmbeddedCalls::call_if},
    {"HYPOT", EmbeddedCalls::call_hypot},
    {"SRESIST", EmbeddedCalls::call_sresist},
    {"PRESIST", EmbeddedCalls::call_presist},
    // Statistics.
    {"MEAN", EmbeddedCalls::call_mean},
    {"GMEAN", EmbeddedCalls::call_gmean},
    {"HMEAN", EmbeddedCalls::call_hmean},
    {"MEDIAN", EmbeddedCalls::call_median},
    {"MODE", EmbeddedCalls::call_mode},
    {"MIN", EmbeddedCalls::call_min},
    {"MAX", EmbeddedCalls::call_max},
    {"SUMX", EmbeddedCalls::call_sumx},
    {"SUMXSQ", EmbeddedCalls::call_sumxsq},
    {"SUMDEV", EmbeddedCalls::call_sumdev},
    {"AVGDEV", EmbeddedCalls::call_avgdev},
    {"SUMDEVSQ", EmbeddedCalls::call_sumdevsq},
    {"RANGE", EmbeddedCalls::call_range},
    {"COUNT", EmbeddedCalls::call_count},
    {"RANK", EmbeddedCalls::call_rank},
    {"SVAR", EmbeddedCalls::call_svariance},
    {"PVAR", EmbeddedCalls::call_pvariance},
    {"SSTDEV", EmbeddedCalls::call_sstdev},
    {"PSTDEV", EmbeddedCalls::call_pstdev},
    {"NORDIST", EmbeddedCalls::call_normdis},
    {"NORPROB", EmbeddedCalls::call_normprob},
    {"NORMX", EmbeddedCalls::call_normx},
    {"ZSCORE", EmbeddedCalls::call_zscore},
    {"SKEW", EmbeddedCalls::call_skew},
    {"KURT", EmbeddedCalls::call_kurt},
    {"PRCTLE", EmbeddedCalls::call_percentile},
    {"LQRTLE", EmbeddedCalls::call_loquartile},
    {"UQRTLE", EmbeddedCalls::call_upquartile},
    {"COMB", EmbeddedCalls::call_binoco},
    {"PERM", EmbeddedCalls::call_permutate},
    {"WSNORM", EmbeddedCalls::call_wsnorm},
    // Random deviates.
    {"RAND", EmbeddedCalls::call_unidev},
    {"NORDEV", EmbeddedCalls::call_nordev},
    {"EXPDEV", EmbeddedCalls::call_expdev},
    {"RAYDEV", EmbeddedCalls::call_raydev},
    {"BERDEV", EmbeddedCalls::call_berdev},
    {"BETADEV", EmbeddedCalls::call_betadev},
    {"BNLDEV", EmbeddedCalls::call_bnldev},
    {"CAUDEV", EmbeddedCalls::call_caudev},
    {"CHIDEV", EmbeddedCalls::call_chidev},
    {"DEXPDEV", EmbeddedCalls::call_dexpdev},
    {"FDEV", EmbeddedCalls::call_fdev},
    {"GAMDEV", EmbeddedCalls::call_gamdev},
    {"LOGDEV", EmbeddedCalls::call_logdev},
    {"NCHIDEV", EmbeddedCalls::call_nchidev},
};

}  // namespace

EmbeddedCalls::Handler EmbeddedCalls::handler(int index) {
    if (index < 0 || index >= mathlib::kEmbeddedFunctionCount) return nullptr;
    const char *name = mathlib::kEmbeddedFunctions[index].name;
    for (const HandlerRow &row : kHandlers)
        if (std::strcmp(row.name, name) == 0) return row.handler;
    return nullptr;
}

int EmbeddedCalls::index_of(const char *name) {
    return mathlib::function_index(name);
}

}  // namespace quindar
