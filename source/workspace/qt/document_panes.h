// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The panes of one document and what reaches the document through them: the text with the
// Variables and Functions lists at its right (the text keeps three quarters, the lists stack
// half and half) or on top (side by side, the text keeping three quarters of the height);
// the lists' refills; adding, editing and deleting through the managers and the lists as a
// typed line would; Compute All.

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "command_router.h"
#include "message_hook.h"

class QDialog;
class QSplitter;

namespace quindar {

class CalculatorOperations;
class EngineListPane;
class MathEditorWidget;
class Parser;
class Workbench;
enum class ListEvent;

// Where the Function Manager's Insert puts a function's name instead of the text.
using ManagerInsertTarget = std::function<void(const std::string &name)>;

class DocumentPanes : public QWidget, public CommandTarget {
    Q_OBJECT
public:
    DocumentPanes(Workbench &workbench, MathEditorWidget &text, Parser &parser,
                  MessageHook engineMessages, QWidget *parent = nullptr);
    ~DocumentPanes() override;

    Workbench &Bench() { return workbench; }
    Parser &Engine() { return parser; }
    MathEditorWidget &Text() { return text; }
    EngineListPane &VariablesList() { return *variablesList; }
    EngineListPane &FunctionsList() { return *functionsList; }
    bool ListsRight() const { return listsRight; }
    bool VariablesListOpen() const;
    bool FunctionsListOpen() const;

    // Refills the lists that the event concerns.
    void Refresh(ListEvent event);

    // A change as a typed line makes it; true when the engine took it.
    bool AddEditVariable(const std::string &name, const std::string &value);
    bool AddEditFunction(const std::string &name, const std::string &value);
    // Asks the question the delete needs (a use in a function always), then deletes.
    bool DeleteVariable(int index, bool update, bool ask);
    bool DeleteFunction(int index, bool update, bool ask);
    void DeleteAllVariables();
    void DeleteAllFunctions();

    // Whether a graph of the document plots the function of that full name (its deletion
    // asks more firmly then), and whether Graph Setup's Functions page shows (it takes the
    // news of a function added or edited in place of the manager's message).
    std::function<bool(const std::string &fullName)> functionUsedInGraph;
    std::function<bool()> graphFunctionsShowing;
    // Adds a declared function (its "name = value" text) to that page; true when taken.
    std::function<bool(const std::string &nameValue)> addGraphFunction;

    // The modal managers; a name preselects its entry. The Function Manager's Insert goes to
    // `insertTarget` when there is one (a calculus page that opened it), else to the text.
    void OpenVariableManager(const std::string &name);
    void OpenFunctionManager(const std::string &name, ManagerInsertTarget insertTarget = {});

    // Puts text at the caret of the text pane, over its selection.
    void InsertIntoText(const std::string &text);

    // The calculator keys' operations on this text, with the memory of its keys.
    CalculatorOperations &Calculator() { return *calculator; }

    // Every line computed from the top as F4 computes it, in one undo step.
    void ComputeAll();
    // The font dialog; the text and the lists take the font chosen.
    void ChooseFont();

    bool CommandEnabler(int id, CommandState &state) override;
    bool CommandHandler(int id) override;

private:
    void Arrange(bool right);
    void ShowList(EngineListPane &list, bool open);
    void RunDialog(QDialog &dialog);

    Workbench &workbench;
    MathEditorWidget &text;
    Parser &parser;
    MessageHook engineMessages;
    EngineListPane *variablesList = nullptr;
    EngineListPane *functionsList = nullptr;
    QSplitter *outer = nullptr;
    QSplitter *lists = nullptr;
    bool listsRight = true;
    std::unique_ptr<CalculatorOperations> calculator;
};

}  // namespace quindar
