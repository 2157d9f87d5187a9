// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One press of the Differentiation Utility's Compute: a table of the variable, the function
// and its first, second and third derivatives at n evenly spaced points. The expression is
// mapped once; the columns are computed one after the other, the function first. An error at
// one point ends the run and keeps the rows computed before it; so does Stop.

#include <array>
#include <string>
#include <vector>

#include "parser.h"
#include "progress_gauge.h"
#include "run_host.h"

namespace quindar::calculus {

// The columns of the table: the variable's, then the four the check boxes choose.
enum TableColumn {
    kVariableColumn = 0,
    kFunctionColumn,
    kFirstColumn,
    kSecondColumn,
    kThirdColumn
};
inline constexpr int kTableColumns = 5;

struct DifferentiationSettings {
    std::string function;
    std::string variable;
    std::string start, end, steps;  // "Xo", "Xn" and "n", as expressions
    // The check boxes of f, f', f'' and f'''.
    std::array<bool, 4> shown{true, true, true, true};
};

struct DifferentiationTable {
    std::string function;  // the text differentiated
    std::string variable;
    std::array<std::vector<long double>, kTableColumns> columns;

    std::size_t rows() const { return columns[kVariableColumn].size(); }
    // A column beside the variable's holds a value.
    bool has_data() const;
    void clear();
};

struct DifferentiationResult {
    bool solved = false;   // every column asked for is complete
    bool stopped = false;  // Stop ended the run; the rows so far stay
};

// The variable box's text, trimmed; "x" when it is empty.
std::string CurrentVariable(const std::string &box);
// The list title of a column: the variable's name, "f (x)", "f '(x)", "f ''(x)", "f '''(x)".
std::string ColumnTitle(int column, const std::string &variable);
// The list column that shows a table column, counting the checked boxes before it; -1 while
// its box is unchecked.
int ListColumn(int column, const std::array<bool, 4> &shown);
// A value as the table and the Math Editor show it.
std::string AnswerText(Parser &parser, long double value, int precision);
// What "Insert Ans." writes for the given rows: per row the variable "=" its value, then for
// each column holding a value at that row three blanks, its title, "=" and the value.
std::string InsertAnswerText(Parser &parser, const DifferentiationTable &table,
                             const std::vector<std::size_t> &rows, int precision,
                             const char *lineEnd = "\r\n");

class DifferentiationRun {
public:
    DifferentiationRun(Parser &parser, RunHost &host, int precision);

    DifferentiationResult run(const DifferentiationSettings &settings, DifferentiationTable &table);

private:
    bool fail(int id, const std::string &text, Field field);
    bool limit(const std::string &text, Field field, long double &value);
    bool insert_var_values(Variable &variable, std::vector<long double> &column);
    bool insert_fun_values(int map, Variable &variable, std::vector<long double> &column);
    bool differentiate(int map, Variable &variable, int order, std::vector<long double> &column);
    std::string value_of(Variable &variable);
    void column_done();

    Parser &parser;
    RunHost &host;
    int precision;
    ProgressGauge gauge{GaugeRounding::PositionDown};
};

}  // namespace quindar::calculus
