// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the desktop program's command line asks for.

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quindar {

struct CommandLineRequest {
    std::optional<std::string> file;  // the document to open first
    bool unregister = false;          // remove the file association and do not renew it
    bool registerAssociation = true;  // renew the file association
};

// Reads the words behind the program's name in order. The option "unregister", any prefix of it
// in any case, removes the association and ends the reading; the first other word is the file,
// without surrounding double quotes; later words are ignored. Unless the reading ended early,
// the association is renewed.
CommandLineRequest parse_command_line(std::span<const std::string> words);

// True when word is a non-empty prefix of "unregister", in any case.
bool is_unregister_option(std::string_view word);

}  // namespace quindar
