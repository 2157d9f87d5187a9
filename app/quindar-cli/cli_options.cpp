// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_options.h"

namespace quindar::cli {

const char *const kUsage = "Usage: quindar-cli [--enter] [--in-place] [--save DOC.qnd] [FILE]\n";

const char *const kHelp =
    "Usage: quindar-cli [--enter] [--in-place] [--save DOC.qnd] [FILE]\n"
    "Computes every line of FILE (standard input when FILE is missing or \"-\") in a Math\n"
    "Editor and prints the resulting text: each answer is written behind its line (\"2+3\"\n"
    "gives \"2+3 = 5\"), an old answer is replaced, comments and \"//\" lines stay.\n"
    "A FILE ending in \".qnd\" is a document: its variables and functions are declared\n"
    "before its text is computed, and --in-place saves the whole document back.\n"
    "\n"
    "  --enter      type each line and press Enter instead of pressing F4 on it; every\n"
    "               line then ends in a line break\n"
    "  --in-place   write the result back to FILE instead of standard output\n"
    "  --save DOC.qnd  also save the computed work (text, variables, functions,\n"
    "               settings and graphs) as the document DOC.qnd\n"
    "  -h, --help   show this text\n"
    "\n"
    "A line that fails stays as typed and its error goes to standard error as\n"
    "\"LINE: message\". Exit status: 0 when every line computed, 1 when a line failed,\n"
    "2 on a usage or file error.\n";

std::optional<Options> ParseOptions(const std::vector<std::string> &arguments, std::string &error) {
    Options options;
    bool havePath = false;
    bool optionsEnded = false;
    bool saveFollows = false;
    for (const std::string &argument : arguments) {
        if (saveFollows) {
            options.savePath = argument;
            saveFollows = false;
        } else if (!optionsEnded && argument == "--save") {
            saveFollows = true;
        } else if (!optionsEnded && argument == "--") {
            optionsEnded = true;
        } else if (!optionsEnded && (argument == "--help" || argument == "-h")) {
            options.help = true;
        } else if (!optionsEnded && argument == "--enter") {
            options.key = RunKey::Enter;
        } else if (!optionsEnded && argument == "--in-place") {
            options.inPlace = true;
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
    if (saveFollows) {
        error = "--save needs a document name";
        return std::nullopt;
    }
    if (options.inPlace && !options.help && options.path == "-") {
        error = "--in-place needs a FILE, not standard input";
        return std::nullopt;
    }
    return options;
}

}  // namespace quindar::cli
