// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The Differentiation page's controls, wired to the differentiation run, its table and the
// document's settings.

#include "differentiation_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QVBoxLayout>
#include <set>

#include "app_setting_keys.h"
#include "calculus_messages.h"
#include "calculus_page_parts.h"
#include "command_table.h"
#include "differentials_graph.h"
#include "document_window.h"
#include "integration_run.h"
#include "math_editor_widget.h"
#include "workbench.h"

namespace quindar {

namespace {

constexpr int kColumnWidth = 100;

// The check boxes' settings in the document, in the order function, first, second, third.
constexpr int DifferentiationParameters::*kShownFields[] = {
    &DifferentiationParameters::DiffDispFunc, &DifferentiationParameters::DiffDispFirstDir,
    &DifferentiationParameters::DiffDispSecondDir, &DifferentiationParameters::DiffDispThirdDir};

QLineEdit *LabelledEdit(const QString &label, const QString &name, QGridLayout *grid, int column,
                        QWidget *parent) {
    auto *title = new QLabel(label, parent);
    auto *edit = new QLineEdit(parent);
    edit->setAccessibleName(name);
    title->setBuddy(edit);
    grid->addWidget(title, 0, column);
    grid->addWidget(edit, 1, column);
    return edit;
}

}  // namespace

DifferentiationPage::DifferentiationPage(Workbench &bench, DocumentWindow &owner,
                                         const QString &function, QWidget *parent)
    : CalculusPage(bench, owner, calculus::kDifferentiationTitle,
                   calculus::kCloseDuringDifferentiation, calculus::kDifferentiationManagerOpen,
                   parent) {
    setAccessibleName(QStringLiteral("Differentiation"));
    BuildControls(function);
    host.gauge = gauge;
    host.statusText = statusText;
    host.selectField = [this](calculus::Field field) { SelectField(field); };
    host.beforePump = [this] { ShowNewCells(); };
}

void DifferentiationPage::BuildControls(const QString &function) {
    auto *layout = new QVBoxLayout(this);
    inputs = new QWidget(this);
    inputs->setAccessibleName(QStringLiteral("Function and Range"));
    auto *grid = new QGridLayout(inputs);
    grid->setContentsMargins(0, 0, 0, 0);

    auto *functionLabel = new QLabel(QStringLiteral("&Function"), inputs);
    functionBox = FunctionBox(inputs);
    functionLabel->setBuddy(functionBox);
    grid->addWidget(functionLabel, 0, 0);
    grid->addWidget(functionBox, 1, 0, 1, 3);

    auto *variableLabel = new QLabel(QStringLiteral("&Variable"), inputs);
    variableBox = new QComboBox(inputs);
    variableBox->setEditable(true);
    variableBox->setInsertPolicy(QComboBox::NoInsert);
    variableBox->setMinimumContentsLength(8);
    variableBox->setAccessibleName(QStringLiteral("Variable"));
    variableLabel->setBuddy(variableBox);
    grid->addWidget(variableLabel, 0, 3);
    grid->addWidget(variableBox, 1, 3);

    auto *range = new QGridLayout;
    startEdit = LabelledEdit(QStringLiteral("Start Value"), QStringLiteral("Xo"), range, 0, inputs);
    endEdit = LabelledEdit(QStringLiteral("End Value"), QStringLiteral("Xn"), range, 1, inputs);
    stepsEdit = LabelledEdit(QStringLiteral("Steps"), QStringLiteral("n"), range, 2, inputs);
    grid->addLayout(range, 2, 0, 1, 4);

    auto *checks = new QHBoxLayout;
    for (int box = 0; box < 4; ++box) {
        columnBoxes[box] = new QCheckBox(inputs);
        columnBoxes[box]->setChecked(true);
        checks->addWidget(columnBoxes[box]);
    }
    checks->addStretch();
    auto *precisionLabel = new QLabel(QStringLiteral("&Precision"), inputs);
    precisionBox = new QSpinBox(inputs);
    precisionBox->setRange(1, 14);
    precisionBox->setAccessibleName(QStringLiteral("Precision"));
    precisionLabel->setBuddy(precisionBox);
    checks->addWidget(precisionLabel);
    checks->addWidget(precisionBox);
    grid->addLayout(checks, 3, 0, 1, 4);
    layout->addWidget(inputs);

    list = new QTableWidget(0, 1, this);
    list->setAccessibleName(QStringLiteral("Differentiation Table"));
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->verticalHeader()->hide();
    list->horizontalHeader()->setDefaultSectionSize(kColumnWidth);
    list->verticalHeader()->setDefaultSectionSize(list->fontMetrics().height() + 6);
    list->setMinimumHeight(160);
    layout->addWidget(list, 1);

    auto *progressRow = new QHBoxLayout;
    statusText = new QLabel(this);
    statusText->setAccessibleName(QStringLiteral("Status"));
    statusText->hide();
    gauge = RunGauge(this);
    progressRow->addWidget(statusText, 1);
    progressRow->addWidget(gauge, 1);
    layout->addLayout(progressRow);

    auto *buttons = new QHBoxLayout;
    computeButton = PageButton(QStringLiteral("Compute"), this);
    stopButton = PageButton(QStringLiteral("Stop"), this);
    stopButton->hide();
    buttons->addWidget(computeButton);
    buttons->addWidget(stopButton);
    otherButtons = new QWidget(this);
    otherButtons->setAccessibleName(QStringLiteral("Answer Buttons"));
    auto *others = new QHBoxLayout(otherButtons);
    others->setContentsMargins(0, 0, 0, 0);
    insertButton = PageButton(QStringLiteral("Insert Ans."), otherButtons);
    graphButton = PageButton(QStringLiteral("Graph Ans."), otherButtons);
    insertButton->setEnabled(false);
    graphButton->setEnabled(false);
    auto *editFunctionButton = PageButton(QStringLiteral("Edit Function"), otherButtons);
    auto *editVariableButton = PageButton(QStringLiteral("Edit Variable"), otherButtons);
    auto *libraryButton = PageButton(QStringLiteral("f(x)"), otherButtons);
    libraryButton->setAccessibleName(QStringLiteral("Function Library"));
    libraryButton->setToolTip(QStringLiteral("Function Library"));
    auto *helpButton = PageButton(QStringLiteral("Help"), otherButtons);
    for (QPushButton *button : {insertButton, graphButton, editFunctionButton, editVariableButton,
                                libraryButton, helpButton})
        others->addWidget(button);
    // The buttons keep their whole texts; the table gives way instead.
    otherButtons->setMinimumWidth(otherButtons->sizeHint().width());
    buttons->addWidget(otherButtons);
    buttons->addStretch();
    layout->addLayout(buttons);

    ReloadFunctionList();
    precisionBox->setValue(
        std::clamp(workbench.Settings().Read(settings::kDifferentiationPrecision), 1, 14));
    int given = -1;
    if (!function.isEmpty())
        for (int i = 0; i < functionBox->count() && given < 0; ++i)
            if (functionBox->itemText(i).startsWith(function)) given = i;
    if (given >= 0) {
        functionBox->setCurrentIndex(given);
        FunctionChanged();
    } else {
        LoadSettings();
    }
    RetitleColumns();

    connect(functionBox, &QComboBox::currentTextChanged, this, [this] {
        if (filling || !guard.idle()) return;
        FunctionChanged();
        InputChanged();
    });
    connect(variableBox, &QComboBox::currentTextChanged, this, [this] {
        if (filling || !guard.idle()) return;
        RetitleColumns();
        InputChanged();
    });
    for (QLineEdit *edit : {startEdit, endEdit, stepsEdit})
        connect(edit, &QLineEdit::textEdited, this, [this] { InputChanged(); });
    for (QCheckBox *box : columnBoxes)
        connect(box, &QCheckBox::toggled, this, [this] {
            if (!filling) RewriteTable();
        });
    connect(precisionBox, &QSpinBox::valueChanged, this,
            [this](int value) { PrecisionChanged(value); });
    connect(computeButton, &QPushButton::clicked, this, &DifferentiationPage::Compute);
    connect(stopButton, &QPushButton::clicked, this, &DifferentiationPage::Stop);
    connect(insertButton, &QPushButton::clicked, this, &DifferentiationPage::InsertAnswer);
    connect(graphButton, &QPushButton::clicked, this, &DifferentiationPage::GraphAnswer);
    ConnectPageTools({editFunctionButton, editVariableButton, libraryButton, helpButton}, workbench,
                     document, *this, guard, [this] { ReloadFunctionList(); });
}

void DifferentiationPage::ReloadFunctionList() {
    FillFunctionBox(functionBox, document.Engine());
}

void DifferentiationPage::LoadSettings() {
    const DifferentiationParameters &stored = document.Content().differentiation;
    filling = true;
    ShowFunctionText(functionBox, FromStd(stored.DiffFunc));
    variableBox->setEditText(FromStd(stored.DiffVar));
    startEdit->setText(FromStd(stored.DiffXo));
    endEdit->setText(FromStd(stored.DiffXn));
    stepsEdit->setText(FromStd(stored.DiffIn));
    for (int box = 0; box < 4; ++box) columnBoxes[box]->setChecked(stored.*kShownFields[box] != 0);
    precisionBox->setValue(std::clamp(stored.DiffPrecision, 1, 14));
    filling = false;
}

void DifferentiationPage::StoreSettings() {
    DifferentiationParameters &stored = document.Content().differentiation;
    stored.DiffFunc = functionBox->currentText().trimmed().toStdString();
    stored.DiffVar = variableBox->currentText().trimmed().toStdString();
    stored.DiffXo = startEdit->text().trimmed().toStdString();
    stored.DiffXn = endEdit->text().trimmed().toStdString();
    stored.DiffIn = stepsEdit->text().trimmed().toStdString();
    stored.DiffPrecision = precisionBox->value();
    for (int box = 0; box < 4; ++box)
        stored.*kShownFields[box] = columnBoxes[box]->isChecked() ? 1 : 0;
    document.MarkSettingsChanged();
}

std::array<bool, 4> DifferentiationPage::Shown() const {
    std::array<bool, 4> shown{};
    for (int box = 0; box < 4; ++box) shown[box] = columnBoxes[box]->isChecked();
    return shown;
}

QString DifferentiationPage::Variable() const {
    return FromStd(calculus::CurrentVariable(variableBox->currentText().toStdString()));
}

calculus::DifferentiationSettings DifferentiationPage::ReadBoxes() const {
    calculus::DifferentiationSettings settings;
    settings.function = functionBox->currentText().toStdString();
    settings.variable = variableBox->currentText().toStdString();
    settings.start = startEdit->text().toStdString();
    settings.end = endEdit->text().toStdString();
    settings.steps = stepsEdit->text().toStdString();
    settings.shown = Shown();
    return settings;
}

void DifferentiationPage::InputChanged() {
    if (!guard.idle()) return;
    if (!filling) document.MarkSettingsChanged();
    table.clear();
    list->setRowCount(0);
    insertButton->setEnabled(false);
    graphButton->setEnabled(false);
}

void DifferentiationPage::FunctionChanged() {
    // The variable box lists the chosen function's variables, the first selected.
    const std::string expression =
        calculus::ModifyString(functionBox->currentText().trimmed().toStdString(),
                               calculus::FunctionEntries(document.Engine()));
    Parser &parser = document.Engine();
    const int fn = parser.find_function(expression.c_str());
    if (fn < 0) return;
    const QString before = variableBox->currentText();
    filling = true;
    variableBox->clear();
    for (const char *name = parser.get_func_variable(fn, true); name != nullptr && *name != '\0';
         name = parser.get_func_variable(fn, false))
        variableBox->addItem(QString::fromLatin1(name));
    if (variableBox->count() > 0)
        variableBox->setCurrentIndex(0);
    else
        variableBox->setEditText(before);
    filling = false;
    RetitleColumns();
}

void DifferentiationPage::RetitleColumns() {
    const std::string variable = Variable().toStdString();
    for (int box = 0; box < 4; ++box) {
        const QString title =
            FromStd(calculus::ColumnTitle(calculus::kFunctionColumn + box, variable));
        columnBoxes[box]->setText(title);
        columnBoxes[box]->setAccessibleName(title);
    }
    RewriteTable();
}

void DifferentiationPage::ShowCell(int row, int column) {
    const int listColumn = calculus::ListColumn(column, Shown());
    if (listColumn < 0) return;
    const QString text = FromStd(calculus::AnswerText(
        document.Engine(), table.columns[column][static_cast<std::size_t>(row)],
        precisionBox->value()));
    QTableWidgetItem *item = list->item(row, listColumn);
    if (item == nullptr)
        list->setItem(row, listColumn, new QTableWidgetItem(text));
    else
        item->setText(text);
}

void DifferentiationPage::RewriteTable() {
    const std::array<bool, 4> shown = Shown();
    const std::string variable = table.rows() > 0 ? table.variable : Variable().toStdString();
    QStringList titles;
    for (int column = 0; column < calculus::kTableColumns; ++column)
        if (calculus::ListColumn(column, shown) >= 0)
            titles << FromStd(calculus::ColumnTitle(column, variable));
    list->clearContents();
    list->setColumnCount(static_cast<int>(titles.size()));
    list->setHorizontalHeaderLabels(titles);
    list->setRowCount(static_cast<int>(table.rows()));
    for (int column = 0; column < calculus::kTableColumns; ++column) {
        const std::size_t cells = std::min(table.columns[column].size(), table.rows());
        for (std::size_t row = 0; row < cells; ++row) ShowCell(static_cast<int>(row), column);
        shownCells[column] = cells;
    }
    if (guard.idle()) {
        // Whole values once the run is over; while it goes on the columns stay as they are.
        list->resizeColumnsToContents();
        for (int column = 0; column < list->columnCount(); ++column)
            list->setColumnWidth(column, std::max(list->columnWidth(column), kColumnWidth));
    }
}

void DifferentiationPage::ShowNewCells() {
    if (list->rowCount() != static_cast<int>(table.rows()))
        list->setRowCount(static_cast<int>(table.rows()));
    for (int column = 0; column < calculus::kTableColumns; ++column) {
        const std::size_t cells = std::min(table.columns[column].size(), table.rows());
        for (std::size_t row = shownCells[column]; row < cells; ++row)
            ShowCell(static_cast<int>(row), column);
        shownCells[column] = cells;
    }
}

void DifferentiationPage::HideControls(bool running) {
    inputs->setVisible(!running);
    otherButtons->setVisible(!running);
    computeButton->setVisible(!running);
    stopButton->setVisible(running);
    gauge->setVisible(running);
    statusText->setVisible(running);
    gauge->setValue(0);
    if (running) stopButton->setFocus();
}

void DifferentiationPage::Compute() {
    if (!guard.begin()) return;
    // A run starts from an empty table; its rows show as they come.
    table.clear();
    RewriteTable();
    insertButton->setEnabled(false);
    graphButton->setEnabled(false);
    const calculus::DifferentiationSettings settings = ReadBoxes();
    StoreSettings();
    host.Begin();
    HideControls(true);
    emit runStarted();
    calculus::DifferentiationRun run(document.Engine(), host, precisionBox->value());
    const calculus::DifferentiationResult result = run.run(settings, table);
    HideControls(false);
    RewriteTable();
    guard.end();
    const bool answers = (result.solved || result.stopped) && table.has_data();
    insertButton->setEnabled(answers);
    graphButton->setEnabled(answers);
    StoreSettings();
    emit runFinished();
}

void DifferentiationPage::InsertAnswer() {
    if (!guard.idle() || !table.has_data()) return;
    std::set<std::size_t> chosen;
    for (const QModelIndex &index : list->selectionModel()->selectedRows())
        chosen.insert(static_cast<std::size_t>(index.row()));
    std::vector<std::size_t> rows(chosen.begin(), chosen.end());
    if (rows.empty()) {
        const int answer = workbench.Messages().ShowPlain(
            this, CalculusText(calculus::kCopyWholeTable),
            CalculusText(calculus::kDifferentiationTitle), kBoxQuestionYesNoCancel);
        if (answer != kIdYes) return;
        for (std::size_t row = 0; row < table.rows(); ++row) rows.push_back(row);
    }
    MathEditorWidget &pane = document.TextPane();
    pane.setFocus();
    pane.Buffer().ReplaceSelection(
        calculus::InsertAnswerText(document.Engine(), table, rows, precisionBox->value()));
}

void DifferentiationPage::GraphAnswer() {
    if (!guard.idle() || !table.has_data()) return;
    const calculus::DifferentialsGraph built = calculus::BuildDifferentialsGraph(
        document.Engine(), document.Content().graphs, table, precisionBox->value(), nullptr);
    if (built.graph != nullptr) document.Content().currentGraph = built.graph;
    if (built.refused) {
        workbench.Messages().ShowPlain(this, CalculusText(calculus::kUnequalXData),
                                       CalculusText(calculus::kGraphingTitle), kBoxWarning);
        return;
    }
    if (drawGraph) drawGraph(document);
}

void DifferentiationPage::PrecisionChanged(int value) {
    if (filling || !guard.idle()) return;
    workbench.Settings().Write(settings::kDifferentiationPrecision, value);
    document.Content().differentiation.DiffPrecision = value;
    if (table.rows() > 0) {
        RewriteTable();
        workbench.PlaySound("QClick.wav");
    }
}

void DifferentiationPage::AppendToFunction(const QString &text) {
    if (!guard.idle()) return;
    const QString joined = functionBox->currentText() + text;
    functionBox->setCurrentIndex(-1);
    functionBox->setEditText(joined);
}

void DifferentiationPage::SelectField(calculus::Field field) {
    using calculus::Field;
    QLineEdit *edit = nullptr;
    if (field == Field::Start) edit = startEdit;
    if (field == Field::End) edit = endEdit;
    if (field == Field::Steps) edit = stepsEdit;
    if (edit != nullptr) {
        edit->selectAll();
        edit->setFocus();
    } else if (field == Field::Function) {
        functionBox->setFocus();
    } else if (field == Field::Variable) {
        variableBox->setFocus();
    }
}

}  // namespace quindar
