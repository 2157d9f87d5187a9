// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_calculus.h"

#include <charconv>
#include <cmath>
#include <sstream>

#include "calculus_runs.h"

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

}  // namespace

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
    constexpr int kBadOption = 2;
    const std::vector<std::string> &operand = options.operands;
    int precision = OptionOf(options.kind).precision;
    if (!ReadWhole(options.precision, "--precision", 1, 14, precision, error)) return kBadOption;
    calculus::Outcome outcome;
    switch (options.kind) {
        case CalculusKind::Integrate: {
            calculus::IntegralRequest request{operand[0], operand[1], operand[2], operand[3]};
            if (!ReadNumber(options.accuracy, "--accuracy", request.accuracy, error))
                return kBadOption;
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
    }
    if (!outcome.ok) {
        error = outcome.error;
        return 1;
    }
    complex value{static_cast<double>(outcome.value), 0.0};
    std::ostringstream text;
    parser.stream_answer(value, text, precision);
    out = text.str();
    return 0;
}

}  // namespace quindar::cli
