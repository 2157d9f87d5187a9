// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Function Library dialog: a modeless browser of the embedded functions, the constants
// and the functions of the system and user libraries. The user searches or picks a category
// and a name, reads the prototype and description, and inserts the function into the Math
// Editor (its parameters selected), hands it to Graph Setup or the Function Solver, or edits
// the user library in the desktop's text editor. The browsing rules are FunctionLibraryBrowser's.

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "function_library_catalog.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace quindar {

class FunctionLibraryBrowser;
class VarFunIniFile;
class Workbench;

class FunctionLibraryDialog : public QDialog {
    Q_OBJECT
public:
    explicit FunctionLibraryDialog(Workbench &workbench, QWidget *parent = nullptr);
    ~FunctionLibraryDialog() override;

    // Where the dialog hands a function on, once those windows exist. graphSetupOpen: the
    // function page of Graph Setup is open in the current document, and addToGraphSetup
    // takes the text. graphViewShowing: the current document shows its graph instead of
    // its text. solve: the Function Solver for a prototype and description.
    std::function<bool()> graphSetupOpen;
    std::function<void(const QString &text)> addToGraphSetup;
    std::function<bool()> graphViewShowing;
    std::function<void(const QString &prototype, const QString &description)> solve;

    FunctionLibraryBrowser &Browser() { return *browser; }
    const LibraryEntry &Entry() const { return entry; }

    // The buttons' actions.
    void HelpFunction();
    bool InsertFunction();
    void SolveFunction();
    void EditUserLibrary();
    void Back();

private:
    void BuildControls();
    void FillCategories();
    void FillNames();
    void ShowEntry();
    void UpdateBack();
    void SearchChanged(const QString &text);
    void CategoryPicked(int row);
    void NamePicked(int row);
    int ShowLibraryMessage(int textId, const std::string &argument = {});

    Workbench &workbench;
    std::unique_ptr<VarFunIniFile> systemLibrary;
    std::unique_ptr<VarFunIniFile> userLibrary;
    std::unique_ptr<FunctionLibraryCatalog> catalog;
    std::unique_ptr<FunctionLibraryBrowser> browser;
    LibraryEntry entry;
    bool userLibraryTold = false;

    QLineEdit *search = nullptr;
    QPushButton *backButton = nullptr;
    QListWidget *categoryList = nullptr;
    QListWidget *nameList = nullptr;
    QLabel *prototypeText = nullptr;
    QLabel *descriptionText = nullptr;
    QPushButton *helpFunctionButton = nullptr;
    QPushButton *insertButton = nullptr;
    QPushButton *solveButton = nullptr;
    QPushButton *editButton = nullptr;
    QPushButton *quitButton = nullptr;
    QPushButton *helpButton = nullptr;
};

}  // namespace quindar
