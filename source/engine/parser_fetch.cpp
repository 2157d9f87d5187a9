// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// How an embedded function reads its parameters: each one through the comparison level
// of the grammar, with the form of the call checked between them.
#include "embedded_tables.h"
#include "parser.h"

namespace quindar {

namespace {
// Messages of the checks.
constexpr int kCommaExpected = 1, kNoParameters = 2, kOneRequired = 3, kTwoRequired = 4,
              kThreeRequired = 5, kFourRequired = 6, kTooMany = 7, kCommaOutOfPlace = 8,
              kMustBeReal = 12, kNonNegativeIntegers = 18;
}  // namespace

void Parser::mathlib_exception(int number, int functionIndex, const char *text) {
    const char *name = get_function_name(functionIndex);
    if (name == nullptr) name = "";
    const char *format = mathlib::mathlib_message(number);
    // Messages with two names take the caller's text first.
    const bool two = std::string(format).find("%s") != std::string(format).rfind("%s");
    const std::string message =
        two ? format_message(format, text ? text : "", name) : format_message(format, name);
    raise(message, "MATH LIBRARY ERROR", -1);
}

void Parser::check_no_right_bracket(int number, int fn) {
    if (token_is(']') || at_end()) mathlib_exception(number, fn, nullptr);
}
void Parser::check_right_bracket(int number, int fn) {
    if (!token_is(']')) mathlib_exception(number, fn, nullptr);
}
void Parser::check_no_right_brace(int number, int fn) {
    if (token_is('}') || at_end()) mathlib_exception(number, fn, nullptr);
}
void Parser::check_left_brace(int number, int fn) {
    if (!token_is('{')) mathlib_exception(number, fn, nullptr);
}
void Parser::check_comma(int number, int fn) {
    if (!token_is(',')) mathlib_exception(number, fn, nullptr);
}
void Parser::check_no_comma(int number, int fn) {
    if (token_is(',')) mathlib_exception(number, fn, nullptr);
}
void Parser::check_more(int number, int fn) {
    if (at_end()) mathlib_exception(number, fn, nullptr);
}
void Parser::check_no_other_parameter(int number, int fn) {
    if (token_is(',')) mathlib_exception(number, fn, nullptr);
}

bool Parser::check_no_imag_compnts(int number, int fn, const complex &c1, const complex &c2,
                                   const complex &c3, const complex &c4) {
    if (c1.imag == 0 && c2.imag == 0 && c3.imag == 0 && c4.imag == 0) return false;
    mathlib_exception(number, fn, nullptr);
    return true;
}

bool Parser::check_pos_integers(int fn, const complex &c1, const complex &c2) {
    if (is_integer(c1.real) && c1.real >= 0 && is_integer(c2.real) && c2.real >= 0) return false;
    mathlib_exception(kNonNegativeIntegers, fn, nullptr);
    return true;
}

void Parser::get_one_par(std::ostream &answer, complex &a, int fn) {
    check_no_right_bracket(kOneRequired, fn);
    eval_exp1(a, answer);
    check_no_other_parameter(kTooMany, fn);
}

void Parser::get_two_pars(std::ostream &answer, complex &a, complex &b, int fn) {
    check_no_right_bracket(kNoParameters, fn);
    eval_exp1(a, answer);
    check_no_right_bracket(kTwoRequired, fn);
    check_comma(kCommaExpected, fn);
    get_token();
    check_no_comma(kCommaOutOfPlace, fn);
    check_no_right_bracket(kTwoRequired, fn);
    eval_exp1(b, answer);
}

void Parser::get_three_pars(std::ostream &answer, complex &a, complex &b, complex &c, int fn) {
    complex *values[] = {&a, &b};
    for (complex *value : values) {
        check_no_right_bracket(kNoParameters, fn);
        eval_exp1(*value, answer);
        check_no_right_bracket(kThreeRequired, fn);
        check_comma(kCommaExpected, fn);
        get_token();
        check_no_comma(kCommaOutOfPlace, fn);
    }
    check_no_right_bracket(kThreeRequired, fn);
    eval_exp1(c, answer);
}

void Parser::get_four_pars(std::ostream &answer, complex &a, complex &b, complex &c, complex &d,
                           int fn) {
    complex *values[] = {&a, &b, &c};
    for (complex *value : values) {
        check_no_right_bracket(kNoParameters, fn);
        eval_exp1(*value, answer);
        check_no_right_bracket(kFourRequired, fn);
        check_comma(kCommaExpected, fn);
        get_token();
        check_no_comma(kCommaOutOfPlace, fn);
    }
    check_no_right_bracket(kFourRequired, fn);
    eval_exp1(d, answer);
}

void Parser::get_one_real_par(std::ostream &answer, complex &a, int fn) {
    get_one_par(answer, a, fn);
    check_no_imag_compnts(kMustBeReal, fn, a);
}

void Parser::get_two_real_pars(std::ostream &answer, complex &a, complex &b, int fn) {
    get_two_pars(answer, a, b, fn);
    check_no_imag_compnts(kMustBeReal, fn, a, b);
}

void Parser::get_three_real_pars(std::ostream &answer, complex &a, complex &b, complex &c, int fn) {
    get_three_pars(answer, a, b, c, fn);
    check_no_imag_compnts(kMustBeReal, fn, a, b, c);
}

void Parser::get_four_real_pars(std::ostream &answer, complex &a, complex &b, complex &c,
                                complex &d, int fn) {
    get_four_pars(answer, a, b, c, d, fn);
    check_no_imag_compnts(kMustBeReal, fn, a, b, c, d);
    check_no_other_parameter(kTooMany, fn);
}

void Parser::get_two_real_pos_pars(std::ostream &answer, complex &a, complex &b, int fn) {
    get_two_pars(answer, a, b, fn);
    check_no_imag_compnts(kMustBeReal, fn, a, b);
    check_pos_integers(fn, a, b);
}

}  // namespace quindar
