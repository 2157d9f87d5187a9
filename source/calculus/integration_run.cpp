// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Integration Utility's run: checks, the midpoint grids of the outer variables, the inner
// Romberg integrals on the run's one map, and the variables given back on every way out.
#include "integration_run.h"

#include <algorithm>

#include "calculus_format.h"
#include "calculus_messages.h"
#include "variable_checks.h"

namespace quindar::calculus {

namespace {

constexpr Field kParameterFields[] = {Field::XParameter, Field::YParameter, Field::ZParameter};
constexpr Field kLowFields[] = {Field::XLow, Field::YLow, Field::ZLow};
constexpr Field kHighFields[] = {Field::XHigh, Field::YHigh, Field::ZHigh};
constexpr int kEqualLimitMessages[] = {kEqualXLimits, kEqualYLimits, kEqualZLimits};

}  // namespace

long double SliderAccuracy(Parser &parser, int p) {
    long double accuracy = 0.01L;
    for (int tens = std::clamp(p, 0, 100) / 10; tens > 0; --tens)
        accuracy = parser.real_div(accuracy, 10.0L);
    return accuracy;
}

int SliderGridPoints(int p) {
    p = std::clamp(p, 0, 100);
    return p == 0 ? 4 : 2 * p;
}

std::string ModifyString(const std::string &text, const std::vector<std::string> &entries) {
    if (std::find(entries.begin(), entries.end(), text) != entries.end())
        return text.substr(0, text.find(' '));
    const auto equals = text.rfind('=');
    if (equals == std::string::npos) return text;
    std::string behind;
    for (const char c : text.substr(equals + 1))
        if (c != ' ') behind += c;
    return behind;
}

std::vector<std::string> FunctionEntries(Parser &parser) {
    std::vector<std::string> entries;
    for (int i = 0; i < parser.functions.count(); ++i)
        if (const char *entry = parser.get_func_str(i)) entries.emplace_back(entry);
    return entries;
}

IntegrationRun::IntegrationRun(Parser &engine, RunHost &runHost)
    : parser(engine), host(runHost), map(engine) {}

IntegrationRun::~IntegrationRun() = default;

bool IntegrationRun::fail(int id, const std::string &text, Field field) {
    host.sound(Sound::Error);
    host.message({kIntegrationTitle, id, text, field});
    return false;
}

bool IntegrationRun::parameter(int axis, std::string &name) {
    name = Trimmed(settings->parameter[axis]);
    if (name.empty())
        return fail(kParameterMissing, message(kParameterMissing), kParameterFields[axis]);
    if (HoldsRefusedCharacter(name))
        return fail(kBadParameter, Format(message(kBadParameter), name), kParameterFields[axis]);
    return true;
}

bool IntegrationRun::variable_matches(const std::string &text, const std::string &name) {
    if (VariableMatches(parser, text, name, true)) return true;
    if (name.empty()) return fail(kNoVariable, message(kNoVariable), Field::Function);
    return fail(kNotAFunctionOf, Format(message(kNotAFunctionOf), text, name), Field::Function);
}

// The run's variables are unlocked while a limit is evaluated, so that an inner limit can
// read the outer variables' values.
bool IntegrationRun::limit(int axis, bool highEnd, long double &value) {
    const LimitRules rules{kLimitMissing, kImaginaryLimit, names[axis]};
    const std::string &text = highEnd ? settings->high[axis] : settings->low[axis];
    auto setLocks = [this](bool lock) {
        for (const std::string &name : names)
            if (!name.empty() && parser.find_variable(name.c_str()) >= 0)
                parser.set_var_lock(name.c_str(), lock);
    };
    if (mapped) setLocks(false);
    LimitFailure failure;
    const bool ok = EvaluateLimit(parser, text, rules, value, failure);
    if (mapped) setLocks(true);
    if (ok) return true;
    return fail(failure.id, failure.text, highEnd ? kHighFields[axis] : kLowFields[axis]);
}

bool IntegrationRun::ordered_limits(long double &low, long double &high, int equalMessage) {
    if (low == high) return fail(equalMessage, message(equalMessage), Field::None);
    if (low > high) std::swap(low, high);
    return true;
}

bool IntegrationRun::take(RunVariable &variable) {
    if (variable.take()) return true;
    return fail(kVariableNotDefined, Format(message(kVariableNotDefined), variable.name()),
                Field::None);
}

// N - 1 points at the centres of N - 1 cells: the grid of N points over the limits gives the
// cell's width, and the grid moves in by half a cell at each end. The width is the result.
long double IntegrationRun::midpoint_grid(RunVariable &variable, long double low,
                                          long double high) {
    Variable *v = variable.get();
    v->SetVarLowLimit(complex{static_cast<double>(low), 0.0});
    v->SetVarHiLimit(complex{static_cast<double>(high), 0.0});
    v->SetVarNumPoints(points);
    const long double d = v->increment.real;
    v->SetVarLowLimit(complex{static_cast<double>(low + d / 2), 0.0});
    v->SetVarHiLimit(complex{static_cast<double>(high - d / 2), 0.0});
    v->SetVarNumPoints(points - 1);
    v->ResetIncrement();
    // One cell is no range: its centre is the variable's one value.
    if (points - 1 == 1) variable.set(low + d / 2);
    return d;
}

bool IntegrationRun::give_back(std::unique_ptr<RunVariable> &variable) {
    if (!variable || !variable->taken()) return true;
    if (variable->restore()) return true;
    return fail(kVariableNotDeleted, Format(message(kVariableNotDeleted), variable->name()),
                Field::None);
}

// One inner integral; true on error. The first call takes the variable and maps the
// expression; the last one, an error or a stop gives the variable back.
bool IntegrationRun::integrate1(long double low, long double high, long double accuracy,
                                long double &result, bool first, bool last) {
    RunVariable &x = *variables[0];
    bool error = false;
    if (first) {
        const bool existed = parser.find_variable(names[0].c_str()) >= 0;
        if (!take(x)) return true;
        if (!existed) x.set(low);
        std::string mapError;
        if (!map.build(expression, kAssignOrIntegrate, mapError)) {
            fail(0, mapError, Field::Function);
            error = true;
        } else {
            for (auto &variable : variables)
                if (variable && variable->taken()) variable->lock();
            mapped = true;
        }
    }
    if (!error) {
        result = parser.RombIntegrate(map.index(), names[0].c_str(), low, high, accuracy, true);
        if (parser.IsAnError()) {
            fail(0, TakeError(parser), Field::Function);
            error = true;
        }
    }
    host.pump();
    if (last || error || host.stop_requested()) give_back(variables[0]);
    host.refresh_variable_list();
    return error;
}

// The innermost integral at the outer variables' present values, its limits read there.
bool IntegrationRun::inner_cell(bool first, bool last, long double &inner) {
    long double low = 0.0L;
    long double high = 0.0L;
    if (!limit(0, true, high) || !limit(0, false, low) || !ordered_limits(low, high, kEqualXLimits))
        return true;
    return integrate1(low, high, kInnerAccuracy, inner, first, last);
}

// Runs `body(i, lastPoint, width)` at each point of the variable's midpoint grid, until it
// fails (true), Stop is pressed or the grid ends.
template <class Body>
bool IntegrationRun::walk_grid(RunVariable &variable, long double low, long double high,
                               Body body) {
    const long double width = midpoint_grid(variable, low, high);
    Variable *v = variable.get();
    for (int i = 1;; ++i) {
        if (body(i, i >= points - 1, width)) return true;
        if (host.stop_requested() || !v->Increment()) return false;
    }
}

bool IntegrationRun::integrate2(long double low, long double high, long double &result) {
    if (!take(*variables[1])) return true;
    const double step = 100.0 / points;
    host.progress(0);
    result = 0.0L;
    const bool error = walk_grid(*variables[1], low, high, [&](int i, bool lastY, long double dy) {
        long double inner = 0.0L;
        const bool failed = inner_cell(i == 1, lastY || host.stop_requested(), inner);
        if (!failed) result += dy * inner;
        host.progress(gauge.advance(points, step, i == 1));
        return failed;
    });
    if (!host.stop_requested()) host.progress(100);
    return error;
}

// The gauge follows z; y's limits are read at each z, x's at each (y, z).
bool IntegrationRun::integrate3(long double low, long double high, long double &result) {
    if (!take(*variables[1]) || !take(*variables[2])) return true;
    const double step = 100.0 / points;
    host.progress(0);
    result = 0.0L;
    const bool error = walk_grid(*variables[2], low, high, [&](int i, bool lastZ, long double dz) {
        long double yLow = 0.0L;
        long double yHigh = 0.0L;
        if (!limit(1, true, yHigh) || !limit(1, false, yLow) ||
            !ordered_limits(yLow, yHigh, kEqualYLimits))
            return true;
        const bool failed =
            walk_grid(*variables[1], yLow, yHigh, [&](int j, bool lastY, long double dy) {
                long double inner = 0.0L;
                const bool last = (lastZ && lastY) || host.stop_requested();
                const bool cellFailed = inner_cell(i == 1 && j == 1, last, inner);
                if (!cellFailed) result += dz * dy * inner;
                return cellFailed;
            });
        host.progress(gauge.advance(points, step, i == 1));
        return failed;
    });
    if (!host.stop_requested()) host.progress(100);
    return error;
}

IntegrationResult IntegrationRun::run(const IntegrationSettings &pageSettings) {
    IntegrationResult outcome;
    // One long computation per document: a graph build or another run already holds it.
    ComputeGatePass pass(parser.compute_gate, "integration");
    if (!pass.ok()) return outcome;
    ScopedRunHooks hooks(parser, host, true);
    settings = &pageSettings;
    const int type = std::clamp(pageSettings.type, 1, 3);
    std::string text = Trimmed(pageSettings.function);
    if (text.empty()) text = "1";
    expression = ModifyString(text, FunctionEntries(parser));
    points = SliderGridPoints(pageSettings.slider);
    names = {};
    mapped = false;

    bool error = false;
    long double value = 0.0L;
    for (int axis = 0; axis < type && !error; ++axis) {
        error = !parameter(axis, names[axis]) || !variable_matches(expression, names[axis]);
        if (!error) variables[axis] = std::make_unique<RunVariable>(parser, names[axis]);
    }
    if (!error) {
        const int outer = type - 1;
        long double low = 0.0L;
        long double high = 0.0L;
        error = !limit(outer, true, high) || !limit(outer, false, low) ||
                !ordered_limits(low, high, kEqualLimitMessages[outer]);
        if (!error) {
            if (type == 1)
                error = integrate1(low, high, SliderAccuracy(parser, pageSettings.slider), value,
                                   true, true);
            else if (type == 2)
                error = integrate2(low, high, value);
            else
                error = integrate3(low, high, value);
        }
    }
    for (auto &variable : variables) give_back(variable);
    map.drop();
    mapped = false;
    for (auto &variable : variables) variable.reset();
    host.refresh_variable_list();

    outcome.stopped = host.stop_requested();
    if (outcome.stopped) {
        host.sound(Sound::Stopped);
    } else if (!error) {
        outcome.solved = true;
        outcome.value = static_cast<double>(value);
        host.sound(Sound::Success);
    }
    return outcome;
}

}  // namespace quindar::calculus
