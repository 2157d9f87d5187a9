// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One press of the Integration Utility's Compute: a single integral by Romberg's method, or a
// double or triple one as a midpoint sum over the outer variables with Romberg's method for the
// innermost. The expression is mapped once; limits are texts, evaluated where the loops stand,
// so inner limits may use the outer variables. Every variable comes back as it was.

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "limit_text.h"
#include "parser.h"
#include "progress_gauge.h"
#include "run_host.h"
#include "run_map.h"
#include "run_variable.h"

namespace quindar::calculus {

// What the page holds: its boxes as texts, the slider and the type.
struct IntegrationSettings {
    int type = 1;  // 1 single, 2 double, 3 triple
    std::string function;
    std::array<std::string, 3> parameter{"x", "y", "z"};
    std::array<std::string, 3> low{"0", "0", "0"};
    std::array<std::string, 3> high{"1", "1", "1"};
    int slider = 20;  // 0 "Speed" to 100 "Accuracy"
};

struct IntegrationResult {
    bool solved = false;   // an answer stands
    bool stopped = false;  // Stop ended the run
    long double value = 0.0L;
};

// The relative accuracy of a single integral at slider position p: 0.01 divided by 10 once for
// every full ten.
long double SliderAccuracy(Parser &parser, int p);
// The points given to each outer variable of a double or triple integral.
int SliderGridPoints(int p);
// The accuracy of every inner integral of a double or triple one.
inline constexpr long double kInnerAccuracy = 0.0001L;

// The function box's text as the expression to integrate: an entry of the list ("f[x] = body")
// gives its call, any other text with "=" what stands behind its last "=", blanks removed.
std::string ModifyString(const std::string &text, const std::vector<std::string> &entries);
// The entries of the function box: every user function as "name[vars] = body".
std::vector<std::string> FunctionEntries(Parser &parser);

class IntegrationRun {
public:
    IntegrationRun(Parser &parser, RunHost &host);
    ~IntegrationRun();
    IntegrationRun(const IntegrationRun &) = delete;
    IntegrationRun &operator=(const IntegrationRun &) = delete;

    IntegrationResult run(const IntegrationSettings &settings);

private:
    bool fail(int id, const std::string &text, Field field);
    bool parameter(int axis, std::string &name);
    bool variable_matches(const std::string &expression, const std::string &name);
    bool limit(int axis, bool highEnd, long double &value);
    bool ordered_limits(long double &low, long double &high, int equalMessage);
    bool take(RunVariable &variable);
    long double midpoint_grid(RunVariable &variable, long double low, long double high);
    bool give_back(std::unique_ptr<RunVariable> &variable);
    bool integrate1(long double low, long double high, long double accuracy, long double &result,
                    bool first, bool last);
    template <class Body>
    bool walk_grid(RunVariable &variable, long double low, long double high, Body body);
    bool integrate2(long double low, long double high, long double &result);
    bool integrate3(long double low, long double high, long double &result);
    bool inner_cell(bool first, bool last, long double &inner);

    Parser &parser;
    RunHost &host;
    const IntegrationSettings *settings = nullptr;
    std::string expression;
    std::array<std::string, 3> names;
    std::array<std::unique_ptr<RunVariable>, 3> variables;
    RunMap map;
    bool mapped = false;
    int points = 4;
    ProgressGauge gauge{GaugeRounding::SumUp};
};

}  // namespace quindar::calculus
