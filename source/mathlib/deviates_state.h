// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the random generator's state that the whole program shares.
#pragma once

#include <cstdint>

namespace quindar::mathlib {

struct SharedDeviateState {
    std::int32_t seed2 = 123456789;  // second generator
    std::int32_t shuffle_last = 0;   // last output of the shuffle
    std::int32_t shuffle_table[32] = {};
    // Waiting second values of the polar method: one for normaldev, one for gasdev.
    long double normal_saved = 0;
    bool normal_waiting = false;
    long double gauss_saved = 0;
    bool gauss_waiting = false;
    // What bnldev keeps of its last trials count and probability.
    int bnl_n = -1;
    double bnl_en = 0, bnl_lngamma = 0;
    double bnl_p = -1, bnl_pc = 0, bnl_ln_p = 0, bnl_ln_pc = 0;
};

// One for the program: every engine draws from the same shuffle, which a new engine restarts.
SharedDeviateState &shared_deviate_state();

}  // namespace quindar::mathlib
