// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// quindar-cli: a text through the Math Editor without windows. Every line is computed as the
// editor computes it on a key press, and the text comes back with the answers written in.
#include <iostream>
#include <string>
#include <vector>

#include "cli_files.h"
#include "cli_options.h"
#include "program_folders.h"
#include "text_run.h"
#include "user_library.h"

namespace {

int Fail(const std::string &message) {
    std::cerr << "quindar-cli: " << message << '\n';
    return 2;
}

}  // namespace

int main(int argc, char **argv) {
    using namespace quindar;
    std::string error;
    const auto options = cli::ParseOptions(std::vector<std::string>(argv + 1, argv + argc), error);
    if (!options) return Fail(error + "\n" + cli::kUsage + "Try \"quindar-cli --help\".");
    if (options->help) {
        std::cout << cli::kHelp;
        return 0;
    }
    const auto input = cli::ReadInput(options->path, error);
    if (!input) return Fail(error);

    // The user library is made when missing, as the desktop program does at its start.
    const std::string libraries = library_folder(QUINDAR_SOURCE_LIBRARY_DIR);
    create_user_library(libraries);
    const TextRun run = RunText(*input, options->key, libraries);
    if (options->inPlace) {
        if (!cli::ReplaceFile(options->path, run.text, error)) return Fail(error);
    } else {
        std::cout << run.text << std::flush;
        if (!std::cout) return Fail("cannot write standard output");
    }
    for (const std::string &warning : run.warnings) std::cerr << "quindar-cli: " << warning << '\n';
    for (const LineFailure &failure : run.failures)
        std::cerr << failure.line << ": " << failure.message << '\n';
    return run.failures.empty() ? 0 : 1;
}
