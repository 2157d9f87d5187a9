// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The application: its folders and options, the message boxes, the services of its
// surroundings, the command route, and the start of a run (main window, first document, tip
// of the day). It answers the application's commands: Sound, the help commands, Context
// Help, Tip of the Day, About.

#include <QObject>
#include <QStringList>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app_services.h"
#include "app_settings.h"
#include "command_router.h"
#include "desktop_folders.h"
#include "message_boxes.h"

class QDialog;
class QFont;
class QWidget;

namespace quindar {

class DocumentArea;
class DocumentWindow;
class MainFrame;

class Workbench : public QObject, public CommandTarget {
    Q_OBJECT
public:
    Workbench(AppServices &services, DesktopFolders folders);
    ~Workbench() override;

    const DesktopFolders &Folders() const { return folders; }
    AppSettings Settings() const { return AppSettings(folders.settingsPath); }
    MessageBoxes &Messages() { return messages; }
    AppServices &Services() { return services; }
    CommandRouter &Router() { return router; }
    MainFrame *Frame() const { return frame.get(); }
    DocumentArea *Client() const;

    // Builds the main window and opens the first document: the file the words name, or a new
    // one. The caller shows the frame. Returns the frame.
    MainFrame *Start(const std::vector<std::string> &words);
    // What the program does after the main window shows: the tip of the day.
    void AfterShow();

    // The options read at start (Part of the settings file's OPTIONS section).
    bool soundOn = true;
    bool showIncrementals = true;
    bool flatButtons = false;
    bool calculationMethod = true;
    bool useSquareBrackets = false;
    bool contextHelpMode = false;
    // The run is ending: closing documents play no sound.
    bool closing = false;
    // The calculator bar shows (it comes with its own window).
    bool calculatorShowing = false;

    // Plays a sound of the Sounds folder when sound is on; false when nothing played.
    bool PlaySound(std::string_view fileName);
    // Leaves context-help mode and shows the topic (0: none).
    void CallContextHelp(int topic);

    // Opening and saving files; tests put their own choosers in place of the dialogs.
    using OpenChooser = std::function<QStringList(QWidget *parent, const QString &title,
                                                  const QString &folder, const QString &filter)>;
    using SaveChooser = std::function<QString(QWidget *parent, const QString &title,
                                              const QString &suggested, const QString &filter)>;
    OpenChooser chooseOpenFiles;
    SaveChooser chooseSaveFile;
    // Starting another program, and running a modal dialog of the program's own; tests put
    // theirs in place.
    std::function<bool(const QString &program, const QStringList &arguments)> startProcess;
    std::function<void(QDialog &dialog)> runDialog;
    QString ChooseSaveFile(QWidget *parent, const QString &current);

    // Opens files dropped, chosen from the recent files, or handed over by a later start.
    void OpenFiles(const QStringList &paths);
    void AddRecentFile(const std::string &path);
    void CloseDocument(DocumentWindow *document);
    // The tools of a document that open windows of their own (lists, managers, graphs,
    // calculus): true when a tool took the command; false while none is installed.
    bool RunDocumentTool(DocumentWindow &document, int id);
    std::function<bool(DocumentWindow &, int id)> documentTools;
    // The first document of a set opened and the last one closed: the calculator bar follows
    // (it opens as the ShowCalcBar option says, and closes with the last document).
    std::function<void()> firstDocumentOpened;
    std::function<void()> lastDocumentClosed;
    // The same for the client's tools: printing, Options, Function Library, calculator.
    bool RunClientTool(int id);
    std::function<bool(int id)> clientTools;

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

protected:
    // F1 shows the help contents, Shift+F1 starts context help, Escape leaves it.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void RemoveStaleTemporaryFiles();
    void ShowContextHelp(int id);

    AppServices &services;
    DesktopFolders folders;
    MessageBoxes messages;
    CommandRouter router;
    std::unique_ptr<MainFrame> frame;
};

}  // namespace quindar
