// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_library_dialog.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "default_application.h"
#include "document_area.h"
#include "document_window.h"
#include "function_library_browser.h"
#include "function_library_insert.h"
#include "function_library_rules.h"
#include "library_editor_window.h"
#include "main_frame.h"
#include "math_editor_widget.h"
#include "plain_text_buffer.h"
#include "user_library.h"
#include "var_fun_ini_file.h"
#include "workbench.h"

namespace quindar {
namespace {

constexpr const char *kDialogTitle = "Mathematical Function Library";

QString FromBytes(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QPushButton *MakeButton(const char *text, QWidget *parent) {
    auto *button = new QPushButton(QString::fromLatin1(text), parent);
    button->setAccessibleName(QString::fromLatin1(text).trimmed());
    // Enter in the Search box must not press a button and close the dialog.
    button->setAutoDefault(false);
    return button;
}

}  // namespace

FunctionLibraryDialog::FunctionLibraryDialog(Workbench &bench, QWidget *parent)
    : QDialog(parent), workbench(bench) {
    setWindowTitle(QString::fromLatin1(kDialogTitle));
    setAccessibleName(QString::fromLatin1(kDialogTitle));
    setModal(false);

    const DesktopFolders &folders = workbench.Folders();
    const std::string systemPath = folders.libraryDir + kSystemLibraryName;
    const std::string userPath = folders.userLibraryDir + kUserLibraryName;
    systemLibrary = std::make_unique<VarFunIniFile>(systemPath.c_str());
    // A user library that cannot be read is told once, with the message Edit F[x] gives for
    // it; the dialog goes on with the system library.
    userLibrary = std::make_unique<VarFunIniFile>(
        userPath.c_str(), nullptr, nullptr, [this, userPath](std::string_view, std::string_view) {
            if (userLibraryTold) return;
            userLibraryTold = true;
            ShowLibraryMessage(kUserLibraryNotOpened, userPath);
        });
    catalog = std::make_unique<FunctionLibraryCatalog>(systemLibrary.get(), userLibrary.get());
    browser = std::make_unique<FunctionLibraryBrowser>(*catalog);

    BuildControls();
    FillCategories();
    FillNames();
    ShowEntry();
    UpdateBack();
}

FunctionLibraryDialog::~FunctionLibraryDialog() = default;

void FunctionLibraryDialog::BuildControls() {
    search = new QLineEdit(this);
    search->setAccessibleName(QStringLiteral("Search"));
    search->setPlaceholderText(QStringLiteral("Search"));
    backButton = MakeButton("Back", this);
    categoryList = new QListWidget(this);
    categoryList->setAccessibleName(QStringLiteral("Categories"));
    nameList = new QListWidget(this);
    nameList->setAccessibleName(QStringLiteral("Functions"));

    auto *prototypeGroup = new QGroupBox(QStringLiteral("Function Prototype"), this);
    prototypeGroup->setAccessibleName(prototypeGroup->title());
    prototypeText = new QLabel(prototypeGroup);
    prototypeText->setAccessibleName(QStringLiteral("Prototype"));
    prototypeText->setWordWrap(true);
    prototypeText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    (new QVBoxLayout(prototypeGroup))->addWidget(prototypeText);
    auto *descriptionGroup = new QGroupBox(QStringLiteral("Function Description"), this);
    descriptionGroup->setAccessibleName(descriptionGroup->title());
    descriptionText = new QLabel(descriptionGroup);
    descriptionText->setAccessibleName(QStringLiteral("Description"));
    descriptionText->setWordWrap(true);
    descriptionText->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    descriptionText->setMinimumHeight(72);
    descriptionText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    (new QVBoxLayout(descriptionGroup))->addWidget(descriptionText);

    helpFunctionButton = MakeButton(" Help F[x]", this);
    insertButton = MakeButton(" Insert F[x]", this);
    solveButton = MakeButton(" Solve F[x]", this);
    editButton = MakeButton("Edit F[x]", this);
    quitButton = MakeButton("Quit", this);
    helpButton = MakeButton("Help", this);

    auto *searchRow = new QHBoxLayout;
    searchRow->addWidget(search, 1);
    searchRow->addWidget(backButton);
    auto *lists = new QHBoxLayout;
    lists->addWidget(categoryList, 2);
    lists->addWidget(nameList, 3);
    auto *buttons = new QGridLayout;
    // Help F[x] last in its row, so that hiding it for a constant or a library function
    // leaves no hole between the others.
    QPushButton *const order[] = {insertButton, solveButton, helpFunctionButton,
                                  editButton,   quitButton,  helpButton};
    for (int at = 0; at < 6; ++at) buttons->addWidget(order[at], at / 3, at % 3);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(searchRow);
    layout->addLayout(lists, 1);
    layout->addWidget(prototypeGroup);
    layout->addWidget(descriptionGroup);
    layout->addLayout(buttons);
    resize(560, 520);

    connect(search, &QLineEdit::textEdited, this, &FunctionLibraryDialog::SearchChanged);
    connect(backButton, &QPushButton::clicked, this, &FunctionLibraryDialog::Back);
    connect(categoryList, &QListWidget::currentRowChanged, this,
            &FunctionLibraryDialog::CategoryPicked);
    connect(nameList, &QListWidget::currentRowChanged, this, &FunctionLibraryDialog::NamePicked);
    connect(nameList, &QListWidget::itemDoubleClicked, this, [this] { InsertFunction(); });
    connect(helpFunctionButton, &QPushButton::clicked, this, &FunctionLibraryDialog::HelpFunction);
    connect(insertButton, &QPushButton::clicked, this, [this] { InsertFunction(); });
    connect(solveButton, &QPushButton::clicked, this, &FunctionLibraryDialog::SolveFunction);
    connect(editButton, &QPushButton::clicked, this, &FunctionLibraryDialog::EditUserLibrary);
    connect(quitButton, &QPushButton::clicked, this, &QDialog::close);
    connect(helpButton, &QPushButton::clicked, this, [this] {
        workbench.PlaySound("QClick.wav");
        workbench.Services().ShowHelpTopic(kFunctionLibraryHelpTopic);
    });
}

// The lists are filled and selected from the browser with their signals blocked: only the
// user's own picks count as moving away from a found name.
void FunctionLibraryDialog::FillCategories() {
    const QSignalBlocker blocker(categoryList);
    categoryList->clear();
    for (const std::string &category : browser->Categories())
        categoryList->addItem(QString::fromStdString(category));
    categoryList->setCurrentRow(browser->CategoryIndex());
}

void FunctionLibraryDialog::FillNames() {
    const QSignalBlocker blocker(nameList);
    nameList->clear();
    for (const std::string &name : browser->Names())
        nameList->addItem(QString::fromStdString(name));
    nameList->setCurrentRow(browser->NameIndex());
}

void FunctionLibraryDialog::ShowEntry() {
    entry = browser->CurrentEntry();
    prototypeText->setText(QString::fromStdString(InsertFunctionPrototype(entry.prototype)));
    descriptionText->setText(QString::fromStdString(entry.description));
    const LibraryButtons buttons = ButtonsFor(entry, browser->CurrentCategory());
    helpFunctionButton->setEnabled(buttons.helpShown);
    helpFunctionButton->setVisible(buttons.helpShown);
    solveButton->setEnabled(buttons.solveEnabled);
}

void FunctionLibraryDialog::UpdateBack() {
    backButton->setEnabled(browser->BackEnabled());
}

void FunctionLibraryDialog::SearchChanged(const QString &text) {
    const int category = browser->CategoryIndex();
    browser->Search(text.toStdString());
    if (browser->CategoryIndex() != category) {
        FillCategories();
        FillNames();
    } else {
        const QSignalBlocker blocker(nameList);
        nameList->setCurrentRow(browser->NameIndex());
    }
    ShowEntry();
    search->setFocus();
    UpdateBack();
}

void FunctionLibraryDialog::Back() {
    browser->Back();
    FillCategories();
    FillNames();
    ShowEntry();
    UpdateBack();
}

void FunctionLibraryDialog::CategoryPicked(int row) {
    if (row < 0) return;
    browser->SelectCategory(row);
    FillNames();
    ShowEntry();
    UpdateBack();
}

void FunctionLibraryDialog::NamePicked(int row) {
    if (row < 0) return;
    browser->SelectName(row);
    ShowEntry();
    nameList->setFocus();
    UpdateBack();
}

int FunctionLibraryDialog::ShowLibraryMessage(int textId, const std::string &argument) {
    QString text = FromBytes(FunctionLibraryMessageText(textId));
    if (!argument.empty()) text.replace(QStringLiteral("%s"), QString::fromStdString(argument));
    return workbench.Messages().ShowPlain(
        this, text, FromBytes(FunctionLibraryMessageText(kFunctionLibraryTitle)), kBoxWarning);
}

void FunctionLibraryDialog::HelpFunction() {
    workbench.PlaySound("QClick.wav");
    const int topic = FunctionHelpTopic(entry);
    if (topic != 0) workbench.Services().ShowHelpTopic(topic);
}

bool FunctionLibraryDialog::InsertFunction() {
    DocumentArea *client = workbench.Client();
    DocumentWindow *document = client != nullptr ? client->Current() : nullptr;
    if (document == nullptr || entry.prototype.empty()) return false;
    const std::string text = CutPrototypeForInsert(entry.prototype);
    if (text.empty()) return false;
    if (graphSetupOpen && graphSetupOpen()) {
        const int refusal = GraphInsertRefusal(entry, text);
        if (refusal != 0) {
            ShowLibraryMessage(refusal, text);
            return false;
        }
        if (addToGraphSetup) addToGraphSetup(QString::fromStdString(text));
        close();
        return true;
    }
    if (graphViewShowing && graphViewShowing()) {
        ShowLibraryMessage(kNoInsertIntoGraphWindow);
        return false;
    }
    MathEditorWidget &pane = document->TextPane();
    if (!InsertLibraryPrototype(pane.Buffer(), text)) return false;
    pane.setFocus();
    return true;
}

void FunctionLibraryDialog::SolveFunction() {
    workbench.PlaySound("QClick.wav");
    if (solve)
        solve(QString::fromStdString(entry.prototype), QString::fromStdString(entry.description));
}

void FunctionLibraryDialog::EditUserLibrary() {
    workbench.PlaySound("QClick.wav");
    const QString path =
        QString::fromStdString(workbench.Folders().userLibraryDir + kUserLibraryName);
    if (!QFileInfo(path).isReadable()) {
        ShowLibraryMessage(kUserLibraryNotOpened, path.toStdString());
        return;
    }
    // The desktop's text editor, started and left to itself; what the user saves is read at
    // the next loading of the library.
    DefaultApplication editor = default_application_for(QStringLiteral("text/plain"));
    if (editor.program.isEmpty()) editor.program = installed_text_editor();
    if (!editor.program.isEmpty() &&
        workbench.startProcess(editor.program, QStringList(editor.arguments) << path))
        return;
    auto *window = new LibraryEditorWindow(path, workbench.Messages(), this);
    window->show();
}

}  // namespace quindar
