// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Recording into an equation map.
#include "equation.h"

#include "map_program.h"

namespace quindar {

namespace {

bool takes_name(Instruction op) {
    switch (op) {
        case Instruction::DeclareVariable:
        case Instruction::AssignValue:
        case Instruction::AssignLowLimit:
        case Instruction::AssignHighLimit:
        case Instruction::AssignPoints:
        case Instruction::Variable:
        case Instruction::AddFunction:
        case Instruction::SetFunctionBody:
        case Instruction::FindFunction:
        case Instruction::Constant:
        case Instruction::FileName:
            return true;
        default:
            return false;
    }
}

}  // namespace

Equation::Equation() = default;
Equation::~Equation() = default;

MapProgram &Equation::program() {
    if (!program_ || !program_->fits(*this)) program_ = std::make_unique<MapProgram>(*this);
    return *program_;
}

void Equation::set_instruction(Instruction op, complex value, const char *text) {
    program_.reset();
    if (op != Instruction::FileName) instructions.push_back(op);
    if (op == Instruction::Literal) literals.push_back(value);
    if (text != nullptr && takes_name(op)) names.emplace_back(text);
}

void Equation::clear_data() {
    for (auto &list : data_lists) list.flush();
    list_level = -1;
}

void Equation::clear_instructions() {
    program_.reset();
    instructions.clear();
    literals.clear();
    names.clear();
}

}  // namespace quindar
