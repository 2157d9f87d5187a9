// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "variable.h"

#include <cmath>
#include <complex>
#include <sstream>

#include "number_text.h"
#include "precform.h"

namespace quindar {

namespace {

double magnitude(complex z) {
    return std::abs(std::complex<double>(z.real, z.imag));
}

complex difference(complex a, complex b) {
    return complex{a.real - b.real, a.imag - b.imag};
}

}  // namespace

Variable::Variable(const char *varName, complex initial, bool isAssigned)
    : name(varName ? varName : "") {
    // The limits start at 0: the setters compare with the limit they replace.
    SetVarLowLimit(complex{});
    SetVarHiLimit(complex{});
    SetVarNumIncrmnts(0);
    value = initial;
    assigned = isAssigned;
}

Variable::Variable(const char *varName, complex low, complex high, long numPoints)
    : name(varName ? varName : "") {
    low_limit = low;
    high_limit = high;
    value = low;
    SetVarNumPoints(numPoints);
    assigned = numPoints > 1;
}

Variable::Variable(const Variable *other) {
    *this = *other;
    locked = false;
    next = prev = nullptr;
}

Variable &Variable::operator=(const Variable &other) {
    if (this == &other) return *this;
    name = other.name;
    value_text.clear();
    assigned = other.assigned;
    value = other.value;
    low_limit = other.low_limit;
    high_limit = other.high_limit;
    increment = other.increment;
    num_increments = other.num_increments;
    num_points = other.num_points;
    incremented = other.incremented;
    locked = other.locked;
    next = other.next;
    prev = other.prev;
    return *this;
}

void Variable::set_increment() {
    const complex span = difference(high_limit, low_limit);
    increment = complex{span.real / static_cast<double>(num_increments),
                        span.imag / static_cast<double>(num_increments)};
}

bool Variable::Increment() {
    if (!assigned) {
        value = low_limit;
        assigned = true;
        return false;
    }
    if (!incremented) return false;
    const complex tolerance{0.1 * increment.real, 0.1 * increment.imag};
    const double tol = magnitude(tolerance);
    if (!(tol < magnitude(difference(high_limit, value)))) return false;
    const complex next_step{value.real - high_limit.real + increment.real,
                            value.imag - high_limit.imag + increment.imag};
    if (!(tol < magnitude(next_step)))
        value = high_limit;
    else
        value = complex{value.real + increment.real, value.imag + increment.imag};
    return true;
}

void Variable::ResetIncrement() {
    if (incremented) value = low_limit;
}

void Variable::SetVarNumPoints(long points) {
    SetVarNumIncrmnts(points > 1 ? points - 1 : 0);
}

bool Variable::SetVarNumIncrmnts(long increments) {
    if (increments < 1) {
        num_increments = 0;
        num_points = 1;
        increment = complex{};
        assigned = false;
        incremented = false;
        return false;
    }
    num_increments = increments;
    num_points = increments + 1;
    if (!(low_limit == high_limit)) {
        set_increment();
        incremented = true;
    } else {
        incremented = false;
    }
    value = low_limit;
    assigned = true;
    return true;
}

// Setting a limit to the value it already has takes the range down; SetVarNumIncrmnts
// brings it back.
bool Variable::set_limit(complex &field, complex limit) {
    if (limit == field) {
        increment = complex{};
        assigned = false;
        incremented = false;
        return false;
    }
    field = limit;
    value = limit;
    incremented = num_increments != 0;
    if (incremented) set_increment();
    assigned = true;
    return true;
}

bool Variable::SetVarHiLimit(complex limit) {
    return set_limit(high_limit, limit);
}

bool Variable::SetVarLowLimit(complex limit) {
    return set_limit(low_limit, limit);
}

void Variable::StreamVariable(complex number, std::ostream &stream, int precision) {
    if (precision > 0) stream.precision(precision);
    if (precision == 0) stream.precision(1);
    if (stream_non_finite(number, stream)) return;
    if (number.real == 0 && number.imag == 0) {
        stream << 0.0;
        return;
    }
    if (number.real != 0) stream << number.real;
    if (number.imag != 0) stream_imaginary(number.imag, number.real != 0, stream);
}

void Variable::write_range(std::ostream &stream, int precision) {
    StreamVariable(low_limit, stream, precision);
    stream << ',';
    StreamVariable(high_limit, stream, precision);
    stream << ',' << num_points;
}

void Variable::GetVarValueStr(std::ostream &stream, int precision, bool showIncrement) {
    if (!assigned) {
        stream << '?';
        return;
    }
    StreamVariable(value, stream, precision);
    if (incremented && showIncrement) {
        stream << " (";
        write_range(stream, precision);
        stream << ',';
        StreamVariable(increment, stream, precision);
        stream << ')';
    }
}

void Variable::GetVarDefStr(std::ostream &stream, int precision, bool showIncrement) {
    if (!assigned) {
        stream << '?';
        return;
    }
    if (incremented && showIncrement)
        write_range(stream, precision);
    else
        StreamVariable(value, stream, precision);
}

void Variable::GetVarIncValueStr(std::ostream &stream, int precision) {
    if (incremented) {
        write_range(stream, precision);
        return;
    }
    StreamVariable(complex{}, stream, precision);
    stream << ',';
    StreamVariable(complex{}, stream, precision);
    stream << ',';
    StreamVariable(complex{}, stream, precision);
}

const char *Variable::GetVarValueStr(int precision, bool showIncrement) {
    std::ostringstream stream;
    init_number_stream(stream, PrecformType{});
    GetVarValueStr(stream, precision, showIncrement);
    value_text = stream.str();
    return value_text.c_str();
}

const char *Variable::GetVarIncValueStr(int precision) {
    std::ostringstream stream;
    init_number_stream(stream, PrecformType{});
    GetVarIncValueStr(stream, precision);
    value_text = stream.str();
    return value_text.c_str();
}

}  // namespace quindar
