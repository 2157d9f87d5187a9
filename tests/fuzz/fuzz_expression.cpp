// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The expression road: mutated lines through one engine, as the editor sends them, and the
// same lines recorded as maps and solved. Promises: every failure has a message, and what an
// answer or a message shows is printable.
#include <algorithm>
#include <memory>
#include <sstream>

#include "fuzz_driver.h"
#include "fuzz_files.h"
#include "message_text.h"
#include "parser.h"

namespace {

using namespace quindar;

std::vector<std::string> seed_lines() {
    std::vector<std::string> lines;
    for (const std::string &file : fuzz::seed_files(QUINDAR_EXAMPLES_DIR, ".txt")) {
        std::istringstream in(file);
        for (std::string line; std::getline(in, line);)
            if (!line.empty()) lines.push_back(line);
    }
    return lines;
}

bool printable(const char *text) {
    return text == nullptr || printable_message(text) == text;
}

}  // namespace

// Records the line as a map and solves it twice, as a graph does for its samples.
bool map_and_solve(Parser &parser, const std::string &line) {
    parser.current_equation = parser.equations.add();
    parser.mapping = true;
    const int map = parser.equations.count();
    parser.eval_exp(line.c_str(), true, false);
    parser.mapping = false;
    const bool recorded = !parser.IsAnError();
    parser.ClearLastError();
    for (int k = 0; recorded && k < 2; ++k) {
        parser.set_var_value(complex{0.5 * k, 0.0}, "x");
        parser.solve_equation(map, false, true);
        if (parser.IsAnError() && parser.GetLastError() == nullptr) return false;
        parser.ClearLastError();
    }
    parser.delete_equation(map);
    parser.current_equation = nullptr;
    return true;
}

int main(int argc, char **argv) {
    auto parser = std::make_unique<Parser>(QUINDAR_LIBRARY_DIR, QUINDAR_LIBRARY_DIR);
    long lines = 0;
    const std::vector<std::string> dictionary = {"SIN[",
                                                 "COS(",
                                                 "POW[10,400]",
                                                 "MEAN[{1,2,3}]",
                                                 "SRESIST[{",
                                                 "}]",
                                                 "x = 1, 10, 5",
                                                 "f[x] = ",
                                                 "f[x,y] = x*y",
                                                 "f[",
                                                 "200!",
                                                 "1e+307",
                                                 "i",
                                                 "PI",
                                                 "E",
                                                 "==",
                                                 "<=",
                                                 "!=",
                                                 "GAMMA[",
                                                 "INT[",
                                                 "ROOT[",
                                                 "DERIV[",
                                                 "RAND[",
                                                 "AREA[",
                                                 "//",
                                                 ";",
                                                 "[",
                                                 "]",
                                                 "(",
                                                 ")",
                                                 std::string(1100, '9'),
                                                 std::string(1100, 'a')};
    return fuzz::run(
        argc, argv, "fuzz_expression", seed_lines(), dictionary, [&](const std::string &input) {
            std::istringstream in(input);
            for (std::string line; std::getline(in, line);) {
                const char *answer = parser->eval_exp(line.c_str(), true, true);
                if (parser->IsAnError()) {
                    if (parser->GetLastError() == nullptr || !printable(parser->GetLastError()))
                        return false;
                    parser->ClearLastError();
                } else if (!printable(answer)) {
                    return false;
                }
                if (!map_and_solve(*parser, line)) return false;
                // A fresh engine now and then, so declarations do not pile up.
                if (++lines % 2000 == 0)
                    parser = std::make_unique<Parser>(QUINDAR_LIBRARY_DIR, QUINDAR_LIBRARY_DIR);
            }
            return true;
        });
}
