// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Integration page's controls, wired to the integration run and the document's settings.

#include "integration_page.h"

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>

#include "app_setting_keys.h"
#include "calculus_messages.h"
#include "calculus_page_parts.h"
#include "command_table.h"
#include "differentiation_run.h"
#include "document_window.h"
#include "math_editor_widget.h"
#include "workbench.h"

namespace quindar {

namespace {

constexpr const char *kAxisNames[] = {"X", "Y", "Z"};

std::string Trimmed(const QString &text) {
    return text.trimmed().toStdString();
}

// The integration settings the document keeps, axis by axis.
struct AxisFields {
    std::string IntegrationParameters::*parameter;
    std::string IntegrationParameters::*low;
    std::string IntegrationParameters::*high;
};
constexpr AxisFields kAxisFields[] = {
    {&IntegrationParameters::IntXParam, &IntegrationParameters::IntXLoLimit,
     &IntegrationParameters::IntXHiLimit},
    {&IntegrationParameters::IntYParam, &IntegrationParameters::IntYLoLimit,
     &IntegrationParameters::IntYHiLimit},
    {&IntegrationParameters::IntZParam, &IntegrationParameters::IntZLoLimit,
     &IntegrationParameters::IntZHiLimit},
};

}  // namespace

IntegrationPage::IntegrationPage(Workbench &bench, DocumentWindow &owner, const QString &function,
                                 QWidget *parent)
    : CalculusPage(bench, owner, calculus::kIntegrationTitle, calculus::kCloseDuringIntegration,
                   calculus::kIntegrationManagerOpen, parent) {
    setAccessibleName(QStringLiteral("Integration"));
    BuildControls(function);
    host.gauge = gauge;
    host.selectField = [this](calculus::Field field) { SelectField(field); };
}

void IntegrationPage::BuildControls(const QString &function) {
    auto *layout = new QVBoxLayout(this);

    auto *functionRow = new QHBoxLayout;
    auto *functionLabel = new QLabel(QStringLiteral("&Function"), this);
    functionBox = FunctionBox(this);
    functionLabel->setBuddy(functionBox);
    functionRow->addWidget(functionLabel);
    functionRow->addWidget(functionBox, 1);
    layout->addLayout(functionRow);

    auto *typeGroup = new QGroupBox(QStringLiteral("Integral"), this);
    typeGroup->setAccessibleName(QStringLiteral("Integral"));
    auto *typeRow = new QHBoxLayout(typeGroup);
    auto *typeChoice = new QButtonGroup(this);
    const QString typeTexts[] = {QStringLiteral("Single"), QStringLiteral("Double"),
                                 QStringLiteral("Triple")};
    for (int type = 0; type < 3; ++type) {
        typeButtons[type] = new QRadioButton(typeTexts[type], typeGroup);
        typeButtons[type]->setAccessibleName(typeTexts[type]);
        typeChoice->addButton(typeButtons[type], type + 1);
        typeRow->addWidget(typeButtons[type]);
    }
    typeRow->addStretch();
    layout->addWidget(typeGroup);

    auto *limits = new QGroupBox(QStringLiteral("Variables and Limits"), this);
    limits->setAccessibleName(QStringLiteral("Variables and Limits"));
    auto *limitsLayout = new QVBoxLayout(limits);
    for (int axis = 0; axis < 3; ++axis) {
        const QString name = QLatin1String(kAxisNames[axis]);
        axisRows[axis] = new QWidget(limits);
        auto *row = new QHBoxLayout(axisRows[axis]);
        row->setContentsMargins(0, 0, 0, 0);
        parameterLabels[axis] = new QLabel(name + QStringLiteral(" Parameter"), axisRows[axis]);
        parameterBoxes[axis] = new QComboBox(axisRows[axis]);
        parameterBoxes[axis]->setEditable(true);
        parameterBoxes[axis]->setInsertPolicy(QComboBox::NoInsert);
        parameterBoxes[axis]->setMinimumContentsLength(8);
        parameterBoxes[axis]->setAccessibleName(name + QStringLiteral(" Parameter"));
        parameterLabels[axis]->setBuddy(parameterBoxes[axis]);
        auto *lowLabel = new QLabel(QStringLiteral("Low Limit"), axisRows[axis]);
        lowEdits[axis] = new QLineEdit(axisRows[axis]);
        lowEdits[axis]->setAccessibleName(name + QStringLiteral(" Low Limit"));
        lowLabel->setBuddy(lowEdits[axis]);
        auto *highLabel = new QLabel(QStringLiteral("High Limit"), axisRows[axis]);
        highEdits[axis] = new QLineEdit(axisRows[axis]);
        highEdits[axis]->setAccessibleName(name + QStringLiteral(" High Limit"));
        highLabel->setBuddy(highEdits[axis]);
        row->addWidget(parameterLabels[axis]);
        row->addWidget(parameterBoxes[axis]);
        row->addSpacing(8);
        row->addWidget(lowLabel);
        row->addWidget(lowEdits[axis], 1);
        row->addWidget(highLabel);
        row->addWidget(highEdits[axis], 1);
        limitsLayout->addWidget(axisRows[axis]);
    }
    layout->addWidget(limits);

    auto *accuracyRow = new QHBoxLayout;
    auto *speed = new QLabel(QStringLiteral("Speed"), this);
    slider = new QSlider(Qt::Horizontal, this);
    slider->setRange(0, 100);
    slider->setValue(20);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTickInterval(10);
    slider->setAccessibleName(QStringLiteral("Speed or Accuracy"));
    auto *accuracy = new QLabel(QStringLiteral("Accuracy"), this);
    auto *precisionLabel = new QLabel(QStringLiteral("&Precision"), this);
    precisionBox = new QSpinBox(this);
    precisionBox->setRange(1, 14);
    precisionBox->setAccessibleName(QStringLiteral("Precision"));
    precisionLabel->setBuddy(precisionBox);
    accuracyRow->addWidget(speed);
    accuracyRow->addWidget(slider, 1);
    accuracyRow->addWidget(accuracy);
    accuracyRow->addSpacing(16);
    accuracyRow->addWidget(precisionLabel);
    accuracyRow->addWidget(precisionBox);
    layout->addLayout(accuracyRow);

    auto *answerRow = new QHBoxLayout;
    auto *answerLabel = new QLabel(QStringLiteral("Answer"), this);
    answerEdit = new QLineEdit(this);
    answerEdit->setReadOnly(true);
    answerEdit->setAccessibleName(QStringLiteral("Answer"));
    answerLabel->setBuddy(answerEdit);
    gauge = RunGauge(this);
    answerRow->addWidget(answerLabel);
    answerRow->addWidget(answerEdit, 1);
    answerRow->addWidget(gauge, 1);
    layout->addLayout(answerRow);

    auto *buttons = new QHBoxLayout;
    computeButton = PageButton(QStringLiteral("Compute"), this);
    stopButton = PageButton(QStringLiteral("Stop"), this);
    stopButton->hide();
    insertButton = PageButton(QStringLiteral("Insert Ans."), this);
    insertButton->setEnabled(false);
    editFunctionButton = PageButton(QStringLiteral("Edit Function"), this);
    editVariableButton = PageButton(QStringLiteral("Edit Variable"), this);
    libraryButton = PageButton(QStringLiteral("Func Lib."), this);
    auto *helpButton = PageButton(QStringLiteral("Help"), this);
    for (QPushButton *button : {computeButton, stopButton, insertButton, editFunctionButton,
                                editVariableButton, libraryButton, helpButton})
        buttons->addWidget(button);
    layout->addLayout(buttons);
    layout->addStretch();

    ReloadFunctionList();
    const std::vector<std::string> entries = calculus::FunctionEntries(document.Engine());
    int given = -1;
    if (!function.isEmpty()) {
        for (std::size_t i = 0; i < entries.size() && given < 0; ++i)
            if (FromStd(entries[i]).startsWith(function)) given = static_cast<int>(i);
    }
    const int storedPrecision = workbench.Settings().Read(settings::kIntegrationPrecision);
    precisionBox->setValue(std::clamp(storedPrecision, 1, 14));
    if (given >= 0) {
        functionBox->setCurrentIndex(given);
        FunctionChanged();
    } else {
        LoadSettings();
    }

    connect(functionBox, &QComboBox::currentTextChanged, this, [this] {
        if (filling || !guard.idle()) return;
        FunctionChanged();
    });
    connect(typeChoice, &QButtonGroup::idClicked, this, [this](int type) {
        if (!filling && guard.idle()) TypeChosen(type);
    });
    for (int axis = 0; axis < 3; ++axis) {
        connect(parameterBoxes[axis], &QComboBox::activated, this,
                [this, axis](int index) { ParameterChosen(axis, index); });
        connect(parameterBoxes[axis], &QComboBox::editTextChanged, this, [this] {
            if (!filling) ClearAnswer();
        });
        for (QLineEdit *edit : {lowEdits[axis], highEdits[axis]})
            connect(edit, &QLineEdit::textEdited, this, [this] { ClearAnswer(); });
    }
    connect(precisionBox, &QSpinBox::valueChanged, this,
            [this](int value) { PrecisionChanged(value); });
    connect(computeButton, &QPushButton::clicked, this, &IntegrationPage::Compute);
    connect(stopButton, &QPushButton::clicked, this, &IntegrationPage::Stop);
    connect(insertButton, &QPushButton::clicked, this, &IntegrationPage::InsertAnswer);
    ConnectPageTools({editFunctionButton, editVariableButton, libraryButton, helpButton}, workbench,
                     document, *this, guard, [this] {
                         // The box keeps its choice, or its text when that is no entry any more
                         // or was added to.
                         const QString text = functionBox->currentText();
                         ReloadFunctionList();
                         if (functionAppended || functionBox->findText(text) < 0)
                             functionBox->setEditText(text);
                         functionAppended = false;
                     });
}

void IntegrationPage::ReloadFunctionList() {
    FillFunctionBox(functionBox, document.Engine());
}

void IntegrationPage::LoadSettings() {
    const IntegrationParameters &stored = document.Content().integration;
    filling = true;
    ShowFunctionText(functionBox, FromStd(stored.IntFunc));
    const int type = std::clamp(stored.IntType, 1, 3);
    const std::string expression = calculus::ModifyString(
        Trimmed(functionBox->currentText()), calculus::FunctionEntries(document.Engine()));
    ShowParameterBoxes(calculus::UpdateParamComboBoxes(document.Engine(), expression, type));
    for (int axis = 0; axis < 3; ++axis) {
        const AxisFields &fields = kAxisFields[axis];
        if (!(stored.*fields.parameter).empty())
            parameterBoxes[axis]->setEditText(FromStd(stored.*fields.parameter));
        lowEdits[axis]->setText(FromStd(stored.*fields.low));
        highEdits[axis]->setText(FromStd(stored.*fields.high));
    }
    slider->setValue(std::clamp(stored.IntAccuracy, 0, 100));
    precisionBox->setValue(std::clamp(stored.IntPrecision, 1, 14));
    filling = false;
}

void IntegrationPage::StoreSettings() {
    IntegrationParameters &stored = document.Content().integration;
    stored.IntType = Type();
    stored.IntPrecision = precisionBox->value();
    stored.IntAccuracy = slider->value();
    stored.IntFunc = Trimmed(functionBox->currentText());
    for (int axis = 0; axis < 3; ++axis) {
        const AxisFields &fields = kAxisFields[axis];
        stored.*fields.parameter = Trimmed(parameterBoxes[axis]->currentText());
        stored.*fields.low = Trimmed(lowEdits[axis]->text());
        stored.*fields.high = Trimmed(highEdits[axis]->text());
    }
    document.MarkSettingsChanged();
}

int IntegrationPage::Type() const {
    for (int type = 0; type < 3; ++type)
        if (typeButtons[type]->isChecked()) return type + 1;
    return 1;
}

calculus::IntegrationSettings IntegrationPage::ReadBoxes() const {
    calculus::IntegrationSettings settings;
    settings.type = Type();
    settings.function = functionBox->currentText().toStdString();
    for (int axis = 0; axis < 3; ++axis) {
        settings.parameter[axis] = parameterBoxes[axis]->currentText().toStdString();
        settings.low[axis] = lowEdits[axis]->text().toStdString();
        settings.high[axis] = highEdits[axis]->text().toStdString();
    }
    settings.slider = slider->value();
    return settings;
}

void IntegrationPage::FunctionChanged() {
    const std::string expression = calculus::ModifyString(
        Trimmed(functionBox->currentText()), calculus::FunctionEntries(document.Engine()));
    ShowParameterBoxes(calculus::UpdateParamComboBoxes(document.Engine(), expression, 0));
    ClearAnswer();
}

void IntegrationPage::ShowParameterBoxes(const calculus::ParameterBoxes &shown) {
    const bool wasFilling = filling;
    filling = true;
    boxes = shown;
    for (int axis = 0; axis < 3; ++axis) {
        parameterBoxes[axis]->clear();
        for (const std::string &entry : boxes.entries)
            parameterBoxes[axis]->addItem(FromStd(entry));
        parameterBoxes[axis]->setCurrentIndex(boxes.selected[axis]);
        axisRows[axis]->setVisible(axis < boxes.type);
    }
    typeButtons[std::clamp(boxes.type, 1, 3) - 1]->setChecked(true);
    filling = wasFilling;
}

void IntegrationPage::TypeChosen(int type) {
    // Names typed into the boxes survive the change of type.
    std::array<QString, 3> typed;
    for (int axis = 0; axis < 3; ++axis) typed[axis] = parameterBoxes[axis]->currentText();
    const std::string expression = calculus::ModifyString(
        Trimmed(functionBox->currentText()), calculus::FunctionEntries(document.Engine()));
    ShowParameterBoxes(calculus::UpdateParamComboBoxes(document.Engine(), expression, type));
    filling = true;
    for (int axis = 0; axis < type; ++axis)
        if (!typed[axis].trimmed().isEmpty()) parameterBoxes[axis]->setEditText(typed[axis]);
    filling = false;
    ClearAnswer();
}

void IntegrationPage::ParameterChosen(int axis, int index) {
    if (!guard.idle() || index < 0) return;
    calculus::SelectParameter(boxes, axis, index);
    filling = true;
    for (int other = 0; other < boxes.type; ++other)
        if (boxes.selected[other] >= 0)
            parameterBoxes[other]->setCurrentIndex(boxes.selected[other]);
    filling = false;
    ClearAnswer();
}

void IntegrationPage::ClearAnswer() {
    if (!guard.idle()) return;
    if (!filling) document.MarkSettingsChanged();
    ForgetAnswer();
}

void IntegrationPage::ForgetAnswer() {
    hasSolution = false;
    answerEdit->clear();
    insertButton->setEnabled(false);
}

void IntegrationPage::WriteSolution() {
    answerEdit->setText(
        FromStd(calculus::AnswerText(document.Engine(), solution, precisionBox->value())));
    insertButton->setEnabled(true);
}

QString IntegrationPage::AnswerText() const {
    return hasSolution ? answerEdit->text() : QString();
}

void IntegrationPage::PrecisionChanged(int value) {
    if (filling) return;
    workbench.Settings().Write(settings::kIntegrationPrecision, value);
    document.Content().integration.IntPrecision = value;
    if (hasSolution) WriteSolution();
}

void IntegrationPage::ShowRunning(bool running, int type) {
    computeButton->setVisible(!running);
    stopButton->setVisible(running);
    gauge->setVisible(running && type > 1);
    answerEdit->setVisible(!running || type == 1);
    gauge->setValue(0);
    for (QWidget *control : std::initializer_list<QWidget *>{
             functionBox, typeButtons[0], typeButtons[1], typeButtons[2], parameterBoxes[0],
             parameterBoxes[1], parameterBoxes[2], lowEdits[0], lowEdits[1], lowEdits[2],
             highEdits[0], highEdits[1], highEdits[2], slider, precisionBox, editFunctionButton,
             editVariableButton, libraryButton})
        control->setEnabled(!running);
    if (running) {
        stopButton->setFocus();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void IntegrationPage::Compute() {
    if (!guard.begin()) return;
    // A new run begins with an empty answer.
    ForgetAnswer();
    const calculus::IntegrationSettings settings = ReadBoxes();
    StoreSettings();
    host.Begin();
    ShowRunning(true, settings.type);
    emit runStarted();
    calculus::IntegrationResult result;
    {
        calculus::IntegrationRun run(document.Engine(), host);
        result = run.run(settings);
    }
    ShowRunning(false, settings.type);
    guard.end();
    if (result.solved) {
        hasSolution = true;
        solution = result.value;
        WriteSolution();
    }
    StoreSettings();
    emit runFinished();
}

void IntegrationPage::InsertAnswer() {
    if (!hasSolution || !guard.idle()) return;
    MathEditorWidget &pane = document.TextPane();
    pane.Buffer().ReplaceSelection(answerEdit->text().toStdString());
    pane.setFocus();
}

void IntegrationPage::AppendToFunction(const QString &text) {
    if (!guard.idle()) return;
    const QString joined = functionBox->currentText() + text;
    functionBox->setCurrentIndex(-1);
    functionBox->setEditText(joined);
    functionAppended = true;
}

void IntegrationPage::SelectField(calculus::Field field) {
    using calculus::Field;
    QWidget *target = nullptr;
    switch (field) {
        case Field::Function:
            target = functionBox;
            break;
        case Field::XParameter:
        case Field::YParameter:
        case Field::ZParameter:
            target = parameterBoxes[static_cast<int>(field) - static_cast<int>(Field::XParameter)];
            break;
        case Field::XLow:
        case Field::YLow:
        case Field::ZLow:
        case Field::XHigh:
        case Field::YHigh:
        case Field::ZHigh: {
            const int offset = static_cast<int>(field) - static_cast<int>(Field::XLow);
            QLineEdit *edit = offset % 2 == 0 ? lowEdits[offset / 2] : highEdits[offset / 2];
            edit->selectAll();
            target = edit;
            break;
        }
        default:
            break;
    }
    if (target != nullptr) target->setFocus();
}

}  // namespace quindar
