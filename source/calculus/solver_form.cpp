// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Reading a prototype into the solver's boxes, keeping the typed texts, building the call.
#include "solver_form.h"

#include <algorithm>
#include <sstream>

#include "calculus_format.h"
#include "calculus_messages.h"
#include "limit_text.h"

namespace quindar::calculus {

namespace {

constexpr const char *kLogicalList = "logicalExp1";
constexpr const char *kLogicalFunctions[] = {"AND", "IF", "NOT", "OR"};
constexpr const char *kDataFileKinds[] = {".txt", ".csv", ".prn"};
constexpr const char *kPrnIndent = "      ";

bool StartsWith(const std::string &text, std::size_t at, const char *prefix) {
    return text.compare(at, std::char_traits<char>::length(prefix), prefix) == 0;
}

std::size_t SkipBlanks(const std::string &text, std::size_t at) {
    while (at < text.size() && text[at] == ' ') ++at;
    return at;
}

// The names of a parameter list, up to its "]".
std::vector<std::string> Names(const std::string &list) {
    std::vector<std::string> names;
    std::string name;
    for (const char c : list) {
        if (c == ',' || c == ']') {
            names.push_back(Trimmed(name));
            name.clear();
            if (c == ']') return names;
        } else {
            name += c;
        }
    }
    if (!Trimmed(name).empty()) names.push_back(Trimmed(name));
    return names;
}

}  // namespace

std::string InsertFunctionPrototype(const std::string &prototype, std::size_t width) {
    std::string text;
    std::size_t run = 0;
    for (const char c : prototype) {
        if (c == ' ') continue;
        if (run == width) {
            text += ' ';
            run = 0;
        }
        text += c;
        ++run;
    }
    return text;
}

bool CanExecuteEquals(const std::string &prototype) {
    return std::none_of(std::begin(kLogicalFunctions), std::end(kLogicalFunctions),
                        [&](const char *name) { return StartsWith(prototype, 0, name); });
}

int PrototypeParameterCount(const std::string &prototype) {
    return static_cast<int>(std::count(prototype.begin(), prototype.end(), ',')) + 1;
}

std::string DataFileKind(const std::string &name) {
    for (const char *kind : kDataFileKinds)
        if (name.find(kind) != std::string::npos) return kind;
    return {};
}

std::string DataFileText(const std::vector<std::string> &entries, const std::string &kind) {
    std::string text;
    for (const std::string &entry : entries) {
        if (kind == ".prn") text += kPrnIndent;
        text += entry + "\n";
    }
    return text;
}

bool SolverForm::configure(const std::string &text) {
    prototype = text;
    name = prototype.substr(0, prototype.find('['));
    first_form.clear();
    second_form.clear();
    parameters_given = false;
    label_of_list = "Number";
    init_set();
    const std::size_t open = prototype.find('[');
    if (open == std::string::npos) return true;
    const std::size_t item = SkipBlanks(prototype, open + 1);
    if (StartsWith(prototype, item, "{") || StartsWith(prototype, item, kLogicalList)) {
        label_of_list = StartsWith(prototype, item, kLogicalList) ? "Logical Expression" : "Number";
        parameters_given = true;
        init_list();
    } else if (StartsWith(prototype, item, "]")) {
        return true;
    } else {
        parameters_given = true;
        first_form = prototype.substr(item);
        if (!read_set_names()) {
            init_set();
            return false;
        }
    }
    const std::size_t close = prototype.find(']', open);
    if (close == std::string::npos) return true;
    if (!StartsWith(prototype, SkipBlanks(prototype, close + 1), "or")) return true;
    const std::size_t brace = prototype.find('}', close);
    if (brace != std::string::npos && StartsWith(prototype, brace + 1, ","))
        second_form = prototype.substr(brace + 1);
    return true;
}

void SolverForm::select_form(int form) {
    const ParameterType wanted = form == 1 ? ParameterType::List : ParameterType::Set;
    if (wanted == parameter_type || !has_two_forms()) return;
    if (wanted == ParameterType::List) {
        init_list();
    } else {
        init_set();
        read_set_names();
    }
}

void SolverForm::init_set() {
    row_at_top = 0;
    values.clear();
    trailing = {};
    labels = {};
    parameter_type = ParameterType::Set;
    boxes_in_use = 0;
}

bool SolverForm::read_set_names() {
    for (const std::string &parameter : Names(first_form)) {
        if (boxes_in_use == kSolverBoxes) return false;
        labels[boxes_in_use++] = parameter;
    }
    return true;
}

// The trailing names are read from the right, each taking the last box still free.
void SolverForm::init_list() {
    init_set();
    parameter_type = ParameterType::List;
    boxes_in_use = kSolverBoxes;
    if (second_form.empty()) return;
    std::vector<std::string> names = Names(second_form.substr(1));
    for (auto it = names.rbegin(); it != names.rend() && boxes_in_use > 0; ++it)
        labels[--boxes_in_use] = *it;
}

std::string SolverForm::label(int box) const {
    if (box < 0 || box >= kSolverBoxes) return {};
    if (parameter_type == ParameterType::List && box < boxes_in_use)
        return Format("%s %s", label_of_list, std::to_string(row_at_top + box + 1));
    return labels[box];
}

bool SolverForm::box_shown(int box) const {
    return box >= 0 && box < kSolverBoxes &&
           (box < boxes_in_use || parameter_type == ParameterType::List);
}

std::string *SolverForm::slot(int box) {
    if (!box_shown(box)) return nullptr;
    if (parameter_type == ParameterType::List && box >= boxes_in_use) return &trailing[box];
    const std::size_t index = static_cast<std::size_t>(row_at_top + box);
    if (index >= values.size()) values.resize((index / kListChunk + 1) * kListChunk);
    return &values[index];
}

const std::string *SolverForm::slot(int box) const {
    if (!box_shown(box)) return nullptr;
    if (parameter_type == ParameterType::List && box >= boxes_in_use) return &trailing[box];
    const std::size_t index = static_cast<std::size_t>(row_at_top + box);
    return index < values.size() ? &values[index] : nullptr;
}

std::string SolverForm::box_text(int box) const {
    const std::string *text = slot(box);
    return text ? *text : std::string();
}

bool SolverForm::store(Parser &parser, int box, const std::string &typed, SolverFailure &failure) {
    std::string *target = slot(box);
    if (target == nullptr) return false;
    const std::string text = Trimmed(typed);
    if (text.empty()) {
        target->clear();
        return true;
    }
    complex value;
    parser.eval_exp(text.c_str(), value, true, false);
    if (parser.IsAnError()) {
        failure = {0, TakeError(parser)};
        return false;
    }
    if (parameter_type == ParameterType::List && value.imag != 0.0) {
        failure = {kImaginaryListValue, message(kImaginaryListValue)};
        return false;
    }
    *target = text;
    return true;
}

void SolverForm::move(int delta) {
    if (parameter_type != ParameterType::List) return;
    row_at_top = std::max(0, row_at_top + delta);
    while (static_cast<std::size_t>(row_at_top + kSolverBoxes) > values.size())
        values.resize(values.size() + kListChunk);
}

void SolverForm::clear() {
    values.clear();
    trailing = {};
    row_at_top = 0;
}

std::vector<std::string> SolverForm::entries() const {
    std::vector<std::string> filled;
    for (const std::string &value : values)
        if (!value.empty()) filled.push_back(value);
    return filled;
}

int SolverForm::entry_count() const {
    return static_cast<int>(entries().size());
}

void SolverForm::load(const std::vector<std::string> &read, bool replace) {
    if (replace) clear();
    std::size_t next = 0;
    for (std::size_t i = values.size(); i > 0; --i)
        if (!values[i - 1].empty()) {
            next = i;
            break;
        }
    values.resize(std::max(values.size(), next + read.size()));
    std::copy(read.begin(), read.end(), values.begin() + static_cast<long>(next));
    row_at_top = replace ? 0 : static_cast<int>(next);
    move(0);
}

std::string SolverForm::build_expression() const {
    const std::vector<std::string> filled = entries();
    if (filled.empty()) return {};
    const bool list = parameter_type == ParameterType::List;
    const bool braces = list && label_of_list == "Number";
    std::string call = name + "[";
    if (braces) call += "{";
    for (std::size_t i = 0; i < filled.size(); ++i) call += (i ? "," : "") + filled[i];
    if (braces) call += "}";
    if (list)
        for (int box = boxes_in_use; box < kSolverBoxes; ++box)
            if (!trailing[box].empty()) call += "," + trailing[box];
    return call + "]";
}

bool SolverForm::solve(Parser &parser, int precision, std::string &answer,
                       SolverFailure &failure) const {
    const int count = entry_count();
    if (count == 0) {
        failure = {kNoParameters, message(kNoParameters)};
        return false;
    }
    if (parameter_type == ParameterType::Set && count < boxes_in_use) {
        failure = {kParameterMissingInSet, message(kParameterMissingInSet)};
        return false;
    }
    const std::string call = build_expression();
    const long kept = parser.answer_format->precision;
    parser.answer_format->precision = precision;
    const char *text = parser.eval_exp(call.c_str(), true, false);
    parser.answer_format->precision = kept;
    if (parser.IsAnError() || text == nullptr || *text == '\0') {
        failure = {0, TakeError(parser)};
        return false;
    }
    answer = text;
    return true;
}

}  // namespace quindar::calculus
