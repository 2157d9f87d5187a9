// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "number_text.h"

#include <cmath>
#include <locale>

namespace quindar {

void init_number_stream(std::ostream &stream, const PrecformType &format) {
    stream.imbue(std::locale::classic());
    std::ios_base::fmtflags flags = std::ios_base::internal | std::ios_base::dec;
    if (format.format == kFormatScientific)
        flags |= std::ios_base::scientific | std::ios_base::showbase;
    if (format.show_decimal_point) flags |= std::ios_base::showpoint;
    if (format.show_lead_sign) flags |= std::ios_base::showpos;
    stream.flags(flags);
    stream.precision(format.precision);
}

bool stream_non_finite(const complex &value, std::ostream &stream) {
    if (std::isfinite(value.real) && std::isfinite(value.imag)) return false;
    if (std::isnan(value.real) || !std::isfinite(value.imag))
        stream << "nan";
    else
        stream << (value.real < 0 ? "-inf" : "inf");
    return true;
}

void stream_imaginary(double imag, bool real_written, std::ostream &stream) {
    if (imag > 0 && real_written) stream << '+';
    if (imag < 0) stream << '-';
    const double magnitude = std::fabs(imag);
    if (magnitude != 1.0) stream << magnitude;
    stream << 'i';
}

void stream_answer(complex &value, std::ostream &stream, int precision,
                   const PrecformType &format) {
    Mathematics::round_zero(value, format.zero_precision);
    long digits = precision == -1 ? format.precision : precision;
    if (stream.flags() & std::ios_base::scientific) digits -= 1;
    stream.precision(digits);
    if (stream_non_finite(value, stream)) return;
    if (value.real == 0 && value.imag == 0) {
        stream << 0.0;
        return;
    }
    if (value.real != 0) stream << value.real;
    if (value.imag != 0) stream_imaginary(value.imag, value.real != 0, stream);
}

void stream_variable(Mathematics &math, complex &value, std::ostream &stream, int precision,
                     const PrecformType &format) {
    if (precision == -1)
        Mathematics::round_zero(value, format.zero_precision);
    else
        stream.precision(precision);
    if (stream_non_finite(value, stream)) return;
    if (value.real == 0 && value.imag == 0) {
        stream << 0.0;
        return;
    }
    if (value.real != 0) {
        const int needed = math.precision(value.real);
        if (precision == -1 || needed < precision) stream.precision(needed);
        stream << value.real;
    }
    if (value.imag != 0) stream_imaginary(value.imag, value.real != 0, stream);
}

}  // namespace quindar
