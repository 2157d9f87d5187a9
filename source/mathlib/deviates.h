// SPDX-License-Identifier: GPL-3.0-or-later
// Random deviates of the language: a shuffled combined uniform generator and the draws built on it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "class_errors.h"
#include "mathematics.h"

namespace quindar {

// Every draw works in long double. The generator's first state `seed` belongs to each
// object; the second state, the shuffle table and the saved second values of the polar
// method are one for the whole program, and constructing an object restarts them from 5,
// so a run of the program always draws the same sequence.
class Deviates {
public:
    Deviates();
    Deviates(const Deviates &) = delete;
    Deviates &operator=(const Deviates &) = delete;

    // Uniform in (0, 0.99999988].
    long double randomnum();

    // Draws of the language's functions.
    long double uniformdev(long double a, long double b);
    long double normaldev(long double mean, long double sd);
    long double exponentialdev(long double shape);
    long double rayleighdev(long double median, long double anchor);
    long double berdev(long double p);
    long double betadev(long double a, long double b);
    long double bnldev(int n, long double p);
    long double caudev(long double mean, long double s);
    long double chidev(long double dof);
    long double dexpdev(long double mean, double s);
    long double fdev(long double dfn, long double dfd);
    long double gamdev(long double a, long double b);
    long double logdev(long double mean, long double b);
    long double nchidev(long double dof, long double xnonc);

    // Helpers, also used by the statistics.
    long double gasdev(long double mean, long double variance);
    long double expdev(long double b);
    long double lngamma(long double x);
    double betacf(double a, double b, double x);
    long double betai(long double a, long double b, long double x);
    long double betap(long double x, long double a, long double b);
    long double betav(long double p, long double a, long double b);

    void exception(int index);
    void SetLastError(const char *text);
    void ClearLastError();
    bool IsAnError() const { return error; }
    const char *GetLastError() const { return error_text ? error_text->c_str() : nullptr; }
    static const char *deviate_message(int index);

    // One step of each of the two combined generators.
    static std::int32_t step_first(std::int32_t s);
    static std::int32_t step_second(std::int32_t s);
    // Drops the waiting second values of the polar method, as at the start of the program.
    static void clear_saved_normals();

    // Lets the owning engine show boxes and take the jump to its recovery point.
    void link_engine(const mathlib::EngineLink &engine) { link = engine; }

    // A rejection loop that has not accepted after this many trials gives up with a message
    // instead of hanging on parameters that make acceptance all but impossible.
    long max_trials = 1'000'000;

protected:
    Mathematics deviate_math;
    mathlib::EngineLink link;

public:
    std::int32_t seed = -5;
    bool silent = false;
    bool solving_map = false;
    bool error = false;
    std::optional<std::string> error_text;

private:
    // Draws the polar method's pair, gives one value and stores the other in `saved`.
    long double polar_value(long double &saved, bool &waiting);
    // The beta draw for shapes above 1: normal proposals around the mode.
    long double beta_rejection(long double a, long double b);
    long double bnl_rejection(int n, long double pp, long double am);
    long double gamdev_small_shape(long double a, long double b);
    // Counts a trial of a rejection loop; false (after the message) once the limit is passed.
    bool another_trial(long &trials);
};

}  // namespace quindar
