// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Commands travel along a route: the focused widget, its parents, the current document,
// the frame, the client and the application. The first object on the route that answers a
// command id handles it and tells whether it is enabled and checked; a command that nothing
// on the route answers is disabled. Every handled command first plays its click and, in
// context-help mode, shows its help topic instead of acting.

#include <QObject>
#include <functional>
#include <map>
#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace quindar {

struct CommandState {
    bool enabled = true;
    bool checked = false;
};

// Something on the route. Both calls return false for an id the object does not answer.
class CommandTarget {
public:
    virtual ~CommandTarget() = default;
    // The Ce... enabler: fills state (enabled by default).
    virtual bool CommandEnabler(int id, CommandState &state) = 0;
    // The Cm... handler.
    virtual bool CommandHandler(int id) = 0;
};

class CommandRouter : public QObject {
    Q_OBJECT
public:
    explicit CommandRouter(QObject *parent = nullptr);

    // The targets behind the focused widget's chain, in route order; the document one is
    // asked for at each routing, since the current document changes.
    void SetCurrentDocument(std::function<CommandTarget *()> document) {
        currentDocument = std::move(document);
    }
    void SetFixedTargets(std::vector<CommandTarget *> targets) { fixed = std::move(targets); }

    // The route as it stands now.
    std::vector<CommandTarget *> Route() const;
    // The target that answers id, or null; state receives its enabler's answer.
    CommandTarget *Resolve(int id, CommandState &state) const;
    CommandState State(int id) const;

    // Runs the command: click, context help, or the first handler; false when disabled or
    // nothing answers.
    bool Execute(int id);

    // The action that stands for id in the menus and the tool bar.
    void RegisterAction(int id, QAction *action);
    QAction *Action(int id) const;
    // An action for a pop-up menu that lives as long as its parent: its state is taken now.
    QAction *PopupAction(int id, QObject *parent);
    // Runs the enablers of every registered action, or of the actions of one menu.
    void UpdateActions();
    void UpdateMenu(QMenu *menu);

    // The prologue of every command.
    std::function<void()> playClick;
    std::function<bool()> contextHelpMode;
    std::function<void(int id)> showContextHelp;

private:
    void UpdateAction(int id, QAction *action);

    std::function<CommandTarget *()> currentDocument;
    std::vector<CommandTarget *> fixed;
    std::map<int, std::vector<QAction *>> actions;
};

}  // namespace quindar
