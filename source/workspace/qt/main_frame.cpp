// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "main_frame.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QToolBar>
#include <QUrl>

#include "command_table.h"
#include "document_area.h"
#include "document_close_rules.h"
#include "document_roster.h"
#include "document_window.h"
#include "lock_keys.h"
#include "math_editor_widget.h"
#include "message_boxes.h"
#include "workbench.h"

namespace quindar {
namespace {

constexpr int kComboWidth = 180;
constexpr int kFrameIcon = 1001;
constexpr std::size_t kWindowMenuIndex = 6;
constexpr int kWindowComboHelpTopic = 19469;
constexpr int kLineGadgetCharacters = 10;
constexpr const char *kLockNames[] = {"CAPS", "NUM", "SCRL", "OVR"};

QString IconPath(int id) {
    return QStringLiteral(":/icons/%1.svg").arg(id);
}

}  // namespace

MainFrame::MainFrame(Workbench &owner) : workbench(owner) {
    setObjectName(QStringLiteral("QuindarWindow"));
    setWindowTitle(ui_string(kTitleQuindar));
    setAccessibleName(ui_string(kTitleQuindar));
    setAcceptDrops(true);
    if (QFile::exists(IconPath(kFrameIcon))) setWindowIcon(QIcon(IconPath(kFrameIcon)));
    const AppSettings settings = workbench.Settings();
    toolBarShown = settings.ToolBar();
    hintMode = settings.Hints() == 1 ? 1 : 2;

    client = new DocumentArea(workbench, this);
    setCentralWidget(client);
    BuildMenus();
    BuildToolBar();
    BuildStatusBar();
    connect(client, &DocumentArea::documentsChanged, this, &MainFrame::DocumentsChanged);
    connect(client, &DocumentArea::currentDocumentChanged, this,
            &MainFrame::CurrentDocumentChanged);
    DocumentsChanged();
    resize(1000, 700);
}

// The client's windows go with the frame; their last signals find no frame to update.
MainFrame::~MainFrame() {
    client->disconnect(this);
}

QAction *MainFrame::MakeAction(int id) {
    const CommandInfo *command = find_command(id);
    auto *action = new QAction(QString::fromUtf8(command->label), this);
    action->setData(id);
    action->setCheckable(command->checkable);
    const QString hint = ui_string(id);
    action->setStatusTip(hint);
    char buffer[128];
    const QString plain = QString::fromUtf8(command_plain_label(*command, buffer, sizeof buffer));
    action->setToolTip(plain);
    action->setIconText(plain);
    if (command->hasIcon && QFile::exists(IconPath(id))) action->setIcon(QIcon(IconPath(id)));
    workbench.Router().RegisterAction(id, action);
    return action;
}

void MainFrame::BuildMenus() {
    const auto fill = [this](QMenu *menu, const MenuSpec &spec, auto &self) -> void {
        for (const int item : spec.items) {
            if (item == command::kSeparator) {
                menu->addSeparator();
            } else if (item < 0) {
                const MenuSpec &sub = submenus()[static_cast<std::size_t>(-1 - item)];
                QMenu *child = menu->addMenu(QString::fromUtf8(sub.title));
                child->setAccessibleName(QString::fromUtf8(sub.title).remove(QLatin1Char('&')));
                self(child, sub, self);
                connect(child, &QMenu::aboutToShow, this,
                        [this, child] { workbench.Router().UpdateMenu(child); });
            } else {
                QAction *action = MakeAction(item);
                const CommandInfo *command = find_command(item);
                if (command->key != nullptr) {
                    action->setShortcut(QKeySequence(QString::fromLatin1(command->key)));
                    action->setShortcutContext(Qt::WindowShortcut);
                }
                menu->addAction(action);
                if (item == command::kExit) recentFilesMark = action;
            }
        }
    };
    for (const MenuSpec &spec : menu_bar()) {
        QMenu *menu = menuBar()->addMenu(QString::fromUtf8(spec.title));
        menu->setAccessibleName(QString::fromUtf8(spec.title).remove(QLatin1Char('&')));
        fill(menu, spec, fill);
        connect(menu, &QMenu::aboutToShow, this,
                [this, menu] { workbench.Router().UpdateMenu(menu); });
        if (spec.documentMenu) documentMenuActions.push_back(menu->menuAction());
        menus.push_back(menu);
        if (fileMenu == nullptr) fileMenu = menu;
    }
    // The recent files stand between Print Setup and Exit.
    recentFilesMark = fileMenu->insertSeparator(recentFilesMark);
    RebuildRecentFiles();
    connect(fileMenu, &QMenu::aboutToShow, this, &MainFrame::RebuildRecentFiles);
    // The Window menu ends with the open documents, the current one checked.
    windowMenu = menus.at(kWindowMenuIndex);
    connect(windowMenu, &QMenu::aboutToShow, this, &MainFrame::RebuildDocumentList);
}

void MainFrame::RebuildDocumentList() {
    for (QAction *action : documentListActions) delete action;
    documentListActions.clear();
    if (client->Count() == 0) return;
    documentListActions.push_back(windowMenu->addSeparator());
    const int current = client->CurrentIndex();
    for (int index = 0; index < client->Count(); ++index) {
        DocumentWindow *document = client->At(index);
        if (document == nullptr) continue;
        auto *action =
            windowMenu->addAction(QStringLiteral("&%1 %2").arg(index + 1).arg(document->Caption()));
        action->setCheckable(true);
        action->setChecked(index == current);
        connect(action, &QAction::triggered, this, [this, index] { client->Activate(index); });
        documentListActions.push_back(action);
    }
}

void MainFrame::RebuildRecentFiles() {
    for (QAction *action : recentFileActions) delete action;
    recentFileActions.clear();
    const std::vector<std::string> files =
        AppSettings(workbench.Folders().recentFilesPath).RecentFiles();
    int number = 1;
    for (const std::string &file : files) {
        const QString path = QString::fromStdString(file);
        auto *action = new QAction(QStringLiteral("&%1 %2").arg(number++).arg(path), this);
        connect(action, &QAction::triggered, this, [this, path] { workbench.OpenFiles({path}); });
        fileMenu->insertAction(recentFilesMark, action);
        recentFileActions.push_back(action);
    }
}

void MainFrame::BuildToolBar() {
    toolBar = addToolBar(QStringLiteral("Tool Bar"));
    toolBar->setObjectName(QStringLiteral("ToolBar"));
    toolBar->setAccessibleName(QStringLiteral("Tool Bar"));
    toolBar->setMovable(true);
    toolBar->setFloatable(true);
    toolBar->setIconSize(QSize(20, 20));
    toolBar->installEventFilter(this);
    const auto layout = tool_bar_layout();
    for (std::size_t at = 0; at < layout.size(); ++at) {
        const int item = layout[at];
        QAction *action = nullptr;
        if (item == command::kSeparator) {
            action = toolBar->addSeparator();
            // The separator in front of the help buttons belongs to the short bar too.
            const bool beforeHelp = at + 1 < layout.size() && in_short_tool_bar(layout[at + 1]);
            if (!beforeHelp) longToolBarActions.push_back(action);
            continue;
        }
        if (item == command::kWindowCombo) {
            windowCombo = new QComboBox(toolBar);
            windowCombo->setFixedWidth(kComboWidth);
            windowCombo->setAccessibleName(QStringLiteral("Open documents"));
            windowCombo->setToolTip(QStringLiteral("Open documents"));
            windowCombo->setFocusPolicy(Qt::ClickFocus);
            connect(windowCombo, &QComboBox::activated, this, [this](int index) {
                workbench.PlaySound("QClick.wav");
                if (workbench.contextHelpMode)
                    workbench.CallContextHelp(kWindowComboHelpTopic);
                else
                    client->Activate(index);
            });
            windowComboAction = toolBar->addWidget(windowCombo);
            longToolBarActions.push_back(windowComboAction);
            continue;
        }
        action = MakeAction(item);
        if (is_pressable_button(item)) action->setCheckable(true);
        toolBar->addAction(action);
        if (QWidget *button = toolBar->widgetForAction(action)) {
            button->setAccessibleName(action->toolTip());
            button->setProperty("commandId", item);
        }
        if (!in_short_tool_bar(item)) longToolBarActions.push_back(action);
    }
    toolBar->setVisible(toolBarShown);
}

void MainFrame::BuildStatusBar() {
    QStatusBar *bar = statusBar();
    bar->setAccessibleName(QStringLiteral("Status Bar"));
    bar->setSizeGripEnabled(true);
    lineGadget = new QLabel(bar);
    lineGadget->setAccessibleName(QStringLiteral("Caret line"));
    lineGadget->setMinimumWidth(lineGadget->fontMetrics().averageCharWidth() *
                                kLineGadgetCharacters);
    lineGadget->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    hintLabel = new QLabel(bar);
    hintLabel->setAccessibleName(QStringLiteral("Hint"));
    bar->addWidget(lineGadget);
    bar->addWidget(hintLabel, 1);
    for (const char *name : kLockNames) {
        auto *indicator = new QLabel(bar);
        indicator->setAccessibleName(QString::fromLatin1(name));
        indicator->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        indicator->setMinimumWidth(
            indicator->fontMetrics().horizontalAdvance(QStringLiteral("SCRL")) + 8);
        indicator->setAlignment(Qt::AlignCenter);
        bar->addPermanentWidget(indicator);
        lockIndicators.push_back(indicator);
    }
}

void MainFrame::ShowHint(const QString &text) {
    hintLabel->setText(text);
}

void MainFrame::IdleAction() {
    workbench.Router().UpdateActions();
    DocumentWindow *document = client->Current();
    lineGadget->setText(document != nullptr
                            ? QStringLiteral("Line: %1").arg(document->TextPane().CaretLineNumber())
                            : QString());
    // The lock keys are asked of the X server at most a few times a second.
    if (!lockClock.isValid() || lockClock.elapsed() > 200) {
        lockClock.start();
        const LockKeys keys = read_lock_keys();
        const bool states[] = {keys.capsLock, keys.numLock, keys.scrollLock};
        for (std::size_t at = 0; at < std::size(states); ++at)
            lockIndicators[at]->setText(states[at] ? QString::fromLatin1(kLockNames[at])
                                                   : QString());
    }
    // Overtype follows the text pane's Insert toggle.
    const bool overtype = document != nullptr && document->TextPane().overwriteMode();
    lockIndicators.back()->setText(overtype ? QString::fromLatin1(kLockNames[3]) : QString());
}

void MainFrame::DocumentsChanged() {
    const bool haveDocuments = client->Count() > 0;
    for (QAction *action : documentMenuActions) action->setVisible(haveDocuments);
    for (QAction *action : longToolBarActions) action->setVisible(haveDocuments);
    windowCombo->setEnabled(haveDocuments);
    windowCombo->clear();
    for (int index = 0; index < client->Count(); ++index) {
        if (DocumentWindow *document = client->At(index))
            windowCombo->addItem(
                QString::fromStdString(combo_entry_text(document->Caption().toStdString())));
    }
    CurrentDocumentChanged();
}

void MainFrame::CurrentDocumentChanged() {
    windowCombo->setCurrentIndex(client->CurrentIndex());
    IdleAction();
}

bool MainFrame::event(QEvent *event) {
    if (event->type() == QEvent::Show) {
        // The bar's own pop-up for menus that do not fit, made once the bar is laid out.
        for (QMenu *menu : menuBar()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly))
            if (menu->accessibleName().isEmpty())
                menu->setAccessibleName(QStringLiteral("More menus"));
    }
    if (event->type() == QEvent::StatusTip) {
        hintLabel->setText(static_cast<QStatusTipEvent *>(event)->tip());
        return true;
    }
    return QMainWindow::event(event);
}

bool MainFrame::eventFilter(QObject *watched, QEvent *event) {
    // Hints on pressing: a tool button's hint shows only while a mouse button is down.
    if (watched == toolBar && event->type() == QEvent::StatusTip && hintMode == 1 &&
        QApplication::mouseButtons() == Qt::NoButton &&
        !static_cast<QStatusTipEvent *>(event)->tip().isEmpty())
        return true;
    return QMainWindow::eventFilter(watched, event);
}

void MainFrame::closeEvent(QCloseEvent *event) {
    workbench.closing = true;
    if (!client->CloseAllDocuments()) {
        workbench.closing = false;
        event->ignore();
        return;
    }
    event->accept();
}

void MainFrame::dragEnterEvent(QDragEnterEvent *event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainFrame::dropEvent(QDropEvent *event) {
    QStringList paths;
    for (const QUrl &url : event->mimeData()->urls())
        if (url.isLocalFile()) paths << url.toLocalFile();
    event->acceptProposedAction();
    workbench.OpenFiles(paths);
}

bool MainFrame::CommandEnabler(int id, CommandState &state) {
    switch (id) {
        case command::kExit:
            return true;
        case command::kShowToolBar:
            state.checked = toolBar->isVisible() && !toolBar->isFloating();
            return true;
        case command::kShowStatusBar:
            state.checked = statusBar()->isVisible();
            return true;
        case command::kShowHints:
            state.checked = hintMode == 2;
            return true;
        default:
            return false;
    }
}

bool MainFrame::CommandHandler(int id) {
    switch (id) {
        case command::kExit:
            close();
            return true;
        case command::kShowToolBar:
            toolBarShown = !toolBarShown;
            toolBar->setVisible(toolBarShown);
            workbench.Settings().Write(settings::kToolBar, toolBarShown);
            return true;
        case command::kShowStatusBar:
            statusBar()->setVisible(!statusBar()->isVisible());
            return true;
        case command::kShowHints:
            hintMode = hintMode == 1 ? 2 : 1;
            workbench.Settings().Write(settings::kHints, hintMode);
            return true;
        default:
            return false;
    }
}

}  // namespace quindar
