// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The instructions of the language's own operations and of the general, complex,
// trigonometric, logical and electrical functions: what each computes in the map solver,
// through the same workers the evaluator uses, so a map and its line agree.
#include <cmath>

#include "embedded_calls.h"
#include "map_solver.h"
#include "parser.h"

namespace quindar {

namespace {

using R = MapInstructionRow;
using I = Instruction;
constexpr MapForm kLanguage = MapForm::Language, kValues = MapForm::Values, kList = MapForm::List,
                  kSelf = MapForm::SelfRecorded;
constexpr int kComplexDataPoint = 0, kTooDeep = 2, kUnrecognized = 5;
// Levels 0 to 4: five nested functions with data lists.
constexpr int kDeepestListLevel = 3;

// A comparison against the chain in progress; the right operand becomes the next left one,
// so a chain compares neighbours as the evaluator does.
template <complex (Parser::*Compare)(bool &, const complex &, const complex &)>
complex compare(Parser &p, MapRun &run, const complex *v) {
    if (run.chains.empty()) run.chains.push_back({v[0], true});
    MapRun::Chain &chain = run.chains.back();
    const complex result = (p.*Compare)(chain.holds, chain.left, v[1]);
    chain.left = v[1];
    return result;
}

template <complex (Parser::*Worker)(const complex &)>
complex unary(Parser &p, MapRun &, const complex *v) {
    return (p.*Worker)(v[0]);
}

template <complex (Parser::*Worker)(const complex &, int)>
complex grouped(Parser &p, MapRun &run, const complex *v) {
    return (p.*Worker)(v[0], run.fn);
}

template <complex (*Worker)(Parser &, const complex &, const complex &)>
complex pair(Parser &p, MapRun &, const complex *v) {
    return Worker(p, v[0], v[1]);
}

template <complex (*Part)(const complex &)>
complex part(Parser &, MapRun &, const complex *v) {
    return Part(v[0]);
}

}  // namespace

void MapSolver::append_general_rows(std::vector<MapInstructionRow> &rows) {
    const R general[] = {
        {I::DeclareVariable, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             const char *name = run.next_name();
             if (!p.is_variable(name)) p.declare_unassigned_variable(name);
             return complex{};
         },
         nullptr},
        {I::AssignValue, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             p.set_var_value(run.stack.back(), run.next_name());
             return complex{};
         },
         nullptr},
        {I::AssignLowLimit, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             p.set_var_lowlimit(run.stack.back(), run.next_name());
             return complex{};
         },
         nullptr},
        {I::AssignHighLimit, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             p.set_var_hilimit(run.stack.back(), run.next_name());
             return complex{};
         },
         nullptr},
        {I::AssignPoints, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             p.set_var_numpoints(points_from_value(std::trunc(run.stack.back().real)),
                                 run.next_name());
             return complex{};
         },
         nullptr},
        {I::Variable, nullptr, 0, true, kLanguage,
         [](Parser &p, MapRun &run, const complex *) { return p.get_var_value(run.next_name()); },
         nullptr},
        {I::AddFunction, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             const char *name = run.next_name();
             if (p.find_function(name) < 0) p.add_new_function(name, nullptr);
             return complex{};
         },
         nullptr},
        {I::SetFunctionBody, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             p.set_func_value(run.next_name(), nullptr);
             return complex{};
         },
         nullptr},
        {I::FindFunction, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             p.find_function(run.next_name());
             return complex{};
         },
         nullptr},
        {I::Constant, nullptr, 0, true, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             return complex{static_cast<double>(p.get_constant_value(run.next_name())), 0.0};
         },
         nullptr},
        {I::Literal, nullptr, 0, true, kLanguage,
         [](Parser &, MapRun &run, const complex *) { return run.next_literal(); }, nullptr},
        {I::EndComparison, nullptr, 0, false, kLanguage,
         [](Parser &, MapRun &run, const complex *) {
             if (!run.chains.empty()) run.chains.pop_back();
             return complex{};
         },
         nullptr},
        {I::StartComparison, nullptr, 0, false, kLanguage,
         [](Parser &, MapRun &run, const complex *) {
             run.chains.push_back({run.stack.back(), true});
             return complex{};
         },
         nullptr},
        {I::Less, nullptr, 2, true, kLanguage, compare<&Parser::_less>, nullptr},
        {I::LessEqual, nullptr, 2, true, kLanguage, compare<&Parser::_leseq>, nullptr},
        {I::Greater, nullptr, 2, true, kLanguage, compare<&Parser::_greater>, nullptr},
        {I::GreaterEqual, nullptr, 2, true, kLanguage, compare<&Parser::_greateq>, nullptr},
        {I::Equal, nullptr, 2, true, kLanguage, compare<&Parser::_equal>, nullptr},
        {I::NotEqual, nullptr, 2, true, kLanguage, compare<&Parser::_nequal>, nullptr},
        {I::Add, nullptr, 2, true, kLanguage,
         [](Parser &p, MapRun &, const complex *v) { return p.complex_add(v[0], v[1]); }, nullptr},
        {I::Subtract, nullptr, 2, true, kLanguage,
         [](Parser &p, MapRun &, const complex *v) { return p.complex_sub(v[0], v[1]); }, nullptr},
        {I::Negate, nullptr, 1, true, kLanguage,
         [](Parser &, MapRun &, const complex *v) { return complex{-v[0].real, -v[0].imag}; },
         nullptr},
        {I::Multiply, nullptr, 2, true, kLanguage,
         [](Parser &p, MapRun &, const complex *v) { return p.complex_mult(v[0], v[1]); },
         nullptr},
        {I::Divide, nullptr, 2, true, kLanguage,
         [](Parser &p, MapRun &, const complex *v) { return p.complex_div(v[0], v[1]); }, nullptr},
        {I::Modulus, nullptr, 2, true, kLanguage,
         [](Parser &p, MapRun &, const complex *v) { return p.modulus(v[0], v[1]); }, nullptr},
        {I::Factorial, nullptr, 1, true, kLanguage, unary<&Parser::_factorial>, nullptr},
        {I::Power, nullptr, 2, true, kLanguage,
         [](Parser &p, MapRun &, const complex *v) { return p._pow(v[0], v[1]); }, nullptr},
        {I::ImaginaryOf, nullptr, 1, true, kLanguage,
         [](Parser &, MapRun &, const complex *v) { return complex{0.0, v[0].real}; }, nullptr},

        {I::Sqrt, "SQRT", 1, true, kValues, unary<&Parser::_sqrt>, nullptr},
        {I::Ln, "LN", 1, true, kValues, unary<&Parser::_log>, nullptr},
        {I::Log10, "LOG10", 1, true, kValues, unary<&Parser::_log10>, nullptr},
        {I::Log, "LOG", 2, true, kValues, pair<&EmbeddedCalls::_logarithm>, nullptr},
        {I::Exp, "EXP", 1, true, kValues, unary<&Parser::_exp>, nullptr},
        {I::Power, "POW", 2, true, kValues,
         [](Parser &p, MapRun &, const complex *v) { return p._pow(v[0], v[1]); }, nullptr},
        {I::Abs, "ABS", 1, true, kValues, unary<&Parser::_abs>, nullptr},
        {I::Round, "ROUND", 1, true, kValues, unary<&Parser::_round>, nullptr},
        {I::Trunc, "TRUNC", 1, true, kValues, unary<&Parser::_trunc>, nullptr},
        {I::Rem, "REM", 2, true, kValues,
         [](Parser &p, MapRun &, const complex *v) { return p._fmod(v[0], v[1]); }, nullptr},
        {I::Floor, "FLOOR", 1, true, kValues, unary<&Parser::_floor>, nullptr},
        {I::Ceil, "CEIL", 1, true, kValues, unary<&Parser::_ceil>, nullptr},
        {I::Gcd, "GCD", 2, true, kValues, pair<&EmbeddedCalls::_gcd>, nullptr},
        {I::Lcm, "LCM", 2, true, kValues, pair<&EmbeddedCalls::_lcm>, nullptr},
        {I::Rtop, "RTOP", 2, true, kValues, pair<&EmbeddedCalls::_rtop>, nullptr},
        {I::Ptor, "PTOR", 2, true, kValues, pair<&EmbeddedCalls::_ptor>, nullptr},
        {I::Basecon, "BASECON", 2, true, kValues,
         [](Parser &p, MapRun &, const complex *v) {
             return EmbeddedCalls::_basecon(p, v[0], v[1], nullptr);
         },
         nullptr},
        {I::Real, "REAL", 1, true, kValues, part<&EmbeddedCalls::real_part>, nullptr},
        {I::Imag, "IMAG", 1, true, kValues, part<&EmbeddedCalls::imaginary_part>, nullptr},
        {I::Norm, "NORM", 1, true, kValues, part<&EmbeddedCalls::norm>, nullptr},
        {I::Cmag, "CMAG", 1, true, kValues, part<&EmbeddedCalls::magnitude>, nullptr},
        {I::Cangle, "CANGLE", 1, true, kValues,
         [](Parser &p, MapRun &, const complex *v) { return EmbeddedCalls::_angle(p, v[0]); },
         nullptr},
        {I::Ptoc, "PTOC", 2, true, kValues, pair<&EmbeddedCalls::_polar>, nullptr},
        {I::Conj, "CONJ", 1, true, kValues, part<&EmbeddedCalls::conjugate>, nullptr},
        {I::Deg, "DEG", 1, true, kValues, unary<&Parser::_degree>, nullptr},
        {I::Rad, "RAD", 1, true, kValues, unary<&Parser::_radian>, nullptr},
        {I::Sin, "SIN", 1, true, kValues, grouped<&Parser::_trig_func>, nullptr},
        {I::Cos, "COS", 1, true, kValues, grouped<&Parser::_trig_func>, nullptr},
        {I::Tan, "TAN", 1, true, kValues, grouped<&Parser::_trig_func>, nullptr},
        {I::Sinh, "SINH", 1, true, kValues, grouped<&Parser::_hyp_trig_func>, nullptr},
        {I::Cosh, "COSH", 1, true, kValues, grouped<&Parser::_hyp_trig_func>, nullptr},
        {I::Tanh, "TANH", 1, true, kValues, grouped<&Parser::_hyp_trig_func>, nullptr},
        {I::Asin, "ASIN", 1, true, kValues, grouped<&Parser::_arc_trig_func>, nullptr},
        {I::Acos, "ACOS", 1, true, kValues, grouped<&Parser::_arc_trig_func>, nullptr},
        {I::Atan, "ATAN", 1, true, kValues, grouped<&Parser::_arc_trig_func>, nullptr},
        {I::Asinh, "ASINH", 1, true, kValues, grouped<&Parser::_arc_hyp_trig_func>, nullptr},
        {I::Acosh, "ACOSH", 1, true, kValues, grouped<&Parser::_arc_hyp_trig_func>, nullptr},
        {I::Atanh, "ATANH", 1, true, kValues, grouped<&Parser::_arc_hyp_trig_func>, nullptr},
        {I::Hypot, "HYPOT", 2, true, kValues, pair<&EmbeddedCalls::_hypot>, nullptr},
        {I::Cubert, "CUBERT", 1, true, kValues,
         [](Parser &p, MapRun &, const complex *v) { return EmbeddedCalls::_cubert(p, v[0]); },
         nullptr},

        {I::And, "AND", 2, true, kSelf,
         [](Parser &p, MapRun &run, const complex *v) {
             return EmbeddedCalls::_logical(p, run.fn, v[0], v[1], true);
         },
         nullptr},
        {I::Or, "OR", 2, true, kSelf,
         [](Parser &p, MapRun &run, const complex *v) {
             return EmbeddedCalls::_logical(p, run.fn, v[0], v[1], false);
         },
         nullptr},
        {I::Not, "NOT", 1, true, kValues,
         [](Parser &p, MapRun &run, const complex *v) {
             return EmbeddedCalls::_not(p, run.fn, v[0]);
         },
         nullptr},
        {I::If, "IF", 3, true, kValues,
         [](Parser &p, MapRun &run, const complex *v) {
             return EmbeddedCalls::_if(p, run.fn, v[0], v[1], v[2]);
         },
         nullptr},
        {I::Sresist, "SRESIST", 0, true, kList,
         [](Parser &, MapRun &run, const complex *) {
             const DynArray<long double, 10> *list = run.current_list();
             return list ? EmbeddedCalls::series_resistance(*list) : complex{};
         },
         nullptr},
        {I::Presist, "PRESIST", 0, true, kList,
         [](Parser &p, MapRun &run, const complex *) {
             const DynArray<long double, 10> *list = run.current_list();
             return list ? EmbeddedCalls::parallel_resistance(p, *list) : complex{};
         },
         nullptr},
        {I::Count, "COUNT", 0, true, kList,
         [](Parser &, MapRun &run, const complex *) {
             const DynArray<long double, 10> *list = run.current_list();
             return complex{list ? static_cast<double>(list->count()) : 0.0, 0.0};
         },
         nullptr},

        {I::StartList, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             if (run.equation.list_level > kDeepestListLevel) {
                 p.mapper_exception(kTooDeep, p.silent);
                 run.stop = true;
             } else {
                 // A list function before this one at the same depth has left its values
                 // there; each call takes only its own, as in the line.
                 ++run.equation.list_level;
                 if (run.current_list()->count() > 0) run.current_list()->flush();
             }
             return complex{};
         },
         nullptr},
        {I::EndList, nullptr, 0, false, kLanguage,
         [](Parser &, MapRun &run, const complex *) {
             if (run.equation.list_level >= 0) --run.equation.list_level;
             return complex{};
         },
         nullptr},
        {I::ListValue, nullptr, 1, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *v) {
             DynArray<long double, 10> *list = run.current_list();
             if (v[0].imag != 0 || list == nullptr) {
                 p.mapper_exception(list ? kComplexDataPoint : kUnrecognized, p.silent);
                 run.stop = true;
             } else {
                 list->add(new long double(v[0].real));
             }
             return complex{};
         },
         nullptr},
        {I::LoadFile, nullptr, 0, false, kLanguage,
         [](Parser &p, MapRun &run, const complex *) {
             const char *name = run.next_name();
             if (DynArray<long double, 10> *list = run.current_list())
                 p.get_file_data(*list, name, -1);
             return complex{};
         },
         nullptr},
        {I::End, nullptr, 0, false, kLanguage,
         [](Parser &, MapRun &, const complex *) { return complex{}; }, nullptr},
    };
    rows.insert(rows.end(), std::begin(general), std::end(general));
}

}  // namespace quindar
