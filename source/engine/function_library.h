// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// One function library file as the engine asks for it. The engine does not read files: the
// owner of a Parser installs an opener that makes one of these over a path, with whatever
// reader knows the file's format.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quindar {

// A library function as its file holds it: the full name with its parameter list, and the body.
struct LibraryDefinition {
    std::string full_name;
    std::string value;
};

class FunctionLibrary {
public:
    virtual ~FunctionLibrary() = default;
    // A new line is evaluated: a reader that keeps what it read may look at the file again.
    virtual void new_line() {}
    // False when no category of the file can hold name, so a search can be spared.
    virtual bool may_hold(const char * /*name*/) { return true; }
    // The categories of the file, in file order.
    virtual std::vector<std::string> categories() = 0;
    // Makes category the one that find_in_category searches.
    virtual void set_category(const std::string &category) = 0;
    // The function of the current category whose name, with or without its parameter list,
    // equals name without regard to case.
    virtual std::optional<LibraryDefinition> find_in_category(const char *name) = 0;
};

// Makes the reader of the library file at path; the file is known to be readable.
using FunctionLibraryOpener = std::function<std::unique_ptr<FunctionLibrary>(const std::string &)>;

}  // namespace quindar
