// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The brace argument of the list functions: a list of expressions, or the name of a
// data file whose entries a second, empty engine evaluates.
#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <vector>

#include "data_file.h"
#include "evaluation_abort.h"
#include "parser.h"

namespace quindar {

namespace {
// How deep data files may name data files, and what the nested reads under one outer file may
// cost together: each entry counts 1 and each file, whose engine opens the libraries, 100.
constexpr std::size_t kDataFileNestingLimit = 8;
constexpr long kNestedDataBudget = 8L * mathlib::kDataEntryLimit;
constexpr long kNestedFileCost = 100;

// The same file under any name: its resolved path when it has one.
std::string data_file_identity(const char *name) {
    std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(name, nullptr), &std::free);
    return resolved ? std::string(resolved.get()) : std::string(name);
}

constexpr int kIncomplete = 0, kCommaExpected = 1, kCommaOutOfPlace = 8, kTwoOrMore = 9,
              kBracketMisplaced = 10, kBraceMissing = 11, kPointNotReal = 13;
}  // namespace

void Parser::report_data_file_error(const std::string &text) {
    SetLastError(text.c_str(), -1);
    if (!silent) show_message(&message_hook_storage, text, mathlib::kDataFileCaption);
}

void Parser::get_data(std::ostream &answer, DynArray<long double, 10> &list, int fn) {
    call_took_list = true;
    record(Instruction::StartList);
    check_left_brace(kBraceMissing, fn);
    check_no_right_brace(kTwoOrMore, fn);
    // The text up to the first closing brace; at least one character, whatever it is.
    const char *scan = prog;
    std::string text;
    do {
        if (*scan == '\0') {
            mathlib_exception(kBraceMissing, fn, nullptr);
            return;
        }
        text += *scan++;
    } while (*scan != '}');
    const char *after_brace = scan + 1;
    if (*after_brace != ']' && *after_brace != ',') {
        mathlib_exception(kBracketMisplaced, fn, nullptr);
        return;
    }
    get_token();
    const bool has_point = text.find('.') != std::string::npos;
    const bool has_comma = text.find(',') != std::string::npos;
    // On this platform an absolute path starts with a slash; a list never does.
    const bool absolute = text.find_first_not_of(" \t") != std::string::npos &&
                          text[text.find_first_not_of(" \t")] == '/';
    const bool file = (has_point && !has_comma && token_type == kName) || absolute ||
                      text.find(':') != std::string::npos || text.find('\\') != std::string::npos;
    if (!file) {
        get_comline_data(answer, list, fn);
    } else {
        if (!get_file_data(list, text.c_str(), fn)) {
            if (!solving_map && recovery_points > 0) {
                FreeMapmValues();
                throw EvaluationAbort{};
            }
            SetSolvingMap(false);
            return;
        }
        // A map reads the file again at each solve.
        record(Instruction::FileName, {}, text.c_str());
        record(Instruction::LoadFile);
        prog = const_cast<char *>(after_brace);
    }
    get_token();
}

void Parser::get_comline_data(std::ostream &answer, DynArray<long double, 10> &list, int fn) {
    bool first = true;
    while (!token_is('}')) {
        check_no_right_bracket(kBracketMisplaced, fn);
        complex value;
        eval_exp1(value, answer);
        if (check_no_imag_compnts(kPointNotReal, fn, value)) return;
        list.add(new long double(value.real));
        record(Instruction::ListValue);
        if (first) check_no_right_brace(kTwoOrMore, fn);
        first = false;
        check_no_right_bracket(kBracketMisplaced, fn);
        if (!token_is('}')) {
            check_more(kIncomplete, fn);
            check_comma(kCommaExpected, fn);
            get_token();
            check_no_comma(kCommaOutOfPlace, fn);
            check_no_right_brace(kCommaOutOfPlace, fn);
        }
        if (error) return;
    }
}

std::string Parser::data_file_path(const char *name) const {
    const std::string text = name ? name : "";
    if (data_folder.empty() || text.empty() || text.front() == '/') return text;
    std::string beside = data_folder;
    if (beside.back() != '/') beside += '/';
    beside += text;
    std::error_code ignored;
    return std::filesystem::exists(beside, ignored) ? beside : text;
}

bool Parser::get_file_data(DynArray<std::string, 10> &list, const char *name, int) {
    std::vector<std::string> entries;
    const auto status = mathlib::read_data_entries(data_file_path(name), entries);
    list.flush();
    if (status != mathlib::DataFileStatus::Read) {
        report_data_file_error(mathlib::data_file_message(status, name ? name : ""));
        return false;
    }
    for (const auto &entry : entries) list.add(new std::string(entry));
    return true;
}

bool Parser::may_read_data_file(const std::string &identity, const char *name) {
    if (std::find(data_file_chain.begin(), data_file_chain.end(), identity) !=
        data_file_chain.end()) {
        report_data_file_error(
            format_message("Data File ' %s ' Is Read By One Of Its Own Entries!", name));
        return false;
    }
    if (data_file_chain.size() >= kDataFileNestingLimit) {
        report_data_file_error(format_message(
            "Data File ' %s ' Is Nested Too Deeply In Other Data Files, Limit Is %d Files!", name,
            static_cast<int>(kDataFileNestingLimit)));
        return false;
    }
    return true;
}

// Each entry is evaluated by a second engine with no variables, so entries may use
// numbers, constants and functions but nothing of the document.
bool Parser::get_file_data(DynArray<long double, 10> &list, const char *name, int fn) {
    DynArray<std::string, 10> entries;
    list.flush();
    const std::string identity = data_file_identity(data_file_path(name).c_str());
    if (!may_read_data_file(identity, name ? name : "")) return false;
    if (!get_file_data(entries, name, fn)) return false;
    if (nested_data_budget) {
        *nested_data_budget -= entries.count() + kNestedFileCost;
        if (*nested_data_budget < 0) {
            report_data_file_error(format_message(
                "The Data Files Read Inside ' %s ' Hold Too Many Data Points, Limit Is %ld!",
                data_file_chain.front().c_str(), kNestedDataBudget));
            return false;
        }
    }
    Parser reader(lib_dir.c_str(), user_lib_dir.c_str());
    reader.data_file_chain = data_file_chain;
    reader.data_folder = data_folder;
    reader.data_file_chain.push_back(identity);
    reader.nested_data_budget =
        nested_data_budget ? nested_data_budget : std::make_shared<long>(kNestedDataBudget);
    reader.open_function_libraries(library_opener);
    for (int k = 0; k < entries.count(); ++k) {
        complex value;
        reader.eval_exp(entries[k]->c_str(), value, true, false);
        if (reader.IsAnError()) {
            list.flush();
            const char *reason = reader.GetLastError();
            report_data_file_error(format_message(
                "The Following Error Occured While Loading Data Point %d In File %s : %s", k, name,
                reason ? reason : ""));
            return false;
        }
        if (value.imag != 0) {
            list.flush();
            report_data_file_error(format_message(
                "An Imaginary Number Was Found In Data Point %d In File %s", k, name));
            return false;
        }
        list.add(new long double(value.real));
    }
    return list.count() > 0;
}

}  // namespace quindar
