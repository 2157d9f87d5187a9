// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "library_files.h"

#include <fstream>
#include <iterator>
#include <map>
#include <utility>

#include "library_lookup.h"
#include "parser.h"
#include "var_fun_ini_file.h"

namespace quindar {

namespace {

// The file is read again at every search, so an edit counts for the next line. Scanning it
// category by category is what costs, so answers are kept while the file's bytes stay the same
// and nothing was reported while reading it. A search asks for the categories first, which
// compares the bytes once for the finds in its categories that follow.
class VarFunLibrary final : public FunctionLibrary {
public:
    VarFunLibrary(const std::string &filePath, WarningHook warn)
        : path(filePath),
          file(path.c_str(), nullptr, nullptr,
               [this, outer = std::move(warn)](std::string_view text, std::string_view caption) {
                   warned = true;
                   show_warning(outer, text, caption);
               }) {}

    std::vector<std::string> categories() override {
        searching = unchanged();
        if (searching && known_categories) return *known_categories;
        warned = false;
        std::vector<std::string> read = library_categories(file);
        if (!warned) known_categories = read;
        return read;
    }

    void set_category(const std::string &category) override {
        current_category = category;
        file.SetFunctionFlagStr(category.c_str());
    }

    std::optional<LibraryDefinition> find_in_category(const char *name) override {
        auto key = std::make_pair(current_category, std::string(name));
        std::optional<LibraryDefinition> answer;
        const auto known = (searching || unchanged()) ? answers.find(key) : answers.end();
        if (known != answers.end()) {
            answer = known->second;
        } else {
            warned = false;
            if (auto found = lib_function_text(file, name))
                answer = LibraryDefinition{std::move(found->fullName), std::move(found->value)};
            if (!warned) answers.emplace(std::move(key), answer);
        }
        // The search ends at the first category that holds the name, or after the last one.
        if (answer || !known_categories || known_categories->empty() ||
            current_category == known_categories->back())
            searching = false;
        return answer;
    }

private:
    // True when the file holds what it held when the kept answers were read; otherwise they
    // are dropped. A file that cannot be read keeps nothing.
    bool unchanged() {
        std::ifstream in(path, std::ios::binary);
        std::string bytes(std::istreambuf_iterator<char>(in), {});
        const bool readable = in.is_open() && !in.bad();
        if (readable && bytes == content) return true;
        content = readable ? std::move(bytes) : std::string();
        known_categories.reset();
        answers.clear();
        return false;
    }

    std::string path;  // the reader keeps the caller's text
    bool warned = false;
    bool searching = false;  // the bytes were compared at the start of this search
    VarFunIniFile file;
    std::string current_category;
    std::string content;
    std::optional<std::vector<std::string>> known_categories;
    std::map<std::pair<std::string, std::string>, std::optional<LibraryDefinition>> answers;
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
