// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Handlers of the functions whose workers compute through the complex decimal layer.
#include "embedded_calls.h"
#include "parser.h"

namespace quindar {

namespace {

constexpr int kTooMany = 7;

// Literals in the parameters of REM, SIN, COS and TAN may not carry more significant
// digits than the operation supports; the flag must not outlive the fetch on any path.
class DigitLimit {
public:
    DigitLimit(Parser &parser, bool on) : parser_(parser) { parser_.limit_digits = on; }
    ~DigitLimit() { parser_.limit_digits = false; }
    DigitLimit(const DigitLimit &) = delete;
    DigitLimit &operator=(const DigitLimit &) = delete;

private:
    Parser &parser_;
};

template <complex (Parser::*Worker)(const complex &)>
complex one_parameter(Parser &p, std::ostream &answer, const char *name) {
    complex value;
    p.get_one_par(answer, value, p.internal_function(name));
    return (p.*Worker)(value);
}

template <complex (Parser::*Worker)(const complex &, int)>
complex grouped(Parser &p, std::ostream &answer, const char *name, bool limitDigits) {
    const int fn = p.internal_function(name);
    complex value;
    {
        DigitLimit limit(p, limitDigits);
        p.get_one_par(answer, value, fn);
    }
    return (p.*Worker)(value, fn);
}

}  // namespace

complex EmbeddedCalls::call_sqrt(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_sqrt>(p, a, "SQRT");
}
complex EmbeddedCalls::call_log(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_log>(p, a, "LN");
}
complex EmbeddedCalls::call_log10(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_log10>(p, a, "LOG10");
}
complex EmbeddedCalls::call_exp(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_exp>(p, a, "EXP");
}
complex EmbeddedCalls::call_abs(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_abs>(p, a, "ABS");
}
complex EmbeddedCalls::call_round(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_round>(p, a, "ROUND");
}
complex EmbeddedCalls::call_trunc(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_trunc>(p, a, "TRUNC");
}
complex EmbeddedCalls::call_floor(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_floor>(p, a, "FLOOR");
}
complex EmbeddedCalls::call_ceil(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_ceil>(p, a, "CEIL");
}
complex EmbeddedCalls::call_degree(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_degree>(p, a, "DEG");
}
complex EmbeddedCalls::call_radian(Parser &p, std::ostream &a) {
    return one_parameter<&Parser::_radian>(p, a, "RAD");
}

complex EmbeddedCalls::call_fmod(Parser &p, std::ostream &answer) {
    const int fn = p.internal_function("REM");
    complex a, b;
    {
        DigitLimit limit(p, true);
        p.get_two_pars(answer, a, b, fn);
    }
    p.check_no_other_parameter(kTooMany, fn);
    return p._fmod(a, b);
}

complex EmbeddedCalls::call_sin(Parser &p, std::ostream &a) {
    return grouped<&Parser::_trig_func>(p, a, "SIN", true);
}
complex EmbeddedCalls::call_cos(Parser &p, std::ostream &a) {
    return grouped<&Parser::_trig_func>(p, a, "COS", true);
}
complex EmbeddedCalls::call_tan(Parser &p, std::ostream &a) {
    return grouped<&Parser::_trig_func>(p, a, "TAN", true);
}
complex EmbeddedCalls::call_sinh(Parser &p, std::ostream &a) {
    return grouped<&Parser::_hyp_trig_func>(p, a, "SINH", false);
}
complex EmbeddedCalls::call_cosh(Parser &p, std::ostream &a) {
    return grouped<&Parser::_hyp_trig_func>(p, a, "COSH", false);
}
complex EmbeddedCalls::call_tanh(Parser &p, std::ostream &a) {
    return grouped<&Parser::_hyp_trig_func>(p, a, "TANH", false);
}
complex EmbeddedCalls::call_asin(Parser &p, std::ostream &a) {
    return grouped<&Parser::_arc_trig_func>(p, a, "ASIN", false);
}
complex EmbeddedCalls::call_acos(Parser &p, std::ostream &a) {
    return grouped<&Parser::_arc_trig_func>(p, a, "ACOS", false);
}
complex EmbeddedCalls::call_atan(Parser &p, std::ostream &a) {
    return grouped<&Parser::_arc_trig_func>(p, a, "ATAN", false);
}
complex EmbeddedCalls::call_asinh(Parser &p, std::ostream &a) {
    return grouped<&Parser::_arc_hyp_trig_func>(p, a, "ASINH", false);
}
complex EmbeddedCalls::call_acosh(Parser &p, std::ostream &a) {
    return grouped<&Parser::_arc_hyp_trig_func>(p, a, "ACOSH", false);
}
complex EmbeddedCalls::call_atanh(Parser &p, std::ostream &a) {
    return grouped<&Parser::_arc_hyp_trig_func>(p, a, "ATANH", false);
}

}  // namespace quindar
