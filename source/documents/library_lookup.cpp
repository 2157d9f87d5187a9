// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "library_lookup.h"

#include <vector>

#include "multi_string.h"

namespace quindar {

std::optional<LibraryFunctionText> lib_function_text(VarFunIniFile &library, const char *name) {
    if (name == nullptr || !library.IsFunction(name, nullptr)) return std::nullopt;
    long size = library.SizeOfLongestLine();
    if (size <= 0) return std::nullopt;
    std::vector<char> full(static_cast<std::size_t>(size));
    std::vector<char> value(static_cast<std::size_t>(size));
    library.GetFuncFullName(name, full.data(), static_cast<int>(size), nullptr);
    library.GetFunctionValue(full.data(), value.data(), static_cast<int>(size), nullptr);
    return LibraryFunctionText{full.data(), value.data()};
}

std::vector<std::string> library_categories(VarFunIniFile &library) {
    long size = library.SizeOfFunctionCatagories();
    if (size <= 0) return {};
    std::vector<char> list(static_cast<std::size_t>(size));
    library.GetFunctionCatagories(list.data(), static_cast<int>(size));
    return split_multi_string(list.data(), list.size());
}

std::optional<LibraryFunctionText> find_library_function(VarFunIniFile &library, const char *name) {
    if (name == nullptr) return std::nullopt;
    for (const auto &category : library_categories(library)) {
        library.SetFunctionFlagStr(category.c_str());
        if (auto found = lib_function_text(library, name)) return found;
    }
    return std::nullopt;
}

}  // namespace quindar
