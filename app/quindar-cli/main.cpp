// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// quindar-cli: a text through the Math Editor without windows. Every line is computed as the
// editor computes it on a key press, and the text comes back with the answers written in.
#include <iostream>
#include <string>
#include <vector>

#include "cli_files.h"
#include "cli_options.h"
#include "parser.h"
#include "program_folders.h"
#include "text_run.h"
#include "user_library.h"

namespace {

int Fail(const std::string &message) {
    std::cerr << "quindar-cli: " << message << '\n';
    return 2;
}

void ReportFailures(const quindar::TextRun &run) {
    for (const std::string &warning : run.warnings) std::cerr << "quindar-cli: " << warning << '\n';
    for (const quindar::LineFailure &failure : run.failures)
        std::cerr << failure.line << ": " << failure.message << '\n';
}

// A numeric computation on the engine of FILE, when one is given.
int Compute(const quindar::cli::Options &options) {
    using namespace quindar;
    const std::string libraries = library_folder(QUINDAR_SOURCE_LIBRARY_DIR);
    Parser parser(libraries.c_str(), libraries.c_str());
    for (const std::string &warning : OpenLibraries(parser, libraries))
        std::cerr << "quindar-cli: " << warning << '\n';
    std::string error;
    if (options.havePath) {
        const auto input = cli::ReadInput(options.path, error);
        if (!input) return Fail(error);
        ReportFailures(RunText(*input, options.key, parser));
    }
    std::string value;
    switch (cli::RunCalculus(parser, *options.calculus, value, error)) {
        case 0:
            break;
        case 1:
            std::cerr << error << '\n';
            return 1;
        default:
            return Fail(error);
    }
    std::cout << value << std::endl;
    return std::cout ? 0 : Fail("cannot write standard output");
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
    if (options->calculus) return Compute(*options);
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
    ReportFailures(run);
    return run.failures.empty() ? 0 : 1;
}
