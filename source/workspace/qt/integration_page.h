// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Integration page of the Calculus sheet: the boxes of a single, double or triple
// integral over the document's engine, Compute and Stop in one place, the gauge and the
// answer, which "Insert Ans." writes into the document's text. The run itself is the
// calculus library's; this page only shows it.

#include <QWidget>
#include <array>
#include <string>

#include "calculus_run_host.h"
#include "integration_run.h"
#include "page_guard.h"
#include "parameter_boxes.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QSlider;
class QSpinBox;

namespace quindar {

class DocumentWindow;
class Workbench;

class IntegrationPage : public QWidget {
    Q_OBJECT
public:
    IntegrationPage(Workbench &workbench, DocumentWindow &document, const QString &function,
                    QWidget *parent = nullptr);

    bool Computing() const { return guard.computing(); }
    // Closing the sheet: refused during a run, with the message once per run.
    bool CanClose();
    // The page's boxes into the document's settings.
    void StoreSettings();
    void ReloadFunctionList();
    // The Function Library and the Function Manager add text behind the function box's.
    void AppendToFunction(const QString &text);

    // The last answer's text, empty when there is none.
    QString AnswerText() const;
    QPushButton *ComputeButton() const { return computeButton; }
    QPushButton *StopButton() const { return stopButton; }
    QPushButton *InsertButton() const { return insertButton; }

public slots:
    void Compute();
    void Stop();
    void InsertAnswer();

signals:
    void runStarted();
    void runFinished();

private:
    void BuildControls(const QString &function);
    void LoadSettings();
    calculus::IntegrationSettings ReadBoxes() const;
    void FunctionChanged();
    void ShowParameterBoxes(const calculus::ParameterBoxes &boxes);
    void TypeChosen(int type);
    void ParameterChosen(int axis, int index);
    void ClearAnswer();
    void WriteSolution();
    void PrecisionChanged(int value);
    void SelectField(calculus::Field field);
    void ShowRunning(bool running, int type);
    int Type() const;

    Workbench &workbench;
    DocumentWindow &document;
    CalculusRunHost host;
    calculus::PageGuard guard;
    calculus::ParameterBoxes boxes;
    bool hasSolution = false;
    long double solution = 0.0L;
    bool functionAppended = false;
    bool filling = false;

    QComboBox *functionBox = nullptr;
    std::array<QRadioButton *, 3> typeButtons{};
    std::array<QLabel *, 3> parameterLabels{};
    std::array<QComboBox *, 3> parameterBoxes{};
    std::array<QLineEdit *, 3> lowEdits{};
    std::array<QLineEdit *, 3> highEdits{};
    std::array<QWidget *, 3> axisRows{};
    QSlider *slider = nullptr;
    QSpinBox *precisionBox = nullptr;
    QLineEdit *answerEdit = nullptr;
    QProgressBar *gauge = nullptr;
    QPushButton *computeButton = nullptr;
    QPushButton *stopButton = nullptr;
    QPushButton *insertButton = nullptr;
    QPushButton *editFunctionButton = nullptr;
    QPushButton *editVariableButton = nullptr;
    QPushButton *libraryButton = nullptr;
};

}  // namespace quindar
