// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// quindar-cli: a text through the Math Editor without windows. Every line is computed as the
// editor computes it on a key press, and the text comes back with the answers written in.
#include <csignal>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "cli_calculus.h"
#include "cli_describe.h"
#include "cli_document.h"
#include "cli_files.h"
#include "cli_graph.h"
#include "cli_options.h"
#include "desktop_folders.h"
#include "file_io.h"
#include "memory_text_buffer.h"
#include "message_text.h"
#include "parser.h"
#include "program_folders.h"
#include "text_run.h"
#include "user_library.h"

namespace {

using namespace quindar;

// Every message is one line on standard error, "WHERE: message", and holds no control bytes
// from a name or a path, whatever the engine's box would show.
std::string OneLine(const std::string &message) {
    return printable_message(message, true);
}

int Fail(const std::string &message) {
    std::cerr << "quindar-cli: " << OneLine(message) << '\n';
    return 2;
}

void Warn(const std::vector<std::string> &warnings) {
    for (const std::string &warning : warnings)
        std::cerr << "quindar-cli: " << OneLine(warning) << '\n';
}

void ReportFailures(const TextRun &run) {
    Warn(run.warnings);
    for (const LineFailure &failure : run.failures)
        std::cerr << failure.line << ": " << OneLine(failure.message) << '\n';
}

// The input of a run: a document, whose declarations are then in the engine, or a text.
struct Work {
    bool isDocument = false;
    DocumentContent document;
    std::string text;
    std::vector<std::string> loadMessages;
};

bool LoadWork(const std::string &path, Parser &parser, Work &work, std::string &error) {
    work.isDocument = cli::IsDocumentPath(path);
    if (work.isDocument) {
        const bool loaded =
            cli::LoadDocument(path, parser, work.document, work.loadMessages, error);
        for (const std::string &message : work.loadMessages)
            std::cerr << OneLine(path) << ": " << OneLine(message) << '\n';
        work.text = work.document.text;
        return loaded;
    }
    auto text = cli::ReadInput(path, error);
    if (!text) return false;
    work.text = std::move(*text);
    return true;
}

// A numeric computation on the engine of FILE, when one is given.
int Compute(const cli::Options &options, Parser &parser) {
    std::string error;
    Work work;
    if (options.havePath && !LoadWork(options.path, parser, work, error)) return Fail(error);
    // Over a document's own angle setting.
    if (options.radians) parser.angle_mode = 1;
    if (options.havePath) ReportFailures(RunText(work.text, options.key, parser));
    std::string value;
    const int status = cli::RunCalculus(parser, *options.calculus, value, error);
    if (status > 1) return Fail(error);
    // A table that failed at a point keeps its rows.
    std::cout << value << std::flush;
    if (!std::cout) return Fail("cannot write standard output");
    if (status == 0) return 0;
    std::cerr << OneLine(error) << '\n';
    return 1;
}

}  // namespace

int main(int argc, char **argv) {
    // Past a file-size limit a write fails with its reason instead of ending the program.
    std::signal(SIGXFSZ, SIG_IGN);
    std::string error;
    std::vector<std::string> arguments(argv + 1, argv + argc);
    cli::GraphOptions graph;
    if (!cli::TakeGraphOptions(arguments, graph, error))
        return Fail(error + "\n" + cli::kUsage + "Try \"quindar-cli --help\".");
    const auto options = cli::ParseOptions(arguments, error);
    if (!options) return Fail(error + "\n" + cli::kUsage + "Try \"quindar-cli --help\".");
    if (options->help) {
        std::cout << cli::kHelp;
        return 0;
    }
    if (options->version) {
        std::cout << "quindar-cli " QUINDAR_VERSION "\n";
        return 0;
    }

    const std::string libraries = library_folder(QUINDAR_SOURCE_LIBRARY_DIR);
    const std::string userLibraries =
        command_line_user_library_folder(libraries, process_environment());
    // The user library is made when missing, as the desktop program does at its start.
    create_user_library(userLibraries);
    Parser parser(libraries.c_str(), userLibraries.c_str());
    Warn(OpenLibraries(parser, libraries));
    // Data files named in the text are found beside it first.
    if (options->path != "-") parser.data_folder = folder_of_file(options->path);
    if (graph.name) return cli::RunGraph(graph, *options, parser);
    if (options->calculus) return Compute(*options, parser);
    if (options->describe.Wanted()) {
        const int status =
            cli::RunDescribe(options->describe, libraries, userLibraries, std::cout, error);
        if (status == 1) std::cerr << "quindar-cli: " << error << '\n';
        return status == 2 ? Fail(error) : status;
    }

    // A file computed in place is locked before it is read, so a second run on it waits for
    // this one's result; and a folder or device is refused before anything is computed.
    std::optional<FileLock> lock;
    if (options->inPlace) {
        lock = FileLock::Acquire(options->path, error);
        if (!lock) return Fail("cannot write \"" + options->path + "\": " + error);
    }
    Work work;
    if (!LoadWork(options->path, parser, work, error)) return Fail(error);
    if (options->radians) parser.angle_mode = 1;
    if (options->answerPrecision) cli::ApplyAnswerPrecision(parser, *options->answerPrecision);
    const TextRun run = RunText(work.text, options->key, parser);
    // A document holds its text with CR LF line ends, whatever the input had.
    work.document.text = ToCrLf(run.text);
    std::vector<std::string> warnings;
    if (options->inPlace && work.isDocument) {
        if (!cli::SaveDocument(options->path, parser, work.document, error, warnings, &*lock))
            return Fail(error);
    } else if (options->inPlace) {
        std::string warning;
        if (!cli::ReplaceFile(options->path, run.text, error, warning, &*lock)) return Fail(error);
        if (!warning.empty()) warnings.push_back(warning);
    } else {
        std::cout << run.text << std::flush;
        if (!std::cout) return Fail("cannot write standard output");
    }
    if (!options->savePath.empty() &&
        !cli::SaveDocument(options->savePath, parser, work.document, error, warnings))
        return Fail(error);
    Warn(warnings);
    ReportFailures(run);
    return run.failures.empty() && work.loadMessages.empty() ? 0 : 1;
}
