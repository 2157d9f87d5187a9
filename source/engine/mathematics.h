// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// Guarded arithmetic: every operator of the language sends its operands as decimal text
// at 14 significant digits into the decimal layer and reads the result back from 15,
// so results behave as on a 15-digit decimal calculator. Also the small real helpers
// the rest of the engine shares, and the error state of the class.

#include <optional>
#include <string>

#include "complex.h"
#include "mapm.h"
#include "message_hook.h"

namespace quindar {

class Mathematics {
public:
    Mathematics();

    // Real helpers.
    static bool are_equal(long double a, long double b, long double tolerance);
    static long double sign(long double x);
    static long double trunc(long double x);
    static long double round(long double x);
    static bool is_integer(long double x);
    static bool is_even(long double x);
    static long double Fmod(long double a, long double b);
    static complex &round_zero(complex &z, long double eps);
    static long double &round_zero(long double &x, long double eps);
    static bool is_number(const char *text);
    static bool is_delim(char c);
    // number in base (2 to 16) as text; `text` holds at least 65 bytes.
    static void basecon(long double number, long double base, char *text);
    // The base-10 logarithm of z in double precision, both parts divided by log10(base).
    static complex logarithm(complex z, long double base);
    static long double gcd(long double a, long double b);
    static long double lcm(long double a, long double b);
    static void swap(long double &a, long double &b);
    // x truncated to a 32-bit integer as the processor does it: out of range gives INT_MIN.
    static int to_int32(long double x);

    // The language's operators, each through the decimal round trip.
    complex complex_add(const complex &a, const complex &b);
    complex complex_sub(const complex &a, const complex &b);
    complex complex_mult(const complex &a, const complex &b);
    complex complex_div(const complex &a, const complex &b);
    complex modulus(const complex &a, const complex &b);
    long double real_add(const long double &a, const long double &b);
    long double real_sub(const long double &a, const long double &b);
    long double real_mult(const long double &a, const long double &b);
    long double real_div(const long double &a, const long double &b);
    long double real_abs(long double x);

    // Digits that printing x needs.
    int precision(long double x);

    // Arrays for the numeric methods, indexed from nl to nh (nl >= 0): a vector of long
    // double, and a matrix whose rows lie in one block. Null after reporting a failure.
    long double *vector(long nl, long nh);
    static void free_vector(long double *v, long nl, long nh);
    long double **matrix(long nrl, long nrh, long ncl, long nch);
    static void free_matrix(long double **m, long nrl, long nrh, long ncl, long nch);

    // Take and release the six working values.
    void InitMapmValues();
    void FreeMapmValues();
    // A value into the decimal layer by its text with 14 significant digits.
    static void SetMapmValue(const long double &value, M_APM target);
    static void SetMapmValue(const double &value, M_APM target);
    // A result of the decimal layer back: text with 15 digits, read as long double.
    static long double GetMapmValue(const MapmNumber *value);
    // The same two through their texts; the forms above reach the same values from the
    // digits wherever integers can, and take these for the rest.
    static void SetMapmValueByText(const long double &value, M_APM target);
    static long double GetMapmValueByText(const MapmNumber *value);
    // Text to long double in the classic locale, as strtold reads it: a value beyond the
    // range becomes infinite, one below it 0.
    static long double _atold(const char *text);

    // Error state.
    void math_exception(int index);
    void SetLastError(const char *text);
    void ClearLastError();
    bool IsAnError() const { return error; }
    const char *GetLastError() const { return error_text ? error_text->c_str() : nullptr; }

    void set_message_hook(const MessageHook *hook) { message_hook = hook; }

    static const char *math_message(int index);

protected:
    MapmNumber mapm_values[6]{};
    M_APM mapm_r1 = &mapm_values[0], mapm_r2 = &mapm_values[1];
    M_APM mapm_a = &mapm_values[2], mapm_b = &mapm_values[3];
    M_APM mapm_c = &mapm_values[4], mapm_d = &mapm_values[5];

public:
    bool silent = false;
    bool solving_map = false;
    bool error = false;
    bool mapm_free = true;
    std::optional<std::string> error_text;

protected:
    const MessageHook *message_hook = nullptr;
    // Number of eval_exp calls of the owning engine that can take an error now. Outside
    // them an error is only recorded: there is no recovery point to leave for.
    int recovery_points = 0;
    // A map is being solved: only its first error counts. Once an error has cleared
    // solving_map, later raises of the same run are dropped, which also keeps them from
    // jumping to a recovery point the run never set.
    bool map_run = false;
    bool drops_error() const { return map_run && (error || !solving_map); }

private:
    // Shared body of the four complex operators.
    template <class Operation>
    complex complex_round_trip(const complex &a, const complex &b, Operation operation);
    template <class Operation>
    long double real_round_trip(const long double &a, const long double &b, Operation operation);
};

}  // namespace quindar
