// SPDX-License-Identifier: GPL-3.0-or-later
// GraphData: its kind, the 3-D attribute digits, its functions and their common variables.
#include "graph_data.h"

#include <cstdlib>
#include <string>

namespace quindar {

namespace {

// A variable offered for an axis before the user sets its range.
constexpr double kCommonLow = 1.0;
constexpr double kCommonHigh = 10.0;
constexpr long kCommonPoints = 25;

int power_of_ten(int exponent) {
    int p = 1;
    for (int i = 0; i < exponent; ++i) p *= 10;
    return p;
}

}  // namespace

int GraphData::GetGraphType() const {
    if (DataSets.count() == 0 && GetNumFunctions() == 0) return kGraphNone;
    for (const StrDataPnts *set = DataSets.gethead(); set != nullptr; set = set->next)
        if (set->GetZDataPoint() != nullptr) return kGraph3D;
    if (XAxisVar && ZAxisVar) return kGraph3D;
    return kGraph2D;
}

long GraphData::GetNumXAxisPoints() const {
    return XAxisVar ? XAxisVar->num_points : 0;
}

long GraphData::GetNumZAxisPoints() const {
    return ZAxisVar ? ZAxisVar->num_points : 0;
}

bool GraphData::DataCheck() const {
    return XAxisVar != nullptr || ZAxisVar != nullptr;
}

int GraphData::Get3DTypeBit(int digit) const {
    const std::string digits = std::to_string(std::abs(GraphType3D));
    if (digit < 1 || digit > static_cast<int>(digits.size())) return 0;
    return digits[digits.size() - static_cast<std::size_t>(digit)] - '0';
}

void GraphData::Set3DTypeBit(int digit, int value) {
    if (digit < 1 || digit > 9) return;
    const int p = power_of_ten(digit - 1);
    GraphType3D = GraphType3D - Get3DTypeBit(digit) * p + value * p;
}

Function *GraphData::AddFunction(const char *fullName, const char *value) {
    auto *function = new Function(fullName, value);
    return Functions.add(function) >= 0 ? function : nullptr;
}

Function *GraphData::GetFunction(int i) const {
    if (i < 0) return nullptr;
    for (int slot = 0; slot <= Functions.maxfullindex(); ++slot) {
        Function *function = Functions[slot];
        if (function != nullptr && i-- == 0) return function;
    }
    return nullptr;
}

bool GraphData::every_function_has(const std::string &variable) const {
    int having = 0;
    for (int i = 0; const Function *function = GetFunction(i); ++i) {
        if (!function->IsFuncVariable(variable.c_str())) break;
        ++having;
    }
    return having == GetNumFunctions();
}

void GraphData::SetComVarList() {
    CommonVars.flush();
    if (GetNumFunctions() == 0) return;
    for (int i = 0; Function *function = GetFunction(i); ++i) {
        // Index 0 names the last variable, so a function of a, b, c is walked c, a, b.
        for (int k = 0; k < function->num_vars; ++k) {
            const std::string name = function->GetFuncVariable(k);
            bool known = false;
            for (const Variable *v = CommonVars.gethead(); v != nullptr && !known; v = v->next)
                known = v->name == name;
            if (known) continue;
            if (Variable *entry = CommonVars.add()) {
                Variable *const link = entry->prev;
                *entry = Variable(name.c_str(), complex{kCommonLow, 0}, complex{kCommonHigh, 0},
                                  kCommonPoints);
                entry->next = nullptr;
                entry->prev = link;
            }
        }
    }
    for (Variable *v = CommonVars.gethead(); v != nullptr;)
        v = every_function_has(v->name) ? v->next : CommonVars.del(v);
}

void GraphData::DelUncommonVars() {
    const auto isCommon = [this](const std::string &name) {
        for (const Variable *v = CommonVars.gethead(); v != nullptr; v = v->next)
            if (v->name == name) return true;
        return false;
    };
    if (XAxisVar && !isCommon(XAxisVar->name)) SetXAxisVar(nullptr);
    if (ZAxisVar && !isCommon(ZAxisVar->name)) SetZAxisVar(nullptr);
}

}  // namespace quindar
