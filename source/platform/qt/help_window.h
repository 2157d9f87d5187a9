// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The help viewer: the HTML pages of the help folder, found by topic number or by title.

#include <QMainWindow>

#include "help_topics.h"

class QLineEdit;
class QListWidget;
class QTextBrowser;
class QDockWidget;

namespace quindar {

class HelpWindow : public QMainWindow {
    Q_OBJECT
public:
    static constexpr const char *kTopicsFile = "topics.tsv";
    static constexpr const char *kUsingHelpPage = "using-help.html";
    static constexpr const char *kAboutPage = "about.html";
    static constexpr const char *kFunctionsPage = "functions.html";

    explicit HelpWindow(QString helpFolder, QWidget *parent = nullptr);

    // False when the folder has no contents page: help cannot be shown.
    bool isAvailable() const;

    void showContents();
    void showTopic(unsigned topic);
    // A page of the folder, "name.html" or "name.html#anchor".
    void showPage(const QString &page);
    // The list of page titles beside the text, filtered by the words typed; the "Index" and
    // "Key Word Search" commands open it.
    void showIndex(const QString &filter = QString());

    QString currentPage() const;
    QStringList indexEntries() const;
    const HelpTopics &topics() const { return topics_; }

private:
    void fillIndex();
    void filterIndex(const QString &words);

    QString folder_;
    HelpTopics topics_;
    QTextBrowser *browser_;
    QDockWidget *indexDock_;
    QLineEdit *filter_;
    QListWidget *index_;
};

}  // namespace quindar
