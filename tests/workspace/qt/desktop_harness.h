// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A running desktop program for widget tests: temporary user folders with sound off and no
// tip at start, file dialogs and message boxes answered from a script. A box the script did
// not expect fails the test at once and is answered as Escape would (Cancel, No or OK); a
// scripted box that never came fails it when the harness ends.

#include <QFont>
#include <QStringList>
#include <QTemporaryDir>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app_services.h"
#include "desktop_folders.h"
#include "workbench.h"

namespace quindar::testing {

struct ExpectedBox {
    QString textPart;  // a part of the box's text
    int answer;        // kIdOk, kIdYes, kIdNo, kIdCancel
};

class ScriptedBoxes {
public:
    void Expect(const QString &textPart, int answer) { expected.push_back({textPart, answer}); }
    int Present(const BoxRequest &request);

    QStringList shown;       // "title: text" of every box, in order
    QStringList unexpected;  // boxes no expectation matched
    std::deque<ExpectedBox> expected;
};

// The program's surroundings, recording what they were asked for.
class RecordingServices : public AppServices {
public:
    bool PlaySound(std::string_view fileName) override {
        sounds << QString::fromUtf8(fileName.data(), static_cast<qsizetype>(fileName.size()));
        return true;
    }
    bool ShowHelpTopic(int topic) override {
        helpTopics << topic;
        return true;
    }
    bool ShowHelpPage(HelpPage page) override {
        helpPages << static_cast<int>(page);
        return true;
    }
    void ShowTipOfTheDay(QWidget *) override { ++tipsShown; }
    void ShowAbout(QWidget *) override { ++aboutShown; }

    QStringList sounds;
    QList<int> helpTopics;
    QList<int> helpPages;
    int tipsShown = 0;
    int aboutShown = 0;
};

class DesktopHarness {
public:
    // Starts the program with the command-line words; adjust may change its folders first.
    // atStart: the boxes the start itself shows.
    explicit DesktopHarness(const std::vector<std::string> &words = {},
                            const std::function<void(DesktopFolders &)> &adjust = {},
                            const std::vector<ExpectedBox> &atStart = {});
    ~DesktopHarness();

    Workbench &Bench() { return *workbench; }
    MainFrame &Frame() { return *frame; }
    DocumentArea &Client();
    DocumentWindow *Current();
    QString Folder() const { return home.path(); }
    // Files the scripted dialogs return next.
    QStringList nextOpenFiles;
    QString nextSaveFile;
    QStringList dialogTitles;
    // Programs started, as "program argument...", and dialogs of the program's own that ran.
    QStringList started;
    QStringList dialogsRun;
    bool startSucceeds = true;

    ScriptedBoxes boxes;
    RecordingServices services;
    // What the program's run left unchecked: expected boxes that never came, and unexpected
    // ones. Empty when the test went as scripted.
    QString Leftovers() const;

private:
    QTemporaryDir home;
    std::unique_ptr<Workbench> workbench;
    MainFrame *frame = nullptr;
};

// Types text into the current document's text pane, key by key.
void TypeText(QWidget *widget, const QString &text);

}  // namespace quindar::testing
