// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "embedded_calls.h"

#include <cstring>

#include "embedded_tables.h"

namespace quindar {

namespace {

struct HandlerRow {
    const char *name;
    EmbeddedCalls::Handler handler;
};

const HandlerRow kHandlers[] = {
    {"POW", EmbeddedCalls::call_pow},         {"CUBERT", EmbeddedCalls::call_cubert},
    {"LOG", EmbeddedCalls::call_logarithm},   {"GCD", EmbeddedCalls::call_gcd},
    {"LCM", EmbeddedCalls::call_lcm},         {"RTOP", EmbeddedCalls::call_rtop},
    {"PTOR", EmbeddedCalls::call_ptor},       {"BASECON", EmbeddedCalls::call_basecon},
    {"REAL", EmbeddedCalls::call_real},       {"IMAG", EmbeddedCalls::call_imag},
    {"NORM", EmbeddedCalls::call_norm},       {"CMAG", EmbeddedCalls::call_mag},
    {"CANGLE", EmbeddedCalls::call_angle},    {"PTOC", EmbeddedCalls::call_polar},
    {"CONJ", EmbeddedCalls::call_conj},       {"AND", EmbeddedCalls::call_and},
    {"OR", EmbeddedCalls::call_or},           {"NOT", EmbeddedCalls::call_not},
    {"IF", EmbeddedCalls::call_if},           {"HYPOT", EmbeddedCalls::call_hypot},
    {"SRESIST", EmbeddedCalls::call_sresist}, {"PRESIST", EmbeddedCalls::call_presist},
};

}  // namespace

EmbeddedCalls::Handler EmbeddedCalls::handler(int index) {
    if (index < 0 || index >= mathlib::kEmbeddedFunctionCount) return nullptr;
    const char *name = mathlib::kEmbeddedFunctions[index].name;
    for (const HandlerRow &row : kHandlers)
        if (std::strcmp(row.name, name) == 0) return row.handler;
    return nullptr;
}

int EmbeddedCalls::index_of(const char *name) {
    return mathlib::function_index(name);
}

}  // namespace quindar
