// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// What the desktop program's command line asks for: a document to open first, or that the
// file association be taken away.

#include <string>
#include <vector>

namespace quindar {

struct StartRequest {
    // The first plain word, with surrounding double quotes removed; empty when none.
    std::string file;
    // "unregister" or any prefix of it, in any case: ends the reading of the words, and the
    // association is removed instead of renewed. The program still starts.
    bool unregister = false;
};

StartRequest read_start_request(const std::vector<std::string> &words);

}  // namespace quindar
