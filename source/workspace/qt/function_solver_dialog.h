// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The "Mathematical Function Solver" of a document: six labelled boxes for the parameters of a
// function's prototype, or a list of values of any length that scrolls through them, the call
// built from what was typed, and its answer for the document's text. The form's rules are the
// calculus library's SolverForm; this dialog only shows it and moves the focus.

#include <QDialog>
#include <QLineEdit>
#include <array>
#include <functional>

#include "solver_form.h"

class QLabel;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QSpinBox;

namespace quindar {

class DocumentWindow;
class FunctionSolverDialog;
class Workbench;

// A parameter box: Up and Shift+Tab move back, Down, Return and Tab forward, and "=" solves.
class SolverEdit : public QLineEdit {
    Q_OBJECT
public:
    SolverEdit(FunctionSolverDialog &dialog, int index, QWidget *parent);
    int Index() const { return index; }

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    FunctionSolverDialog &dialog;
    int index;
};

class FunctionSolverDialog : public QDialog {
    Q_OBJECT
public:
    FunctionSolverDialog(Workbench &workbench, DocumentWindow &document, const QString &prototype,
                         const QString &description);

    // Sets the form up for a prototype; false when it has too many parameters.
    bool ConfigureDialog(const QString &prototype, const QString &description);
    // The list holds entries that were not saved since they changed.
    bool MustSave() const;

    const calculus::SolverForm &Form() const { return form; }
    SolverEdit *Box(int index) const { return boxes[static_cast<std::size_t>(index)]; }
    QLabel *BoxLabel(int index) const { return labels[static_cast<std::size_t>(index)]; }
    QString Solution() const;
    QPushButton *InsertFunctionButton() const { return insertFunctionButton; }
    QPushButton *InsertAnswerButton() const { return insertAnswerButton; }
    // Graph Setup's Functions page, once there is one: whether it shows, and a function added
    // to its list. While it shows, "Insert F[x]" and "Insert Ans." go there instead of the text.
    std::function<bool()> functionsPageShowing;
    std::function<void(const QString &prototype)> addGraphFunction;

    QRadioButton *FormButton(int form) const { return formButtons[static_cast<std::size_t>(form)]; }

    // Store the box with the focus and solve: the "=" key.
    void Equals();
    // Store the focused box and move the focus one box on (+1) or back (-1); at the ends of
    // the list the rows scroll instead.
    void MoveFocus(int direction);
    // A box lost the focus: its text is stored, or the focus comes back to it.
    void BoxLeft(SolverEdit &box);
    void BoxEdited(int index);

public slots:
    void Solve();
    void InsertFunction();
    void InsertAnswer();
    void ClearData();
    void LoadData();
    void SaveData();

    void done(int result) override;

private:
    void BuildControls();
    void ShowForm();
    void ShowRows();
    bool StoreBox(int index);
    bool SolveFunction(QString &answer);
    void ShowFailure(const calculus::SolverFailure &failure);
    void FormChosen(int chosen);
    int FocusedBox() const;
    bool GraphFunctionsShowing() const;
    void PlaceBeside();

    Workbench &workbench;
    DocumentWindow &document;
    calculus::SolverForm form;
    QString prototype;
    QString description;
    bool dataSaved = true;
    bool needsStore = false;
    bool movingData = false;
    bool storing = false;
    int formShown = 0;

    QLabel *prototypeText = nullptr;
    QLabel *descriptionText = nullptr;
    QLabel *solutionText = nullptr;
    std::array<QLabel *, calculus::kSolverBoxes> labels{};
    std::array<SolverEdit *, calculus::kSolverBoxes> boxes{};
    std::array<QRadioButton *, 2> formButtons{};
    QScrollBar *rowScroller = nullptr;
    QSpinBox *precisionBox = nullptr;
    QPushButton *clearButton = nullptr;
    QPushButton *loadButton = nullptr;
    QPushButton *saveButton = nullptr;
    QPushButton *insertFunctionButton = nullptr;
    QPushButton *insertAnswerButton = nullptr;
    QWidget *parameterArea = nullptr;
};

}  // namespace quindar
