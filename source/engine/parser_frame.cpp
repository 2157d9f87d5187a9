// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The frame around evaluation: construction, the two eval_exp entries, recovery from
// errors and the error channel.
#include <cstdio>
#include <cstring>
#include <new>
#include <sstream>

#include "evaluation_abort.h"
#include "mapm_complex.h"
#include "message_text.h"
#include "number_text.h"
#include "parser.h"
#include "parser_messages.h"

namespace quindar {

Parser::Parser(const char *libraryDir, const char *userLibraryDir)
    : Statistics(libraryDir),
      answer_format(std::make_unique<PrecformType>()),
      variable_format(std::make_unique<PrecformType>()) {
    lib_dir = libraryDir ? libraryDir : "";
    user_lib_dir = userLibraryDir ? userLibraryDir : "";
    // The folder texts end in their own separator.
    lib_path = lib_dir + "Quindar.lib";
    user_lib_path = user_lib_dir + "QuindarUser.lib";
    link_engine({&message_hook_storage, &recovery_points});
}

Parser::~Parser() {
    reset();
}

void Parser::set_message_hook(MessageHook hook) {
    message_hook_storage = std::move(hook);
    Mathematics::set_message_hook(&message_hook_storage);
    variables.set_message_hook(&message_hook_storage);
    functions.set_message_hook(&message_hook_storage);
}

const char *Parser::eval_exp(const char *text, bool silentMode, bool showEquals) {
    if (text == nullptr) return nullptr;
    complex result;
    return eval_exp(text, result, silentMode, showEquals);
}

const char *Parser::eval_exp(const char *text, complex &result, bool silentMode, bool showEquals) {
    m_apmc_init();
    expr = std::make_unique<char[]>(kExpressionSize);
    error_number = -1;
    SetSilentMode(silentMode);
    show_equals = showEquals;
    ClearLastError();
    // A line that fails before its grammar runs must not inherit the last line's flags.
    assignment_made = false;
    function_declared = false;
    splices = 0;
    if (library) library->new_line();
    if (user_library) user_library->new_line();
    std::ostringstream answer;
    init_number_stream(answer, *answer_format);
    ++recovery_points;
    try {
        const std::size_t length = text != nullptr ? std::strlen(text) : kExpressionSize;
        if (length >= kExpressionSize) parser_exception(0);
        std::memcpy(expr.get(), text, length + 1);
        evaluate_line(result, answer);
    } catch (const EvaluationAbort &) {
        Parser::FreeMapmValues();
        Mathematics::FreeMapmValues();
        answer.str("");
    } catch (const std::bad_alloc &) {
        SetLastError(messages::parser_error(0), 0);
        Parser::FreeMapmValues();
        Mathematics::FreeMapmValues();
        answer.str("");
    }
    --recovery_points;
    if (function_declared) {
        funcs_saved = false;
        error = false;
    }
    reset();
    answer_text = answer.str();
    m_apmc_done();
    return answer_text.c_str();
}

// Steps of a line between the copy of its text and its answer; errors leave by throwing.
void Parser::evaluate_line(complex &result, std::ostringstream &answer) {
    token.reserve(512);
    remove_end_spaces(expr.get());
    insert_brackets(expr.get(), 1);
    prog = expr_start = expr.get();
    check_valid_input(expr.get());
    check_balanced_parens(expr.get());
    prog = expr.get();
    implicit_mult = false;
    assignment_made = false;
    function_declared = false;

    eval_exp0(result, answer);
    if (token_is(')')) parser_exception(2);
    if (!at_end()) parser_exception(1);
    record(Instruction::End);

    if (answer.tellp() <= 0) {
        if (show_equals) answer << " = ";
        stream_answer(result, answer, -1);
    } else if (assignment_made) {
        vars_saved = false;
        answer.str("");
    }
}

void Parser::reset() {
    token.clear();
    saved_token.clear();
    expr.reset();
    lib_function.reset();
    prog = nullptr;
    expr_start = nullptr;
    mapping = false;
}

bool Parser::IsAnError() const {
    return error || Statistics::error || Mathematics::error || Deviates::error;
}

const char *Parser::GetLastError() const {
    if (error_text) return error_text->c_str();
    if (const char *text = Statistics::GetLastError()) return text;
    if (const char *text = Mathematics::GetLastError()) return text;
    return Deviates::GetLastError();
}

void Parser::ClearLastError() {
    error = false;
    error_number = -1;
    error_text.reset();
    Statistics::ClearLastError();
    Mathematics::ClearLastError();
    Deviates::ClearLastError();
}

void Parser::SetLastError(const char *text, int number) {
    error = true;
    error_number = number;
    if (text != nullptr)
        error_text = printable_message(text);
    else
        error_text.reset();
}

void Parser::SetSilentMode(bool silentMode) {
    silent = silentMode;
    Statistics::silent = silentMode;
    Mathematics::silent = silentMode;
    Deviates::silent = silentMode;
}

void Parser::SetSolvingMap(bool solving) {
    solving_map = solving;
    Statistics::solving_map = solving;
    Mathematics::solving_map = solving;
    Deviates::solving_map = solving;
}

void Parser::InitMapmValues() {
    mapm_free = false;
    for (auto &value : parser_mapm_values) m_apm_set_zero(&value);
}

void Parser::FreeMapmValues() {
    mapm_free = true;
}

void Parser::raise(const std::string &text, const char *caption, int number) {
    if (map_run && (IsAnError() || !solving_map)) return;
    SetLastError(text.c_str(), number);
    if (!silent) show_message(&message_hook_storage, text, caption);
    if (!solving_map && recovery_points > 0) {
        FreeMapmValues();
        throw EvaluationAbort{};
    }
    // Solving: the caller's loop stops at its next check. A second error after the
    // first has no recovery point either and is only recorded.
    SetSolvingMap(false);
}

void Parser::parser_exception(int number) {
    raise(messages::parser_error(number), messages::kParserCaption, number);
}

void Parser::special_exception(const char *format, const char *argument) {
    raise(format_message(format, argument), messages::kParserCaption, -1);
}

void Parser::special_exception(const char *format, char argument) {
    const int size = std::snprintf(nullptr, 0, format, argument);
    std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
    std::snprintf(text.data(), text.size() + 1, format, argument);
    raise(text, messages::kParserCaption, -1);
}

void Parser::character_exception(const char *format, const char *at) {
    std::string text = format;
    const auto mark = text.find("%c");
    if (mark != std::string::npos) text.replace(mark, 2, character_at(at));
    raise(text, messages::kParserCaption, -1);
}

void Parser::special_exception() {
    raise(error_text ? *error_text : std::string(), messages::kParserCaption, -1);
}

void Parser::stream_answer(complex &value, std::ostream &stream, int precision) {
    quindar::stream_answer(value, stream, precision, *answer_format);
}

void Parser::stream_variable(complex &value, std::ostream &stream, int precision) {
    quindar::stream_variable(*this, value, stream, precision, *variable_format);
}

}  // namespace quindar
