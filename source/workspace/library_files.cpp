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

// Scanning the file category by category is what costs, so it is read into an index of its
// names once, and answers are kept while the file's bytes stay the same and nothing was
// reported while reading it. Whether they still are is asked once per line: a stat that
// vouches for the file (same file, size and times, and old enough that an edit must have
// moved its time) saves reading it; otherwise its bytes are read and compared.
class VarFunLibrary final : public FunctionLibrary {
public:
    VarFunLibrary(const std::string &filePath, WarningHook warn)
        : path(filePath),
          file(path.c_str(), nullptr, nullptr,
               [this, outer = std::move(warn)](std::string_view text, std::string_view caption) {
                   warned = true;
                   show_warning(outer, text, caption);
               }) {}

    void new_line() override { checked = false; }

    bool may_hold(const char *name) override {
        refresh();
        return !index || !lookup_holders(name).empty();
    }

    std::vector<std::string> categories() override {
        refresh();
        if (index) return index->categories();
        return library_categories(file);
    }

    void set_category(const std::string &category) override {
        current_category = category;
        file.SetFunctionFlagStr(category.c_str());
    }

    std::optional<LibraryDefinition> find_in_category(const char *name) override {
        refresh();
        // The usual answer, for the names of variables and the user's own functions. A search
        // asks for one name in each category in turn: its holders are looked up once.
        if (index && lookup_holders(name).count(current_category) == 0) return std::nullopt;
        auto key = std::make_pair(current_category, std::string(name));
        if (index) {
            const auto known = answers.find(key);
            if (known != answers.end()) return known->second;
        }
        warned = false;
        std::optional<LibraryDefinition> answer;
        if (auto found = lib_function_text(file, name))
            answer = LibraryDefinition{std::move(found->fullName), std::move(found->value)};
        if (index && !warned) answers.emplace(std::move(key), answer);
        return answer;
    }

private:
    const std::unordered_set<std::string> &lookup_holders(const char *name) {
        if (holders == nullptr || name != holders_name) {
            holders_name = name;
            holders = &index->holders(name);
        }
        return *holders;
    }

    // Once per line: reads the file again unless its stamp vouches that it did not change,
    // and drops the index and the answers when its bytes differ.
    void refresh() {
        if (checked) return;
        checked = true;
        FileStamp now;
        now.take(path);
        if (index && now.vouches_for(stamp)) return;
        stamp = now;
        std::ifstream in(path, std::ios::binary);
        std::string bytes(std::istreambuf_iterator<char>(in), {});
        const bool readable = in.is_open() && !in.bad();
        if (readable && index && bytes == content) return;
        content = readable ? std::move(bytes) : std::string();
        answers.clear();
        index.reset();
        holders_name.clear();
        holders = nullptr;
        if (!readable) return;
        warned = false;
        LibraryIndex read;
        if (read.read(file) && !warned) index = std::move(read);
    }

    std::string path;  // the reader keeps the caller's text
    bool warned = false;
    bool checked = false;  // the file was looked at for this line
    VarFunIniFile file;
    std::string current_category;
    std::string content;
    FileStamp stamp;
    std::optional<LibraryIndex> index;
    std::string holders_name;  // the name whose holders were last looked up
    const std::unordered_set<std::string> *holders = nullptr;
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
