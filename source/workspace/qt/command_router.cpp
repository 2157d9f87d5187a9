// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "command_router.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QWidget>
#include <algorithm>

#include "command_table.h"

namespace quindar {

CommandRouter::CommandRouter(QObject *parent) : QObject(parent) {}

std::vector<CommandTarget *> CommandRouter::Route() const {
    std::vector<CommandTarget *> route;
    const auto add = [&route](CommandTarget *target) {
        if (target != nullptr && std::ranges::find(route, target) == route.end())
            route.push_back(target);
    };
    for (QWidget *widget = QApplication::focusWidget(); widget != nullptr;
         widget = widget->parentWidget())
        add(dynamic_cast<CommandTarget *>(widget));
    if (currentDocument) add(currentDocument());
    for (CommandTarget *target : fixed) add(target);
    return route;
}

CommandTarget *CommandRouter::Resolve(int id, CommandState &state) const {
    for (CommandTarget *target : Route()) {
        CommandState answer;
        if (target->CommandEnabler(id, answer)) {
            state = answer;
            return target;
        }
    }
    state = CommandState{false, false};
    return nullptr;
}

CommandState CommandRouter::State(int id) const {
    CommandState state;
    Resolve(id, state);
    return state;
}

bool CommandRouter::Execute(int id) {
    CommandState state;
    CommandTarget *target = Resolve(id, state);
    if (target == nullptr || !state.enabled) return false;
    if (playClick) playClick();
    if (contextHelpMode && contextHelpMode() && id != command::kContextHelp) {
        if (showContextHelp) showContextHelp(id);
        return true;
    }
    target->CommandHandler(id);
    UpdateActions();
    return true;
}

void CommandRouter::RegisterAction(int id, QAction *action) {
    actions[id].push_back(action);
    connect(action, &QAction::triggered, this, [this, id, action](bool) {
        // A checkable action toggles itself; the handler decides, the enabler shows it.
        if (action->isCheckable()) action->setChecked(!action->isChecked());
        Execute(id);
    });
}

QAction *CommandRouter::Action(int id) const {
    const auto found = actions.find(id);
    return found == actions.end() || found->second.empty() ? nullptr : found->second.front();
}

QAction *CommandRouter::PopupAction(int id, QObject *parent) {
    const CommandInfo *command = find_command(id);
    auto *action =
        new QAction(command != nullptr ? QString::fromUtf8(command->label) : QString(), parent);
    action->setData(id);
    action->setCheckable(command != nullptr && command->checkable);
    UpdateAction(id, action);
    connect(action, &QAction::triggered, this, [this, id](bool) { Execute(id); });
    return action;
}

void CommandRouter::UpdateAction(int id, QAction *action) {
    const CommandState state = State(id);
    action->setEnabled(state.enabled);
    if (action->isCheckable()) action->setChecked(state.checked);
}

void CommandRouter::UpdateActions() {
    for (const auto &[id, list] : actions)
        for (QAction *action : list) UpdateAction(id, action);
}

void CommandRouter::UpdateMenu(QMenu *menu) {
    for (QAction *action : menu->actions()) {
        const int id = action->data().toInt();
        if (id > 0) UpdateAction(id, action);
    }
}

}  // namespace quindar
