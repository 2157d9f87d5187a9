// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "manager_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <cstring>

#include "app_services.h"
#include "document_panes.h"
#include "engine_list_pane.h"
#include "list_deletion.h"
#include "manager_add_edit.h"
#include "manager_checks.h"
#include "manager_messages.h"
#include "message_boxes.h"
#include "parser.h"
#include "utf8_text.h"
#include "workbench.h"

namespace quindar {
namespace {

// What differs between the two managers.
struct ManagerTraits {
    const char *title;
    const char *accessibleName;
    const char *instructions;
    int titleId;
    int notDefinedForDelete;
    int askInsertUnknown;
    int helpTopic;
    const FlagSetting *instructionsOption;
};

const ManagerTraits kVariablesManager{
    "Variables Manager",
    "Variables Manager",
    "Type a name, or choose one from the list, and its value. Add/Edit declares the variable "
    "or gives it the new value, Delete removes it, Insert writes its name at the caret of the "
    "Math Editor. A value may be any expression.",
    kVariablesManagerTitle,
    31531,
    31532,
    19405,
    &settings::kVariMgrInstructions};

const ManagerTraits kFunctionsManager{
    "Functions Manager",
    "Functions Manager",
    "Type a function's name with its parameters in brackets, such as F[x,y], or choose one "
    "from the list, and its body. Add/Edit declares the function or gives it the new body, "
    "Delete removes it, Insert writes its name at the caret of the Math Editor.",
    kFunctionManagerTitle,
    30541,
    30542,
    19409,
    &settings::kFuncMgrInstructions};

const ManagerTraits &TraitsOf(ManagerKind kind) {
    return kind == ManagerKind::Variables ? kVariablesManager : kFunctionsManager;
}

// The messages that report success rather than refuse.
bool IsNews(int id) {
    return id == 31539 || id == 31540 || id == 30550 || id == 30551;
}

// The document as the Add/Edit rules see it.
class PanesDocument final : public ManagerDocument {
public:
    PanesDocument(ManagerKind managerKind, DocumentPanes &documentPanes)
        : kind(managerKind), panes(documentPanes), parser(documentPanes.Engine()) {}

    bool Exists(const std::string &name) override {
        return kind == ManagerKind::Variables ? parser.is_variable(name.c_str())
                                              : parser.is_function(name.c_str());
    }
    bool Locked(const std::string &name) override { return parser.is_var_locked(name.c_str()); }
    void PresentNumber(const std::string &name, double &real, double &imaginary) override {
        const complex value = parser.get_var_value(name.c_str());
        real = value.real;
        imaginary = value.imag;
    }
    std::string PresentText(const std::string &name) override {
        const char *value = parser.use_square_brackets ? parser.get_func_value(name.c_str())
                                                       : parser.get_func_value_ex(name.c_str());
        return value != nullptr ? value : "";
    }
    bool AddEdit(const std::string &name, const std::string &value) override {
        return kind == ManagerKind::Variables ? panes.AddEditVariable(name, value)
                                              : panes.AddEditFunction(name, value);
    }
    bool HasValue(const std::string &name) override { return parser.var_assigned(name.c_str()); }
    bool ListOpen() override {
        return kind == ManagerKind::Variables ? panes.VariablesListOpen()
                                              : panes.FunctionsListOpen();
    }

private:
    ManagerKind kind;
    DocumentPanes &panes;
    Parser &parser;
};

QPushButton *MakeButton(const QString &text, QWidget *parent) {
    auto *button = new QPushButton(text, parent);
    // Enter must never press a button of these dialogs.
    button->setAutoDefault(false);
    button->setDefault(false);
    button->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    return button;
}

}  // namespace

ManagerDialog::ManagerDialog(ManagerKind managerKind, DocumentPanes &documentPanes,
                             const std::string &name, QWidget *parent)
    : QDialog(parent), kind(managerKind), panes(documentPanes) {
    const ManagerTraits &traits = TraitsOf(kind);
    setWindowTitle(QString::fromLatin1(traits.title));
    setAccessibleName(QString::fromLatin1(traits.accessibleName));

    nameBox = new QComboBox(this);
    nameBox->setEditable(true);
    nameBox->setInsertPolicy(QComboBox::NoInsert);
    nameBox->setAccessibleName(QStringLiteral("Name"));
    nameBox->setMinimumWidth(260);
    valueBox = new QLineEdit(this);
    valueBox->setAccessibleName(QStringLiteral("Value"));
    auto *nameLabel = new QLabel(kind == ManagerKind::Variables ? QStringLiteral("&Variable:")
                                                                : QStringLiteral("&Function:"),
                                 this);
    nameLabel->setBuddy(nameBox);
    auto *valueLabel = new QLabel(QStringLiteral("Va&lue:"), this);
    valueLabel->setBuddy(valueBox);

    QPushButton *addEdit = MakeButton(QStringLiteral("&Add/Edit"), this);
    QPushButton *remove = MakeButton(QStringLiteral("&Delete"), this);
    QPushButton *insert = MakeButton(QStringLiteral("&Insert"), this);
    QPushButton *quit = MakeButton(QStringLiteral("&Quit"), this);
    QPushButton *help = MakeButton(QStringLiteral("&Help"), this);
    auto *toggle = new QToolButton(this);
    toggle->setText(QStringLiteral("?"));
    toggle->setAccessibleName(QStringLiteral("Instructions"));
    toggle->setToolTip(QStringLiteral("Show or hide the instructions"));
    instructions = new QLabel(this);
    instructions->setWordWrap(true);
    instructions->setAccessibleName(QStringLiteral("Instructions text"));
    instructions->setMinimumHeight(60);
    instructions->setAlignment(Qt::AlignTop | Qt::AlignLeft);

    auto *layout = new QGridLayout(this);
    layout->addWidget(nameLabel, 0, 0);
    layout->addWidget(nameBox, 0, 1, 1, 3);
    layout->addWidget(valueLabel, 1, 0);
    layout->addWidget(valueBox, 1, 1, 1, 3);
    auto *buttons = new QHBoxLayout;
    for (QWidget *button : {static_cast<QWidget *>(addEdit), static_cast<QWidget *>(remove),
                            static_cast<QWidget *>(insert)})
        buttons->addWidget(button);
    if (kind == ManagerKind::Functions) {
        // The Function Solver comes with its own window.
        QPushButton *solve = MakeButton(QStringLiteral("&Solve"), this);
        solve->setEnabled(false);
        buttons->addWidget(solve);
    }
    buttons->addStretch();
    buttons->addWidget(quit);
    buttons->addWidget(help);
    buttons->addWidget(toggle);
    layout->addLayout(buttons, 2, 0, 1, 4);
    layout->addWidget(instructions, 3, 0, 1, 4);

    connect(addEdit, &QPushButton::clicked, this, &ManagerDialog::AddEdit);
    connect(remove, &QPushButton::clicked, this, &ManagerDialog::Delete);
    connect(insert, &QPushButton::clicked, this, &ManagerDialog::Insert);
    connect(quit, &QPushButton::clicked, this, &QDialog::reject);
    connect(help, &QPushButton::clicked, this,
            [this] { panes.Bench().Services().ShowHelpTopic(TraitsOf(kind).helpTopic); });
    connect(toggle, &QToolButton::clicked, this, [this] { SetInstructions(!showInstructions); });
    // A choice from the list, made by the user, shows its value; the code's own choices
    // go without signals.
    connect(nameBox, &QComboBox::activated, this, [this](int index) { ShowEntry(index, true); });
    connect(nameBox->lineEdit(), &QLineEdit::textEdited, this, &ManagerDialog::NameTyped);

    FillNames();
    Parser &parser = panes.Engine();
    EngineListPane &list =
        kind == ManagerKind::Variables ? panes.VariablesList() : panes.FunctionsList();
    if (name.empty()) {
        const int selected = list.SelectedIndex();
        if (list.openedByDoubleClick && selected >= 0) ShowEntry(selected, false);
    } else {
        int found = IndexOf(name);
        if (found < 0 && kind == ManagerKind::Functions) {
            std::string converted = name;
            Parser::replace_brackets(converted.data(), parser.use_square_brackets ? 1 : 0);
            found = IndexOf(converted);
        }
        if (found >= 0) {
            ShowEntry(found, false);
        } else if (kind == ManagerKind::Variables) {
            nameBox->setEditText(FromBytes(name));
            valueBox->setFocus();
        }
    }
    SetInstructions(panes.Bench().Settings().Read(*traits.instructionsOption));
}

ManagerDialog::~ManagerDialog() {
    panes.Bench().Settings().Write(*TraitsOf(kind).instructionsOption, showInstructions);
}

int ManagerDialog::TitleId() const {
    return TraitsOf(kind).titleId;
}

std::string ManagerDialog::NameAt(int index) const {
    Parser &parser = panes.Engine();
    const char *name = kind == ManagerKind::Variables ? parser.get_var_name(index)
                       : parser.use_square_brackets   ? parser.get_func_name(index)
                                                      : parser.get_func_name_ex(index);
    return name != nullptr ? name : "";
}

void ManagerDialog::FillNames() {
    Parser &parser = panes.Engine();
    const int count =
        kind == ManagerKind::Variables ? parser.variables.count() : parser.functions.count();
    const QSignalBlocker blocker(nameBox);
    nameBox->clear();
    for (int index = 0; index < count; ++index) nameBox->addItem(FromBytes(NameAt(index)));
    nameBox->setCurrentIndex(-1);
    nameBox->setEditText({});
}

bool ManagerDialog::Exists(const std::string &name) const {
    Parser &parser = panes.Engine();
    return kind == ManagerKind::Variables ? parser.is_variable(name.c_str())
                                          : parser.is_function(name.c_str());
}

int ManagerDialog::IndexOf(const std::string &name) const {
    return nameBox->findText(FromBytes(name), Qt::MatchFixedString);
}

std::string ManagerDialog::ValueOf(const std::string &name) const {
    Parser &parser = panes.Engine();
    if (kind == ManagerKind::Variables) {
        if (!parser.is_variable(name.c_str()) || !parser.var_assigned(name.c_str())) return {};
        const char *value = parser.get_var_value(name.c_str(), -1);
        return value != nullptr ? value : "";
    }
    PanesDocument document(kind, panes);
    return document.Exists(name) ? document.PresentText(name) : std::string();
}

void ManagerDialog::ShowEntry(int index, bool withSound) {
    const QSignalBlocker blocker(nameBox);
    nameBox->setCurrentIndex(index);
    if (index < 0) {
        nameBox->setEditText({});
        valueBox->clear();
        return;
    }
    const std::string value = ValueOf(ToBytes(nameBox->itemText(index)));
    valueBox->setText(FromBytes(value));
    if (withSound && !value.empty()) panes.Bench().PlaySound("Add.wav");
}

void ManagerDialog::NameTyped(const QString &typed) {
    if (typed.isEmpty()) return;
    int found = -1;
    for (int index = 0; index < nameBox->count(); ++index) {
        if (nameBox->itemText(index).startsWith(typed, Qt::CaseInsensitive)) {
            found = index;
            break;
        }
    }
    if (found < 0 || !Exists(ToBytes(nameBox->itemText(found)))) {
        if (kind == ManagerKind::Variables) valueBox->clear();
        return;
    }
    const QSignalBlocker blocker(nameBox);
    nameBox->setCurrentIndex(found);
    valueBox->setText(FromBytes(ValueOf(ToBytes(nameBox->itemText(found)))));
    // The rest of the entry stays selected, so that typing on replaces it.
    QLineEdit *edit = nameBox->lineEdit();
    edit->setText(nameBox->itemText(found));
    edit->setSelection(static_cast<int>(typed.size()),
                       static_cast<int>(edit->text().size() - typed.size()));
}

void ManagerDialog::SetInstructions(bool show) {
    showInstructions = show;
    instructions->setText(show ? QString::fromLatin1(TraitsOf(kind).instructions) : QString());
}

void ManagerDialog::Tell(int id, const std::string &text) {
    panes.Bench().Messages().Show(this, FromBytes(text), TitleId(),
                                  IsNews(id) ? kBoxInformation : kBoxWarning);
}

void ManagerDialog::AddEdit() {
    PanesDocument document(kind, panes);
    const std::string name = ToBytes(nameBox->currentText());
    const std::string value = ToBytes(valueBox->text());
    const AddEditOutcome outcome =
        kind == ManagerKind::Variables
            ? VariableAddEdit(name, value, document)
            : FunctionAddEdit(name, value, document,
                              panes.graphFunctionsShowing && panes.graphFunctionsShowing());
    for (const ManagerNote &note : outcome.notes) Tell(note.id, note.text);
    switch (outcome.focus) {
        case AddEditOutcome::Focus::Name:
            nameBox->setFocus();
            nameBox->lineEdit()->selectAll();
            break;
        case AddEditOutcome::Focus::Value:
            valueBox->setFocus();
            valueBox->selectAll();
            break;
        case AddEditOutcome::Focus::Stay:
            break;
    }
    if (outcome.added && IndexOf(outcome.name) < 0) {
        const QSignalBlocker blocker(nameBox);
        nameBox->addItem(FromBytes(kind == ManagerKind::Variables
                                       ? outcome.name
                                       : NameAt(panes.Engine().functions.count() - 1)));
        if (kind == ManagerKind::Functions) nameBox->setCurrentIndex(nameBox->count() - 1);
    }
    if (outcome.unknownValue) valueBox->setText(QStringLiteral("?"));
}

void ManagerDialog::Delete() {
    const ManagerTraits &traits = TraitsOf(kind);
    Parser &parser = panes.Engine();
    std::string name = SkipLeadingBlanks(ToBytes(nameBox->currentText()));
    if (kind == ManagerKind::Functions) name = CheckFunctionName(name).text;
    if (!Exists(name)) {
        Tell(traits.notDefinedForDelete, FormatManagerMessage(traits.notDefinedForDelete, name));
        return;
    }
    const int index = kind == ManagerKind::Variables ? parser.find_variable(name.c_str())
                                                     : parser.find_function(name.c_str());
    const bool deleted = kind == ManagerKind::Variables ? panes.DeleteVariable(index, true, true)
                                                        : panes.DeleteFunction(index, true, true);
    if (!deleted) return;
    const QSignalBlocker blocker(nameBox);
    nameBox->removeItem(index);
    if (kind == ManagerKind::Functions) {
        ShowEntry(SelectionAfterDelete(index, nameBox->count()), false);
    } else {
        nameBox->setCurrentIndex(-1);
        nameBox->setEditText({});
        valueBox->clear();
    }
}

void ManagerDialog::Insert() {
    const ManagerTraits &traits = TraitsOf(kind);
    const std::string name = SkipLeadingBlanks(ToBytes(nameBox->currentText()));
    if (name.empty()) return;
    if (!Exists(name)) {
        const std::string question = FormatManagerMessage(traits.askInsertUnknown, name);
        if (panes.Bench().Messages().Show(this, FromBytes(question), TitleId(),
                                          kBoxQuestionYesNo) != kIdYes)
            return;
    }
    if (insertTarget) {
        insertTarget(name);
        return;
    }
    // Graph Setup's Functions page, while it shows, takes a declared function whole.
    Parser &parser = panes.Engine();
    const int declared = kind == ManagerKind::Functions ? parser.find_function(name.c_str()) : -1;
    if (declared >= 0 && panes.graphFunctionsShowing && panes.graphFunctionsShowing() &&
        panes.addGraphFunction) {
        const char *text = parser.get_func_name_value(declared);
        if (text != nullptr && panes.addGraphFunction(text)) panes.Bench().PlaySound("Add.wav");
        return;
    }
    panes.InsertIntoText(name);
    panes.Bench().PlaySound("Add.wav");
}

void ManagerDialog::keyPressEvent(QKeyEvent *event) {
    // Enter never closes a manager; Escape quits it as usual.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->accept();
        return;
    }
    QDialog::keyPressEvent(event);
}

}  // namespace quindar
