// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_calculus.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "calculus_runs.h"
#include "differentiation_run.h"
#include "integration_run.h"
#include "run_host.h"

namespace quindar::cli {
namespace {

struct CalculusOption {
    const char *name;
    CalculusKind kind;
    int operands;
    int precision;  // digits shown unless --precision says otherwise
};

// The pages of the utilities show 6 digits; a root is worth every digit.
constexpr CalculusOption kCalculusOptions[] = {
    {"--integrate", CalculusKind::Integrate, 4, 6},
    {"--derivative", CalculusKind::Derivative, 3, 6},
    {"--root", CalculusKind::Root, 4, 14},
    {"--differentiate", CalculusKind::Differentiate, 5, 6},
};

// The operands of each further axis of a multiple integral: its variable and two limits.
constexpr int kAxisOperands = 3;
constexpr int kMaxExtraAxes = 2;
constexpr int kBadOption = 2;
// The names of --columns: the function, then its derivatives by order.
const std::string kColumnNames[] = {"f", "1", "2", "3"};

// The utilities' messages go to standard error, one a line, in the order they came.
class MessageCollector final : public calculus::NullRunHost {
public:
    void message(const calculus::RunMessage &shown) override {
        text += (text.empty() ? "" : "\n") + shown.text;
    }
    std::string text;
};

const CalculusOption &OptionOf(CalculusKind kind) {
    for (const CalculusOption &option : kCalculusOptions)
        if (option.kind == kind) return option;
    return kCalculusOptions[0];
}

// A plain number in C form ("1e-3" too): these are settings, not expressions.
bool ReadNumber(const std::optional<std::string> &text, const char *what, long double &value,
                std::string &error) {
    if (!text) return true;
    long double read = 0.0L;
    const auto [end, code] = std::from_chars(text->data(), text->data() + text->size(), read);
    if (code != std::errc() || end != text->data() + text->size() || !std::isfinite(read)) {
        error = std::string(what) + " \"" + *text + "\" is not a number";
        return false;
    }
    value = read;
    return true;
}

bool ReadWhole(const std::optional<std::string> &text, const char *what, int low, int high,
               int &value, std::string &error) {
    if (!text) return true;
    int read = 0;
    const auto [end, code] = std::from_chars(text->data(), text->data() + text->size(), read);
    if (code != std::errc() || end != text->data() + text->size() || read < low || read > high) {
        error = std::string(what) + " must be a whole number from " + std::to_string(low) + " to " +
                std::to_string(high) + ", not \"" + *text + "\"";
        return false;
    }
    value = read;
    return true;
}

// "f,1,2,3" or a part of it: the check boxes of the function and its three derivatives.
bool ReadColumns(const std::optional<std::string> &text, std::array<bool, 4> &shown,
                 std::string &error) {
    if (!text) return true;
    shown = {false, false, false, false};
    std::size_t start = 0;
    bool any = false;
    while (start <= text->size()) {
        const std::size_t comma = std::min(text->find(',', start), text->size());
        const std::string column = text->substr(start, comma - start);
        const auto found = std::find(std::begin(kColumnNames), std::end(kColumnNames), column);
        const long index = found == std::end(kColumnNames) ? -1 : found - std::begin(kColumnNames);
        if (index < 0) {
            error = "--columns takes a comma list of f, 1, 2 and 3, not \"" + *text + "\"";
            return false;
        }
        shown[static_cast<std::size_t>(index)] = any = true;
        start = comma + 1;
    }
    return any;
}

// A double or triple integral, computed and shown as the Integration Utility does.
int RunMultipleIntegral(Parser &parser, const CalculusOptions &options, int precision,
                        std::string &out, std::string &error) {
    const std::vector<std::string> &operand = options.operands;
    if (options.accuracy) {
        error =
            "--accuracy applies to a single integral; the inner integrals of a multiple one "
            "take 0.0001";
        return kBadOption;
    }
    calculus::IntegrationSettings settings;
    settings.type = static_cast<int>(operand.size() - 1) / kAxisOperands;
    settings.function = operand[0];
    for (int axis = 0; axis < settings.type; ++axis) {
        settings.parameter[axis] = operand[1 + axis * kAxisOperands];
        settings.low[axis] = operand[2 + axis * kAxisOperands];
        settings.high[axis] = operand[3 + axis * kAxisOperands];
    }
    if (!ReadWhole(options.slider, "--slider", 0, 100, settings.slider, error)) return kBadOption;
    MessageCollector host;
    calculus::IntegrationRun run(parser, host);
    const calculus::IntegrationResult result = run.run(settings);
    if (!result.solved) {
        error = host.text;
        return 1;
    }
    out = calculus::AnswerText(parser, result.value, precision) + "\n";
    return 0;
}

// The differentiation table as "Insert Ans." writes all its rows, with LF line ends.
int RunTable(Parser &parser, const CalculusOptions &options, int precision, std::string &out,
             std::string &error) {
    const std::vector<std::string> &operand = options.operands;
    calculus::DifferentiationSettings settings{operand[0], operand[1], operand[2], operand[3],
                                               operand[4]};
    if (!ReadColumns(options.columns, settings.shown, error)) {
        if (error.empty()) error = "--columns needs at least one of f, 1, 2 and 3";
        return kBadOption;
    }
    MessageCollector host;
    calculus::DifferentiationRun run(parser, host, precision);
    calculus::DifferentiationTable table;
    const calculus::DifferentiationResult result = run.run(settings, table);
    std::vector<std::size_t> rows(table.rows());
    for (std::size_t row = 0; row < rows.size(); ++row) rows[row] = row;
    if (table.has_data()) out = calculus::InsertAnswerText(parser, table, rows, precision, "\n");
    if (result.solved) return 0;
    error = host.text;
    return 1;
}

// The settings that belong to other computations than this one.
bool SettingsFit(const CalculusOptions &options, std::string &error) {
    const bool integral = options.kind == CalculusKind::Integrate;
    const bool derivative = options.kind == CalculusKind::Derivative;
    const struct {
        const std::optional<std::string> &value;
        const char *name;
        bool fits;
    } settings[] = {
        {options.accuracy, "--accuracy", integral},
        {options.slider, "--slider", integral},
        {options.order, "--order", derivative},
        {options.step, "--step", derivative},
        {options.columns, "--columns", options.kind == CalculusKind::Differentiate},
    };
    for (const auto &setting : settings) {
        if (setting.value && !setting.fits) {
            error = std::string(setting.name) + " does not go with " + OptionOf(options.kind).name;
            return false;
        }
    }
    if (options.accuracy && options.slider) {
        error = "--accuracy and --slider both set the accuracy; give one of them";
        return false;
    }
    return true;
}

}  // namespace

int ExtraIntegralOperands(const std::vector<std::string> &arguments, std::size_t next) {
    std::size_t plain = 0;
    while (next + plain < arguments.size() && arguments[next + plain].rfind("--", 0) != 0) ++plain;
    int extra = 0;
    for (int axis = 0; axis < kMaxExtraAxes && plain >= kAxisOperands; ++axis) {
        extra += kAxisOperands;
        plain -= kAxisOperands;
    }
    return extra;
}

int CalculusOperandCount(const std::string &argument, CalculusKind &kind) {
    for (const CalculusOption &option : kCalculusOptions) {
        if (argument == option.name) {
            kind = option.kind;
            return option.operands;
        }
    }
    return 0;
}

int RunCalculus(Parser &parser, const CalculusOptions &options, std::string &out,
                std::string &error) {
    const std::vector<std::string> &operand = options.operands;
    int precision = OptionOf(options.kind).precision;
    if (!ReadWhole(options.precision, "--precision", 1, 14, precision, error) ||
        !SettingsFit(options, error))
        return kBadOption;
    if (options.kind == CalculusKind::Integrate && operand.size() > 4)
        return RunMultipleIntegral(parser, options, precision, out, error);
    calculus::Outcome outcome;
    switch (options.kind) {
        case CalculusKind::Integrate: {
            calculus::IntegralRequest request{operand[0], operand[1], operand[2], operand[3]};
            int slider = 0;
            if (!ReadNumber(options.accuracy, "--accuracy", request.accuracy, error) ||
                !ReadWhole(options.slider, "--slider", 0, 100, slider, error))
                return kBadOption;
            if (options.slider) request.accuracy = calculus::SliderAccuracy(parser, slider);
            outcome = calculus::Integrate(parser, request);
            break;
        }
        case CalculusKind::Derivative: {
            calculus::DerivativeRequest request{operand[0], operand[1], operand[2]};
            if (!ReadWhole(options.order, "--order", 1, 3, request.order, error) ||
                !ReadNumber(options.step, "--step", request.step, error))
                return kBadOption;
            outcome = calculus::Differentiate(parser, request);
            break;
        }
        case CalculusKind::Root: {
            calculus::RootRequest request{operand[0], operand[1], operand[2], operand[3]};
            outcome = calculus::FindRoot(parser, request);
            break;
        }
        case CalculusKind::Differentiate:
            return RunTable(parser, options, precision, out, error);
    }
    if (!outcome.ok) {
        error = outcome.error;
        return 1;
    }
    out = calculus::AnswerText(parser, outcome.value, precision) + "\n";
    return 0;
}

}  // namespace quindar::cli
