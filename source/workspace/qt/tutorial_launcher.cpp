// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "tutorial_launcher.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QVBoxLayout>

#include "tutorial_rules.h"
#include "workbench.h"

namespace quindar {
namespace {

constexpr const char *kDownloadTitle = "Download Tutorial File Installer";
constexpr const char *kDownloadText =
    "Fewer tutorials than the full set are installed. The tutorial files can be downloaded and "
    "installed into the program's Tutorials folder.";
constexpr const char *kDownloadLink = "https://quindar.example/tutorials";

// Asks 24403 and lets the user choose a player; empty when refused.
QString FindMediaPlayer(Workbench &workbench, QWidget *parent) {
    if (workbench.Messages().Show(parent, kMsgFindMediaPlayer, kTitleTutorial, kBoxQuestionYesNo) !=
        kIdYes)
        return {};
    const QStringList chosen = workbench.chooseOpenFiles(
        parent, QStringLiteral("Media Player Executable"), QStringLiteral("/usr/bin"),
        QStringLiteral("Executable Files(*)"));
    return chosen.isEmpty() ? QString() : chosen.front();
}

}  // namespace

void offer_tutorial_download(Workbench &workbench, QWidget *parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(QString::fromLatin1(kDownloadTitle));
    dialog.setAccessibleName(QString::fromLatin1(kDownloadTitle));
    auto *layout = new QVBoxLayout(&dialog);
    auto *text = new QLabel(QString::fromLatin1(kDownloadText), &dialog);
    text->setWordWrap(true);
    text->setAccessibleName(QStringLiteral("Explanation"));
    auto *link = new QLabel(
        QStringLiteral("<a href=\"%1\">%1</a>").arg(QString::fromLatin1(kDownloadLink)), &dialog);
    link->setOpenExternalLinks(true);
    link->setAccessibleName(QStringLiteral("Download page"));
    auto *never = new QCheckBox(QStringLiteral("Do not show this dialog again"), &dialog);
    never->setAccessibleName(never->text());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    layout->addWidget(text);
    layout->addWidget(link);
    layout->addWidget(never);
    layout->addWidget(buttons);
    if (workbench.runDialog)
        workbench.runDialog(dialog);
    else
        dialog.exec();
    if (never->isChecked())
        workbench.Settings().Write(settings::kShowTutorialDownloadDialog, false);
}

void play_tutorial(Workbench &workbench, QWidget *parent) {
    const QDir folder(QString::fromStdString(workbench.Folders().tutorialsDir));
    const int count =
        folder.exists()
            ? static_cast<int>(folder.entryList({QStringLiteral("*.wmv")}, QDir::Files).size())
            : 0;
    const TutorialPlan plan =
        plan_tutorials(folder.exists(), count, workbench.Settings().ShowTutorialDownloadDialog());
    if (plan.step == TutorialStep::NoFolder)
        workbench.Messages().Show(parent, kMsgNoTutorialsFolder, kTitleTutorial, kBoxWarning);
    if (plan.step == TutorialStep::NoFiles)
        workbench.Messages().Show(parent, kMsgNoTutorials, kTitleTutorial, kBoxWarning);
    if (plan.offerDownload) offer_tutorial_download(workbench, parent);
    if (plan.step != TutorialStep::ChooseFile) return;

    const QStringList chosen = workbench.chooseOpenFiles(
        parent, QStringLiteral("Open Quindar Tutorial File"), folder.absolutePath(),
        QStringLiteral("Quindar Tutorials(*.wmv)"));
    if (chosen.isEmpty()) return;
    bool found = false;
    QString player = QString::fromStdString(choose_media_player(
        workbench.Settings().MediaPlayerPath(),
        [](const std::string &path) {
            return QFileInfo(QString::fromStdString(path)).isExecutable();
        },
        found));
    if (player.isEmpty()) {
        player = FindMediaPlayer(workbench, parent);
        found = !player.isEmpty();
    }
    if (found) workbench.Settings().Write(settings::kMediaPlayerPath, player.toStdString());
    while (!player.isEmpty() && !workbench.startProcess(player, {chosen.front()})) {
        workbench.Messages().Show(parent, kMsgPlayerFailed, kTitleTutorial, kBoxWarning);
        player = FindMediaPlayer(workbench, parent);
        if (!player.isEmpty())
            workbench.Settings().Write(settings::kMediaPlayerPath, player.toStdString());
    }
}

}  // namespace quindar
