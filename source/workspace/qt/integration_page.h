// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Integration page of the Calculus sheet: the boxes of a single, double or triple
// integral over the document's engine, Compute and Stop in one place, the gauge and the
// answer, which "Insert Ans." writes into the document's text. The run itself is the
// calculus library's; this page only shows it.

#include <array>
#include <string>

#include "calculus_page.h"
#include "integration_run.h"
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

class IntegrationPage : public CalculusPage {
    Q_OBJECT
public:
    IntegrationPage(Workbench &workbench, DocumentWindow &document, const QString &function,
                    QWidget *parent = nullptr);

    void StoreSettings() override;
    void ReloadFunctionList() override;
    void AppendToFunction(const QString &text) override;

    // The last answer's text, empty when there is none.
    QString AnswerText() const;

public slots:
    void Compute() override;
    void InsertAnswer();

private:
    void BuildControls(const QString &function);
    void LoadSettings();
    calculus::IntegrationSettings ReadBoxes() const;
    void FunctionChanged();
    void ShowParameterBoxes(const calculus::ParameterBoxes &boxes);
    void TypeChosen(int type);
    void ParameterChosen(int axis, int index);
    // An edit of the page: the answer no longer belongs to the boxes.
    void ClearAnswer();
    void ForgetAnswer();
    void WriteSolution();
    void PrecisionChanged(int value);
    void SelectField(calculus::Field field);
    void ShowRunning(bool running, int type);
    int Type() const;

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
    QPushButton *editFunctionButton = nullptr;
    QPushButton *editVariableButton = nullptr;
    QPushButton *libraryButton = nullptr;
};

}  // namespace quindar
