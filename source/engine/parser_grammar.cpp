// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The grammar, loosest binding first: line forms, comparison chains, sums, products
// (with implicit multiplication), one power, sign and factorial, parentheses, atoms.
// Each level computes as it reads; the current token is loaded on entry and the first
// token a level cannot use is loaded when it returns.
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>

#include "evaluation_abort.h"
#include "parser.h"
#include "parser_messages.h"

namespace quindar {

void Parser::eval_exp0(complex &value, std::ostream &answer) {
    get_token();
    if (at_end()) parser_exception(4);
    if (token_is_i()) {
        get_token();
        if (token_is('=')) parser_exception(13);
        putback();
        copy_token_back(kNumber, "i");
    }
    if (token_type == kName && !is_internal_function(token.c_str())) {
        const std::string name = token;
        if (is_function_declaration()) {
            prog = expr_start;
            get_token();
            if (is_internal_function(token.c_str()))
                special_exception(messages::kEmbeddedRedefined, token.c_str());
            if (is_library_function(token.c_str()))
                special_exception(messages::kLibraryRedefined, token.c_str());
            prog = expr_start;
            declare_function();
            return;
        }
    }
    prog = expr_start;
    insert_functions();
    prog = expr_start;

    get_token();
    if (token_type == kName) {
        const char *behind = prog;
        while (*behind == ' ' || *behind == '\t') ++behind;
        if (*behind != '[') {
            const bool variable = is_variable(token.c_str());
            const bool constant = !variable && is_constant(token.c_str());
            saved_token = token;
            const char saved_type = token_type;
            get_token();
            if (token_is('=')) {
                if (constant) special_exception(messages::kConstantAssigned, saved_token.c_str());
                declare_variable(value, answer, saved_token.c_str());
                return;
            }
            if (!variable && !constant) {
                if (at_end() || token_is(',')) {
                    if (auto_declare) {
                        declare_unassigned_variable(saved_token.c_str());
                        record(Instruction::DeclareVariable, {}, saved_token.c_str());
                        assignment_made = true;
                        answer << "FLAG";
                        return;
                    }
                    SetLastError(
                        format_message(messages::kUnidentifiedAlone, saved_token.c_str()).c_str(),
                        -1);
                    if (!silent)
                        show_message(&message_hook_storage, *error_text, messages::kVariableCaption,
                                     MessageStyle::Question);
                    if (recovery_points > 0) throw EvaluationAbort{};
                    return;
                }
                special_exception(messages::kNotVariableOrConstant, saved_token.c_str());
            }
            if (variable && !var_assigned(saved_token.c_str()))
                special_exception(messages::kNoValueYet, saved_token.c_str());
            putback();
            copy_token_back(saved_type, saved_token);
        }
    }
    eval_exp1(value, answer);
}

void Parser::eval_exp1(complex &value, std::ostream &answer) {
    bool chain = true;
    eval_exp2(value, answer);
    complex right = value;
    if (token_is_relational()) record(Instruction::StartComparison);
    while (token_is_relational()) {
        const complex left = right;
        const char code = token[0];
        get_token();
        eval_exp2(right, answer);
        value = compare(code, chain, left, right);
        record(comparison_instruction(code));
        if (!token_is_relational()) {
            value = complex{chain ? 1.0 : 0.0, 0.0};
            record(Instruction::EndComparison);
        }
    }
}

Instruction Parser::comparison_instruction(char code) {
    static constexpr Instruction kByCode[] = {
        Instruction::NotEqual,     Instruction::Less,  Instruction::LessEqual, Instruction::Greater,
        Instruction::GreaterEqual, Instruction::Equal, Instruction::NotEqual,
    };
    return code >= kLess && code <= kNotEqual ? kByCode[static_cast<int>(code)]
                                              : Instruction::NotEqual;
}

complex Parser::compare(char code, bool &chain, const complex &left, const complex &right) {
    switch (code) {
        case kLess:
            return _less(chain, left, right);
        case kLessEqual:
            return _leseq(chain, left, right);
        case kGreater:
            return _greater(chain, left, right);
        case kGreaterEqual:
            return _greateq(chain, left, right);
        case kEqual:
            return _equal(chain, left, right);
        default:
            return _nequal(chain, left, right);
    }
}

void Parser::eval_exp2(complex &value, std::ostream &answer) {
    eval_exp3(value, answer);
    while (token_is('+') || token_is('-')) {
        const char op = token[0];
        get_token();
        if (token_is(')') || at_end()) parser_exception(5);
        complex rhs;
        eval_exp3(rhs, answer);
        value = op == '+' ? complex_add(value, rhs) : complex_sub(value, rhs);
        record(op == '+' ? Instruction::Add : Instruction::Subtract);
    }
}

void Parser::eval_exp3(complex &value, std::ostream &answer) {
    eval_exp4(value, answer);
    while (implicit_mult || token_is('*') || token_is('/') || token_is('%')) {
        char op = '*';
        if (implicit_mult) {
            implicit_mult = false;
            putback();
        } else {
            op = token[0];
        }
        get_token();
        if (token_is(')') || at_end()) parser_exception(5);
        complex rhs;
        eval_exp4(rhs, answer);
        if (op == '*') {
            value = complex_mult(value, rhs);
            record(Instruction::Multiply);
        } else if (op == '/') {
            value = complex_div(value, rhs);
            record(Instruction::Divide);
        } else {
            value = modulus(value, rhs);
            record(Instruction::Modulus);
        }
    }
}

void Parser::eval_exp4(complex &value, std::ostream &answer) {
    eval_exp5(value, answer);
    // One power per level: 2^3^2 leaves a ^ over.
    if (token_is('^')) {
        get_token();
        complex rhs;
        eval_exp5(rhs, answer);
        value = _pow(value, rhs);
        record(Instruction::Power);
    }
}

void Parser::eval_exp5(complex &value, std::ostream &answer) {
    char sign = 0;
    if (token_is('+') || token_is('-')) {
        sign = token[0];
        get_token();
    }
    eval_exp6(value, answer);
    if (sign == '-') {
        value.real = -value.real;
        value.imag = -value.imag;
        record(Instruction::Negate);
    }
    if (token_is('!')) {
        value = _factorial(value);
        get_token();
        if (token_is('(')) implicit_mult = true;
        record(Instruction::Factorial);
    }
}

void Parser::eval_exp6(complex &value, std::ostream &answer) {
    if (!token_is('(')) {
        atom(value, answer);
        return;
    }
    get_token();
    if (token_is('*') || token_is('/')) parser_exception(5);
    eval_exp1(value, answer);
    if (!token_is(')')) parser_exception(2);
    get_token();
    if (token_is('(') || token_is_i() || token_type == kNumber || token_type == kName)
        implicit_mult = true;
}

void Parser::atom(complex &value, std::ostream &answer) {
    if (token_type == kName) {
        atom_name(value, answer);
    } else if (token_type == kNumber) {
        atom_number(value);
        get_token();
        if (token_is('(') || token_type == kName) implicit_mult = true;
    } else {
        parser_exception(1);
    }
}

void Parser::atom_name(complex &value, std::ostream &answer) {
    const char *behind = prog;
    while (*behind == ' ' || *behind == '\t') ++behind;
    if (*behind == '[') {
        // The scan ends at a ] met with depth 0 or at the end of the text.
        int depth = 1;
        const char *scan = behind + 1;
        for (; *scan != '\0'; ++scan) {
            if (*scan == '[') ++depth;
            if (*scan == ']') {
                if (depth == 0) break;
                --depth;
            }
        }
        if (depth > 0) special_exception(messages::kMissingFunctionBracket, token.c_str());
        if (*scan == ']') {
            const char *after = scan + 1;
            while (*after == ' ' || *after == '\t') ++after;
            if (*after == '=') special_exception(messages::kFunctionRedefined, token.c_str());
        }
        const int index = internal_function(token.c_str());
        if (index < 0) special_exception(messages::kNotAFunction, token.c_str());
        get_token();
        get_token();
        value = call_internal_function(index, answer);
        if (!token_is(']')) parser_exception(3);
    } else if (is_constant(token.c_str())) {
        value = complex{static_cast<double>(get_constant_value(token.c_str())), 0.0};
        record(Instruction::Constant, {}, token.c_str());
    } else {
        if (!is_variable(token.c_str()))
            special_exception(messages::kNotVariableOrConstant, token.c_str());
        if (is_var_locked(token.c_str()))
            special_exception(messages::kVariableLocked, token.c_str());
        if (!var_assigned(token.c_str())) special_exception(messages::kNoValueFound, token.c_str());
        value = get_var_value(token.c_str());
        record(Instruction::Variable, {}, token.c_str());
    }
    get_token();
    if (token_is('(') || token_type == kName || token_type == kNumber) implicit_mult = true;
}

void Parser::atom_number(complex &value) {
    if (token_is_i()) {
        get_token();
        if (token_type == kNumber || token_type == kName) {
            complex inner;
            std::ostringstream unused;
            atom(inner, unused);
            // Only the real part of the atom behind i counts. The atom has recorded itself,
            // and the map forms the same value from it at each solve.
            value = complex{0.0, inner.real};
            record(Instruction::ImaginaryOf);
        } else {
            value = complex{0.0, 1.0};
            record(Instruction::Literal, value);
        }
        putback();
        return;
    }
    if (limit_digits) {
        std::size_t first = 0;
        while (first < token.size() && (token[first] == '0' || token[first] == '.')) ++first;
        std::size_t digits = 0;
        for (std::size_t k = first; k < token.size(); ++k) digits += token[k] != '.';
        if (digits > 14) special_exception(messages::kTooManyDigits, token.c_str());
    }
    long double number = _atold(token.c_str());
    if (*prog == 'e' || *prog == 'E') {
        get_token();
        const bool exponent_marker = token == "e" || token == "E";
        putback();
        if (exponent_marker) get_scientific_value(number);
    }
    if (number > 1.0e+307L) parser_exception(23);
    if (number > 0 && number < 1.0e-307L) parser_exception(24);
    get_token();
    if (token_is_i()) {
        value = complex{0.0, static_cast<double>(number)};
    } else {
        value = complex{static_cast<double>(number), 0.0};
        putback();
    }
    record(Instruction::Literal, value);
}

// The exponent of a scientific literal is applied in decimal text, not by multiplying:
// 1.5e+3 is the text 1.5E+3 read as a number.
void Parser::get_scientific_value(long double &value) {
    ++prog;
    get_token();
    if (!token_is('+') && !token_is('-')) parser_exception(9);
    const bool negative = token_is('-');
    get_token();
    if (token_type != kNumber || token_is_i()) parser_exception(10);
    const long double exponent_value = _atold(token.c_str());
    if (exponent_value != std::floor(exponent_value)) parser_exception(8);

    char text[96];
    auto written = std::to_chars(text, text + 64, value, std::chars_format::general, 14);
    *written.ptr = '\0';
    // Far beyond any literal bound: keep the sum of exponents from overflowing.
    constexpr long kExponentLimit = 100000;
    long exponent =
        exponent_value > kExponentLimit ? kExponentLimit : static_cast<long>(exponent_value);
    if (negative) exponent = -exponent;
    if (char *own = std::strchr(text, 'e')) {
        exponent += std::strtol(own + 1, nullptr, 10);
        *own = '\0';
    }
    const std::size_t length = std::strlen(text);
    std::snprintf(text + length, sizeof text - length, "E%s%ld", exponent >= 0 ? "+" : "",
                  exponent);
    value = _atold(text);
}

}  // namespace quindar
