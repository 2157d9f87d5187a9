// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Differentiation page of the Calculus sheet: a function, its variable and a range, and a
// table of the variable, the function and its first three derivatives that fills while the run
// goes on. "Insert Ans." writes rows into the document's text, "Graph Ans." makes them a graph
// of the document. The run and the texts are the calculus library's; this page shows them.

#include <array>
#include <functional>

#include "calculus_page.h"
#include "differentiation_run.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace quindar {

class DocumentWindow;
class Workbench;

class DifferentiationPage : public CalculusPage {
    Q_OBJECT
public:
    DifferentiationPage(Workbench &workbench, DocumentWindow &document, const QString &function,
                        QWidget *parent = nullptr);

    void StoreSettings() override;
    void ReloadFunctionList() override;
    void AppendToFunction(const QString &text) override;

    const calculus::DifferentiationTable &Table() const { return table; }
    QTableWidget *List() const { return list; }
    QPushButton *GraphButton() const { return graphButton; }

    // Draws a graph the page has put into the document's list; the graph window's.
    std::function<void(DocumentWindow &document)> drawGraph;

public slots:
    void Compute() override;
    void InsertAnswer();
    void GraphAnswer();

private:
    void BuildControls(const QString &function);
    void LoadSettings();
    calculus::DifferentiationSettings ReadBoxes() const;
    std::array<bool, 4> Shown() const;
    QString Variable() const;
    void InputChanged();
    void FunctionChanged();
    void RetitleColumns();
    void RewriteTable();
    void ShowNewCells();
    void HideControls(bool running);
    void PrecisionChanged(int value);
    void SelectField(calculus::Field field);
    void ShowCell(int row, int column);

    calculus::DifferentiationTable table;
    // The cells of each table column already shown in the list during a run.
    std::array<std::size_t, calculus::kTableColumns> shownCells{};
    bool filling = false;

    QWidget *inputs = nullptr;
    QComboBox *functionBox = nullptr;
    QComboBox *variableBox = nullptr;
    QLineEdit *startEdit = nullptr;
    QLineEdit *endEdit = nullptr;
    QLineEdit *stepsEdit = nullptr;
    std::array<QCheckBox *, 4> columnBoxes{};
    QTableWidget *list = nullptr;
    QLabel *statusText = nullptr;
    QProgressBar *gauge = nullptr;
    QSpinBox *precisionBox = nullptr;
    QPushButton *graphButton = nullptr;
    QWidget *otherButtons = nullptr;
};

}  // namespace quindar
