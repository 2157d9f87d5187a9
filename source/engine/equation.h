// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One equation map: the postfix program that a single evaluation of a line records, so that
// the line can be solved again and again without reading its text. Operands are not stored
// with the instructions: an instruction that takes a literal or a name takes the next one
// from its own list, so the three lists are read in step from the start and nothing jumps.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "complex.h"
#include "dynarray.h"

namespace quindar {

class MapProgram;

enum class Instruction : std::uint8_t {
    DeclareVariable = 0x00,
    AssignValue = 0x01,
    AssignLowLimit = 0x02,
    AssignHighLimit = 0x03,
    AssignPoints = 0x04,
    Variable = 0x06,
    AddFunction = 0x07,
    SetFunctionBody = 0x08,
    FindFunction = 0x09,
    Constant = 0x0A,
    FileName = 0x0B,
    Literal = 0x0C,
    EndComparison = 0x0D,
    StartComparison = 0x0E,
    Less = 0x0F,
    LessEqual = 0x10,
    Greater = 0x11,
    GreaterEqual = 0x12,
    Equal = 0x13,
    NotEqual = 0x14,
    Add = 0x15,
    Subtract = 0x16,
    Negate = 0x17,
    Multiply = 0x18,
    Divide = 0x19,
    Modulus = 0x1A,
    Factorial = 0x1B,
    Sqrt = 0x1C,
    Ln = 0x1D,
    Log10 = 0x1E,
    Log = 0x1F,
    Exp = 0x20,
    Power = 0x21,
    Abs = 0x22,
    Round = 0x23,
    Trunc = 0x24,
    Rem = 0x27,
    Floor = 0x28,
    Ceil = 0x29,
    Gcd = 0x2A,
    Lcm = 0x2B,
    Rtop = 0x2C,
    Ptor = 0x2D,
    Basecon = 0x2E,
    Real = 0x2F,
    Imag = 0x30,
    Norm = 0x31,
    Cmag = 0x32,
    Cangle = 0x33,
    Ptoc = 0x34,
    Conj = 0x35,
    Deg = 0x36,
    Rad = 0x37,
    Sin = 0x38,
    Cos = 0x39,
    Tan = 0x3A,
    Sinh = 0x3B,
    Cosh = 0x3C,
    Tanh = 0x3D,
    Asin = 0x3E,
    Acos = 0x3F,
    Atan = 0x40,
    Asinh = 0x41,
    Acosh = 0x42,
    Atanh = 0x43,
    Hypot = 0x44,
    Mean = 0x45,
    Gmean = 0x46,
    Hmean = 0x47,
    Median = 0x48,
    Mode = 0x49,
    Min = 0x4A,
    Max = 0x4B,
    Sumx = 0x4C,
    Sumxsq = 0x4D,
    Sumdev = 0x4E,
    Avgdev = 0x4F,
    Sumdevsq = 0x50,
    Range = 0x51,
    Count = 0x52,
    Rank = 0x53,
    Svar = 0x54,
    Pvar = 0x55,
    Sstdev = 0x56,
    Pstdev = 0x57,
    Nordist = 0x58,
    NorprobValues = 0x59,
    NorprobList = 0x5A,
    NormxValues = 0x5B,
    NormxList = 0x5C,
    Wsnorm = 0x5D,
    ZscoreValues = 0x5E,
    ZscoreList = 0x5F,
    Skew = 0x60,
    Kurt = 0x61,
    Prctle = 0x62,
    Lqrtle = 0x63,
    Uqrtle = 0x64,
    Comb = 0x65,
    Perm = 0x66,
    RandValues = 0x67,
    RandNone = 0x68,
    NordevValues = 0x69,
    NordevNone = 0x6A,
    ExpdevValue = 0x6B,
    ExpdevNone = 0x6C,
    RaydevValues = 0x6D,
    RaydevNone = 0x6E,
    Berdev = 0x70,
    Betadev = 0x71,
    Bnldev = 0x72,
    Caudev = 0x73,
    Chidev = 0x74,
    Dexpdev = 0x75,
    Fdev = 0x76,
    Gamdev = 0x77,
    Logdev = 0x78,
    Nchidev = 0x79,
    And = 0x7A,
    Or = 0x7B,
    Not = 0x7C,
    If = 0x7D,
    Sresist = 0x7E,
    Presist = 0x7F,
    Cubert = 0x80,
    StartList = 0x81,
    EndList = 0x82,
    ListValue = 0x83,
    LoadFile = 0x84,
    // Recorded for a data file of points, which a map cannot read: solving it fails.
    FilePoints = 0x85,
    // `i` followed by an atom: the atom's real part becomes the imaginary part, exactly as the
    // evaluator forms it (a product would round the part through the decimal layer).
    ImaginaryOf = 0x86,
    End = 0x88,
};

// Nesting depth of functions over data lists that one solve can hold.
inline constexpr int kMapDataLists = 10;

class Equation {
public:
    Equation();
    ~Equation();
    Equation(const Equation &) = delete;
    Equation &operator=(const Equation &) = delete;

    // Appends `op`; a FileName only adds its text. A Literal keeps `value`; the instructions
    // that take a name keep `text` when it is not null.
    void set_instruction(Instruction op, complex value = {}, const char *text = nullptr);
    // Empties the data lists of the list functions; every solve starts with this.
    void clear_data();
    // Empties the code, the literals and the names.
    void clear_instructions();
    // True when the recording reached the end of its line.
    bool complete() const {
        return !instructions.empty() && instructions.back() == Instruction::End;
    }
    // The instructions read for fast solving: read again after any change of the map (which
    // a run of the map itself never makes).
    MapProgram &program();

    int list_level = -1;
    DynArray<long double, 10> data_lists[kMapDataLists];
    std::vector<Instruction> instructions;
    std::vector<complex> literals;
    std::vector<std::string> names;
    Equation *next = nullptr;
    Equation *prev = nullptr;

private:
    std::unique_ptr<MapProgram> program_;
};

}  // namespace quindar
