// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>

#include <QTextBrowser>

#include "help_window.h"

namespace quindar {
namespace {

const QString kHelp = QStringLiteral(QUINDAR_SOURCE_DIR "/help");

TEST(HelpWindow, ShowsTheTopicsPage) {
    HelpWindow help(kHelp);
    ASSERT_TRUE(help.isAvailable());
    const struct {
        unsigned topic;
        const char *page;
        const char *title;
    } cases[] = {
        {19410, "file-new.html", "New Math Editor"},
        {19500, "tutorials.html", "Tutorials"},
        {19400, "math-editor.html", "The Math Editor"},
        {12345, "index.html", "Quindar Help"},
        {20000, "fn-sqrt.html", "SQRT"},  // the functions, in the engine's table order
        {20090, "fn-presist.html", "PRESIST"},
    };
    for (const auto &row : cases) {
        help.showTopic(row.topic);
        EXPECT_EQ(help.currentPage(), row.page) << row.topic;
        EXPECT_EQ(help.findChild<QTextBrowser *>()->documentTitle(), row.title) << row.topic;
    }
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(help.accessibleName(), "Quindar Help");
}

TEST(HelpWindow, IndexFiltersTitlesByKeyWords) {
    HelpWindow help(kHelp);
    help.showIndex();
    const QStringList all = help.indexEntries();
    EXPECT_GT(all.size(), 55);
    EXPECT_TRUE(all.contains("Using Help"));
    help.showIndex("graph file");
    EXPECT_EQ(help.indexEntries(), QStringList({"Open Graph From File", "Save Graph To File"}));
    help.showIndex("no such words");
    EXPECT_TRUE(help.indexEntries().isEmpty());
}

TEST(HelpWindow, PagesWithAnchorsAndFixedPages) {
    HelpWindow help(kHelp);
    help.showPage("functions.html#trigonometry");
    EXPECT_EQ(help.currentPage(), "functions.html#trigonometry");
    help.showPage(HelpWindow::kUsingHelpPage);
    EXPECT_EQ(help.findChild<QTextBrowser *>()->documentTitle(), "Using Help");
    help.showPage(HelpWindow::kAboutPage);
    EXPECT_EQ(help.findChild<QTextBrowser *>()->documentTitle(), "About Quindar");
}

TEST(HelpWindow, AFolderWithoutContentsIsNotAvailable) {
    HelpWindow help("/nonexistent/help");
    EXPECT_FALSE(help.isAvailable());
    EXPECT_TRUE(help.topics().all().empty());
}

}  // namespace
}  // namespace quindar
