// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_rows.h"

#include <strings.h>

#include "parser.h"

namespace quindar {

FunctionRow split_function_row(const std::string &row) {
    FunctionRow parts;
    const std::size_t close = row.find(']');
    if (close == std::string::npos) {
        parts.fullName = row;
        return parts;
    }
    parts.fullName = row.substr(0, close + 1);
    const std::size_t equals = row.find('=', close);
    if (equals != std::string::npos && equals + 2 <= row.size())
        parts.value = row.substr(equals + 2);
    return parts;
}

std::string function_short_name(const std::string &fullName) {
    return fullName.substr(0, fullName.find('['));
}

FunctionKind function_kind(Parser &parser, const std::string &fullName) {
    if (parser.find_function(fullName.c_str()) >= 0) return FunctionKind::Declared;
    const std::string name = function_short_name(fullName);
    if (parser.is_internal_function(name.c_str()) || parser.is_library_function(name.c_str()))
        return FunctionKind::Embedded;
    return FunctionKind::Undefined;
}

std::string declared_function_row(Parser &parser, const std::string &fullName) {
    const int index = parser.find_function(fullName.c_str());
    if (index < 0) return {};
    const char *text = parser.get_func_str(index);
    return text != nullptr ? text : "";
}

std::string declared_function_value(Parser &parser, const std::string &fullName) {
    const int index = parser.find_function(fullName.c_str());
    if (index < 0) return {};
    const char *text = parser.get_func_value(index);
    return text != nullptr ? text : "";
}

std::string declared_function_name(Parser &parser, const std::string &fullName) {
    const int index = parser.find_function(fullName.c_str());
    if (index < 0) return {};
    const char *text = parser.get_func_name(index);
    return text != nullptr ? text : "";
}

bool same_text_ignoring_case(const std::string &a, const std::string &b) {
    return a.size() == b.size() && strcasecmp(a.c_str(), b.c_str()) == 0;
}

}  // namespace quindar
