// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The program's surroundings on this desktop: the platform layer behind each service hook.

#include <functional>
#include <memory>

#include "app_services.h"
#include "desktop_folders.h"

namespace quindar {

class HelpWindow;
class SingleInstance;
class SoundPlayer;
class SplashScreen;

class PlatformServices : public AppServices {
public:
    explicit PlatformServices(DesktopFolders folders);
    ~PlatformServices() override;

    // Runs a command by id; the Tip of the Day's Tutorials and Examples buttons use it.
    std::function<void(int id)> runCommand;

    bool PlaySound(std::string_view fileName) override;
    bool ShowHelpTopic(int topic) override;
    bool ShowHelpPage(HelpPage page) override;
    bool HelpAvailable() const override;
    void ShowTipOfTheDay(QWidget *parent) override;
    void SplashStart() override;
    void SplashMessage(const QString &text, int percent) override;
    void SplashFinish(QWidget *mainWindow) override;
    bool HandOverToRunningInstance(const QString &file) override;
    void ListenForInstances(std::function<void(const QString &file)> open) override;
    void InstallCrashReport(const QString &reportFolder) override;
    void RegisterFileTypes(const QString &programPath) override;
    void UnregisterFileTypes() override;

private:
    HelpWindow &Help();

    DesktopFolders folders;
    std::unique_ptr<SoundPlayer> sounds;
    std::unique_ptr<SplashScreen> splash;
    std::unique_ptr<SingleInstance> instance;
    std::unique_ptr<HelpWindow> help;
};

}  // namespace quindar
