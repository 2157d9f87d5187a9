// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The degree test of the differentiation: the text's own names, then every function it calls.
#include "circular_functions.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <set>

namespace quindar::calculus {

namespace {

constexpr const char *kCircularFunctions[] = {"SIN",  "COS", "TAN", "ASIN", "ACOS",
                                              "ATAN", "COT", "CSC", "SEC"};

std::string Upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

std::string InText(Parser &parser, const std::string &text) {
    const std::string upper = Upper(text);
    for (const char *name : kCircularFunctions)
        if (parser.find_token(upper.c_str(), name, 1)) return name;
    return {};
}

// The body of the called function `name`, when it is a user or library function whose body
// doesn't call itself.
bool CalledBody(Parser &parser, const char *name, std::string &body) {
    if (parser.is_function(name)) {
        const char *value = parser.get_func_value(name);
        body = value ? value : "";
    } else if (parser.is_library_function(name)) {
        std::unique_ptr<Function> found = parser.get_lib_function(name);
        if (!found) found = parser.get_user_function(name);
        if (!found) return false;
        body = found->func_value;
    } else {
        return false;
    }
    return body.find(name) == std::string::npos;
}

// Each called function is searched once: a second visit can find nothing new, and functions
// that call each other would otherwise be walked without end.
std::string Search(Parser &parser, const std::string &text, std::set<std::string> &visited) {
    std::string found = InText(parser, text);
    if (!found.empty()) return found;
    char token[kExpressionSize];
    char type = 0;
    for (const char *rest = parser.get_token(text.c_str(), token, type); rest != nullptr;
         rest = parser.get_token(rest, token, type)) {
        if (type != kName || !visited.insert(token).second) continue;
        std::string body;
        if (!CalledBody(parser, token, body)) continue;
        found = Search(parser, body, visited);
        if (!found.empty()) return found;
    }
    return {};
}

}  // namespace

std::string FindCircularFunction(Parser &parser, const std::string &text, int fn) {
    if (fn >= 0) {
        const char *entry = parser.get_func_str(fn);
        const std::string own = InText(parser, entry ? entry : "");
        if (!own.empty()) return own;
    }
    std::set<std::string> visited;
    return Search(parser, text, visited);
}

}  // namespace quindar::calculus
