// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "workbench.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QProcess>

#include "calculator_bar.h"
#include "calculus_tools.h"
#include "client_tools.h"
#include "command_table.h"
#include "dialog_custom_colors.h"
#include "document_area.h"
#include "document_close_rules.h"
#include "document_window.h"
#include "main_frame.h"
#include "start_request.h"
#include "user_library.h"

// Resources of a static library are registered by hand, outside any namespace.
static void InitIconResources() {
    Q_INIT_RESOURCE(quindar_icons);
}

namespace quindar {
namespace {

constexpr int kMsgCommandLineFileMissing = 31741;
constexpr int kTitleFindFile = 31740;
constexpr const char *kDocumentFilter =
    "Quindar Files(*.qnd);;2-D Graph Files(*.g2d);;3-D Graph Files(*.g3d);;Text "
    "Files(*.txt);;All Files (*)";

struct HelpCommand {
    int id;
    HelpPage page;
};

constexpr HelpCommand kHelpCommands[] = {
    {command::kHelpContents, HelpPage::Contents},
    {command::kHelpIndex, HelpPage::Index},
    {command::kHelpKey, HelpPage::KeyWordSearch},
    {command::kHelpUsing, HelpPage::UsingHelp},
    {command::kHelpMathFunctions, HelpPage::MathFunctions},
};

QStringList DialogOpenFiles(QWidget *parent, const QString &title, const QString &folder,
                            const QString &filter) {
    return QFileDialog::getOpenFileNames(parent, title, folder, filter, nullptr,
                                         QFileDialog::DontUseNativeDialog);
}

QString DialogSaveFile(QWidget *parent, const QString &title, const QString &suggested,
                       const QString &filter) {
    QFileDialog dialog(parent, title, suggested, filter);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("qnd"));
    dialog.setAccessibleName(title);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().front();
}

}  // namespace

Workbench::Workbench(AppServices &appServices, DesktopFolders desktopFolders)
    : services(appServices), folders(std::move(desktopFolders)) {
    InitIconResources();
    chooseOpenFiles = DialogOpenFiles;
    chooseSaveFile = DialogSaveFile;
    startProcess = [](const QString &program, const QStringList &arguments) {
        return QProcess::startDetached(program, arguments);
    };
    messages.SetDefaultParent([this]() -> QWidget * { return frame.get(); });
    router.playClick = [this] { PlaySound("QClick.wav"); };
    router.contextHelpMode = [this] { return contextHelpMode; };
    router.showContextHelp = [this](int id) { ShowContextHelp(id); };
    router.SetCurrentDocument([this]() -> CommandTarget * {
        return frame != nullptr ? frame->Client()->Current() : nullptr;
    });

    create_user_library(folders.userLibraryDir);
    install_client_tools(*this);
    const AppSettings settings = Settings();
    soundOn = settings.Sound();
    showIncrementals = settings.IncrementalVariables();
    flatButtons = settings.FlatButtons();
    calculationMethod = settings.CalculationMethod();
    useSquareBrackets = settings.UseSquareFunctionBrackets();
    load_custom_colors(settings);
    InstallCalculusTools(*this);
    InstallCalculatorBar(*this);
}

Workbench::~Workbench() {
    closing = true;
    save_custom_colors(Settings());
    frame.reset();
}

DocumentArea *Workbench::Client() const {
    return frame != nullptr ? frame->Client() : nullptr;
}

void Workbench::RemoveStaleTemporaryFiles() {
    QDir temporary(QDir::tempPath());
    for (const QString &name : temporary.entryList(QDir::Files))
        if (is_stale_temporary_name(name.toStdString())) temporary.remove(name);
}

MainFrame *Workbench::Start(const std::vector<std::string> &words) {
    const StartRequest request = read_start_request(words);
    RemoveStaleTemporaryFiles();
    Settings().WriteStartValues();
    AppSettings(folders.recentFilesPath).WriteStartValues();
    if (request.unregister)
        services.UnregisterFileTypes();
    else
        services.RegisterFileTypes(QCoreApplication::applicationFilePath());

    services.SplashMessage(QStringLiteral("Setting Up Client Window"), 0);
    qApp->installEventFilter(this);
    frame = std::make_unique<MainFrame>(*this);
    router.SetFixedTargets({frame.get(), frame->Client(), this});
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            [this] {
                if (frame != nullptr) frame->IdleAction();
            });
    services.SplashMessage(QStringLiteral("Please Wait..."), 100);

    if (!request.file.empty()) {
        const QString file = QString::fromStdString(request.file);
        if (QFileInfo::exists(file)) {
            frame->Client()->OpenFile(file);
        } else {
            messages.Show(frame.get(), kMsgCommandLineFileMissing, {request.file}, kTitleFindFile,
                          kBoxWarning);
            frame->Client()->NewDocument();
        }
    } else {
        frame->Client()->NewDocument();
    }
    services.ListenForInstances([this](const QString &file) {
        if (!file.isEmpty()) OpenFiles({file});
        frame->showNormal();
        frame->raise();
        frame->activateWindow();
    });
    return frame.get();
}

void Workbench::AfterShow() {
    services.SplashFinish(frame.get());
    PlaySound("Quindar.wav");
    if (Settings().TipStartup() != 0) services.ShowTipOfTheDay(frame.get());
}

bool Workbench::PlaySound(std::string_view fileName) {
    return soundOn && !fileName.empty() && services.PlaySound(fileName);
}

QString Workbench::ChooseSaveFile(QWidget *parent, const QString &current) {
    return chooseSaveFile(parent, QStringLiteral("Save Quindar File"), current,
                          QString::fromLatin1(kDocumentFilter));
}

void Workbench::OpenFiles(const QStringList &paths) {
    if (frame != nullptr) frame->Client()->OpenFiles(paths, true);
}

void Workbench::AddRecentFile(const std::string &path) {
    const std::string absolute =
        QFileInfo(QString::fromStdString(path)).absoluteFilePath().toStdString();
    AppSettings(folders.recentFilesPath).AddRecentFile(absolute);
}

void Workbench::CloseDocument(DocumentWindow *document) {
    if (frame != nullptr) frame->Client()->CloseDocument(document);
}

bool Workbench::RunDocumentTool(DocumentWindow &document, int id) {
    return documentTools && documentTools(document, id);
}

bool Workbench::RunClientTool(int id) {
    return clientTools && clientTools(id);
}

bool Workbench::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_F1 && (key->modifiers() & Qt::ShiftModifier)) {
            router.Execute(command::kContextHelp);
            return true;
        }
        if (key->key() == Qt::Key_F1) {
            services.ShowHelpPage(HelpPage::Contents);
            return true;
        }
        if (key->key() == Qt::Key_Escape && contextHelpMode) {
            contextHelpMode = false;
            QGuiApplication::restoreOverrideCursor();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void Workbench::ShowContextHelp(int id) {
    const CommandInfo *command = find_command(id);
    CallContextHelp(command != nullptr ? command->helpTopic : 0);
}

void Workbench::CallContextHelp(int topic) {
    contextHelpMode = false;
    QGuiApplication::restoreOverrideCursor();
    if (topic != 0) services.ShowHelpTopic(topic);
}

bool Workbench::CommandEnabler(int id, CommandState &state) {
    switch (id) {
        case command::kSound:
            state.checked = soundOn;
            return true;
        case command::kContextHelp:
        case command::kTipOfTheDay:
        case command::kHelpAbout:
            return true;
        default:
            break;
    }
    for (const HelpCommand &help : kHelpCommands)
        if (help.id == id) return true;
    return false;
}

bool Workbench::CommandHandler(int id) {
    switch (id) {
        case command::kSound:
            // The click came first, so switching the sound on is silent.
            soundOn = !soundOn;
            Settings().Write(settings::kSound, soundOn);
            return true;
        case command::kContextHelp:
            contextHelpMode = !contextHelpMode;
            if (contextHelpMode)
                QGuiApplication::setOverrideCursor(Qt::WhatsThisCursor);
            else
                QGuiApplication::restoreOverrideCursor();
            return true;
        case command::kTipOfTheDay:
            services.ShowTipOfTheDay(frame.get());
            return true;
        case command::kHelpAbout:
            services.ShowAbout(frame.get());
            return true;
        default:
            break;
    }
    for (const HelpCommand &help : kHelpCommands) {
        if (help.id == id) {
            services.ShowHelpPage(help.page);
            return true;
        }
    }
    return false;
}

}  // namespace quindar
