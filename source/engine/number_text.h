// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The printed form of a complex value: answers behind a line, variable values, labels.
// The text goes through a formatted stream, so the format record becomes stream flags.

#include <ostream>

#include "complex.h"
#include "mathematics.h"
#include "precform.h"

namespace quindar {

// Sets the stream's flags and precision from a format record (the answer and variable
// streams are opened this way). The stream always writes with the classic locale.
void init_number_stream(std::ostream &stream, const PrecformType &format);

// Writes value as an answer: parts below the format's zero threshold become 0, in the
// caller's value too. `precision` -1 means the format's own.
void stream_answer(complex &value, std::ostream &stream, int precision, const PrecformType &format);

// Writes value as short as it is, for labels and limits. `precision` -1 means the digits
// the value needs (and rounding by the format's zero threshold); otherwise that many.
void stream_variable(Mathematics &math, complex &value, std::ostream &stream, int precision,
                     const PrecformType &format);

// A value with a part that is no finite number prints as one word, whatever the format:
// "inf" or "-inf" for an infinite real part beside a finite imaginary one, "nan" for anything
// else (an undefined part, an infinite imaginary part). True when it wrote one.
bool stream_non_finite(const complex &value, std::ostream &stream);

// Writes the imaginary part behind a real part that was written or not: "+2i", "-i", "i".
void stream_imaginary(double imag, bool real_written, std::ostream &stream);

}  // namespace quindar
