// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Differentiation Utility's run and the texts of its table.
#include "differentiation_run.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <sstream>

#include "calculus_format.h"
#include "calculus_messages.h"
#include "circular_functions.h"
#include "integration_run.h"
#include "limit_text.h"
#include "run_map.h"
#include "run_variable.h"
#include "variable_checks.h"

namespace quindar::calculus {

namespace {

constexpr const char *kColumnForms[] = {"%s", "%s (%s)", "%s '(%s)", "%s ''(%s)", "%s '''(%s)"};
constexpr const char *kDerivativeStatus[] = {"Computing the first derivative values",
                                             "Computing the second derivative values",
                                             "Computing the third derivative values"};
constexpr long double kDerivativeTolerance = 0.0001L;
constexpr long double kStepShare = 0.1L;
constexpr double kImaginaryTolerance = 1e-14;

}  // namespace

bool DifferentiationTable::has_data() const {
    return std::any_of(columns.begin() + 1, columns.end(),
                       [](const std::vector<long double> &column) { return !column.empty(); });
}

void DifferentiationTable::clear() {
    for (auto &column : columns) column.clear();
}

std::string CurrentVariable(const std::string &box) {
    const std::string name = Trimmed(box);
    return name.empty() ? "x" : name;
}

std::string ColumnTitle(int column, const std::string &variable) {
    if (column == kVariableColumn) return variable;
    return Format(kColumnForms[std::clamp(column, 1, 4)], std::string("f"), variable);
}

int ListColumn(int column, const std::array<bool, 4> &shown) {
    if (column == kVariableColumn) return 0;
    if (!shown[column - 1]) return -1;
    return 1 + static_cast<int>(std::count(shown.begin(), shown.begin() + column - 1, true));
}

std::string AnswerText(Parser &parser, long double value, int precision) {
    complex answer{static_cast<double>(value), 0.0};
    std::ostringstream text;
    parser.stream_answer(answer, text, precision);
    return text.str();
}

std::string InsertAnswerText(Parser &parser, const DifferentiationTable &table,
                             const std::vector<std::size_t> &rows, int precision,
                             const char *lineEnd) {
    std::string text;
    for (const std::size_t row : rows) {
        if (row >= table.rows()) continue;
        text += table.variable + "=" +
                AnswerText(parser, table.columns[kVariableColumn][row], precision);
        for (int column = kFunctionColumn; column < kTableColumns; ++column) {
            if (row >= table.columns[column].size()) continue;
            text += "   " + ColumnTitle(column, table.variable) + "=" +
                    AnswerText(parser, table.columns[column][row], precision);
        }
        text += lineEnd;
    }
    return text;
}

DifferentiationRun::DifferentiationRun(Parser &engine, RunHost &runHost, int digits)
    : parser(engine), host(runHost), precision(std::clamp(digits, 1, 14)) {}

bool DifferentiationRun::fail(int id, const std::string &text, Field field) {
    host.sound(Sound::Error);
    host.message({kDifferentiationTitle, id, text, field});
    return false;
}

bool DifferentiationRun::limit(const std::string &text, Field field, long double &value) {
    LimitFailure failure;
    if (EvaluateLimit(parser, text,
                      {kDifferentiationLimitMissing, kImaginaryDifferentiationLimit, {}}, value,
                      failure))
        return true;
    return fail(failure.id, failure.text, field);
}

std::string DifferentiationRun::value_of(Variable &variable) {
    return variable.GetVarValueStr(precision, false);
}

void DifferentiationRun::column_done() {
    if (!host.stop_requested()) {
        host.progress(100);
        host.status("");
    }
    host.pump();
}

bool DifferentiationRun::insert_var_values(Variable &variable, std::vector<long double> &column) {
    host.status("Computing the variable values");
    variable.ResetIncrement();
    do {
        column.push_back(variable.value.real);
        host.pump();
    } while (!host.stop_requested() && variable.Increment());
    return false;
}

// The function at every point; true on error. The table holds real numbers only.
bool DifferentiationRun::insert_fun_values(int map, Variable &variable,
                                           std::vector<long double> &column) {
    const long n = variable.num_points;
    const double step = 100.0 / static_cast<double>(n);
    host.progress(0);
    host.status("Computing the function derivative values");
    variable.ResetIncrement();
    for (bool first = true;; first = false) {
        const complex y = parser.solve_equation(map, false, true);
        if (parser.IsAnError()) {
            const std::string error = TakeError(parser);
            return !fail(
                kFunctionValueFailed,
                Format(message(kFunctionValueFailed), variable.name, value_of(variable), error),
                Field::None);
        }
        const double imaginary = std::fabs(y.imag);
        if (imaginary > kImaginaryTolerance && imaginary > parser.answer_format->zero_precision)
            return !fail(
                kImaginaryFunctionValue,
                Format(message(kImaginaryFunctionValue), variable.name, value_of(variable)),
                Field::None);
        column.push_back(y.real);
        host.pump();
        host.progress(gauge.advance(n, step, first));
        if (host.stop_requested() || !variable.Increment()) break;
    }
    column_done();
    return false;
}

bool DifferentiationRun::differentiate(int map, Variable &variable, int order,
                                       std::vector<long double> &column) {
    const long n = variable.num_points;
    const double step = 100.0 / static_cast<double>(n);
    host.progress(0);
    host.status(kDerivativeStatus[order - 1]);
    const long double h =
        kStepShare * (static_cast<long double>(variable.high_limit.real) - variable.low_limit.real);
    variable.ResetIncrement();
    const std::string name = variable.name;
    for (bool first = true;; first = false) {
        const long double x = variable.value.real;
        long double tolerance = kDerivativeTolerance;
        const long double value =
            parser.Derivative(map, name.c_str(), x, h, order, tolerance, true);
        if (parser.IsAnError()) {
            const std::string error = TakeError(parser);
            const int id = kFirstDifferentialFailed + order - 1;
            return !fail(id, Format(message(id), name, value_of(variable), error), Field::None);
        }
        column.push_back(value);
        host.pump();
        host.progress(gauge.advance(n, step, first));
        if (host.stop_requested() || !variable.Increment()) break;
    }
    column_done();
    return false;
}

DifferentiationResult DifferentiationRun::run(const DifferentiationSettings &settings,
                                              DifferentiationTable &table) {
    DifferentiationResult outcome;
    table.clear();
    const std::string box = Trimmed(settings.function);
    if (box.empty()) return outcome;
    // One long computation per document: a graph build or another run already holds it.
    ComputeGatePass pass(parser.compute_gate, "differentiation");
    if (!pass.ok()) return outcome;
    ScopedRunHooks hooks(parser, host, false);
    const std::string text = ModifyString(box, FunctionEntries(parser));
    const std::string name = CurrentVariable(settings.variable);
    if (HoldsRefusedCharacter(name))
        fail(kBadDifferentiationVariable, Format(message(kBadDifferentiationVariable), name),
             Field::Variable);
    table.function = text;
    table.variable = name;
    const int fn = parser.find_function(text.c_str());
    if (parser.angle_mode == 0) {
        const std::string circular = FindCircularFunction(parser, text, fn);
        if (!circular.empty()) {
            fail(kDegreesTrigonometry, Format(message(kDegreesTrigonometry), circular),
                 Field::Function);
            return outcome;
        }
    }
    if (!VariableMatches(parser, text, name, false)) {
        fail(kNotDifferentiable, Format(message(kNotDifferentiable), text, name), Field::Variable);
        return outcome;
    }
    if (parser.is_var_locked(name.c_str())) {
        fail(kVariableLocked, Format(message(kVariableLocked), name), Field::Variable);
        return outcome;
    }
    long double low = 0.0L;
    long double high = 0.0L;
    long double steps = 0.0L;
    if (!limit(settings.start, Field::Start, low) || !limit(settings.end, Field::End, high))
        return outcome;
    if (low == high) {
        fail(kEqualDifferentiationLimits, message(kEqualDifferentiationLimits), Field::Start);
        return outcome;
    }
    if (low > high) std::swap(low, high);
    if (!limit(settings.steps, Field::Steps, steps)) return outcome;
    if (steps == 0.0L) {
        fail(kNoSteps, message(kNoSteps), Field::Steps);
        return outcome;
    }

    RunVariable variable(parser, name);
    if (!variable.take()) {
        fail(kVariableNotDefined, Format(message(kVariableNotDefined), name), Field::Variable);
        return outcome;
    }
    const char *varName = name.c_str();
    parser.set_var_lowlimit(complex{static_cast<double>(low), 0.0}, varName);
    parser.set_var_hilimit(complex{static_cast<double>(high), 0.0}, varName);
    // n counts the rows; a fraction is cut off, and anything below 2 gives one row.
    const long double rows = std::clamp(steps, static_cast<long double>(LONG_MIN),
                                        static_cast<long double>(LONG_MAX / 2));
    parser.set_var_numpoints(static_cast<long>(rows), varName);
    variable.set(low);

    bool error = false;
    RunMap map(parser);
    std::string mapError;
    if (!map.build(text, kAssignOrDifferentiate, mapError)) {
        fail(0, mapError, Field::Function);
        error = true;
    } else {
        variable.lock();
        if (!host.stop_requested()) host.progress(0);
        Variable &v = *variable.get();
        auto &columns = table.columns;
        error = insert_var_values(v, columns[kVariableColumn]);
        if (!error && !host.stop_requested() && settings.shown[0])
            error = insert_fun_values(map.index(), v, columns[kFunctionColumn]);
        for (int order = 1; order <= 3; ++order)
            if (!error && !host.stop_requested() && settings.shown[order])
                error = differentiate(map.index(), v, order, columns[kFunctionColumn + order]);
    }
    outcome.stopped = host.stop_requested();
    if (!error && !outcome.stopped) {
        host.sound(Sound::Success);
        outcome.solved = true;
    } else if (outcome.stopped) {
        host.sound(Sound::Stopped);
    }
    map.drop();
    if (!variable.restore())
        fail(kVariableNotDeleted, Format(message(kVariableNotDeleted), name), Field::None);
    host.refresh_variable_list();
    if (!outcome.stopped) {
        host.progress(100);
        host.status("");
    }
    host.pump();
    return outcome;
}

}  // namespace quindar::calculus
