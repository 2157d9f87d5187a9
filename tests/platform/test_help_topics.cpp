// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <filesystem>

#include "file_io.h"
#include "help_topics.h"

namespace quindar {
namespace {

TEST(HelpTopics, ReadsTopicLinesAndCountsBadOnes) {
    HelpTopics topics;
    const int bad = topics.parse(
        "# comment\n19410\tfile-new.html\r\n\n19411\tfile-open.html#dialog\nabc\tx.html\n"
        "19412\n19413\t\n19414x\ty.html\n19400\teditor.html");
    EXPECT_EQ(bad, 4);
    EXPECT_EQ(topics.all().size(), 3u);
    EXPECT_EQ(topics.page(19410), "file-new.html");
    EXPECT_EQ(topics.page(19411), "file-open.html#dialog");
    EXPECT_EQ(topics.page(19400), "editor.html");
    EXPECT_EQ(topics.page(1), "index.html");
    EXPECT_FALSE(topics.has(19412));
}

// Every topic a command or pane names has a page, and every page the map names exists.
TEST(HelpTopics, ShippedMapCoversEveryTopicWithAPage) {
    const std::string folder = QUINDAR_SOURCE_DIR "/help/";
    HelpTopics topics;
    ASSERT_EQ(topics.parse(read_whole_file(folder + "topics.tsv").value_or("")), 0);
    const unsigned wanted[] = {
        19400, 19401, 19402, 19405, 19409, 19410, 19411, 19413, 19414, 19415, 19416, 19417,
        19418, 19419, 19420, 19421, 19422, 19424, 19425, 19426, 19427, 19428, 19429, 19430,
        19431, 19432, 19433, 19436, 19437, 19438, 19439, 19440, 19444, 19447, 19452, 19453,
        19454, 19455, 19456, 19463, 19465, 19466, 19467, 19468, 19469, 19470, 19471, 19473,
        19474, 19478, 19479, 19480, 19486, 19487, 19488, 19489, 19500,
    };
    for (unsigned topic : wanted) EXPECT_TRUE(topics.has(topic)) << topic;
    for (unsigned topic = 20000; topic <= 20090; ++topic) EXPECT_TRUE(topics.has(topic)) << topic;
    EXPECT_FALSE(topics.has(20091));
    for (const auto &[topic, page] : topics.all()) {
        const std::string file = page.substr(0, page.find('#'));
        EXPECT_TRUE(std::filesystem::is_regular_file(folder + file)) << topic << " " << page;
    }
    for (const char *page : {"index.html", "using-help.html", "about.html", "tutorials.html"}) {
        EXPECT_TRUE(std::filesystem::is_regular_file(folder + page)) << page;
    }
}

}  // namespace
}  // namespace quindar
