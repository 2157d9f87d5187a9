// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "library_files.h"

#include "library_lookup.h"
#include "parser.h"
#include "var_fun_ini_file.h"

namespace quindar {

namespace {

// The file is read again at every call, so an edit counts for the next line.
class VarFunLibrary final : public FunctionLibrary {
public:
    VarFunLibrary(const std::string &filePath, WarningHook warn)
        : path(filePath), file(path.c_str(), nullptr, nullptr, std::move(warn)) {}

    std::vector<std::string> categories() override { return library_categories(file); }

    void set_category(const std::string &category) override {
        file.SetFunctionFlagStr(category.c_str());
    }

    std::optional<LibraryDefinition> find_in_category(const char *name) override {
        auto found = lib_function_text(file, name);
        if (!found) return std::nullopt;
        return LibraryDefinition{std::move(found->fullName), std::move(found->value)};
    }

private:
    std::string path;  // the reader keeps the caller's text
    VarFunIniFile file;
};

}  // namespace

FunctionLibraryOpener library_file_opener(WarningHook warn) {
    return [warn](const std::string &path) -> std::unique_ptr<FunctionLibrary> {
        return std::make_unique<VarFunLibrary>(path, warn);
    };
}

void install_function_libraries(Parser &parser, WarningHook warn) {
    parser.open_function_libraries(library_file_opener(std::move(warn)));
}

}  // namespace quindar
