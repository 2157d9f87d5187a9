// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The line form `f[x,y] = body`: checks the body against the names it may use and
// stores it, blanks removed.
#include <algorithm>
#include <cstring>

#include "evaluation_abort.h"
#include "parser.h"
#include "parser_messages.h"

namespace quindar {

namespace {

// The source spelling of a relational token.
std::string spelling(const std::string &token, char type) {
    if (type != kDelimiter || token.empty()) return token;
    switch (token[0]) {
        case kLess:
            return "<";
        case kLessEqual:
            return "<=";
        case kGreater:
            return ">";
        case kGreaterEqual:
            return ">=";
        case kEqual:
            return "==";
        case kNotEqual:
            return "!=";
        default:
            return token;
    }
}

bool is_word(char type) {
    return type == kName || type == kNumber;
}

}  // namespace

void Parser::check_declaration_body(const std::string &fullName, const std::string &shortName,
                                    const std::vector<std::string> &parameters, char *body) {
    for (const auto &parameter : parameters) {
        bool found = false;
        prog = body;
        while (!found && get_token() != nullptr && !at_end())
            found = token_type == kName && token == parameter;
        if (!found)
            raise(format_message(messages::kNotAFunctionOf, fullName.c_str(), parameter.c_str()),
                  messages::kParserCaption, -1);
    }
    prog = body;
    while (get_token() != nullptr && !at_end()) {
        if (token_type != kName) continue;
        const bool call = *prog == '[';
        const char *name = token.c_str();
        if (call && token == shortName) special_exception(messages::kFunctionOfItself, name);
        if (is_function(name) || is_internal_function(name) || is_constant(name) ||
            is_variable(name))
            continue;
        const bool parameter =
            std::find(parameters.begin(), parameters.end(), token) != parameters.end();
        if (!parameter && is_library_function(name)) {
            check_library_call(prog);
            continue;
        }
        if (call) special_exception(messages::kNotDefinedAsFunction, name);
        if (!parameter) special_exception(messages::kVariableNotDefined, name);
    }
}

// A library function named in a body must be called with brackets and its number of
// arguments, counted by the commas outside nested brackets. behind: the text behind its name.
void Parser::check_library_call(const char *behind) {
    const std::unique_ptr<Function> function = std::move(lib_function);
    if (*behind != '[') special_exception(messages::kLibraryBracketExpected, token.c_str());
    int depth = 0;
    int used = 0;
    bool empty = true;
    for (const char *p = behind + 1; *p != '\0'; ++p) {
        if (*p == '[' || *p == '(') ++depth;
        if (*p == ']' || *p == ')') {
            if (depth == 0) break;
            --depth;
        }
        if (*p == ',' && depth == 0) ++used;
        if (*p != ' ' && *p != '\t') empty = false;
    }
    if (!empty) ++used;
    if (used != function->num_vars)
        raise_argument_count(function->full_name, function->num_vars, used);
}

void Parser::declare_function() {
    prog = expr_start;
    get_token();
    const std::string short_name = token;
    std::string full_name = token;
    std::vector<std::string> parameters;
    while (get_token() != nullptr && !at_end() && !token_is('=')) {
        full_name += token;
        if (token_type == kName) parameters.push_back(token);
    }
    char *const body = prog;
    check_declaration_body(full_name, short_name, parameters, body);

    std::string value;
    char previous_type = kDelimiter;
    prog = body;
    while (get_token() != nullptr && !at_end()) {
        // Blanks go, but two words must not run into one.
        if (is_word(previous_type) && is_word(token_type)) value += ' ';
        value += spelling(token, token_type);
        previous_type = token_type;
    }
    if (find_function(full_name.c_str()) < 0) add_new_function(full_name.c_str(), nullptr);
    // Recorded even for a function that exists now: the map adds it again if it has gone.
    record(Instruction::AddFunction, {}, full_name.c_str());
    assignment_made = true;
    find_function(full_name.c_str());
    record(Instruction::FindFunction, {}, full_name.c_str());
    set_func_value(value.c_str(), nullptr);
    record(Instruction::SetFunctionBody, {}, value.c_str());
    function_declared = true;
    record(Instruction::End);
    // The line is done: nothing of it is to be computed.
    throw EvaluationAbort{};
}

}  // namespace quindar
