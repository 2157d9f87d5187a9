// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Function Solver's controls and keys, wired to the solver form and its data files.

#include "function_solver_dialog.h"

#include <QApplication>
#include <QButtonGroup>
#include <QFileInfo>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <vector>

#include "app_setting_keys.h"
#include "calculus_format.h"
#include "calculus_messages.h"
#include "calculus_page_parts.h"
#include "calculus_run_host.h"
#include "document_window.h"
#include "math_editor_widget.h"
#include "parser.h"
#include "solver_data_file.h"
#include "workbench.h"

namespace quindar {

namespace {

constexpr int kHelpTopic = 19491;
constexpr int kFunctionHelpBase = 20000;
constexpr const char *kLoadFilter =
    "Text Files (MS-DOS) (*.txt);;Text (Tab Delimited) (*.txt);;CSV (MS-DOS) (*.csv);;CSV (Comma "
    "Delimited) (*.csv);;Formatted Text (Space Delimited) (*.prn);;All Files (*.*)";
constexpr const char *kSaveFilter =
    "Text (Tab Delimited) (*.txt);;CSV (Comma Delimited) (*.csv);;Formatted Text (Space "
    "Delimited) (*.prn)";

}  // namespace

SolverEdit::SolverEdit(FunctionSolverDialog &owner, int boxIndex, QWidget *parent)
    : QLineEdit(parent), dialog(owner), index(boxIndex) {
    connect(this, &QLineEdit::textChanged, this, [this] { dialog.BoxEdited(index); });
}

bool SolverEdit::event(QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Tab && !(key->modifiers() & Qt::ShiftModifier)) {
            dialog.MoveFocus(1);
            return true;
        }
        if (key->key() == Qt::Key_Backtab ||
            (key->key() == Qt::Key_Tab && (key->modifiers() & Qt::ShiftModifier))) {
            dialog.MoveFocus(-1);
            return true;
        }
    }
    return QLineEdit::event(event);
}

void SolverEdit::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
        case Qt::Key_Up:
            dialog.MoveFocus(-1);
            return;
        case Qt::Key_Down:
            dialog.MoveFocus(1);
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            dialog.MoveFocus(event->modifiers() & Qt::ShiftModifier ? -1 : 1);
            return;
        case Qt::Key_Equal:
            // "=" solves, unless it belongs to the logical expressions typed into the boxes.
            if (calculus::CanExecuteEquals(dialog.Form().function_name())) {
                dialog.Equals();
                return;
            }
            break;
        default:
            break;
    }
    QLineEdit::keyPressEvent(event);
}

void SolverEdit::focusOutEvent(QFocusEvent *event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        dialog.BoxLeft(*this);
}

FunctionSolverDialog::FunctionSolverDialog(Workbench &bench, DocumentWindow &owner,
                                           const QString &givenPrototype,
                                           const QString &givenDescription)
    : QDialog(&owner, Qt::Window), workbench(bench), document(owner) {
    setWindowTitle(QStringLiteral("Mathematical Function Solver"));
    setAccessibleName(QStringLiteral("Mathematical Function Solver"));
    setModal(false);
    setAttribute(Qt::WA_DeleteOnClose);
    BuildControls();
    ConfigureDialog(givenPrototype, givenDescription);
    PlaceBeside();
}

void FunctionSolverDialog::BuildControls() {
    auto *layout = new QVBoxLayout(this);
    prototypeText = new QLabel(this);
    prototypeText->setWordWrap(true);
    prototypeText->setAccessibleName(QStringLiteral("Function Prototype"));
    prototypeText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = prototypeText->font();
    bold.setBold(true);
    prototypeText->setFont(bold);
    descriptionText = new QLabel(this);
    descriptionText->setWordWrap(true);
    descriptionText->setAccessibleName(QStringLiteral("Function Description"));
    layout->addWidget(prototypeText);
    layout->addWidget(descriptionText);

    auto *formRow = new QHBoxLayout;
    auto *formChoice = new QButtonGroup(this);
    const QString formTexts[] = {QStringLiteral("Function Prototype 1"),
                                 QStringLiteral("Function Prototype 2")};
    for (int choice = 0; choice < 2; ++choice) {
        formButtons[choice] = new QRadioButton(formTexts[choice], this);
        formButtons[choice]->setAccessibleName(formTexts[choice]);
        formChoice->addButton(formButtons[choice], choice);
        formRow->addWidget(formButtons[choice]);
    }
    formRow->addStretch();
    layout->addLayout(formRow);
    connect(formChoice, &QButtonGroup::idClicked, this, [this](int chosen) { FormChosen(chosen); });

    parameterArea = new QWidget(this);
    parameterArea->setAccessibleName(QStringLiteral("Parameters"));
    auto *area = new QHBoxLayout(parameterArea);
    area->setContentsMargins(0, 0, 0, 0);
    auto *grid = new QGridLayout;
    for (int box = 0; box < calculus::kSolverBoxes; ++box) {
        labels[box] = new QLabel(parameterArea);
        boxes[box] = new SolverEdit(*this, box, parameterArea);
        boxes[box]->setAccessibleName(QStringLiteral("Parameter %1").arg(box + 1));
        labels[box]->setBuddy(boxes[box]);
        grid->addWidget(labels[box], (box / 2) * 2, box % 2);
        grid->addWidget(boxes[box], (box / 2) * 2 + 1, box % 2);
    }
    area->addLayout(grid, 1);
    rowScroller = new QScrollBar(Qt::Vertical, parameterArea);
    rowScroller->setRange(0, 32766);
    rowScroller->setPageStep(calculus::kSolverBoxes);
    rowScroller->setAccessibleName(QStringLiteral("List Rows"));
    area->addWidget(rowScroller);
    layout->addWidget(parameterArea);
    connect(rowScroller, &QScrollBar::valueChanged, this, [this](int row) {
        if (movingData) return;
        const int focused = FocusedBox();
        if (focused >= 0 && needsStore && !StoreBox(focused)) {
            ShowRows();
            return;
        }
        form.move(row - form.first_row());
        ShowRows();
    });

    auto *solutionRow = new QHBoxLayout;
    auto *solutionLabel = new QLabel(QStringLiteral("Solution"), this);
    solutionText = new QLabel(this);
    solutionText->setAccessibleName(QStringLiteral("Solution"));
    solutionText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    solutionText->setStyleSheet(QStringLiteral("color: red;"));
    solutionText->setMinimumWidth(240);
    auto *precisionLabel = new QLabel(QStringLiteral("&Precision"), this);
    precisionBox = new QSpinBox(this);
    precisionBox->setRange(1, 14);
    precisionBox->setAccessibleName(QStringLiteral("Precision"));
    precisionLabel->setBuddy(precisionBox);
    precisionBox->setValue(
        std::clamp(workbench.Settings().Read(settings::kSolverPrecision), 1, 14));
    connect(precisionBox, &QSpinBox::valueChanged, this,
            [this](int value) { workbench.Settings().Write(settings::kSolverPrecision, value); });
    solutionRow->addWidget(solutionLabel);
    solutionRow->addWidget(solutionText, 1);
    solutionRow->addWidget(precisionLabel);
    solutionRow->addWidget(precisionBox);
    layout->addLayout(solutionRow);

    auto *buttons = new QGridLayout;
    clearButton = PageButton(QStringLiteral("Clear"), this);
    loadButton = PageButton(QStringLiteral(" Load Data        File"), this);
    saveButton = PageButton(QStringLiteral(" Save Data        File"), this);
    auto *solveButton = PageButton(QStringLiteral("Solve"), this);
    insertFunctionButton = PageButton(QStringLiteral("Insert F[x]"), this);
    insertAnswerButton = PageButton(QStringLiteral("Insert Ans."), this);
    auto *functionHelpButton = PageButton(QStringLiteral(" Help F[x]"), this);
    auto *helpButton = PageButton(QStringLiteral("Help"), this);
    auto *quitButton = PageButton(QStringLiteral("Quit"), this);
    const QPushButton *order[] = {solveButton,        insertFunctionButton, insertAnswerButton,
                                  clearButton,        loadButton,           saveButton,
                                  functionHelpButton, helpButton,           quitButton};
    for (int i = 0; i < 9; ++i)
        buttons->addWidget(const_cast<QPushButton *>(order[i]), i / 3, i % 3);
    layout->addLayout(buttons);

    connect(solveButton, &QPushButton::clicked, this, &FunctionSolverDialog::Solve);
    connect(insertFunctionButton, &QPushButton::clicked, this,
            &FunctionSolverDialog::InsertFunction);
    connect(insertAnswerButton, &QPushButton::clicked, this, &FunctionSolverDialog::InsertAnswer);
    connect(clearButton, &QPushButton::clicked, this, &FunctionSolverDialog::ClearData);
    connect(loadButton, &QPushButton::clicked, this, &FunctionSolverDialog::LoadData);
    connect(saveButton, &QPushButton::clicked, this, &FunctionSolverDialog::SaveData);
    connect(quitButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(helpButton, &QPushButton::clicked, this,
            [this] { workbench.Services().ShowHelpTopic(kHelpTopic); });
    connect(functionHelpButton, &QPushButton::clicked, this, [this] {
        const int embedded = document.Engine().internal_function(form.function_name().c_str());
        if (embedded >= 0) workbench.Services().ShowHelpTopic(kFunctionHelpBase + embedded);
    });
}

void FunctionSolverDialog::PlaceBeside() {
    adjustSize();
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
}

bool FunctionSolverDialog::ConfigureDialog(const QString &givenPrototype,
                                           const QString &givenDescription) {
    if (MustSave()) {
        const int answer =
            workbench.Messages().ShowPlain(this, CalculusText(calculus::kSaveListData),
                                           CalculusText(calculus::kSolverTitle), kBoxQuestionYesNo);
        if (answer == kIdYes) SaveData();
    }
    prototype = givenPrototype;
    description = givenDescription;
    dataSaved = true;
    needsStore = false;
    const bool configured = form.configure(prototype.toStdString());
    formShown = 0;
    formButtons[0]->setChecked(true);
    if (prototype.isEmpty())
        prototypeText->setText(CalculusText(calculus::kConstantsNotSolvable));
    else if (prototype == QStringLiteral(" "))
        prototypeText->clear();
    else
        prototypeText->setText(
            QString::fromStdString(calculus::InsertFunctionPrototype(prototype.toStdString())));
    const bool shown = !prototype.trimmed().isEmpty();
    for (QWidget *control :
         std::initializer_list<QWidget *>{parameterArea, descriptionText, solutionText})
        control->setVisible(shown);
    if (!configured) {
        parameterArea->hide();
        workbench.Messages().ShowPlain(this, CalculusText(calculus::kTooManyParameters),
                                       CalculusText(calculus::kSolverTitle), kBoxWarning);
        return false;
    }
    ShowForm();
    descriptionText->setText(description);
    solutionText->clear();
    if (shown) boxes[0]->setFocus();
    return true;
}

void FunctionSolverDialog::ShowForm() {
    const bool list = form.type() == calculus::ParameterType::List;
    for (QRadioButton *button : formButtons) button->setVisible(form.has_two_forms());
    for (QWidget *control : std::initializer_list<QWidget *>{rowScroller, loadButton, saveButton}) {
        control->setVisible(list);
        control->setEnabled(list);
    }
    ShowRows();
}

void FunctionSolverDialog::ShowRows() {
    movingData = true;
    for (int box = 0; box < calculus::kSolverBoxes; ++box) {
        const bool shown = form.box_shown(box);
        labels[box]->setText(QString::fromStdString(form.label(box)));
        labels[box]->setVisible(shown);
        boxes[box]->setVisible(shown);
        boxes[box]->setEnabled(shown);
        boxes[box]->setText(QString::fromStdString(form.box_text(box)));
    }
    rowScroller->setValue(form.first_row());
    movingData = false;
    needsStore = false;
}

void FunctionSolverDialog::FormChosen(int chosen) {
    if (chosen == formShown) return;
    formShown = chosen;
    form.select_form(chosen);
    solutionText->clear();
    ShowForm();
    boxes[0]->setFocus();
}

int FunctionSolverDialog::FocusedBox() const {
    for (int box = 0; box < calculus::kSolverBoxes; ++box)
        if (boxes[box]->hasFocus()) return box;
    return -1;
}

void FunctionSolverDialog::BoxEdited(int) {
    if (movingData) return;
    needsStore = true;
    solutionText->clear();
}

bool FunctionSolverDialog::StoreBox(int index) {
    storing = true;
    calculus::SolverFailure failure;
    const bool stored =
        form.store(document.Engine(), index, boxes[index]->text().toStdString(), failure);
    storing = false;
    if (!stored) {
        ShowFailure(failure);
        boxes[index]->setFocus();
        return false;
    }
    needsStore = false;
    dataSaved = false;
    return true;
}

void FunctionSolverDialog::BoxLeft(SolverEdit &box) {
    if (storing || movingData || !needsStore) return;
    if (!StoreBox(box.Index())) {
        QPointer<SolverEdit> back(&box);
        QTimer::singleShot(0, this, [back] {
            if (back) back->setFocus();
        });
    }
}

void FunctionSolverDialog::MoveFocus(int direction) {
    const int focused = FocusedBox();
    if (focused < 0) return;
    if (needsStore && !StoreBox(focused)) return;
    const int next = focused + direction;
    if (next >= 0 && next < form.num_parameters()) {
        boxes[next]->setFocus();
        boxes[next]->selectAll();
    } else if (form.type() == calculus::ParameterType::List) {
        form.move(direction);
        ShowRows();
        boxes[focused]->selectAll();
    }
}

void FunctionSolverDialog::Equals() {
    const int focused = FocusedBox();
    if (focused >= 0 && needsStore && !StoreBox(focused)) return;
    Solve();
}

void FunctionSolverDialog::ShowFailure(const calculus::SolverFailure &failure) {
    workbench.PlaySound("Error.wav");
    const QString text =
        failure.text.empty() ? CalculusText(failure.id) : QString::fromStdString(failure.text);
    workbench.Messages().ShowPlain(this, text, CalculusText(calculus::kSolverTitle), kBoxWarning);
}

bool FunctionSolverDialog::SolveFunction(QString &answer) {
    solutionText->clear();
    std::string text;
    calculus::SolverFailure failure;
    if (!form.solve(document.Engine(), precisionBox->value(), text, failure)) {
        ShowFailure(failure);
        if (failure.id != 0)
            for (int box = 0; box < form.num_parameters(); ++box)
                if (boxes[box]->text().trimmed().isEmpty()) {
                    boxes[box]->setFocus();
                    break;
                }
        return false;
    }
    workbench.PlaySound("Command.wav");
    answer = QString::fromStdString(text);
    solutionText->setText(QStringLiteral(" %1").arg(answer));
    return true;
}

QString FunctionSolverDialog::Solution() const {
    return solutionText->text();
}

void FunctionSolverDialog::Solve() {
    QString answer;
    SolveFunction(answer);
}

bool FunctionSolverDialog::GraphFunctionsShowing() const {
    return functionsPageShowing && functionsPageShowing();
}

void FunctionSolverDialog::InsertFunction() {
    if (GraphFunctionsShowing()) {
        // Only functions of one or two parameters can be graphed.
        if (calculus::PrototypeParameterCount(prototype.toStdString()) < 3) {
            if (addGraphFunction) addGraphFunction(prototype);
        } else {
            workbench.Messages().ShowPlain(
                this,
                QString::fromStdString(calculus::Format(
                    calculus::message(calculus::kTooManyToGraph), prototype.toStdString())),
                CalculusText(calculus::kSolverTitle), kBoxWarning);
        }
        return;
    }
    QString answer;
    if (!SolveFunction(answer)) return;
    std::string call = form.build_expression();
    std::vector<char> text(call.begin(), call.end());
    text.push_back('\0');
    Parser::replace_brackets(text.data(), workbench.useSquareBrackets ? 1 : 0);
    document.TextPane().Buffer().ReplaceSelection(text.data());
}

void FunctionSolverDialog::InsertAnswer() {
    QString answer;
    if (!SolveFunction(answer)) return;
    if (GraphFunctionsShowing()) {
        workbench.Messages().ShowPlain(
            this,
            QString::fromStdString(calculus::Format(
                calculus::message(calculus::kAnswerNotGraphable), form.build_expression())),
            CalculusText(calculus::kSolverTitle), kBoxWarning);
        return;
    }
    document.TextPane().Buffer().ReplaceSelection(answer.toStdString());
}

void FunctionSolverDialog::ClearData() {
    if (form.entry_count() > 0 && form.type() == calculus::ParameterType::List && !dataSaved) {
        const int answer = workbench.Messages().ShowPlain(
            this, CalculusText(calculus::kSaveListData), CalculusText(calculus::kSolverTitle),
            kBoxQuestionYesNoCancel);
        if (answer == kIdYes) {
            SaveData();
            return;
        }
        if (answer != kIdNo) return;
    }
    form.clear();
    form.move(0);
    dataSaved = true;
    solutionText->clear();
    ShowRows();
    boxes[0]->setFocus();
}

void FunctionSolverDialog::LoadData() {
    const QStringList chosen = workbench.chooseOpenFiles(
        this, QStringLiteral("Load Data File"),
        QString::fromStdString(workbench.Folders().userDataDir), QString::fromLatin1(kLoadFilter));
    if (chosen.isEmpty()) return;
    bool replace = true;
    if (form.entry_count() > 0)
        replace = workbench.Messages().ShowPlain(this, CalculusText(calculus::kAppendData),
                                                 CalculusText(calculus::kSolverTitle),
                                                 kBoxQuestionYesNo) != kIdYes;
    std::string error;
    if (!calculus::LoadDataFile(document.Engine(), form, chosen.front().toStdString(), replace,
                                error)) {
        workbench.Messages().ShowPlain(this, QString::fromStdString(error),
                                       CalculusText(calculus::kSolverTitle), kBoxWarning);
        return;
    }
    ShowRows();
    boxes[0]->setFocus();
}

void FunctionSolverDialog::SaveData() {
    if (form.entry_count() == 0) return;
    QString name = workbench.chooseSaveFile(this, QStringLiteral("Save Data File"), QString(),
                                            QString::fromLatin1(kSaveFilter));
    if (name.isEmpty()) return;
    if (QFileInfo(name).suffix().isEmpty()) name += QStringLiteral(".txt");
    // A file that can't be written gives no message; the list stays unsaved.
    if (calculus::SaveDataFile(form, name.toStdString())) dataSaved = true;
}

bool FunctionSolverDialog::MustSave() const {
    return form.type() == calculus::ParameterType::List && form.entry_count() > 0 && !dataSaved;
}

void FunctionSolverDialog::done(int result) {
    if (MustSave()) {
        const int answer = workbench.Messages().ShowPlain(
            this, CalculusText(calculus::kSaveListData), CalculusText(calculus::kSolverTitle),
            kBoxQuestionYesNoCancel);
        if (answer == kIdYes) SaveData();
        if (answer != kIdYes && answer != kIdNo) return;
        dataSaved = true;
    }
    QDialog::done(result);
    close();
}

}  // namespace quindar
