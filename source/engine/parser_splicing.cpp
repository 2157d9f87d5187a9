// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Functions are macros over the line's text: each call is replaced by the function's
// body, with the arguments written into it, in parentheses, before the grammar runs.
#include <strings.h>
#include <algorithm>

#include <cstring>

#include "parser.h"
#include "parser_messages.h"

namespace quindar {

namespace {

// Splices of one line beyond which functions are taken to call each other in a circle.
constexpr int kMaxSplices = 2000;

}  // namespace

void Parser::insert_brackets(char *text, int mode) {
    const char opening = mode == 1 ? '(' : '[';
    const char new_opening = mode == 1 ? '[' : '(';
    const char new_closing = mode == 1 ? ']' : ')';
    prog = expr_start = text;
    while (get_token() != nullptr && !at_end()) {
        if (token_type != kName) continue;
        char *const behind = prog;
        if (*behind != opening) continue;
        bool call = find_function(token.c_str()) >= 0 || is_internal_function(token.c_str()) ||
                    is_library_function(token.c_str());
        if (!call && mode == 1) call = is_function_declaration();
        prog = behind;
        if (!call) continue;
        *behind = new_opening;
        int depth = 0;
        for (char *p = behind + 1; *p != '\0'; ++p) {
            if (*p == '(' || *p == '[') {
                ++depth;
            } else if (*p == ')' || *p == ']') {
                if (depth == 0) {
                    *p = new_closing;
                    break;
                }
                --depth;
            }
        }
    }
    prog = expr_start = text;
}

void Parser::insert_functions() {
    prog = expr_start;
    while (get_token() != nullptr && !at_end()) {
        if (token_type != kName) continue;
        const int index = find_function(token.c_str());
        const bool library_call =
            index < 0 && may_be_library_name(token.c_str()) && is_library_function(token.c_str());
        if (index < 0 && !library_call) continue;
        if (++splices > kMaxSplices)
            special_exception(messages::kExpansionWithoutEnd, token.c_str());
        if (library_call) {
            eval_lib_function();
        } else {
            reset_func_modvalue(index);
            eval_function(index);
        }
    }
    prog = expr_start;
}

// Names the document already knows stand for themselves: a library look-up reads both files,
// and a variable, embedded function or constant is never taken for a library function.
bool Parser::may_be_library_name(const char *name) {
    return !is_variable(name) && !is_internal_function(name) && !is_constant(name);
}

void Parser::raise_argument_count(const std::string &name, int wanted, int used) {
    raise(format_message(used == 1 ? messages::kArgumentCountOne : messages::kArgumentCountMany,
                         name.c_str(), wanted, used),
          messages::kParserCaption, -1);
}

// The arguments of a call, each as it stands in the line; the current token is the first of
// the first argument, and the call's closing bracket (or the end) is left as the token.
// With refuseSelf a call of shortName inside an argument is refused.
std::vector<std::string> Parser::collect_arguments(const std::string &shortName, bool refuseSelf) {
    std::vector<std::string> arguments;
    for (;;) {
        if (!(token_is(',') || token_is(']') || at_end())) {
            const char *begin = prog - token.size();
            int depth = 0;
            bool previous_is_self = false;
            while (!at_end()) {
                if (depth == 0 && (token_is(',') || token_is(']'))) break;
                if (token_is('[')) {
                    if (refuseSelf && previous_is_self)
                        special_exception(messages::kEvaluatedOnItself, shortName.c_str());
                    ++depth;
                } else if (token_is(']')) {
                    --depth;
                }
                previous_is_self = token_type == kName && token == shortName;
                get_token();
            }
            const char *end = prog - token.size();
            arguments.emplace_back(begin, end);
        }
        if (token_is(',')) {
            get_token();
            continue;
        }
        if (!token_is(']') && !at_end()) parser_exception(3);
        return arguments;
    }
}

namespace {

// Each argument in parentheses, so that a sum stays one value inside the body.
void enclose(std::vector<std::string> &arguments) {
    for (std::string &argument : arguments) argument = "(" + argument + ")";
}

}  // namespace

// prog stands behind the name of a call of function `index`.
void Parser::eval_function(int index) {
    Function *function = functions[index];
    const std::string short_name = function->short_name;
    char *const start = prog - short_name.size();
    get_token();
    if (!token_is('[')) raise_argument_count(function->full_name, function->num_vars, 0);
    get_token();
    std::vector<std::string> arguments = collect_arguments(short_name, true);
    const int used = static_cast<int>(arguments.size());
    if (used != function->num_vars)
        raise_argument_count(function->full_name, function->num_vars, used);
    enclose(arguments);
    function->SubstituteArguments(arguments);
    check_balanced_parens(function->mod_value.c_str());
    const std::string body = function->mod_value;
    function->ResetModFuncValue();
    insert_function(body, start, prog);
    prog = start;
}

// True when text holds a name token equal to name without regard to case. The line's
// reading position is kept.
bool Parser::names_itself(const std::string &text, const std::string &name) {
    char *const saved_prog = prog;
    const std::string saved = token;
    const char saved_type = token_type;
    std::string copy = text;
    prog = copy.data();
    bool found = false;
    while (!found && get_token() != nullptr && !at_end())
        found = token_type == kName && strcasecmp(token.c_str(), name.c_str()) == 0;
    prog = saved_prog;
    token = saved;
    token_type = saved_type;
    return found;
}

// prog stands behind the name of a call of the library function waiting in lib_function.
// Library arguments go in whole, in parentheses, as those of user functions do.
void Parser::eval_lib_function() {
    const std::unique_ptr<Function> function = std::move(lib_function);
    char *const start = prog - token.size();
    if (names_itself(function->func_value, function->short_name)) {
        const char *text = function->GetFuncFullNameAndValue();
        special_exception(messages::kLibraryFunctionOfItself,
                          text ? text : function->full_name.c_str());
    }
    get_token();
    if (!token_is('[')) raise_argument_count(function->short_name, function->num_vars, 0);
    get_token();
    std::vector<std::string> arguments = collect_arguments(function->short_name, false);
    const int used = static_cast<int>(arguments.size());
    for (int k = 1; k <= std::min(used, function->num_vars); ++k)
        if (!function->UsesFuncVariable(k))
            raise(format_message(messages::kLibraryNotAFunctionOf, function->short_name.c_str(),
                                 function->GetFuncVariable(k)),
                  messages::kParserCaption, -1);
    if (used != function->num_vars)
        raise_argument_count(function->short_name, function->num_vars, used);
    enclose(arguments);
    function->SubstituteArguments(arguments);
    // A library body was never checked as a typed line is.
    check_legitimate_characters(function->mod_value.c_str());
    check_balanced_parens(function->mod_value.c_str());
    insert_function(function->mod_value, start, prog);
    prog = start;
}

// Replaces the text from start to rest by the body in parentheses, so that `2*f[1]`
// stays a product with the whole body.
void Parser::insert_function(const std::string &value, char *start, const char *rest) {
    const std::string tail = rest;
    const std::size_t head = static_cast<std::size_t>(start - expr.get());
    if (head + value.size() + 2 + tail.size() >= kExpressionSize) parser_exception(0);
    std::string spliced = "(" + value + ")" + tail;
    std::memcpy(start, spliced.c_str(), spliced.size() + 1);
}

}  // namespace quindar
