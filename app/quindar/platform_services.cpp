// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "platform_services.h"

#include <QDir>
#include <QFileInfo>

#include "app_settings.h"
#include "command_table.h"
#include "crash_report.h"
#include "desktop_caches.h"
#include "file_association.h"
#include "help_window.h"
#include "single_instance.h"
#include "sound_player.h"
#include "splash_screen.h"
#include "string_table.h"
#include "tip_of_the_day_dialog.h"
#include "xdg_folders.h"

namespace quindar {

namespace {

// What the build makes (sounds, splash) stands beside the program; an installation has it in
// the share folder with the rest.
QString generated_file(const DesktopFolders &folders, const QString &name) {
    const QString shared = QString::fromStdString(folders.execDir) + name;
    return QFileInfo::exists(shared) ? shared : QString::fromStdString(folders.programDir) + name;
}

QString installed_icon(const DesktopFolders &folders) {
    const QString icon = QString::fromStdString(folders.execDir) + "icons/1001.svg";
    return QFileInfo::exists(icon) ? icon
                                   : QStringLiteral(QUINDAR_SOURCE_DIR "resources/icons/1001.svg");
}

}  // namespace

PlatformServices::PlatformServices(DesktopFolders desktopFolders)
    : folders(std::move(desktopFolders)),
      sounds(std::make_unique<SoundPlayer>(generated_file(folders, "Sounds"))) {}

PlatformServices::~PlatformServices() = default;

bool PlatformServices::PlaySound(std::string_view fileName) {
    return sounds->play(QString::fromUtf8(fileName.data(), static_cast<int>(fileName.size())));
}

HelpWindow &PlatformServices::Help() {
    if (help == nullptr)
        help = std::make_unique<HelpWindow>(QString::fromStdString(folders.helpDir));
    return *help;
}

bool PlatformServices::HelpAvailable() const {
    return QFileInfo::exists(QString::fromStdString(folders.helpDir) + kHelpContentsPage);
}

bool PlatformServices::ShowHelpTopic(int topic) {
    if (!HelpAvailable()) return false;
    Help().showTopic(static_cast<unsigned>(topic));
    return true;
}

bool PlatformServices::ShowHelpPage(HelpPage page) {
    if (!HelpAvailable()) return false;
    switch (page) {
        case HelpPage::Contents:
            Help().showContents();
            break;
        case HelpPage::Index:
            Help().showIndex();
            break;
        case HelpPage::KeyWordSearch:
            Help().showIndex();
            break;
        case HelpPage::UsingHelp:
            Help().showPage(HelpWindow::kUsingHelpPage);
            break;
        case HelpPage::MathFunctions:
            Help().showPage(HelpWindow::kFunctionsPage);
            break;
    }
    return true;
}

void PlatformServices::ShowTipOfTheDay(QWidget *parent) {
    const StringTable &strings = application_strings();
    QStringList tips;
    for (int id : strings.IdsBetween(kFirstTipId, kFirstTipId + 999)) {
        tips << QString::fromUtf8(strings.Get(id).data(), static_cast<int>(strings.Get(id).size()));
    }
    const std::string_view heading = strings.Get(kDidYouKnowId);
    const AppSettings settings(folders.settingsPath);
    TipOfTheDayDialog dialog(tips,
                             QString::fromUtf8(heading.data(), static_cast<int>(heading.size())),
                             settings.TipPos(), settings.TipStartup() != 0, parent);
    QObject::connect(&dialog, &TipOfTheDayDialog::showAtStartupChanged,
                     [&settings](bool on) { settings.Write(settings::kTipStartup, on ? 1 : 0); });
    QObject::connect(&dialog, &TipOfTheDayDialog::tutorialsRequested, [this] {
        if (runCommand) runCommand(command::kTutorials);
    });
    QObject::connect(&dialog, &TipOfTheDayDialog::examplesRequested, [this] {
        if (runCommand) runCommand(command::kExamples);
    });
    dialog.exec();
    settings.Write(settings::kTipPos, dialog.position());
}

void PlatformServices::SplashStart() {
    splash = SplashScreen::fromFile(generated_file(folders, "QuindarSplash.bmp"));
    if (splash != nullptr) splash->show();
}

// The gauge follows the real work of the start rather than waiting for it.
void PlatformServices::SplashMessage(const QString &text, int percent) {
    if (splash == nullptr) return;
    splash->setGauge(percent);
    splash->setText(text);
}

void PlatformServices::SplashFinish(QWidget *mainWindow) {
    if (splash == nullptr) return;
    splash->finish(mainWindow);
    splash.reset();
}

bool PlatformServices::HandOverToRunningInstance(const QString &file) {
    instance = std::make_unique<SingleInstance>();
    return !instance->claim(file);
}

void PlatformServices::ListenForInstances(std::function<void(const QString &file)> open) {
    if (instance != nullptr)
        QObject::connect(instance.get(), &SingleInstance::activationRequested, open);
}

void PlatformServices::InstallCrashReport(const QString &reportFolder) {
    install_crash_report(QDir(reportFolder).filePath("QuindarExceptions.txt").toStdString(),
                         QUINDAR_VERSION);
}

void PlatformServices::RegisterFileTypes(const QString &programPath) {
    const std::string data = xdg_data_home();
    if (data.empty()) return;
    const AssociationResult result = register_file_association(
        data, programPath.toStdString(), installed_icon(folders).toStdString());
    if (result.changed) refreshDesktopCaches(QString::fromStdString(data));
}

void PlatformServices::UnregisterFileTypes() {
    const std::string data = xdg_data_home();
    if (data.empty()) return;
    if (unregister_file_association(data).changed)
        refreshDesktopCaches(QString::fromStdString(data));
}

}  // namespace quindar
