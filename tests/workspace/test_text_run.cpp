// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// A whole text through the editor with F4 or Enter on each line, as the command line runs it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text_run.h"

namespace quindar {
namespace {

struct Failure {
    int line;
    const char *message;
};

struct RunCase {
    RunKey key;
    const char *input;
    const char *output;
    std::vector<Failure> failures;
};

TEST(RunText, WritesTheAnswersBehindTheLinesOfAText) {
    const RunCase cases[] = {
        {RunKey::F4, "", "", {}},
        {RunKey::F4, "2+3", "2+3 = 5", {}},
        {RunKey::F4, "2+3\n", "2+3 = 5\n", {}},
        {RunKey::F4, "2+3\r\n1+1\r\n", "2+3 = 5\r\n1+1 = 2\r\n", {}},
        {RunKey::F4, "2+3\r1+1", "2+3 = 5\n1+1 = 2", {}},
        {RunKey::F4,
         "// sums\n\n2+3 = 9 // five\n1+1; 2*3\n",
         "// sums\n\n2+3 = 5 // five\n1+1; 2*3 = 6\n",
         {}},
        {RunKey::F4,
         "1+\n2+3\n1/0 = 4\n",
         "1+\n2+3 = 5\n1/0\n",
         {{1, "Number or expression expected with operator!"},
          {3, "Division By Zero Encountered!"}}},
        {RunKey::Enter, "", "", {}},
        {RunKey::Enter, "2+3", "2+3 = 5\n", {}},
        {RunKey::Enter, "2+3\n\n// c\n1+1;\n", "2+3 = 5\n\n// c\n1+1;\n", {}},
        {RunKey::Enter, "2+3\r\n4*4 // c\r\n", "2+3 = 5\r\n4*4 = 16 // c\r\n", {}},
        {RunKey::Enter, "1/0\n7", "1/0\n7 = 7\n", {{1, "Division By Zero Encountered!"}}},
    };
    for (const auto &c : cases) {
        const TextRun run = RunText(c.input, c.key);
        EXPECT_EQ(run.text, c.output) << c.input;
        ASSERT_EQ(run.failures.size(), c.failures.size()) << c.input;
        for (std::size_t i = 0; i < c.failures.size(); ++i) {
            EXPECT_EQ(run.failures[i].line, c.failures[i].line) << c.input;
            EXPECT_EQ(run.failures[i].message, c.failures[i].message) << c.input;
        }
    }
}

TEST(RunText, ItsOwnOutputComesBackUnchanged) {
    for (RunKey key : {RunKey::F4, RunKey::Enter}) {
        const std::string once = RunText("2+3\n0.1+0.2 // c\n1+1; 2^10\n(1+2i)*(3-i)\n", key).text;
        EXPECT_EQ(RunText(once, key).text, once);
    }
}

}  // namespace
}  // namespace quindar
