// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// quindar-cli: evaluates a text line by line with the document engine and prints each
// line with its answer behind it, so everything the editor computes works headless.
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>

#include "parser.h"

namespace {

constexpr const char *kUsage =
    "Usage: quindar-cli [FILE]\n"
    "Evaluates each non-empty line of FILE (or of standard input when FILE is missing\n"
    "or \"-\") and prints it with its answer: \"2+3 = 5\". A line that fails is printed\n"
    "as typed, followed by a line \"error: \" and the engine's message.\n"
    "Exit status: 0 when every line computed, 1 when a line failed, 2 on a usage or\n"
    "file error.\n";

int run(std::istream &input) {
    quindar::Parser parser("", "");
    bool failed = false;
    std::string line;
    while (std::getline(input, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.find_first_not_of(" \t") == std::string::npos) {
            std::cout << line << '\n';
            continue;
        }
        const char *answer = parser.eval_exp(line.c_str(), true, true);
        if (parser.IsAnError()) {
            failed = true;
            const char *message = parser.GetLastError();
            std::cout << line << "\nerror: " << (message ? message : "") << '\n';
        } else {
            std::cout << line << answer << '\n';
        }
    }
    return failed ? 1 : 0;
}

}  // namespace

int main(int argc, char **argv) {
    if (argc > 2) {
        std::cerr << kUsage;
        return 2;
    }
    if (argc == 2 && (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0)) {
        std::cout << kUsage;
        return 0;
    }
    if (argc == 1 || std::strcmp(argv[1], "-") == 0) return run(std::cin);
    std::ifstream file(argv[1], std::ios::binary);
    if (!file) {
        std::cerr << "quindar-cli: cannot open \"" << argv[1] << "\": " << std::strerror(errno)
                  << '\n';
        return 2;
    }
    return run(file);
}
