// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "mapm_constants.h"

namespace quindar {

namespace {

MapmNumber from_text(const char *text) {
    MapmNumber value;
    m_apm_set_string(&value, text);
    return value;
}

}  // namespace

// Each constant is a function-local value: made once, thread-safely, read-only after.

const MapmNumber *MM_Zero() {
    static const MapmNumber value = from_text("0");
    return &value;
}

const MapmNumber *MM_One() {
    static const MapmNumber value = from_text("1");
    return &value;
}

const MapmNumber *MM_Two() {
    static const MapmNumber value = from_text("2");
    return &value;
}

const MapmNumber *MM_0_5() {
    static const MapmNumber value = from_text("0.5");
    return &value;
}

const MapmNumber *MM_M0_5() {
    static const MapmNumber value = from_text("-0.5");
    return &value;
}

const MapmNumber *MM_PI() {
    static const MapmNumber value = from_text("3.141592653589793238462643383279502");
    return &value;
}

const MapmNumber *MM_HALF_PI() {
    static const MapmNumber value = from_text("1.570796326794896619231321691639751");
    return &value;
}

const MapmNumber *MM_2_PI() {
    static const MapmNumber value = from_text("6.283185307179586476925286766559005");
    return &value;
}

const MapmNumber *MM_E() {
    static const MapmNumber value = from_text("2.718281828459045235360287471352662");
    return &value;
}

const MapmNumber *MM_LOG_10_BASE_E() {
    static const MapmNumber value = from_text("2.302585092994045684017991454684364");
    return &value;
}

}  // namespace quindar
