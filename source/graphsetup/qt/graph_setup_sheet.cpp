// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_setup_sheet.h"

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <charconv>
#include <utility>
#include <vector>

#include "command_table.h"
#include "document_panes.h"
#include "document_window.h"
#include "functions_page_model.h"
#include "graph_messages.h"
#include "graphs_page_model.h"
#include "math_editor_widget.h"
#include "message_box_rules.h"
#include "message_boxes.h"
#include "setup_page_model.h"
#include "setup_page_widget.h"
#include "setup_session.h"
#include "workbench.h"

namespace quindar {

namespace {

constexpr int kHelpButtonId = 9;

// A numbered text of Graph Setup: the string table first, then the graph layer's own.
std::string SetupText(int id) {
    const QString table = ui_string(id);
    if (!table.isEmpty()) return table.toStdString();
    return std::string(graph_message(id));
}

}  // namespace

const SetupPageMakers kSetupPageMakers{
    make_graphs_page, make_functions_page, make_points_page, make_variables_page,
    make_labels_page, make_types_page,     make_colors_page,
};

GraphSetupSheet::GraphSetupSheet(Workbench &bench, DocumentWindow &owner, GraphSetupSession &setup,
                                 std::optional<QPoint> at, const SetupPageMakers &makers)
    : QDialog(&owner, Qt::Window), workbench(bench), document(owner), session(setup) {
    setWindowTitle(QString::fromUtf8(kGraphSetupTitle.data(),
                                     static_cast<qsizetype>(kGraphSetupTitle.size())));
    setAccessibleName(QStringLiteral("Graph Setup"));
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);
    auto *layout = new QVBoxLayout(this);
    tabs = new QTabWidget(this);
    tabs->setAccessibleName(QStringLiteral("Graph Setup Pages"));
    tabs->tabBar()->installEventFilter(this);
    tabs->installEventFilter(this);
    layout->addWidget(tabs);

    SetupPageContext context{workbench, document, session, *this};
    for (int index = 0; index < kSetupPageCount; ++index) {
        MadeSetupPage made = makers[static_cast<std::size_t>(index)](context, tabs);
        session.pages[static_cast<std::size_t>(index)] = made.model.get();
        models[static_cast<std::size_t>(index)] = std::move(made.model);
        widgets[static_cast<std::size_t>(index)] = made.widget;
        const std::string_view tab = kSetupPages[static_cast<std::size_t>(index)].tab;
        made.widget->setAccessibleName(
            QString::fromUtf8(tab.data(), static_cast<qsizetype>(tab.size())) +
            QStringLiteral(" page"));
        tabs->addTab(made.widget,
                     QString::fromUtf8(tab.data(), static_cast<qsizetype>(tab.size())));
    }

    auto *row = new QHBoxLayout;
    prevButton = new QPushButton(this);
    helpButton = new QPushButton(QStringLiteral("Help"), this);
    nextButton = new QPushButton(this);
    helpButton->setAccessibleName(QStringLiteral("Help"));
    for (QPushButton *button : {prevButton, helpButton, nextButton}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    prevButton->setProperty("controlId", kButtonPrev);
    helpButton->setProperty("controlId", kHelpButtonId);
    nextButton->setProperty("controlId", kButtonNext);
    layout->addLayout(row);
    connect(prevButton, &QPushButton::clicked, this, &GraphSetupSheet::LeftButton);
    connect(nextButton, &QPushButton::clicked, this, &GraphSetupSheet::RightButton);
    connect(helpButton, &QPushButton::clicked, this, [this] {
        workbench.PlaySound("QClick.wav");
        workbench.Services().ShowHelpTopic(
            kSetupPages[static_cast<std::size_t>(ShowingPage())].helpId);
    });

    buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, this);
    buttons->setAccessibleName(QStringLiteral("Sheet Buttons"));
    for (QAbstractButton *button : buttons->buttons()) {
        button->setAccessibleName(button->text().remove(QLatin1Char('&')));
        if (auto *push = qobject_cast<QPushButton *>(button)) push->setAutoDefault(false);
    }
    applyButton = buttons->button(QDialogButtonBox::Apply);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (Apply()) accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(applyButton, &QPushButton::clicked, this, &GraphSetupSheet::Apply);
    layout->addWidget(buttons);

    const int first = std::clamp(session.lastSetupPage, 0, kSetupPageCount - 1);
    ShowPage(first);
    UpdateApply();
    adjustSize();
    if (at) {
        move(*at);
    } else if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        move(screen->availableGeometry().center() - rect().center());
    }
}

GraphSetupSheet::~GraphSetupSheet() {
    session.lastSetupPage = ShowingPage() >= 0 ? ShowingPage() : session.lastSetupPage;
    session.pages.fill(nullptr);
    // The page widgets go before the models they show; the tab bar asks nothing meanwhile.
    QTabWidget *dying = std::exchange(tabs, nullptr);
    dying->tabBar()->removeEventFilter(this);
    dying->removeEventFilter(this);
    delete dying;
}

GraphsPageModel &GraphSetupSheet::GraphsModel() const {
    return static_cast<GraphsPageModel &>(*models[kPageGraphs]);
}

void GraphSetupSheet::ShowPage(int index) {
    shown = index;
    {
        const QSignalBlocker blocker(tabs);
        tabs->setCurrentIndex(index);
    }
    widgets[static_cast<std::size_t>(index)]->SetActive();
    UpdateButtonRow();
}

bool GraphSetupSheet::RequestPage(int index) {
    if (index < 0 || index >= kSetupPageCount || index == shown) return true;
    if (!leaving && shown >= 0) {
        leaving = true;
        const bool mayLeave = widgets[static_cast<std::size_t>(shown)]->KillActive();
        leaving = false;
        if (!mayLeave) return false;
    }
    // Leaving may itself have chosen the page to show.
    if (index != shown) ShowPage(index);
    return true;
}

void GraphSetupSheet::UpdateButtonRow() {
    const int index = ShowingPage();
    if (index == kPageGraphs) {
        prevButton->setText(QStringLiteral("Graph Data Points"));
        nextButton->setText(QStringLiteral("Graph Functions"));
        prevButton->setProperty("controlId", kButtonGraphDataPoints);
        nextButton->setProperty("controlId", kButtonGraphFunctions);
    } else {
        prevButton->setText(QStringLiteral("Prev"));
        nextButton->setText(index == kPageColors ? QStringLiteral("Finish")
                                                 : QStringLiteral("Next"));
        prevButton->setProperty("controlId", kButtonPrev);
        nextButton->setProperty("controlId", kButtonNext);
    }
    for (QPushButton *button : {prevButton, nextButton}) button->setAccessibleName(button->text());
    // The Colors page's Finish stays while a build runs, the others go with their pages.
    prevButton->setEnabled(pagesEnabled || index == kPageColors);
    nextButton->setEnabled(pagesEnabled || index == kPageColors);
}

void GraphSetupSheet::LeftButton() {
    const int index = ShowingPage();
    if (index == kPageGraphs)
        GraphsModel().GraphDataPoints();
    else
        widgets[static_cast<std::size_t>(index)]->Prev();
}

void GraphSetupSheet::RightButton() {
    const int index = ShowingPage();
    if (index == kPageGraphs)
        GraphsModel().GraphFunctions();
    else if (index == kPageColors)
        Finish();
    else
        widgets[static_cast<std::size_t>(index)]->Next();
}

void GraphSetupSheet::Finish() {
    // A build running already keeps the sheet as it is.
    if (!pagesEnabled) return;
    if (!GraphsModel().BuildGraph()) return;
    if (Apply()) accept();
}

bool GraphSetupSheet::Apply() {
    const bool applied = GraphsModel().ApplySheet();
    if (applied) changedPages.clear();
    UpdateApply();
    if (session.graphsChanged) document.MarkGraphsChanged();
    return applied;
}

void GraphSetupSheet::UpdateApply() {
    applyButton->setEnabled(!changedPages.empty());
}

bool GraphSetupSheet::TabKey(const QKeyEvent &key) {
    const bool control = key.modifiers() & Qt::ControlModifier;
    int target = -1;
    const int count = tabs->count();
    if ((control && key.key() == Qt::Key_Tab) || (control && key.key() == Qt::Key_PageDown))
        target = (shown + 1) % count;
    else if (key.key() == Qt::Key_Backtab || (control && key.key() == Qt::Key_PageUp))
        target = (shown + count - 1) % count;
    if (target < 0) return false;
    RequestPage(target);
    return true;
}

bool GraphSetupSheet::eventFilter(QObject *watched, QEvent *event) {
    if (tabs != nullptr && watched == tabs->tabBar()) {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick: {
                const auto *mouse = static_cast<QMouseEvent *>(event);
                const int index = tabs->tabBar()->tabAt(mouse->position().toPoint());
                if (mouse->button() == Qt::LeftButton && index >= 0 && pagesEnabled)
                    RequestPage(index);
                return true;
            }
            case QEvent::Wheel:
                return true;
            case QEvent::KeyPress: {
                const auto *key = static_cast<QKeyEvent *>(event);
                int target = -1;
                if (key->key() == Qt::Key_Left) target = shown - 1;
                if (key->key() == Qt::Key_Right) target = shown + 1;
                if (key->key() == Qt::Key_Home) target = 0;
                if (key->key() == Qt::Key_End) target = kSetupPageCount - 1;
                if (target >= 0 && target < kSetupPageCount) {
                    RequestPage(target);
                    return true;
                }
                return TabKey(*key);
            }
            default:
                break;
        }
    }
    if (watched == tabs && event->type() == QEvent::KeyPress)
        return TabKey(*static_cast<QKeyEvent *>(event));
    return QDialog::eventFilter(watched, event);
}

bool GraphSetupSheet::event(QEvent *event) {
    auto *functions = dynamic_cast<FunctionsPageModel *>(models[kPageFunctions].get());
    if (event->type() == QEvent::WindowActivate && shown == kPageFunctions && pagesEnabled &&
        functions != nullptr && !refreshing) {
        refreshing = true;
        functions->UpdatePage();
        widgets[kPageFunctions]->UpdatePage();
        refreshing = false;
    }
    return QDialog::event(event);
}

int GraphSetupSheet::Message(int textId, std::initializer_list<std::string_view> fields,
                             unsigned flags) {
    const std::string text = SetupText(textId);
    const std::vector<std::string_view> arguments(fields);
    // A count goes into a "%d" of its text; names and values into "%s".
    std::optional<std::string> filled;
    int count = 0;
    if (text.find("%d") != std::string::npos && arguments.size() == 1 &&
        std::from_chars(arguments[0].data(), arguments[0].data() + arguments[0].size(), count).ec ==
            std::errc())
        filled = format_message(text, count);
    else
        filled = format_message(text, arguments);
    if (!filled) return kBoxNotShown;
    return workbench.Messages().ShowPlain(
        this, QString::fromStdString(*filled),
        QString::fromStdString(SetupText(kGraphingUtilityTitleId)), flags);
}

void GraphSetupSheet::ShowText(std::string_view text, std::string_view caption) {
    workbench.Messages().ShowPlain(this, QString::fromUtf8(text.data(), qsizetype(text.size())),
                                   QString::fromUtf8(caption.data(), qsizetype(caption.size())),
                                   kBoxWarning);
}

void GraphSetupSheet::AddError(std::string_view text) {
    GraphsModel().AddError(std::string(text).c_str());
    widgets[kPageGraphs]->UpdatePage();
}

void GraphSetupSheet::Sound(std::string_view file) {
    workbench.PlaySound(file);
}

void GraphSetupSheet::SelectPage(int index) {
    RequestPage(index);
}

int GraphSetupSheet::ShowingPage() const {
    return shown;
}

void GraphSetupSheet::FocusControl(int index, int controlId) {
    QWidget *page = widgets[static_cast<std::size_t>(index)];
    // Later, so that a refusal made while the focus moves does not start a loop.
    QTimer::singleShot(0, page, [page, controlId] {
        for (QWidget *control : page->findChildren<QWidget *>()) {
            if (control->property("controlId").toInt() != controlId) continue;
            control->setFocus(Qt::OtherFocusReason);
            if (auto *list = qobject_cast<QListWidget *>(control); list && list->count() > 0)
                list->setCurrentRow(list->count() - 1);
            return;
        }
    });
}

void GraphSetupSheet::PageChanged() {
    changedPages.insert(std::max(ShowingPage(), 0));
    UpdateApply();
}

void GraphSetupSheet::PageUnchanged(int index) {
    changedPages.erase(index);
    UpdateApply();
}

void GraphSetupSheet::FocusEditor() {
    document.TextPane().setFocus(Qt::OtherFocusReason);
}

bool GraphSetupSheet::AddEditFunction(const std::string &name, const std::string &value) {
    return document.Panes().AddEditFunction(name, value);
}

bool GraphSetupSheet::EditVariable(const std::string &name) {
    document.Panes().OpenVariableManager(name);
    return true;
}

void GraphSetupSheet::EnableGraphSetup(bool enable) {
    pagesEnabled = enable;
    for (int index = 0; index < kSetupPageCount; ++index)
        if (index != kPageColors) widgets[static_cast<std::size_t>(index)]->EnablePage(enable);
    buttons->setEnabled(enable);
    UpdateButtonRow();
}

void GraphSetupSheet::OpenFunctionManager(const std::string &name) {
    document.Panes().OpenFunctionManager(name);
}

void GraphSetupSheet::OpenFunctionLibrary() {
    workbench.RunClientTool(command::kFunctionLibrary);
}

void GraphSetupSheet::done(int result) {
    // The sheet can't go while it builds.
    if (!pagesEnabled) return;
    emit closing();
    QDialog::done(result);
    close();
}

}  // namespace quindar
