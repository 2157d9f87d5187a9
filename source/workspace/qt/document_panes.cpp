// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "document_panes.h"

#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include "calculator_bar.h"
#include "calculator_operations.h"
#include "command_table.h"
#include "compute_all.h"
#include "delete_questions.h"
#include "document_area.h"
#include "document_font_dialog.h"
#include "document_window.h"
#include "editor_messages.h"
#include "engine_list_pane.h"
#include "list_window_rules.h"
#include "main_frame.h"
#include "manager_dialog.h"
#include "manager_messages.h"
#include "math_editor_widget.h"
#include "message_boxes.h"
#include "parser.h"
#include "utf8_text.h"
#include "variable_uses.h"
#include "workbench.h"

namespace quindar {
namespace {

// Splits a splitter's length so that the first pane keeps share of it.
void SplitAt(QSplitter &splitter, double share) {
    const int length =
        splitter.orientation() == Qt::Horizontal ? splitter.width() : splitter.height();
    const int whole = std::max(length, 400);
    const int first = static_cast<int>(whole * share);
    splitter.setSizes({first, whole - first});
}

constexpr double kTextShare = 0.75;
constexpr double kListsShare = 0.5;

}  // namespace

DocumentPanes::DocumentPanes(Workbench &owner, MathEditorWidget &textPane, Parser &engine,
                             MessageHook messages, QWidget *parent)
    : QWidget(parent),
      workbench(owner),
      text(textPane),
      parser(engine),
      engineMessages(std::move(messages)) {
    setAccessibleName(QStringLiteral("Document panes"));
    outer = new QSplitter(this);
    outer->setAccessibleName(QStringLiteral("Text and lists"));
    outer->setChildrenCollapsible(false);
    lists = new QSplitter(outer);
    lists->setAccessibleName(QStringLiteral("Lists"));
    lists->setChildrenCollapsible(false);
    variablesList = new EngineListPane(ListKind::Variables, *this, lists);
    functionsList = new EngineListPane(ListKind::Functions, *this, lists);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(outer);
    Arrange(true);

    MathEditor &editor = text.Editor();
    editor.UpdateVarListWindow = [this] { variablesList->Refill(); };
    editor.UpdateFunListWindow = [this] { functionsList->Refill(); };
    Refresh(ListEvent::PaneOpens);

    CalculatorBarDocumentOpened(workbench);
    // A document taking the focus shows its own declarations.
    if (MainFrame *frame = workbench.Frame()) {
        DocumentArea *client = frame->Client();
        connect(client, &DocumentArea::currentDocumentChanged, this, [this, client] {
            // The windows going down at the end of a run refill nothing.
            if (workbench.closing) return;
            if (static_cast<QWidget *>(client->Current()) == parentWidget())
                Refresh(ListEvent::ChildTakesFocus);
        });
    }
    calculator = std::make_unique<CalculatorOperations>(text.Buffer(), editor);
    calculator->SetAngleMode = [this](int mode) { parser.angle_mode = mode; };
    calculator->ShowMessage = [this](int, std::string_view message, std::string_view caption,
                                     MessageStyle style) {
        const unsigned flags = style == MessageStyle::Information ? kBoxInformation : kBoxWarning;
        workbench.Messages().ShowPlain(this, FromBytes(message), FromBytes(caption), flags);
    };
}

DocumentPanes::~DocumentPanes() = default;

bool DocumentPanes::VariablesListOpen() const {
    return !variablesList->isHidden();
}

bool DocumentPanes::FunctionsListOpen() const {
    return !functionsList->isHidden();
}

void DocumentPanes::Arrange(bool right) {
    listsRight = right;
    outer->setOrientation(right ? Qt::Horizontal : Qt::Vertical);
    lists->setOrientation(right ? Qt::Vertical : Qt::Horizontal);
    // Right: the text first; on top: the lists first.
    outer->insertWidget(right ? 0 : 1, &text);
    outer->insertWidget(right ? 1 : 0, lists);
    lists->setVisible(VariablesListOpen() || FunctionsListOpen());
    SplitAt(*outer, right ? kTextShare : 1.0 - kTextShare);
    SplitAt(*lists, kListsShare);
    // Sizes asked for before the first show are taken once the window has its size.
    QTimer::singleShot(0, this, [this] {
        SplitAt(*outer, listsRight ? kTextShare : 1.0 - kTextShare);
        SplitAt(*lists, kListsShare);
    });
}

void DocumentPanes::ShowList(EngineListPane &list, bool open) {
    list.setVisible(open);
    lists->setVisible(VariablesListOpen() || FunctionsListOpen());
    if (open) list.Refill();
}

void DocumentPanes::Refresh(ListEvent event) {
    const ListRefresh refresh = RefreshFor(event);
    if (refresh.variables) variablesList->Refill();
    if (refresh.functions) functionsList->Refill();
}

bool DocumentPanes::AddEditVariable(const std::string &name, const std::string &value) {
    const std::string statement = value.empty() ? name : name + "=" + value;
    parser.assignment_made = false;
    parser.eval_exp(statement.c_str(), false, true);
    // The engine told its failure itself; the next line starts clean.
    parser.ClearLastError();
    if (!parser.assignment_made) return false;
    Refresh(ListEvent::VariableAddedOrEdited);
    workbench.PlaySound(kAddSound);
    return true;
}

bool DocumentPanes::AddEditFunction(const std::string &name, const std::string &value) {
    const std::string statement = value.empty() ? name : name + "=" + value;
    parser.assignment_made = false;
    parser.function_declared = false;
    parser.eval_exp(statement.c_str(), false, true);
    parser.ClearLastError();
    if (!parser.function_declared) return false;
    if (parser.assignment_made) {
        Refresh(ListEvent::FunctionAndVariableAddedOrEdited);
        workbench.PlaySound(kAddSound);
    } else {
        Refresh(ListEvent::FunctionAddedOrEdited);
    }
    return true;
}

bool DocumentPanes::DeleteVariable(int index, bool update, bool ask) {
    const char *found = parser.get_var_name(index);
    if (found == nullptr) return false;
    const std::string name = found;
    const std::optional<std::string> usingFunction = FunctionUsingVariable(parser, name);
    if (const auto question = VariableDeleteQuestion(name, usingFunction, ask)) {
        const int answer = workbench.Messages().Show(this, FromBytes(question->text),
                                                     kVariablesManagerTitle, kBoxQuestionYesNo);
        if (answer != kIdYes) return false;
    }
    if (!parser.delete_variable(index)) return false;
    if (update) {
        Refresh(ListEvent::VariableDeleted);
        workbench.PlaySound("Delete.wav");
    }
    return true;
}

bool DocumentPanes::DeleteFunction(int index, bool update, bool ask) {
    const char *found = parser.get_func_name(index);
    if (found == nullptr) return false;
    const bool used = functionUsedInGraph && functionUsedInGraph(found);
    if (const auto question = FunctionDeleteQuestion(found, used, ask)) {
        const int answer = workbench.Messages().Show(this, FromBytes(question->text),
                                                     kFunctionManagerTitle, kBoxQuestionYesNo);
        if (answer != kIdYes) return false;
    }
    if (!parser.delete_function(index)) return false;
    if (update) {
        Refresh(ListEvent::FunctionDeleted);
        workbench.PlaySound("Delete.wav");
    }
    return true;
}

void DocumentPanes::DeleteAllVariables() {
    if (workbench.Messages().Show(this, FromBytes(ManagerMessageText(31536)),
                                  kVariablesManagerTitle, kBoxQuestionYesNo) != kIdYes)
        return;
    parser.delete_all_vars();
    Refresh(ListEvent::AllVariablesDeleted);
    workbench.PlaySound("Delete.wav");
}

void DocumentPanes::DeleteAllFunctions() {
    if (workbench.Messages().Show(this, FromBytes(ManagerMessageText(30546)), kFunctionManagerTitle,
                                  kBoxQuestionYesNo) != kIdYes)
        return;
    parser.delete_all_funcs();
    Refresh(ListEvent::AllFunctionsDeleted);
    workbench.PlaySound("Delete.wav");
}

void DocumentPanes::RunDialog(QDialog &dialog) {
    if (workbench.runDialog)
        workbench.runDialog(dialog);
    else
        dialog.exec();
}

void DocumentPanes::OpenVariableManager(const std::string &name) {
    ManagerDialog dialog(ManagerKind::Variables, *this, name, this);
    RunDialog(dialog);
}

void DocumentPanes::OpenFunctionManager(const std::string &name, ManagerInsertTarget insertTarget) {
    ManagerDialog dialog(ManagerKind::Functions, *this, name, this);
    dialog.SetInsertTarget(std::move(insertTarget));
    RunDialog(dialog);
}

void DocumentPanes::InsertIntoText(const std::string &inserted) {
    text.textCursor().insertText(FromBytes(inserted));
}

void DocumentPanes::ComputeAll() {
    const ComputeAllResult result = quindar::ComputeAll(text, parser, engineMessages);
    Refresh(ListEvent::LineComputed);
    if (result.failedLines > 0) {
        workbench.Messages().Show(this, FromBytes(ComputeAllReport(result)), kMathEditorErrorTitle,
                                  kBoxWarning);
    } else {
        workbench.PlaySound(kCommandSound);
    }
}

bool DocumentPanes::CommandEnabler(int id, CommandState &state) {
    switch (id) {
        case command::kVariablesList:
            state.checked = VariablesListOpen();
            return true;
        case command::kFunctionsList:
            state.checked = FunctionsListOpen();
            return true;
        case command::kListsRight:
            state.checked = listsRight;
            return true;
        case command::kListsTop:
            state.checked = !listsRight;
            return true;
        case command::kVariablesManager:
        case command::kFunctionManager:
        case command::kComputeAll:
        case command::kChooseFont:
            return true;
        default:
            return false;
    }
}

void DocumentPanes::ChooseFont() {
    auto *document = qobject_cast<DocumentWindow *>(parentWidget());
    if (document == nullptr) return;
    DocumentFontDialog dialog(document->Content().font, this);
    RunDialog(dialog);
    if (dialog.result() != QDialog::Accepted) return;
    document->ApplyFont(dialog.Chosen());
    if (dialog.ColorChosen()) workbench.Messages().Show(this, 24496, 24495, kBoxInformation);
}

bool DocumentPanes::CommandHandler(int id) {
    switch (id) {
        case command::kVariablesList:
            ShowList(*variablesList, !VariablesListOpen());
            return true;
        case command::kFunctionsList:
            ShowList(*functionsList, !FunctionsListOpen());
            return true;
        case command::kListsRight:
        case command::kListsTop:
            Arrange(id == command::kListsRight);
            Refresh(ListEvent::ListsMoved);
            return true;
        case command::kVariablesManager:
            OpenVariableManager({});
            return true;
        case command::kFunctionManager:
            OpenFunctionManager({});
            return true;
        case command::kComputeAll:
            ComputeAll();
            return true;
        case command::kChooseFont:
            ChooseFont();
            return true;
        default:
            return false;
    }
}

}  // namespace quindar
