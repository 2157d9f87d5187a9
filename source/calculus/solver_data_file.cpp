// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// Loading and saving the solver's list.
#include "solver_data_file.h"

#include <vector>

#include "file_io.h"
#include "limit_text.h"

namespace quindar::calculus {

bool LoadDataFile(Parser &parser, SolverForm &form, const std::string &name, bool replace,
                  std::string &error) {
    DynArray<std::string, 10> read;
    // The dialog shows the reader's message itself.
    parser.SetSilentMode(true);
    if (!parser.get_file_data(read, name.c_str(), -1)) {
        error = TakeError(parser);
        return false;
    }
    std::vector<std::string> entries;
    for (int i = 0; i < read.count(); ++i) entries.push_back(*read[i]);
    form.load(entries, replace);
    return true;
}

bool SaveDataFile(const SolverForm &form, const std::string &name) {
    return replace_file_content(name, DataFileText(form.entries(), DataFileKind(name)));
}

}  // namespace quindar::calculus
