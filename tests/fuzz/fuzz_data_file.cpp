// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The data-file reader: mutated data files read as entries and as point rows, and through the
// list functions of the engine, whose entries may name data files themselves (this one too).
// Promises: entries hold no separators, the limits hold, and every failure has a message.
#include "data_file.h"
#include "fuzz_driver.h"
#include "fuzz_files.h"
#include "parser.h"

namespace {

using namespace quindar;

bool holds_separator(const std::string &entry) {
    return entry.empty() || entry.find_first_of(" ,\t\r\n") != std::string::npos;
}

}  // namespace

int main(int argc, char **argv) {
    fuzz::ScratchFolder folder;
    const std::string path = folder.file("data.txt");
    const std::string other = folder.file("other.txt");
    fuzz::write_file(other, "1 2 3\n4, 5\n");
    const std::vector<std::string> seeds = {"1, 2 3",
                                            "\r\n\n  1\t,,2\r\n3\n",
                                            "1) 10 2) 20",
                                            "SQRT(16), 4",
                                            "1+i",
                                            "1, 2, 3\n4, 5\n6\n",
                                            "MEAN[{" + other + "}] 7"};
    const std::vector<std::string> dictionary = {"MEAN[{" + path + "}]",
                                                 "SRESIST[{" + other + "}]",
                                                 "MEAN[{/}]",
                                                 "MEAN[{/dev/zero}]",
                                                 ")",
                                                 "(",
                                                 ",",
                                                 " ",
                                                 "\t",
                                                 "\r\n",
                                                 "PI",
                                                 "POW(2,3)",
                                                 "1e+307",
                                                 std::string(1500, '7')};
    Parser parser("", "");
    const std::string call = "MEAN[{" + path + "}]";
    return fuzz::run(argc, argv, "fuzz_data_file", seeds, dictionary, [&](const std::string &text) {
        fuzz::write_file(path, text);
        std::vector<std::string> entries;
        const auto status = mathlib::read_data_entries(path, entries);
        if (entries.size() >= static_cast<std::size_t>(mathlib::kDataEntryLimit)) return false;
        for (const std::string &entry : entries)
            if (holds_separator(entry)) return false;
        std::vector<mathlib::PointRow> rows;
        if (mathlib::read_data_points(path, rows) != status) return false;
        for (const mathlib::PointRow &row : rows)
            if (row.count <= 0) return false;
        parser.eval_exp(call.c_str(), true, true);
        if (parser.IsAnError() && parser.GetLastError() == nullptr) return false;
        parser.ClearLastError();
        return true;
    });
}
