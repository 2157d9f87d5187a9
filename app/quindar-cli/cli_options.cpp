// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_options.h"

namespace quindar::cli {

const char *const kUsage =
    "Usage: quindar-cli [--enter] [--in-place] [--radians] [--precision N] [--save DOC.qnd]\n"
    "                   [FILE]\n"
    "       quindar-cli --functions [CATEGORY] | --describe NAME\n"
    "       quindar-cli --integrate EXPR X XLO XHI [Y YLO YHI [Z ZLO ZHI]] [--slider P]\n"
    "                   [--accuracy A] [OPTIONS] [FILE]\n"
    "       quindar-cli --derivative EXPR VAR AT [--order N] [--step H] [OPTIONS] [FILE]\n"
    "       quindar-cli --differentiate EXPR VAR XO XN N [--columns LIST] [OPTIONS] [FILE]\n"
    "       quindar-cli --root EXPR VAR LOW HIGH [OPTIONS] [FILE]\n"
    "       quindar-cli --graph NAME [--graph-spec] [--save-graph OUT.g2d|OUT.g3d] [--radians]\n"
    "                   DOC.qnd\n";

const char *const kHelp =
    "Usage: quindar-cli [--enter] [--in-place] [--radians] [--precision N] [--save DOC.qnd]\n"
    "                   [FILE]\n"
    "       quindar-cli --functions [CATEGORY] | --describe NAME\n"
    "       quindar-cli --integrate EXPR X XLO XHI [Y YLO YHI [Z ZLO ZHI]] [--slider P]\n"
    "                   [--accuracy A] [OPTIONS] [FILE]\n"
    "       quindar-cli --derivative EXPR VAR AT [--order N] [--step H] [OPTIONS] [FILE]\n"
    "       quindar-cli --differentiate EXPR VAR XO XN N [--columns LIST] [OPTIONS] [FILE]\n"
    "       quindar-cli --root EXPR VAR LOW HIGH [OPTIONS] [FILE]\n"
    "       quindar-cli --graph NAME [--graph-spec] [--save-graph OUT.g2d|OUT.g3d] [--radians]\n"
    "                   DOC.qnd\n"
    "Computes every line of FILE (standard input when FILE is missing or \"-\") in a Math\n"
    "Editor and prints the resulting text: each answer is written behind its line (\"2+3\"\n"
    "gives \"2+3 = 5\"), an old answer is replaced, comments and \"//\" lines stay.\n"
    "A FILE ending in \".qnd\" is a document: its variables and functions are declared\n"
    "before its text is computed, and --in-place saves the whole document back.\n"
    "\n"
    "  --enter      type each line and press Enter instead of pressing F4 on it; every\n"
    "               line then ends in a line break\n"
    "  --in-place   write the result back to FILE instead of standard output\n"
    "  --radians    angles in radians (degrees unless a document says otherwise)\n"
    "  --precision N  significant digits of the answers, 1 to 14 (14 unless given or\n"
    "               set by the document)\n"
    "  --save DOC.qnd  also save the computed work (text, variables, functions,\n"
    "               settings and graphs) as the document DOC.qnd\n"
    "  -h, --help   show this text\n"
    "  --version    print the program's version\n"
    "\n"
    "The Function Library: --functions lists its categories; --functions CATEGORY lists\n"
    "the names of one with their prototypes; --describe NAME prints the prototype and\n"
    "description of a function or constant (of a library function, its definition).\n"
    "\n"
    "Numeric computations print one value. EXPR is mapped once and solved at each sample;\n"
    "LOW, HIGH and AT are expressions. With FILE, its lines are computed first, silently,\n"
    "so its variables and functions are in force.\n"
    "  --integrate   the definite integral by Romberg's method; --accuracy is relative\n"
    "                (0.0001 unless given); reversed limits are swapped. With Y (and Z)\n"
    "                the double (triple) integral as the Integration Utility computes it:\n"
    "                a midpoint sum over Y (and Z) with Romberg's method over X; inner\n"
    "                limits may use the outer variables\n"
    "  --slider      the Integration Utility's slider, 0 (speed) to 100 (accuracy):\n"
    "                the accuracy of a single integral, the grid of a multiple one (20)\n"
    "  --derivative  the derivative of --order 1, 2 or 3 (1 unless given) at AT, by\n"
    "                extrapolated central differences from the starting step --step (0.1)\n"
    "  --differentiate  the Differentiation Utility's table of N rows from XO to XN,\n"
    "                written as its \"Insert Ans.\" writes it into the Math Editor\n"
    "  --columns     the table's columns besides VAR: a comma list of f, 1, 2 and 3\n"
    "                (the function and its derivatives; all four unless given)\n"
    "  --root        a root between LOW and HIGH, where EXPR must change sign\n"
    "  --precision   digits of the value, 1 to 14 (6, or 14 for a root)\n"
    "\n"
    "--graph builds the graph NAME of the document DOC.qnd (its declarations loaded, its text\n"
    "not computed) and prints its chart data: \"2D<TAB>SETS<TAB>POINTS\" then\n"
    "\"SET<TAB>POINT<TAB>X<TAB>Y\" per cell, or \"3D<TAB>NX<TAB>NZ\" then\n"
    "\"IX<TAB>IZ<TAB>X<TAB>Z<TAB>Y\"; a missing point prints as \"hole\". The lines of the Graph\n"
    "Errors list go to standard error; the exit status is 1 when the build failed or wrote\n"
    "one, 2 when the document or the graph is missing.\n"
    "  --graph-spec  print the chart decisions as \"key = value\" lines instead\n"
    "  --save-graph  also write the built graph as a graph file\n"

    "\n"
    "A line that fails stays as typed and its error goes to standard error as\n"
    "\"LINE: message\". Exit status: 0 when every line computed, 1 when a line failed,\n"
    "2 on a usage or file error.\n";

namespace {

// The value behind an option that takes one, or null with the reason in error.
const std::string *OptionValue(const std::vector<std::string> &arguments, std::size_t &at,
                               std::string &error) {
    if (at + 1 >= arguments.size()) {
        error = "\"" + arguments[at] + "\" needs a value";
        return nullptr;
    }
    return &arguments[++at];
}

std::optional<std::string> *CalculusSetting(CalculusOptions &calculus, const std::string &name) {
    if (name == "--accuracy") return &calculus.accuracy;
    if (name == "--order") return &calculus.order;
    if (name == "--step") return &calculus.step;
    if (name == "--precision") return &calculus.precision;
    if (name == "--slider") return &calculus.slider;
    if (name == "--columns") return &calculus.columns;
    return nullptr;
}

}  // namespace

std::optional<Options> ParseOptions(const std::vector<std::string> &arguments, std::string &error) {
    Options options;
    bool &havePath = options.havePath;
    bool optionsEnded = false;
    CalculusOptions calculus;
    std::vector<std::string> settingsGiven;
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        const std::string &argument = arguments[at];
        CalculusKind kind{};
        if (int operands = optionsEnded ? 0 : CalculusOperandCount(argument, kind)) {
            if (options.calculus) {
                error =
                    "only one of --integrate, --derivative, --differentiate and --root at a time";
                return std::nullopt;
            }
            if (at + operands >= arguments.size()) {
                error = "\"" + argument + "\" needs " + std::to_string(operands) + " operands";
                return std::nullopt;
            }
            const int extra = kind == CalculusKind::Integrate
                                  ? ExtraIntegralOperands(arguments, at + operands + 1)
                                  : 0;
            operands += extra;
            calculus.kind = kind;
            calculus.operands.assign(arguments.begin() + static_cast<long>(at) + 1,
                                     arguments.begin() + static_cast<long>(at) + 1 + operands);
            at += static_cast<std::size_t>(operands);
            options.calculus = calculus;
        } else if (std::optional<std::string> *setting =
                       optionsEnded ? nullptr : CalculusSetting(calculus, argument)) {
            const std::string *value = OptionValue(arguments, at, error);
            if (value == nullptr) return std::nullopt;
            *setting = *value;
            settingsGiven.push_back(argument);
        } else if (!optionsEnded && argument == "--radians") {
            options.radians = true;
        } else if (!optionsEnded && argument == "--save") {
            const std::string *value = OptionValue(arguments, at, error);
            if (value == nullptr) return std::nullopt;
            options.savePath = *value;
        } else if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && (argument == "--help" || argument == "-h")) {
            options.help = true;
        } else if (!optionsEnded && argument == "--version") {
            options.version = true;
        } else if (!optionsEnded && argument == "--enter") {
            options.key = RunKey::Enter;
        } else if (!optionsEnded && argument == "--in-place") {
            options.inPlace = true;
        } else if (const int read =
                       optionsEnded ? 0
                                    : ParseDescribeOption(arguments, at, options.describe, error)) {
            if (read < 0) return std::nullopt;
        } else if (!optionsEnded && argument.size() > 1 && argument[0] == '-') {
            error = "unknown option \"" + argument + "\"";
            return std::nullopt;
        } else if (havePath) {
            error = "more than one file given (\"" + options.path + "\", \"" + argument + "\")";
            return std::nullopt;
        } else {
            options.path = argument;
            havePath = true;
        }
    }
    if (options.calculus) {
        // The settings may stand before or after the computation they refine.
        calculus.kind = options.calculus->kind;
        calculus.operands = options.calculus->operands;
        options.calculus = calculus;
        if (options.inPlace || !options.savePath.empty()) {
            error = std::string(options.inPlace ? "--in-place" : "--save") +
                    " does not go with a numeric computation";
            return std::nullopt;
        }
    } else {
        // --precision alone sets the answers' digits; the other settings refine a computation.
        for (const std::string &setting : settingsGiven)
            if (setting != "--precision") {
                error = setting + " needs --integrate, --derivative, --differentiate or --root";
                return std::nullopt;
            }
        if (calculus.precision) {
            options.answerPrecision = ReadAnswerPrecision(*calculus.precision, error);
            if (!options.answerPrecision) return std::nullopt;
        }
    }
    if (options.describe.Wanted() &&
        (options.calculus || havePath || options.inPlace || !options.savePath.empty())) {
        error = "--functions and --describe stand alone";
        return std::nullopt;
    }
    if (options.inPlace && !options.help && options.path == "-") {
        error = "--in-place needs a FILE, not standard input";
        return std::nullopt;
    }
    return options;
}

}  // namespace quindar::cli
