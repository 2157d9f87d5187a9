// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The engine of one document: turns a line of text into a value by recursive descent,
// computing as it reads, and owns the engine's error channel.

#include <cstdio>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "complex.h"
#include "computation_hooks.h"
#include "dynarray.h"
#include "dynlist.h"
#include "equation.h"
#include "function.h"
#include "function_library.h"
#include "mathematics.h"
#include "message_hook.h"
#include "name_index.h"
#include "precform.h"
#include "statistics.h"
#include "variable.h"

namespace quindar {

// Kinds of token.
inline constexpr char kDelimiter = 0;
inline constexpr char kName = 1;
inline constexpr char kNumber = 2;

// Relational operators are kept in a token as these control codes.
enum RelationalCode : char {
    kLess = 1,
    kLessEqual = 2,
    kGreater = 3,
    kGreaterEqual = 4,
    kEqual = 5,
    kNotEqual = 6,
};

// The working copy of a line, with everything spliced into it, holds this many bytes.
inline constexpr std::size_t kExpressionSize = 1024;

class EmbeddedCalls;
class MapSolver;

// The statistics and random deviates come with the Statistics base.
class Parser : public Statistics, public Mathematics {
    friend class EmbeddedCalls;
    friend class MapSolver;

public:
    Parser(const char *libraryDir, const char *userLibraryDir);
    ~Parser();
    Parser(const Parser &) = delete;
    Parser &operator=(const Parser &) = delete;

    // Evaluates one line. Returns the answer text (" = 5" with showEquals), or an empty
    // text when the line was a plain declaration or failed. The text lives until the
    // next call. The short form returns null for a null text.
    const char *eval_exp(const char *text, bool silent, bool showEquals);
    const char *eval_exp(const char *text, complex &result, bool silent, bool showEquals);

    // Error channel over every error state of the engine.
    bool IsAnError() const;
    const char *GetLastError() const;
    void ClearLastError();
    void SetLastError(const char *text, int number);
    void SetSilentMode(bool silentMode);
    void SetSolvingMap(bool solving);
    int GetLastErrorNumber() const { return error_number; }

    // The application's message boxes, for this engine and everything it owns.
    void set_message_hook(MessageHook hook);

    // One-shot token reading for callers outside evaluation. Returns the position behind
    // the token, or null at the end or on an error. A token may be as long as its text.
    const char *get_token(const char *text, std::string &tokenOut, char &typeOut);
    // True when text holds a name token equal to name (case sensitive).
    bool find_token(const char *text, const char *name, char unused = 0);

    static void remove_end_spaces(char *text);

    // Printing of values with this engine's formats.
    void stream_answer(complex &value, std::ostream &stream, int precision);
    void stream_variable(complex &value, std::ostream &stream, int precision);

    // Working values of the workers below; they hide those of the Mathematics base,
    // which has its own for the operators.
    void InitMapmValues();
    void FreeMapmValues();

    // Workers shared by the operators, the embedded functions and the map solver.
    complex _pow(const complex &a, const complex &b);
    complex _sqrt(const complex &z);
    complex _log(const complex &z);
    complex _log10(const complex &z);
    complex _exp(const complex &z);
    complex _abs(const complex &z);
    complex _round(const complex &z);
    complex _trunc(const complex &z);
    complex _floor(const complex &z);
    complex _ceil(const complex &z);
    complex _fmod(const complex &a, const complex &b);
    complex _degree(const complex &z);
    complex _radian(const complex &z);
    complex _trig_func(const complex &z, int fn);
    complex _hyp_trig_func(const complex &z, int fn);
    complex _arc_trig_func(const complex &z, int fn);
    complex _arc_hyp_trig_func(const complex &z, int fn);
    complex _factorial(const complex &z);
    complex _less(bool &chain, const complex &a, const complex &b);
    complex _leseq(bool &chain, const complex &a, const complex &b);
    complex _greater(bool &chain, const complex &a, const complex &b);
    complex _greateq(bool &chain, const complex &a, const complex &b);
    complex _equal(bool &chain, const complex &a, const complex &b);
    complex _nequal(bool &chain, const complex &a, const complex &b);

    // Variables, in list order, with the array's cursor: an operation given index -1 or
    // a null name works on the variable at the cursor.
    int find_variable(const char *name);
    int max_var_length();
    bool is_variable(const char *name);
    bool is_variable(int index);
    bool var_assigned(const char *name);
    bool var_assigned(int index);
    bool var_incremented(const char *name);
    bool var_incremented(int index);
    complex get_var_lowlimit(const char *name);
    complex get_var_lowlimit(int index);
    complex get_var_hilimit(const char *name);
    complex get_var_hilimit(int index);
    complex get_var_increment(const char *name);
    complex get_var_increment(int index);
    void set_var_lowlimit(complex limit, const char *name);
    void set_var_hilimit(complex limit, const char *name);
    long get_var_numpoints(const char *name);
    long get_var_numpoints(int index);
    void set_var_numpoints(long points, const char *name);
    complex get_var_value(const char *name);
    const char *get_var_value(int index, int precision);
    const char *get_var_value(const char *name, int precision);
    void set_var_value(complex value, const char *name);
    bool is_var_locked(const char *name);
    void set_var_lock(const char *name, bool lock);
    const char *get_var_inc_str_value(int index, int precision);
    const char *get_var_str_value(const char *name, int precision, bool definition);
    const char *get_var_str_value(int index, int precision, bool definition);
    const char *get_var_str(int index, int precision, bool definition);
    int get_var_str_value_len(int index, int precision, bool definition);
    const char *get_var_name(int index);
    static std::string get_var_dec_value(const char *text);
    void switch_vars(int a, int b);
    void move_var(int from, int to);
    bool delete_variable(int index);
    void delete_all_vars();

    DynArray<Variable, 10> variables;

    // User functions, in list order, with the array's cursor as for variables.
    void add_new_function(const char *fullName, const char *value);
    int find_function(const char *name);
    int max_func_length();
    bool is_function(const char *name);
    bool is_function(int index);
    bool is_func_variable(const char *shortName, const char *variable);
    int get_num_func_vars(int index);
    const char *get_func_name(int index);
    const char *get_func_short_name(int index);
    const char *get_func_value(const char *name);
    const char *get_func_value(int index);
    const char *get_func_name_value(int index);
    const char *get_func_modvalue(const char *name);
    const char *get_func_modvalue(int index);
    void set_func_value(const char *value, const char *name);
    void modify_func_value(int k, const char *text, const char *name);
    void modify_func_value(int k, const char *text, int index);
    void reset_func_modvalue(int index);
    const char *get_func_variable(const char *name, bool first);
    const char *get_func_variable(int index, bool first);
    void set_func_variables(const char *variables, const char *name);
    const char *get_func_str(int index);
    const char *get_func_name_ex(int index);
    const char *get_func_value_ex(const char *name);
    const char *get_func_str_ex(int index);
    int get_func_value_len(const char *name);
    int get_func_value_len(int index);
    int get_tot_func_value_len();
    void switch_funcs(int a, int b);
    void move_func(int from, int to);
    bool delete_function(int index);
    void delete_all_funcs();
    // Every bracket in place: mode 0 [ ] to ( ), mode 1 ( ) to [ ].
    static void replace_brackets(char *text, int mode);
    // Call brackets only: mode 1 turns f(x) into f[x], mode 0 back.
    void insert_brackets(char *text, int mode);

    DynArray<Function, 10> functions;

    // The function library files. The owner installs how a library file is read; the engine
    // then opens its system and user library with it, each one that can be read, and tells
    // once of each that cannot. Without them no name is a library function.
    void open_function_libraries(FunctionLibraryOpener opener);
    // True if name is a function of the system library or, failing that, of the user
    // library; the function found waits in lib_function.
    bool is_library_function(const char *name);
    // A new record of the function name in the current category of the library, or null.
    std::unique_ptr<Function> get_lib_function(const char *name);
    std::unique_ptr<Function> get_user_function(const char *name);

    std::unique_ptr<FunctionLibrary> library;
    std::unique_ptr<FunctionLibrary> user_library;
    // The two files' paths, for the Function Library's own reading of names and descriptions.
    const std::string &get_lib_path() const { return lib_path; }
    const std::string &get_user_lib_path() const { return user_lib_path; }

    // The embedded functions and constants.
    int internal_function(const char *name) const;
    bool is_internal_function(const char *name) const;
    const char *get_function_name(int index) const;
    int constant_index(const char *name) const;
    bool is_constant(const char *name) const;
    const char *get_constant_name(int index) const;
    long double get_constant_value(const char *name) const;

    // Raising. Each stores its message, shows it unless silent, then leaves for the
    // recovery point of eval_exp, or returns while a map is being solved.
    void parser_exception(int number);
    void special_exception(const char *format, const char *argument);
    void special_exception(const char *format, char argument);
    // The same for the character that starts at `at`, a whole UTF-8 character when it is one.
    void character_exception(const char *format, const char *at);
    void special_exception();
    // A function library error: message `number` with the name of function `functionIndex`
    // (-1 for none) and, for the messages that take one, `text` before it.
    void mathlib_exception(int number, int functionIndex, const char *text);

    // Parameter fetching of the embedded functions: each reads its values from the token
    // stream through the comparison level and checks the form of the call.
    void get_one_par(std::ostream &answer, complex &a, int fn);
    void get_two_pars(std::ostream &answer, complex &a, complex &b, int fn);
    void get_three_pars(std::ostream &answer, complex &a, complex &b, complex &c, int fn);
    void get_four_pars(std::ostream &answer, complex &a, complex &b, complex &c, complex &d,
                       int fn);
    void get_one_real_par(std::ostream &answer, complex &a, int fn);
    void get_two_real_pars(std::ostream &answer, complex &a, complex &b, int fn);
    void get_three_real_pars(std::ostream &answer, complex &a, complex &b, complex &c, int fn);
    void get_four_real_pars(std::ostream &answer, complex &a, complex &b, complex &c, complex &d,
                            int fn);
    void get_two_real_pos_pars(std::ostream &answer, complex &a, complex &b, int fn);
    // Data lists in braces and data files: the brace argument of a list function.
    void get_data(std::ostream &answer, DynArray<long double, 10> &list, int fn);
    void get_comline_data(std::ostream &answer, DynArray<long double, 10> &list, int fn);
    bool get_file_data(DynArray<long double, 10> &list, const char *name, int fn);
    bool get_file_data(DynArray<std::string, 10> &list, const char *name, int fn);
    // The folder of the document this engine computes, or empty. A data file named without a
    // folder is looked for there first, then in the working folder, so that a document and its
    // data files can move together.
    std::string data_folder;
    // Where the data file `name` is read from.
    std::string data_file_path(const char *name) const;
    // The data files whose entries engines made for them are evaluating, outermost first, and
    // what all nested reads of one outer file may still cost. A file entry may name another
    // data file, so without these a file that reads itself would recurse until the stack ends.
    std::vector<std::string> data_file_chain;
    std::shared_ptr<long> nested_data_budget;
    bool may_read_data_file(const std::string &identity, const char *name);

    void check_no_right_bracket(int number, int fn);
    void check_right_bracket(int number, int fn);
    void check_no_right_brace(int number, int fn);
    void check_left_brace(int number, int fn);
    void check_comma(int number, int fn);
    void check_no_comma(int number, int fn);
    void check_more(int number, int fn);
    void check_no_other_parameter(int number, int fn);
    bool check_no_imag_compnts(int number, int fn, const complex &c1, const complex &c2 = {},
                               const complex &c3 = {}, const complex &c4 = {});
    bool check_pos_integers(int fn, const complex &c1, const complex &c2);

    // Equation maps. A caller records a map by setting current_equation to a new element of
    // equations and mapping to true, then evaluating the line once; it then solves the map
    // as often as it needs, changing variables with set_var_value in between.
    LinkList<Equation> equations;
    Equation *current_equation = nullptr;
    // The map at 1-based position n, or null.
    Equation *equation_at(int n) const;
    // Removes the map at 1-based position n; maps behind it move down one place.
    void delete_equation(int n);
    // Runs map `map` (1-based; 0 for current_equation). The first error stops the run and
    // stays readable through IsAnError and GetLastError; the result is then meaningless.
    complex solve_equation(int map, bool restart, bool silent);
    // An error of the map solver: stores and shows message `number`, never leaves by a jump.
    void mapper_exception(int number, bool silentMode);

    // Numeric methods over a mapped expression in one declared variable. Each sample sets
    // the variable, solves the map silently and takes the real part.
    long double RombIntegrate(int map, const char *var, long double low, long double high,
                              long double accuracy, bool silent);
    long double Trapazoid(int map, const char *var, long double low, long double high, int level);
    void PolyInterpolate(long double *xa, long double *ya, int n, long double x, long double *y,
                         long double *dy);
    long double Derivative(int map, const char *var, const long double &x, const long double &h,
                           int order, long double &tolerance, bool silent);
    bool Slope(int map, const char *var, const long double &x, const long double &step,
               const long double &h, int order, long double &tolerance, long double &slope,
               bool silent);
    bool Root(int map, const char *var, long double x1, long double x2, long double tolerance,
              int maxIterations, long double &root);
    long double GetY(int map, const char *var, long double x, long double tolerance,
                     long double &yHighest, long double &yLowest, bool &isZero);
    // The application's stop flag, message pump and progress for the loops above and for
    // graph builds; none when the engine runs alone.
    void set_computation_hooks(ComputationHooks *hooks);
    ComputeHost *get_compute_host() const { return computation_hooks; }
    // Held by a graph build or a calculus run for its length: one at a time per document.
    ComputeGate compute_gate;

    // Settings read by the list windows, the trigonometric functions and documents.
    bool use_square_brackets = true;
    bool show_incrementals = true;
    int angle_mode = 0;
    bool auto_declare = false;
    bool limit_digits = false;

    std::unique_ptr<PrecformType> answer_format;
    std::unique_ptr<PrecformType> variable_format;

    bool vars_saved = true;
    bool assignment_made = false;
    bool funcs_saved = true;
    bool function_declared = false;
    bool mapping = false;

    bool error = false;
    int error_number = -1;
    bool silent = false;
    bool solving_map = false;
    bool show_equals = false;
    std::optional<std::string> error_text;

private:
    // Appends an instruction to the map being recorded; nothing unless mapping.
    void record(Instruction op, complex value = {}, const char *text = nullptr) {
        if (mapping && current_equation != nullptr)
            current_equation->set_instruction(op, value, text);
    }
    // The handler of the current call took a data list (the list functions' instructions
    // differ from their forms with values).
    bool call_took_list = false;

    // Frame.
    void reset();
    void raise(const std::string &text, const char *caption, int number);
    // Records a failure of a data file and shows it; the caller decides how to leave.
    void report_data_file_error(const std::string &text);
    template <class... Arguments>
    static std::string format_message(const char *format, Arguments... arguments) {
        const int size = std::snprintf(nullptr, 0, format, arguments...);
        std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
        std::snprintf(text.data(), text.size() + 1, format, arguments...);
        return text;
    }
    void evaluate_line(complex &result, std::ostringstream &answer);

    // Tokens.
    const char *get_token();
    void putback();
    void copy_token(char &type, std::string &to) const;
    void copy_token_back(char type, const std::string &from);
    void check_valid_input(char *text);
    void check_legitimate_characters(const char *text);
    bool passes_incremental_comma_test();
    void check_balanced_parens(const char *text);
    bool is_function_declaration();
    void read_number();
    bool at_end() const { return token.empty() && token_type == kDelimiter; }
    bool token_is(char delimiter) const;
    bool token_is_relational() const;
    bool token_is_i() const;

    // Grammar.
    void eval_exp0(complex &value, std::ostream &answer);
    void eval_exp1(complex &value, std::ostream &answer);
    void eval_exp2(complex &value, std::ostream &answer);
    void eval_exp3(complex &value, std::ostream &answer);
    void eval_exp4(complex &value, std::ostream &answer);
    void eval_exp5(complex &value, std::ostream &answer);
    void eval_exp6(complex &value, std::ostream &answer);
    void atom(complex &value, std::ostream &answer);
    void atom_name(complex &value, std::ostream &answer);
    void atom_number(complex &value);
    void get_scientific_value(long double &value);
    complex compare(char code, bool &chain, const complex &left, const complex &right);
    static Instruction comparison_instruction(char code);

    // Names that later tables answer; until then they find nothing.
    complex call_internal_function(int index, std::ostream &answer);
    bool user_function_full_name(const char *name, std::string &fullName);
    void declare_variable(complex &value, std::ostream &answer, const char *name);
    void declare_unassigned_variable(const char *name);
    void declare_function();
    void insert_functions();
    void eval_function(int index);
    void eval_lib_function();
    std::vector<std::string> collect_arguments(const std::string &shortName, bool refuseSelf);
    bool names_itself(const std::string &text, const std::string &name);
    bool may_be_library_name(const char *name);
    bool check_function_library_access(const std::string &path);
    void check_library_call(const char *behind);
    void insert_function(const std::string &value, char *start, const char *rest);
    void check_declaration_body(const std::string &fullName, const std::string &shortName,
                                const std::vector<std::string> &parameters, char *body);
    void raise_argument_count(const std::string &name, int wanted, int used);
    Function *function_at(int index);
    Function *function_named(const char *name);

    Variable *variable_at(int index);
    Variable *variable_named(const char *name);
    const char *variable_text_of(Variable *variable, int precision, bool definition);

    // One value through an operation of the complex decimal layer at 14 places.
    template <class Operation>
    complex complex_worker(const complex &z, Operation operation);
    template <class Operation>
    complex complex_pair_worker(const complex &a, const complex &b, Operation operation);
    long double reduce_angle(long double x, const char *turn, MapmNumber &remainder);
    // z as the message of a pole shows it: the variable format's digits.
    std::string value_text(const complex &z);

    // Relational worker shared by the six comparisons.
    template <class Relation>
    complex relation(bool &chain, const complex &a, const complex &b, Relation holds);

    // Numeric methods.
    long double sample(int map, const char *var, long double x);
    bool holds_at_or_below(long double a, long double b);
    bool holds_below(long double a, long double b);
    bool stop_requested();
    void run_interface();
    bool application_check_stops();
    bool pump_then_stop_requested();
    ComputationHooks *computation_hooks = nullptr;
    // The trapezoid rule's estimate of its last level, refined by the next one.
    long double trapezoid_estimate = 0.0L;

    std::string lib_path, lib_dir, user_lib_path, user_lib_dir;
    FunctionLibraryOpener library_opener;
    std::unique_ptr<Function> lib_function;

    std::unique_ptr<char[]> expr;
    char *prog = nullptr;
    char *expr_start = nullptr;
    std::string token;
    std::string saved_token;
    char token_type = kDelimiter;
    bool implicit_mult = false;

    std::string answer_text;
    std::string variable_text;
    std::string function_text, function_text_ex;
    int splices = 0;

    MapmNumber parser_mapm_values[6]{};
    M_APM mapm_r1 = &parser_mapm_values[0], mapm_r2 = &parser_mapm_values[1];
    M_APM mapm_a = &parser_mapm_values[2], mapm_b = &parser_mapm_values[3];
    M_APM mapm_c = &parser_mapm_values[4], mapm_d = &parser_mapm_values[5];
    bool mapm_free = true;

    MessageHook message_hook_storage;

    // Hash look-ups of the two lists by name: variables by name, functions by short name and
    // by full name.
    static const std::string &variable_key(const Variable &v) { return v.name; }
    static const std::string &function_short_key(const Function &f) { return f.short_name; }
    static const std::string &function_full_key(const Function &f) { return f.full_name; }
    NameIndex<Variable, 10> variable_index{&variable_key};
    NameIndex<Function, 10> function_short_index{&function_short_key};
    NameIndex<Function, 10> function_full_index{&function_full_key};
};

}  // namespace quindar
