// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the committed reference files of the statistics and deviate tests.
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "statistics.h"

namespace quindar::testing {

// The lines of a reference file split into words; lines starting with '#' are left out.
inline std::vector<std::vector<std::string>> reference_lines(const std::string &name) {
    std::ifstream in(std::string(QUINDAR_TEST_DATA_DIR) + "/" + name);
    std::vector<std::vector<std::string>> lines;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream words(line);
        std::vector<std::string> row;
        for (std::string word; words >> word;) row.push_back(word);
        lines.push_back(row);
    }
    return lines;
}

inline long double number(const std::string &text) {
    // The files hold doubles in their shortest form: read them as the doubles they were.
    return std::stod(text);
}

inline void fill(DataList &list, const std::vector<long double> &values) {
    list.flush();
    for (long double v : values) list.add(new long double(v));
}

}  // namespace quindar::testing
