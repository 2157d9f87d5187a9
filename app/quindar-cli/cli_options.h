// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The command line of quindar-cli.

#include <optional>
#include <string>
#include <vector>

#include "cli_calculus.h"
#include "cli_describe.h"
#include "text_run.h"

namespace quindar::cli {

// The synopsis, and the whole help text that begins with it.
extern const char *const kUsage;
extern const char *const kHelp;

struct Options {
    bool help = false;
    bool version = false;
    bool inPlace = false;
    // Angles in radians, also over a document's own setting.
    bool radians = false;
    RunKey key = RunKey::F4;
    std::string path = "-";  // "-" is standard input
    std::string savePath;    // --save: the processed work as a document, when not empty
    bool havePath = false;
    // A numeric computation instead of printing the text; the text then only sets up the
    // engine, and only when FILE is given.
    std::optional<CalculusOptions> calculus;
    // --precision outside a computation: the digits of the answers written into the text.
    std::optional<int> answerPrecision;
    // --functions or --describe: the Function Library's texts instead of a text.
    DescribeOptions describe;
};

// The options, or the reason they are wrong in error.
std::optional<Options> ParseOptions(const std::vector<std::string> &arguments, std::string &error);

}  // namespace quindar::cli
