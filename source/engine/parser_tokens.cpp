// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The tokeniser and the checks a line passes before the grammar reads it.
#include <strings.h>

#include <cstring>

#include "parser.h"
#include "parser_messages.h"

namespace quindar {

namespace {

constexpr const char *kDelimiters = "!+-<>*/%^=()[]{},;:#$@&?~`'\"|\\ ";
constexpr const char *kNotLegitimate = ";#$@&?~`'\"|";

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}
bool is_delimiter(char c) {
    return c != '\0' && std::strchr(kDelimiters, c) != nullptr;
}
bool is_letter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

bool Parser::token_is(char delimiter) const {
    return token_type == kDelimiter && token.size() == 1 && token[0] == delimiter;
}

bool Parser::token_is_relational() const {
    return token_type == kDelimiter && !token.empty() && token[0] >= kLess && token[0] <= kNotEqual;
}

bool Parser::token_is_i() const {
    return token_type == kNumber && token == "i";
}

const char *Parser::get_token() {
    token_type = kDelimiter;
    token.clear();
    if (prog == nullptr || *prog == '\0') return nullptr;
    while (is_blank(*prog)) ++prog;
    if (*prog == '\0') return token.c_str();

    const char c = *prog;
    if (c == '!' || c == '<' || c == '>' || c == '=') {
        const bool pair = prog[1] == '=';
        char code = 0;
        if (pair && c == '!') code = kNotEqual;
        if (pair && c == '=') code = kEqual;
        if (c == '<') code = pair ? kLessEqual : kLess;
        if (c == '>') code = pair ? kGreaterEqual : kGreater;
        if (code != 0) {
            token.assign(pair ? 2 : 1, code);
            prog += pair ? 2 : 1;
            return token.c_str();
        }
    }
    if (is_delimiter(c)) {
        token.assign(1, c);
        ++prog;
        return token.c_str();
    }
    if (is_letter(c) && !(c == 'i' && !is_letter(prog[1]))) {
        while (*prog != '\0' && !is_delimiter(*prog)) token += *prog++;
        token_type = kName;
        return token.c_str();
    }
    if (is_digit(c) || c == 'i' || c == '.') {
        read_number();
        return error ? nullptr : token.c_str();
    }
    // Nothing can start a token here (a control character, a code above 127, an
    // underscore): refuse it rather than stand still.
    character_exception(messages::kNotLegitimate, prog);
    prog += std::strlen(prog);
    return nullptr;
}

// A number literal: digits with at most one point, or the letter i alone. A letter ends
// it, so a number never holds a sign or an exponent.
void Parser::read_number() {
    token_type = kNumber;
    if (*prog == 'i') {
        token = "i";
        ++prog;
        return;
    }
    bool point = false;
    while (*prog != '\0' && !is_delim(*prog) && !is_letter(*prog)) {
        if (*prog == '.') {
            if (point) {
                parser_exception(17);
                prog += std::strlen(prog);
                return;
            }
            point = true;
        } else if (!is_digit(*prog)) {
            // A character that cannot belong to a number must not be silently cut off.
            character_exception(messages::kNotLegitimate, prog);
            prog += std::strlen(prog);
            return;
        }
        token += *prog++;
    }
    if (token[0] == '.' && (token.size() < 2 || !is_digit(token[1])) &&
        (is_delim(*prog) || is_letter(*prog))) {
        parser_exception(18);
        prog += std::strlen(prog);
    }
}

void Parser::putback() {
    if (prog != nullptr) prog -= token.size();
}

void Parser::copy_token(char &type, std::string &to) const {
    type = token_type;
    to = token;
}

void Parser::copy_token_back(char type, const std::string &from) {
    token_type = type;
    token = from;
}

void Parser::remove_end_spaces(char *text) {
    if (text == nullptr) return;
    std::size_t length = std::strlen(text);
    while (length > 0 && is_blank(text[length - 1])) text[--length] = '\0';
}

void Parser::check_legitimate_characters(const char *text) {
    for (const char *p = text; *p != '\0'; ++p)
        if (std::strchr(kNotLegitimate, *p) != nullptr)
            special_exception(messages::kNotLegitimate, *p);
}

void Parser::check_valid_input(char *text) {
    if (text == nullptr || *text == '\0') parser_exception(4);
    const char *p = text;
    while (is_blank(*p)) ++p;
    if (*p == '=') parser_exception(11);
    // One walk from the start: whichever comes first, a character that is not legitimate or a
    // comma out of place, decides the message.
    int depth = 0;
    for (; *p != '\0'; ++p) {
        if (std::strchr(kNotLegitimate, *p) != nullptr)
            special_exception(messages::kNotLegitimate, *p);
        if (*p == '[') ++depth;
        if (*p == ']') --depth;
        if (*p == ',' && depth == 0) {
            if (passes_incremental_comma_test()) return;
            special_exception(messages::kCommaMisused, "");
        }
    }
}

// A comma outside brackets is allowed only in `name = low, high, points`. This counts
// tokens only; the grammar reads the three parts as expressions afterwards.
bool Parser::passes_incremental_comma_test() {
    char *const saved_prog = prog;
    prog = expr_start;
    bool passes = false;
    get_token();
    if (token_type == kName) {
        get_token();
        if (token_is('=')) {
            for (int round = 1; round <= 2; ++round) {
                get_token();
                if (token_type == kNumber) get_token();
            }
            get_token();
            passes = token_type == kNumber;
        }
    }
    prog = saved_prog;
    return passes;
}

void Parser::check_balanced_parens(const char *text) {
    if (text == nullptr) return;
    int parentheses = 0, brackets = 0;
    for (const char *p = text; *p != '\0'; ++p) {
        if (*p == '(') ++parentheses;
        if (*p == ')') --parentheses;
        if (*p == '[') ++brackets;
        if (*p == ']') --brackets;
    }
    if (parentheses != 0) parser_exception(2);
    if (brackets != 0) parser_exception(26);
}

// Reads ahead from a name: `name[params] = ...` or `name(params) = ...` with parameters
// that are plain names. Moves prog; callers set it afresh.
bool Parser::is_function_declaration() {
    if (std::strchr(expr_start, '=') == nullptr) return false;
    const std::string name = token;
    std::string declaration = token;
    get_token();
    declaration += token;
    if (!token_is('[') && !token_is('(')) return false;
    do {
        get_token();
        declaration += token;
        if (token_type != kName) return false;
        if (is_internal_function(token.c_str()))
            special_exception(messages::kParameterIsFunction, token.c_str());
        if (is_constant(token.c_str()))
            special_exception(messages::kParameterIsConstant, token.c_str());
        get_token();
        declaration += token;
    } while (token_is(','));
    if (!token_is(']') && !token_is(')')) return false;
    get_token();
    if (!token_is('=')) return false;
    get_token();
    if (token_is('=')) return false;
    std::string full_name;
    if (user_function_full_name(name.c_str(), full_name) &&
        strcasecmp(full_name.c_str(), declaration.c_str()) != 0)
        special_exception(messages::kFunctionNameTaken, name.c_str());
    return true;
}

const char *Parser::get_token(const char *text, std::string &tokenOut, char &typeOut) {
    if (text == nullptr) return nullptr;
    error = false;
    SetSolvingMap(true);
    const std::size_t length = std::strlen(text) + 1;
    auto copy = std::make_unique<char[]>(length);
    std::memcpy(copy.get(), text, length);
    prog = copy.get();
    const char *result = nullptr;
    if (get_token() != nullptr && !error) {
        tokenOut = token;
        typeOut = token_type;
        result = text + (prog - copy.get());
    }
    reset();
    SetSolvingMap(false);
    return result;
}

bool Parser::find_token(const char *text, const char *name, char) {
    if (text == nullptr || name == nullptr) return false;
    error = false;
    SetSolvingMap(true);
    const std::size_t length = std::strlen(text) + 1;
    auto copy = std::make_unique<char[]>(length);
    std::memcpy(copy.get(), text, length);
    prog = copy.get();
    bool found = false;
    while (!found && get_token() != nullptr && !error && !at_end())
        found = token_type == kName && token == name;
    reset();
    SetSolvingMap(false);
    return found;
}

}  // namespace quindar
