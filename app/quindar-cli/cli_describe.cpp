// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "cli_describe.h"

#include <algorithm>
#include <charconv>

#include "function_library_catalog.h"
#include "function_texts.h"
#include "text_helpers.h"
#include "user_library.h"
#include "var_fun_ini_file.h"

namespace quindar::cli {

namespace {

// The category as the library spells it: exactly, or failing that without regard to case.
std::optional<std::string> FindCategory(const std::vector<std::string> &categories,
                                        const std::string &wanted) {
    for (const auto &category : categories)
        if (category == wanted) return category;
    for (const auto &category : categories)
        if (text::equal_no_case(category, wanted)) return category;
    return std::nullopt;
}

int ListCategories(FunctionLibraryCatalog &catalog, std::ostream &out) {
    for (const auto &category : catalog.Categories()) out << category << '\n';
    return 0;
}

int ListNames(FunctionLibraryCatalog &catalog, const std::string &wanted, std::ostream &out,
              std::string &error) {
    const auto category = FindCategory(catalog.Categories(), wanted);
    if (!category) {
        error = "no category \"" + wanted + "\"; --functions lists the categories";
        return 2;
    }
    const auto names = catalog.Names(*category);
    std::size_t width = 0;
    for (const auto &name : names) width = std::max(width, name.size());
    for (const auto &name : names) {
        const LibraryEntry entry = catalog.Describe(name, *category);
        // A constant's prototype is only its name: its description tells its value.
        const bool constant = entry.kind == LibraryEntryKind::Constant;
        out << name << std::string(width + 2 - name.size(), ' ')
            << (constant ? entry.description : entry.prototype) << '\n';
    }
    return 0;
}

int Describe(FunctionLibraryCatalog &catalog, const std::string &wanted, std::ostream &out,
             std::string &error) {
    // A call's brackets may come with the name.
    const std::string name = wanted.substr(0, wanted.find_first_of("[("));
    const LibraryEntry entry = catalog.Describe(name, "ALL");
    if (entry.kind == LibraryEntryKind::None) {
        error = "\"" + name + "\" is no function or constant of the Function Library";
        // Constants keep their case, unlike functions.
        for (const auto &constant : mathlib::constant_texts())
            if (text::equal_no_case(constant.name, name))
                error += "; did you mean \"" + std::string(constant.name) + "\"?";
        return 1;
    }
    out << entry.prototype << '\n';
    if (!entry.description.empty()) out << entry.description << '\n';
    return 0;
}

}  // namespace

int ParseDescribeOption(const std::vector<std::string> &arguments, std::size_t &at,
                        DescribeOptions &options, std::string &error) {
    const std::string &argument = arguments[at];
    if (argument == "--functions") {
        options.listFunctions = true;
        if (at + 1 < arguments.size() && !arguments[at + 1].starts_with("-"))
            options.category = arguments[++at];
        return 1;
    }
    if (argument == "--describe") {
        if (at + 1 >= arguments.size()) {
            error = "\"--describe\" needs a value";
            return -1;
        }
        options.name = arguments[++at];
        return 1;
    }
    return 0;
}

int RunDescribe(const DescribeOptions &options, const std::string &libraryFolder,
                const std::string &userLibraryFolder, std::ostream &out, std::string &error) {
    const std::string system = libraryFolder + kSystemLibraryName;
    const std::string user = userLibraryFolder + kUserLibraryName;
    VarFunIniFile systemLibrary(system.c_str());
    VarFunIniFile userLibrary(user.c_str());
    FunctionLibraryCatalog catalog(&systemLibrary, &userLibrary);
    if (options.name) return Describe(catalog, *options.name, out, error);
    if (options.category) return ListNames(catalog, *options.category, out, error);
    return ListCategories(catalog, out);
}

std::optional<int> ReadAnswerPrecision(const std::string &text, std::string &error) {
    int value = 0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (code != std::errc() || end != text.data() + text.size() || value < 1 || value > 14) {
        error = "--precision must be a whole number from 1 to 14, not \"" + text + "\"";
        return std::nullopt;
    }
    return value;
}

void ApplyAnswerPrecision(Parser &parser, int precision) {
    if (parser.answer_format) parser.answer_format->precision = precision;
}

}  // namespace quindar::cli
