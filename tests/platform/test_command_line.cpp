// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "command_line.h"

namespace quindar {
namespace {

struct CommandLineCase {
    std::vector<std::string> words;
    const char *file;  // nullptr: no file
    bool unregister;
};

const CommandLineCase kCases[] = {
    {{}, nullptr, false},
    {{"a.qnd"}, "a.qnd", false},
    {{"/home/me/My Work/a b.qnd"}, "/home/me/My Work/a b.qnd", false},  // one word with blanks
    {{"\"/tmp/quoted name.qnd\""}, "/tmp/quoted name.qnd", false},
    {{"first.qnd", "second.qnd"}, "first.qnd", false},  // later words are ignored
    {{"unregister"}, nullptr, true},
    {{"UNREG", "x.qnd"}, nullptr, true},  // the file behind the option is not read
    {{"u"}, nullptr, true},
    {{"UnReGiStEr"}, nullptr, true},
    {{"x.qnd", "un"}, "x.qnd", true},           // a file before the option stays
    {{"unregistered"}, "unregistered", false},  // longer than the option: a file name
    {{"-unregister"}, "-unregister", false},
    {{"uno"}, "uno", false},
    {{"", "b.qnd"}, "b.qnd", false},
    {{"\"\"", "c.qnd"}, "c.qnd", false},  // quotes around nothing name no file
    {{"\"half"}, "\"half", false},        // a lone quote stays part of the name
};

TEST(CommandLine, ReadsTheFileAndTheUnregisterOption) {
    for (const CommandLineCase &row : kCases) {
        const CommandLineRequest request = parse_command_line(row.words);
        const std::string context = ::testing::PrintToString(row.words);
        if (row.file == nullptr) {
            EXPECT_FALSE(request.file.has_value()) << context << " gave " << *request.file;
        } else {
            EXPECT_EQ(request.file.value_or("<none>"), row.file) << context;
        }
        EXPECT_EQ(request.unregister, row.unregister) << context;
        EXPECT_EQ(request.registerAssociation, !row.unregister) << context;
    }
}

TEST(CommandLine, UnregisterOptionIsAnyNonEmptyPrefixInAnyCase) {
    const std::string option = "unregister";
    for (std::size_t length = 1; length <= option.size(); ++length) {
        std::string upper = option.substr(0, length);
        for (char &c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        EXPECT_TRUE(is_unregister_option(option.substr(0, length))) << length;
        EXPECT_TRUE(is_unregister_option(upper)) << upper;
    }
    EXPECT_FALSE(is_unregister_option(""));
    EXPECT_FALSE(is_unregister_option("register"));
    EXPECT_FALSE(is_unregister_option("unregisterr"));
}

}  // namespace
}  // namespace quindar
