// SPDX-License-Identifier: GPL-3.0-or-later
// Handlers of the random deviates: their forms, the checks of their parameters, then the draw.
#include "embedded_calls.h"
#include "parser.h"
#include "statistics_rules.h"

namespace quindar {

namespace {
constexpr int kNoParameters = 2, kTooMany = 7;
namespace rules = statistics_rules;

complex real(long double value) {
    return complex{static_cast<double>(value), 0};
}

// The trailing test of the checked forms, after the value tests: true when nothing follows.
bool no_more(Parser &p, int fn) {
    p.check_no_other_parameter(kTooMany, fn);
    return !p.IsAnError();
}
}  // namespace

bool EmbeddedCalls::fetch_or_default(Parser &p, std::ostream &answer, complex &a, complex &b,
                                     int fn) {
    if (p.token_is(']')) return true;
    p.get_two_real_pars(answer, a, b, fn);
    p.check_no_other_parameter(kTooMany, fn);
    return !p.IsAnError();
}

bool EmbeddedCalls::fetch_two_checked(Parser &p, std::ostream &answer, complex &a, complex &b,
                                      int fn) {
    p.check_no_right_bracket(kNoParameters, fn);
    p.get_two_real_pars(answer, a, b, fn);
    return !p.IsAnError();
}

bool EmbeddedCalls::fetch_one_checked(Parser &p, std::ostream &answer, complex &a, int fn) {
    p.check_no_right_bracket(kNoParameters, fn);
    p.get_one_real_par(answer, a, fn);
    return !p.IsAnError();
}

complex EmbeddedCalls::call_unidev(Parser &p, std::ostream &answer) {
    complex low{0, 0}, high{1, 0};
    if (!fetch_or_default(p, answer, low, high, index_of("RAND"))) return complex{};
    return real(p.uniformdev(low.real, high.real));
}

complex EmbeddedCalls::call_nordev(Parser &p, std::ostream &answer) {
    complex mean{0, 0}, sd{1, 0};
    if (!fetch_or_default(p, answer, mean, sd, index_of("NORDEV"))) return complex{};
    return real(p.normaldev(mean.real, sd.real));
}

complex EmbeddedCalls::call_expdev(Parser &p, std::ostream &answer) {
    complex shape{1, 0};
    if (!p.token_is(']')) {
        p.get_one_real_par(answer, shape, index_of("EXPDEV"));
        if (p.IsAnError()) return complex{};
    }
    return real(p.exponentialdev(shape.real));
}

complex EmbeddedCalls::call_raydev(Parser &p, std::ostream &answer) {
    complex median{1, 0}, anchor{0, 0};
    if (!fetch_or_default(p, answer, median, anchor, index_of("RAYDEV"))) return complex{};
    return real(p.rayleighdev(median.real, anchor.real));
}

complex EmbeddedCalls::call_berdev(Parser &p, std::ostream &answer) {
    const int fn = index_of("BERDEV");
    complex prob;
    if (!fetch_one_checked(p, answer, prob, fn)) return complex{};
    if (rules::refuses_probability(p, fn, &prob)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.berdev(prob.real));
}

// A zero shape passes here and is refused by the draw itself.
complex EmbeddedCalls::call_betadev(Parser &p, std::ostream &answer) {
    const int fn = index_of("BETADEV");
    complex a, b;
    if (!fetch_two_checked(p, answer, a, b, fn)) return complex{};
    const complex shapes[] = {a, b};
    if (rules::refuses_shapes(p, fn, shapes)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.betadev(a.real, b.real));
}

complex EmbeddedCalls::call_gamdev(Parser &p, std::ostream &answer) {
    const int fn = index_of("GAMDEV");
    complex a, b;
    if (!fetch_two_checked(p, answer, a, b, fn)) return complex{};
    const complex shapes[] = {a, b};
    if (rules::refuses_shapes(p, fn, shapes)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.gamdev(a.real, b.real));
}

complex EmbeddedCalls::call_bnldev(Parser &p, std::ostream &answer) {
    const int fn = index_of("BNLDEV");
    complex trials, prob;
    if (!fetch_two_checked(p, answer, trials, prob, fn)) return complex{};
    const complex parameters[] = {trials, prob};
    if (rules::refuses_trials(p, fn, parameters)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.bnldev(Mathematics::to_int32(trials.real), prob.real));
}

complex EmbeddedCalls::call_caudev(Parser &p, std::ostream &answer) {
    const int fn = index_of("CAUDEV");
    complex mean, s;
    if (!fetch_two_checked(p, answer, mean, s, fn)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.caudev(mean.real, s.real));
}

complex EmbeddedCalls::call_chidev(Parser &p, std::ostream &answer) {
    const int fn = index_of("CHIDEV");
    complex dof;
    if (!fetch_one_checked(p, answer, dof, fn)) return complex{};
    if (rules::refuses_nonpositive(p, fn, &dof, 1)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.chidev(dof.real));
}

complex EmbeddedCalls::call_dexpdev(Parser &p, std::ostream &answer) {
    const int fn = index_of("DEXPDEV");
    complex mean, s;
    if (!fetch_two_checked(p, answer, mean, s, fn)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.dexpdev(mean.real, s.real));
}

complex EmbeddedCalls::call_fdev(Parser &p, std::ostream &answer) {
    const int fn = index_of("FDEV");
    complex dfn, dfd;
    if (!fetch_two_checked(p, answer, dfn, dfd, fn)) return complex{};
    const complex freedoms[] = {dfn, dfd};
    if (rules::refuses_nonpositive(p, fn, freedoms, 2)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.fdev(dfn.real, dfd.real));
}

complex EmbeddedCalls::call_logdev(Parser &p, std::ostream &answer) {
    const int fn = index_of("LOGDEV");
    complex mean, b;
    if (!fetch_two_checked(p, answer, mean, b, fn)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.logdev(mean.real, b.real));
}

complex EmbeddedCalls::call_nchidev(Parser &p, std::ostream &answer) {
    const int fn = index_of("NCHIDEV");
    complex dof, xnonc;
    if (!fetch_two_checked(p, answer, dof, xnonc, fn)) return complex{};
    const complex parameters[] = {dof, xnonc};
    if (rules::refuses_noncentral(p, fn, parameters)) return complex{};
    if (!no_more(p, fn)) return complex{};
    return real(p.nchidev(dof.real, xnonc.real));
}

}  // namespace quindar
