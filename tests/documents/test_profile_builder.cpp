// SPDX-License-Identifier: GPL-3.0-or-later
// The in-memory profile writer leaves the same bytes as one profile write per key.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "documents_test_support.h"
#include "profile.h"
#include "profile_builder.h"

namespace quindar::testing {
namespace {

struct Write {
    std::string section, key, value;
};

// The file that one WritePrivateProfileString per write leaves behind.
std::string written_one_by_one(const TempFolder &folder, const std::string &freeText,
                               const std::vector<Write> &writes) {
    const std::string path = folder.file("reference.ini");
    write_content(path, freeText);
    for (const Write &w : writes)
        EXPECT_TRUE(WritePrivateProfileString(w.section.c_str(), w.key.c_str(), w.value.c_str(),
                                              path.c_str()));
    return file_content(path);
}

std::string built(const std::string &freeText, const std::vector<Write> &writes) {
    ProfileBuilder builder(freeText);
    for (const Write &w : writes) EXPECT_TRUE(builder.WriteString(w.section, w.key, w.value));
    return builder.Content();
}

struct BuilderCase {
    const char *what;
    std::string freeText;
    std::vector<Write> writes;
};

TEST(ProfileBuilder, SameBytesAsProfileWrites) {
    const std::vector<BuilderCase> cases = {
        {"empty text", "", {{"A", "k", "v"}, {"B", "k", "w"}}},
        {"text without a last line end", "text", {{"A", "k", "v"}}},
        {"text ending in LF", "text\n", {{"A", "k", "v"}}},
        {"text ending in a lone CR", "text\r", {{"A", "k", "v"}}},
        {"key again in another case", "", {{"A", "Key", "1"}, {"A", "kEY", "2"}, {"a", "x", "3"}}},
        {"blanks around names", "", {{" A ", " k ", " v "}, {"A", "k", "w"}}},
        {"header in the text",
         "t\r\n[B]\r\nk=old\r\n\r\nrest\r\n",
         {{"B", "k", "new"}, {"B", "n", "1"}}},
        {"key that looks like a header",
         "",
         {{"G", "[x]Pt0", "1"}, {"G", "[x]Pt0", "2"}, {"G", "y", "3"}}},
        {"key with an equals sign", "", {{"G", "a=b", "1"}, {"G", "a=b", "2"}}},
        {"comment key", "", {{"G", ";c", "1"}, {"G", ";c", "2"}}},
        {"values with equals signs", "", {{"F", "f[x]", "x==1"}, {"F", "g[x]", "=x"}}},
        {"empty values", "", {{"S", "k", ""}, {"S", "k2", ""}}},
    };
    TempFolder folder;
    for (const BuilderCase &c : cases) {
        EXPECT_EQ(built(c.freeText, c.writes), written_one_by_one(folder, c.freeText, c.writes))
            << c.what;
    }
}

TEST(ProfileBuilder, RefusesWhatAProfileWriteRefuses) {
    ProfileBuilder builder("x");
    EXPECT_FALSE(builder.WriteString("S", "k", "a\r\nb"));
    EXPECT_FALSE(builder.WriteString("S", "k\n", "v"));
    EXPECT_FALSE(builder.WriteString("S\r", "k", "v"));
    EXPECT_FALSE(builder.WriteString("S", "   ", "v"));
    EXPECT_EQ(builder.Content(), "x");
}

TEST(ProfileBuilder, RandomRunsMatchProfileWrites) {
    std::mt19937 random(20260101);
    const std::vector<std::string> sections = {"A", "a", "GRAPHS", "Graph1", "S"};
    const std::vector<std::string> keys = {"k", "K", "x1", "f[x]", "[p]Pt1", "q=1", "v"};
    const std::vector<std::string> texts = {"", "free\r\n", "free", "[A]\r\nk=0\r\n"};
    TempFolder folder;
    for (int run = 0; run < 40; ++run) {
        const std::string freeText = texts[random() % texts.size()];
        std::vector<Write> writes;
        const int count = 1 + static_cast<int>(random() % 12);
        for (int i = 0; i < count; ++i)
            writes.push_back({sections[random() % sections.size()], keys[random() % keys.size()],
                              std::to_string(random() % 100)});
        EXPECT_EQ(built(freeText, writes), written_one_by_one(folder, freeText, writes))
            << "run " << run;
        // The same run with the profile rules from the start.
        ProfileBuilder rules(freeText);
        rules.UseProfileRules();
        for (const Write &w : writes) rules.WriteString(w.section, w.key, w.value);
        EXPECT_EQ(rules.Content(), built(freeText, writes)) << "run " << run;
    }
}

}  // namespace
}  // namespace quindar::testing
