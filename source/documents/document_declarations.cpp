// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's variables and functions in a document, and how they come back through it.
#include <string>
#include <vector>

#include "document_file.h"
#include "document_messages.h"
#include "multi_string.h"
#include "profile_snapshot.h"
#include "text_helpers.h"

namespace quindar {

namespace {

// Variables are stored at the precision of the engine's own arithmetic.
constexpr int kStoredPrecision = 14;

// Sets auto_declare for the life of a reading step.
class AutoDeclare {
public:
    explicit AutoDeclare(Parser &engine) : parser(engine) { parser.auto_declare = true; }
    ~AutoDeclare() { parser.auto_declare = false; }
    AutoDeclare(const AutoDeclare &) = delete;
    AutoDeclare &operator=(const AutoDeclare &) = delete;

private:
    Parser &parser;
};

}  // namespace

bool DocumentFile::WriteVariables() {
    for (int i = 0; i <= parser.variables.maxfullindex(); ++i) {
        if (parser.variables[i] == nullptr) continue;
        const char *name = parser.get_var_name(i);
        const char *value = parser.get_var_str_value(i, kStoredPrecision, false);
        if (name == nullptr || value == nullptr) continue;
        const std::string text = value;
        if (!Put(kVariablesSection, name, text)) return false;
    }
    parser.vars_saved = true;
    return true;
}

bool DocumentFile::WriteFunctions() {
    for (int i = 0; i <= parser.functions.maxfullindex(); ++i) {
        if (parser.functions[i] == nullptr) continue;
        const std::string name = parser.get_func_name(i);
        const char *value = parser.get_func_value(i);
        if (!Put(kFunctionsSection, name.c_str(), value != nullptr ? value : "")) return false;
    }
    parser.funcs_saved = true;
    return true;
}

bool DocumentFile::ReadVariables() {
    if (iniFile->SizeOfVarSection() == 0) return true;
    const std::vector<std::string> names = snapshot->Keys(kVariablesSection);
    if (names.empty()) return true;
    if (!Progress("Reading And Declaring Variables", 0)) return false;
    AutoDeclare declaring(parser);
    int done = 0;
    for (const std::string &name : names) {
        std::string value = GetString(kVariablesSection, name.c_str(), "?");
        if (value.find('(') != std::string::npos) {
            // "2 (1,10,5,2.25)": the range declares the variable incremental, the value
            // in front of the bracket is then assigned as any other.
            const std::string range = Parser::get_var_dec_value(value.c_str());
            parser.eval_exp((name + "=" + range).c_str(), false, true);
            parser.ClearLastError();
            const auto open = value.find(" (");
            if (open != std::string::npos) value.erase(open);
        }
        if (text::equal_no_case(value, "?"))
            parser.eval_exp(name.c_str(), false, true);
        else
            parser.eval_exp((name + "=" + value).c_str(), false, true);
        parser.ClearLastError();
        ++done;
        if (!Progress({}, done * 100 / static_cast<int>(names.size()))) return false;
    }
    parser.vars_saved = true;
    return true;
}

bool DocumentFile::ReadFunctions() {
    const long size = iniFile->SizeOfFunctionNames(nullptr);
    if (size <= 0) return true;
    if (!Progress("Reading And Declaring Functions", 0)) return false;
    std::vector<char> list(static_cast<std::size_t>(size) + 1, '\0');
    iniFile->GetFunctionNames(list.data(), static_cast<int>(list.size()), nullptr);
    const std::vector<std::string> names = split_multi_string(list.data(), list.size());
    // Each value as a buffer of the longest line holds it, all read in one pass.
    const auto valueSize = static_cast<std::size_t>(std::max(iniFile->SizeOfLongestLine(), 2L));
    const auto values = iniFile->GetFunctionValues(names, nullptr);
    AutoDeclare declaring(parser);
    int done = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string &name = names[i];
        const std::string value = values ? (*values)[i].substr(0, valueSize - 1) : std::string();
        if (!value.empty())
            parser.add_new_function(name.c_str(), value.c_str());
        else
            Warn(document_message(kMsgFunctionNotLoaded, name.c_str()), kCaptionFunctionManager);
        ++done;
        if (!Progress({}, done * 100 / static_cast<int>(names.size()))) return false;
    }
    parser.funcs_saved = true;
    return true;
}

}  // namespace quindar
