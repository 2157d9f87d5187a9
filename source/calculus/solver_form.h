// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The Function Solver's form without its window: a function's prototype text read into six
// labelled boxes, either a set of named parameters or a scrolling list of values (with the
// prototype's trailing names in the last boxes), what the user typed kept as texts, and the
// call built from them for the engine to evaluate.

#include <array>
#include <string>
#include <vector>

#include "parser.h"

namespace quindar::calculus {

inline constexpr int kSolverBoxes = 6;
inline constexpr int kListChunk = 25;

enum class ParameterType { Set = 0, List = 1 };

// The prototype as the prototype's text control shows it: no blanks, and a blank after every
// `width` characters so that the control can wrap it.
std::string InsertFunctionPrototype(const std::string &prototype, std::size_t width = 50);
// "=" solves unless the prototype is of a logical function.
bool CanExecuteEquals(const std::string &prototype);
// The parameters of a prototype for graphing: its commas plus one.
int PrototypeParameterCount(const std::string &prototype);

// The kind of a data file, found from its name as a substring: ".txt", then ".csv", then
// ".prn"; empty for none.
std::string DataFileKind(const std::string &name);
// A data file's text: one entry a line, ".prn" entries behind six blanks.
std::string DataFileText(const std::vector<std::string> &entries, const std::string &kind);

struct SolverFailure {
    int id = 0;  // 0: the engine's own text
    std::string text;
};

class SolverForm {
public:
    // Reads the prototype; false (message 13056) when a set has more than six names.
    bool configure(const std::string &prototype);
    // The radio buttons of a prototype with two forms: 0 the set, 1 the list.
    void select_form(int form);

    const std::string &function_name() const { return name; }
    ParameterType type() const { return parameter_type; }
    int num_parameters() const { return boxes_in_use; }
    bool has_two_forms() const { return !second_form.empty() && !first_form.empty(); }
    bool has_parameters() const { return parameters_given; }
    const std::string &list_label() const { return label_of_list; }
    int first_row() const { return row_at_top; }
    // The label of box i and whether it shows.
    std::string label(int box) const;
    bool box_shown(int box) const;
    // The text box i shows.
    std::string box_text(int box) const;

    // Evaluates the text typed into box i and keeps it as typed; an empty text removes the
    // entry. False with the reason when the engine refuses it, or, in the list, when its value
    // is imaginary.
    bool store(Parser &parser, int box, const std::string &text, SolverFailure &failure);
    // Scrolls the list by delta rows, growing it by chunks so six rows always exist.
    void move(int delta);
    void clear();

    // Entries of the list or the set in index order, empty slots skipped.
    std::vector<std::string> entries() const;
    int entry_count() const;
    // Places data file entries behind the last filled one, or instead of all of them.
    void load(const std::vector<std::string> &read, bool replace);

    // The call: name, "[", the entries (in braces for a number list), the trailing boxes, "]".
    std::string build_expression() const;
    // Evaluates the call at `precision` digits; false with the reason.
    bool solve(Parser &parser, int precision, std::string &answer, SolverFailure &failure) const;

private:
    void init_set();
    bool read_set_names();
    void init_list();
    std::string *slot(int box);
    const std::string *slot(int box) const;

    std::string prototype;
    std::string name;
    std::string first_form;   // the parameter list of the set form, from its first name
    std::string second_form;  // the list form's trailing names, from the comma behind "}"
    bool parameters_given = false;
    ParameterType parameter_type = ParameterType::Set;
    std::string label_of_list = "Number";
    int boxes_in_use = 0;
    int row_at_top = 0;
    std::array<std::string, kSolverBoxes> labels;
    std::vector<std::string> values;                 // set values or list rows, by index
    std::array<std::string, kSolverBoxes> trailing;  // the list form's named boxes
};

}  // namespace quindar::calculus
