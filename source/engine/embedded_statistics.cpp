// SPDX-License-Identifier: GPL-3.0-or-later
// Handlers of the statistical functions: lists in braces or data files, and normal parameters.
#include "embedded_calls.h"
#include "parser.h"
#include "statistics_rules.h"

namespace quindar {

namespace {
constexpr int kCommaExpected = 1, kNoParameters = 2, kOneRequired = 3, kTooMany = 7;

complex real(long double value) {
    return complex{static_cast<double>(value), 0};
}
}  // namespace

complex EmbeddedCalls::list_statistic(Parser &p, std::ostream &answer, const char *name,
                                      ListStatistic compute) {
    DataList list;
    if (!fetch_list(p, answer, list, index_of(name))) return complex{};
    return real(compute(p, list));
}

bool EmbeddedCalls::fetch_list_and_comma(Parser &p, std::ostream &answer, DataList &list, int fn) {
    p.check_no_right_bracket(kNoParameters, fn);
    p.get_data(answer, list, fn);
    if (p.IsAnError()) return false;
    p.check_no_right_bracket(kOneRequired, fn);
    p.check_comma(kCommaExpected, fn);
    if (p.IsAnError()) return false;
    p.get_token();
    return true;
}

complex EmbeddedCalls::list_value_statistic(Parser &p, std::ostream &answer, const char *name,
                                            ListValueStatistic compute) {
    const int fn = index_of(name);
    DataList list;
    complex value;
    if (!fetch_list_and_comma(p, answer, list, fn)) return complex{};
    p.get_one_real_par(answer, value, fn);
    if (p.IsAnError()) return complex{};
    return real(compute(p, list, value.real));
}

// The closing bracket is left to the test after every call.
complex EmbeddedCalls::quartile(Parser &p, std::ostream &answer, const char *name,
                                long double p100) {
    const int fn = index_of(name);
    DataList list;
    p.check_no_right_bracket(kNoParameters, fn);
    p.get_data(answer, list, fn);
    if (p.IsAnError()) return complex{};
    return real(p.percentile(list, p100));
}

complex EmbeddedCalls::call_mean(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "MEAN", [](Statistics &s, DataList &l) { return s.mean(l); });
}
complex EmbeddedCalls::call_gmean(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "GMEAN",
                          [](Statistics &s, DataList &l) { return s.gmean(l); });
}
complex EmbeddedCalls::call_hmean(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "HMEAN",
                          [](Statistics &s, DataList &l) { return s.hmean(l); });
}
complex EmbeddedCalls::call_median(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "MEDIAN",
                          [](Statistics &s, DataList &l) { return s.median(l); });
}
complex EmbeddedCalls::call_mode(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "MODE", [](Statistics &s, DataList &l) { return s.mode(l); });
}
complex EmbeddedCalls::call_min(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "MIN",
                          [](Statistics &s, DataList &l) { return s.minimum(l); });
}
complex EmbeddedCalls::call_max(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "MAX",
                          [](Statistics &s, DataList &l) { return s.maximum(l); });
}
complex EmbeddedCalls::call_sumx(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SUMX", [](Statistics &s, DataList &l) { return s.sumx(l); });
}
complex EmbeddedCalls::call_sumxsq(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SUMXSQ",
                          [](Statistics &s, DataList &l) { return s.sumxsq(l); });
}
complex EmbeddedCalls::call_sumdev(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SUMDEV",
                          [](Statistics &s, DataList &l) { return s.sumdev(l); });
}
complex EmbeddedCalls::call_avgdev(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "AVGDEV",
                          [](Statistics &s, DataList &l) { return s.avgdev(l); });
}
complex EmbeddedCalls::call_sumdevsq(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SUMDEVSQ",
                          [](Statistics &s, DataList &l) { return s.sumdevsq(l); });
}
complex EmbeddedCalls::call_range(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "RANGE",
                          [](Statistics &s, DataList &l) { return s.range(l); });
}
complex EmbeddedCalls::call_count(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "COUNT", [](Statistics &, DataList &l) {
        return static_cast<long double>(l.count());
    });
}
complex EmbeddedCalls::call_svariance(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SVAR",
                          [](Statistics &s, DataList &l) { return s.svariance(l); });
}
complex EmbeddedCalls::call_pvariance(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "PVAR",
                          [](Statistics &s, DataList &l) { return s.pvariance(l); });
}
complex EmbeddedCalls::call_sstdev(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SSTDEV", statistics_rules::sample_deviation);
}
complex EmbeddedCalls::call_pstdev(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "PSTDEV", statistics_rules::population_deviation);
}
complex EmbeddedCalls::call_skew(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "SKEW", [](Statistics &s, DataList &l) { return s.skew(l); });
}
complex EmbeddedCalls::call_kurt(Parser &p, std::ostream &answer) {
    return list_statistic(p, answer, "KURT", [](Statistics &s, DataList &l) { return s.kurt(l); });
}
complex EmbeddedCalls::call_rank(Parser &p, std::ostream &answer) {
    return list_value_statistic(
        p, answer, "RANK", [](Statistics &s, DataList &l, long double v) { return s.rank(l, v); });
}
complex EmbeddedCalls::call_percentile(Parser &p, std::ostream &answer) {
    return list_value_statistic(p, answer, "PRCTLE", [](Statistics &s, DataList &l, long double v) {
        return s.percentile(l, v);
    });
}
// Alpha counts as a whole number of percent.
complex EmbeddedCalls::call_wsnorm(Parser &p, std::ostream &answer) {
    return list_value_statistic(p, answer, "WSNORM",
                                [](Statistics &s, DataList &l, long double alpha) {
                                    return s.wsnormtest(l, Mathematics::to_int32(alpha));
                                });
}
complex EmbeddedCalls::call_loquartile(Parser &p, std::ostream &answer) {
    return quartile(p, answer, "LQRTLE", 25);
}
complex EmbeddedCalls::call_upquartile(Parser &p, std::ostream &answer) {
    return quartile(p, answer, "UQRTLE", 75);
}

complex EmbeddedCalls::call_normdis(Parser &p, std::ostream &answer) {
    const int fn = index_of("NORDIST");
    complex mean, sd, x;
    p.get_three_real_pars(answer, mean, sd, x, fn);
    p.check_no_other_parameter(kTooMany, fn);
    if (p.IsAnError()) return complex{};
    return real(p.normpdf(mean.real, sd.real, x.real));
}

complex EmbeddedCalls::call_normprob(Parser &p, std::ostream &answer) {
    const int fn = index_of("NORPROB");
    complex a, b, x1, x2;
    if (p.token_is('{')) {
        DataList list;
        if (!fetch_list_and_comma(p, answer, list, fn)) return complex{};
        p.get_two_real_pars(answer, x1, x2, fn);
        if (p.IsAnError()) return complex{};
        return real(p.normprob2(list, x1.real, x2.real));
    }
    p.get_four_real_pars(answer, a, b, x1, x2, fn);
    if (p.IsAnError()) return complex{};
    return real(p.normprob1(a.real, b.real, x1.real, x2.real));
}

complex EmbeddedCalls::call_normx(Parser &p, std::ostream &answer) {
    const int fn = index_of("NORMX");
    complex mean, sd, alpha;
    DataList list;
    const bool of_list = p.token_is('{');
    if (of_list) {
        if (!fetch_list_and_comma(p, answer, list, fn)) return complex{};
        p.get_one_real_par(answer, alpha, fn);
    } else {
        p.get_three_real_pars(answer, mean, sd, alpha, fn);
        p.check_no_other_parameter(kTooMany, fn);
    }
    if (p.IsAnError()) return complex{};
    if (statistics_rules::refuses_area_above_one(p, fn, alpha)) return complex{};
    return real(of_list ? p.normx2(list, alpha.real) : p.normx1(mean.real, sd.real, alpha.real));
}

complex EmbeddedCalls::call_zscore(Parser &p, std::ostream &answer) {
    const int fn = index_of("ZSCORE");
    complex mean, sd, x;
    if (p.token_is('{')) {
        DataList list;
        if (!fetch_list_and_comma(p, answer, list, fn)) return complex{};
        p.get_one_real_par(answer, x, fn);
        if (p.IsAnError()) return complex{};
        return real(p.zscore2(list, x.real));
    }
    p.get_three_real_pars(answer, mean, sd, x, fn);
    p.check_no_other_parameter(kTooMany, fn);
    if (p.IsAnError()) return complex{};
    return real(p.zscore1(mean.real, sd.real, x.real));
}

namespace {
// COMB and PERM: two whole numbers with R no greater than N.
bool fetch_n_r(Parser &p, std::ostream &answer, complex &n, complex &r, int fn) {
    p.get_two_real_pos_pars(answer, n, r, fn);
    p.check_no_other_parameter(kTooMany, fn);
    if (p.IsAnError()) return false;
    const complex parameters[] = {n, r};
    return !statistics_rules::refuses_r_above_n(p, fn, parameters);
}
}  // namespace

complex EmbeddedCalls::call_binoco(Parser &p, std::ostream &answer) {
    complex n, r;
    if (!fetch_n_r(p, answer, n, r, index_of("COMB"))) return complex{};
    return real(p.binoco(n.real, r.real));
}

complex EmbeddedCalls::call_permutate(Parser &p, std::ostream &answer) {
    complex n, r;
    if (!fetch_n_r(p, answer, n, r, index_of("PERM"))) return complex{};
    return real(p.permutate(n.real, r.real));
}

}  // namespace quindar
