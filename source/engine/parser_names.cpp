// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Library functions: the two library files, and the look-up of a name in them, category by
// category, system library first. The engine keeps nothing of a file; a reader may, and is told
// of each new line so that a change counts at the next one.
#include <filesystem>
#include <fstream>

#include "parser.h"
#include "parser_messages.h"

namespace quindar {

namespace {

std::unique_ptr<Function> function_in_category(FunctionLibrary *file, const char *name) {
    if (file == nullptr || name == nullptr) return nullptr;
    auto definition = file->find_in_category(name);
    if (!definition) return nullptr;
    return std::make_unique<Function>(definition->full_name.c_str(), definition->value.c_str());
}

// The first category of the file that holds name, which stays the current one.
std::unique_ptr<Function> search_categories(
    FunctionLibrary &file, const char *name,
    std::unique_ptr<Function> (Parser::*lookup)(const char *), Parser &parser) {
    if (!file.may_hold(name)) return nullptr;
    for (const std::string &category : file.categories()) {
        file.set_category(category);
        if (auto found = (parser.*lookup)(name)) return found;
    }
    return nullptr;
}

}  // namespace

// The box shows whatever the silent state: it belongs to no line.
bool Parser::check_function_library_access(const std::string &path) {
    std::error_code ignored;
    const bool readable = !std::filesystem::is_directory(path, ignored) &&
                          std::ifstream(path, std::ios::binary).is_open();
    if (!readable)
        show_message(&message_hook_storage,
                     format_message(messages::kLibraryNotOpened, path.c_str()),
                     messages::kFileAccessCaption);
    return readable;
}

void Parser::open_function_libraries(FunctionLibraryOpener opener) {
    library_opener = std::move(opener);
    lib_function.reset();
    library.reset();
    user_library.reset();
    if (!library_opener) return;
    if (check_function_library_access(lib_path)) library = library_opener(lib_path);
    if (check_function_library_access(user_lib_path)) user_library = library_opener(user_lib_path);
}

bool Parser::is_library_function(const char *name) {
    lib_function.reset();
    if (name == nullptr || *name == '\0') return false;
    if (library) lib_function = search_categories(*library, name, &Parser::get_lib_function, *this);
    if (!lib_function && user_library)
        lib_function = search_categories(*user_library, name, &Parser::get_user_function, *this);
    return lib_function != nullptr;
}

std::unique_ptr<Function> Parser::get_lib_function(const char *name) {
    return function_in_category(library.get(), name);
}

std::unique_ptr<Function> Parser::get_user_function(const char *name) {
    return function_in_category(user_library.get(), name);
}

}  // namespace quindar
