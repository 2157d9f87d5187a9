// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the program asks of its surroundings beyond windows: sounds, help, the tip of the
// day, the about box, the splash screen, one running instance, the crash report and the
// file association. The program starts with AppServices' own quiet versions; the platform
// layer derives from it and is handed to the Workbench at start, so each service arrives
// by overriding one function.

#include <QString>
#include <functional>
#include <string_view>

class QWidget;

namespace quindar {

enum class HelpPage { Contents, Index, KeyWordSearch, UsingHelp, MathFunctions };

class AppServices {
public:
    virtual ~AppServices() = default;

    // Plays a wave file of the Sounds folder; false when nothing was played.
    virtual bool PlaySound(std::string_view /*fileName*/) { return false; }

    // Shows a help topic by number, or one of the help's own pages. False when there is no
    // help to show.
    virtual bool ShowHelpTopic(int /*topic*/) { return false; }
    virtual bool ShowHelpPage(HelpPage /*page*/) { return false; }
    // Whether help can be shown at all (the context-help mode needs it).
    virtual bool HelpAvailable() const { return false; }

    // The Tip of the Day dialog, modal.
    virtual void ShowTipOfTheDay(QWidget * /*parent*/) {}
    // The about box.
    virtual void ShowAbout(QWidget *parent);

    // The splash screen with its gauge, from the start until the main window shows.
    virtual void SplashStart() {}
    virtual void SplashMessage(const QString & /*text*/, int /*percent*/) {}
    virtual void SplashFinish(QWidget * /*mainWindow*/) {}

    // One running instance: called first thing in main. True when another instance is
    // running and took the request (a file path, or empty); the program then exits 0 before
    // it writes anything.
    virtual bool HandOverToRunningInstance(const QString & /*file*/) { return false; }
    // Called once the main window exists: requests of later starts arrive through open.
    virtual void ListenForInstances(std::function<void(const QString &file)> /*open*/) {}

    // The report of a fatal signal, written to the user's data folder.
    virtual void InstallCrashReport(const QString & /*reportFolder*/) {}

    // The per-user file association of ".qnd": renewed at each start, or removed.
    virtual void RegisterFileTypes(const QString & /*programPath*/) {}
    virtual void UnregisterFileTypes() {}
};

}  // namespace quindar
