// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// quindar-cli: a text through the Math Editor without windows. Every line is computed as the
// editor computes it on a key press, and the text comes back with the answers written in.
#include <iostream>
#include <string>
#include <vector>

#include "cli_document.h"
#include "cli_files.h"
#include "cli_options.h"
#include "memory_text_buffer.h"
#include "parser.h"
#include "text_run.h"

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

    Parser parser("", "");
    DocumentContent document;
    std::vector<std::string> loadMessages;
    const bool isDocument = cli::IsDocumentPath(options->path);
    std::string input;
    if (isDocument) {
        if (!cli::LoadDocument(options->path, parser, document, loadMessages, error)) {
            for (const std::string &message : loadMessages) std::cerr << message << '\n';
            return Fail(error);
        }
        input = document.text;
    } else {
        auto text = cli::ReadInput(options->path, error);
        if (!text) return Fail(error);
        input = std::move(*text);
    }
    for (const std::string &message : loadMessages)
        std::cerr << options->path << ": " << message << '\n';

    const TextRun run = RunText(input, options->key, parser);
    // A document holds its text with CR LF line ends, whatever the input had.
    document.text = ToCrLf(run.text);
    if (options->inPlace && isDocument) {
        if (!cli::SaveDocument(options->path, parser, document, error)) return Fail(error);
    } else if (options->inPlace) {
        if (!cli::ReplaceFile(options->path, run.text, error)) return Fail(error);
    } else {
        std::cout << run.text << std::flush;
        if (!std::cout) return Fail("cannot write standard output");
    }
    if (!options->savePath.empty() &&
        !cli::SaveDocument(options->savePath, parser, document, error))
        return Fail(error);
    for (const LineFailure &failure : run.failures)
        std::cerr << failure.line << ": " << failure.message << '\n';
    return run.failures.empty() && loadMessages.empty() ? 0 : 1;
}
