// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "function_library_catalog.h"

#include <algorithm>

#include "function_texts.h"
#include "library_lookup.h"
#include "multi_string.h"
#include "text_helpers.h"

namespace quindar {

namespace {

void AddNew(std::vector<std::string> &list, const std::vector<std::string> &more) {
    for (const auto &item : more) {
        const bool known = std::any_of(list.begin(), list.end(), [&](const std::string &have) {
            return text::equal_no_case(have, item);
        });
        if (!known) list.push_back(item);
    }
}

// The embedded category a selection stands for: the first whose name the selection begins
// with, as the dialog recognises them.
const mathlib::EmbeddedCategory *EmbeddedCategoryOf(std::string_view category) {
    for (const auto &embedded : mathlib::embedded_categories())
        if (category.starts_with(embedded.name)) return &embedded;
    return nullptr;
}

}  // namespace

std::vector<std::string> FunctionLibraryCatalog::Categories() {
    std::vector<std::string> list;
    for (const auto &category : mathlib::embedded_categories()) list.emplace_back(category.name);
    for (VarFunIniFile *file : {library, userLibrary})
        if (file != nullptr) AddNew(list, library_categories(*file));
    return list;
}

std::vector<std::string> FunctionLibraryCatalog::LibraryNames(VarFunIniFile &file,
                                                              const std::string &category) {
    std::vector<std::string> names;
    const long size = file.SizeOfFunctionNames(category.c_str());
    if (size <= 0) return names;
    std::vector<char> buffer(static_cast<std::size_t>(size));
    if (!file.GetFunctionNames(buffer.data(), static_cast<int>(size), category.c_str()))
        return names;
    for (const std::string &definition : split_multi_string(buffer.data(), buffer.size()))
        names.push_back(definition.substr(0, definition.find('[')));
    return names;
}

std::vector<std::string> FunctionLibraryCatalog::Names(std::string_view category) {
    std::vector<std::string> names;
    const std::string selected(category);
    if (const auto *embedded = EmbeddedCategoryOf(category)) {
        for (auto name : mathlib::embedded_category_names(embedded->name)) names.emplace_back(name);
        if (embedded->name == mathlib::kAllCategory)
            for (VarFunIniFile *file : {library, userLibrary})
                if (file != nullptr)
                    for (const std::string &each : library_categories(*file)) {
                        const auto more = LibraryNames(*file, each);
                        names.insert(names.end(), more.begin(), more.end());
                    }
    }
    for (VarFunIniFile *file : {library, userLibrary})
        if (file != nullptr && file->IsFunctionCatagory(selected.c_str())) {
            const auto more = LibraryNames(*file, selected);
            names.insert(names.end(), more.begin(), more.end());
        }
    return names;
}

bool FunctionLibraryCatalog::FindIn(VarFunIniFile *file, const std::string &name,
                                    const std::string *category, LibraryEntry &entry) {
    if (file == nullptr) return false;
    std::optional<LibraryFunctionText> found;
    if (category != nullptr) {
        if (!file->IsFunctionCatagory(category->c_str())) return false;
        file->SetFunctionFlagStr(category->c_str());
        found = lib_function_text(*file, name.c_str());
    } else {
        found = find_library_function(*file, name.c_str());
    }
    if (!found) return false;
    entry.kind = LibraryEntryKind::Library;
    entry.category = file->GetFunctionFlagStr();
    entry.prototype =
        found->value.empty() ? found->fullName : found->fullName + " = " + found->value;
    const long size = file->SizeOfLongestLine();
    if (size > 0) {
        std::vector<char> text(static_cast<std::size_t>(size), '\0');
        // The description is keyed by the name as the file spells it.
        const std::string key = found->fullName.substr(0, found->fullName.find('['));
        if (file->GetFunctionValue(key.c_str(), text.data(), static_cast<int>(size), nullptr))
            entry.description = text.data();
    }
    return true;
}

LibraryEntry FunctionLibraryCatalog::Describe(std::string_view name, std::string_view category) {
    LibraryEntry entry;
    if (const mathlib::FunctionText *text = mathlib::find_function_text(name)) {
        const bool constant = mathlib::is_constant_text(text);
        entry.kind = constant ? LibraryEntryKind::Constant : LibraryEntryKind::Embedded;
        const auto table =
            constant ? mathlib::constant_texts() : mathlib::embedded_function_texts();
        entry.index = static_cast<int>(text - table.data());
        entry.prototype = text->prototype;
        entry.description = text->description;
        return entry;
    }
    const std::string wanted(name);
    const std::string selected(category);
    for (VarFunIniFile *file : {library, userLibrary})
        if (FindIn(file, wanted, &selected, entry) || FindIn(file, wanted, nullptr, entry))
            return entry;
    return entry;
}

std::string InsertFunctionPrototype(std::string_view text, std::size_t width) {
    std::string result;
    std::size_t run = 0;
    for (char c : text) {
        if (c == ' ') continue;
        if (run == width) {
            result += ' ';
            run = 0;
        }
        result += c;
        ++run;
    }
    return result;
}

std::string CutPrototypeForInsert(std::string_view prototype) {
    std::size_t cut = prototype.find('=');
    if (cut == std::string_view::npos) return std::string(prototype);
    if (cut > 0 && prototype[cut - 1] == ' ') --cut;
    return std::string(prototype.substr(0, cut));
}

bool ParameterRange(std::string_view text, std::size_t &begin, std::size_t &end) {
    std::size_t open = text.find('{');
    if (open == std::string_view::npos) open = text.find('[');
    if (open == std::string_view::npos || open + 1 >= text.size()) return false;
    if (text[open + 1] == '[' || text[open + 1] == '{') return false;
    const std::size_t close = text.find_first_of("}]", open + 1);
    if (close == std::string_view::npos) return false;
    begin = open + 1;
    end = close;
    return true;
}

}  // namespace quindar
