// SPDX-License-Identifier: GPL-3.0-or-later
// The Shapiro-Wilk test of normality, with coefficients and critical values read from two tables.
#include <cctype>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "statistics.h"

namespace quindar {

namespace {

constexpr int kBadCount = 0, kBadAlpha = 1, kTableMissing = 2, kTableCorrupt = 3;
constexpr int kFewest = 3, kMost = 99;

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using TableFile = std::unique_ptr<std::FILE, FileCloser>;

TableFile open_table(const std::optional<std::string> &path) {
    return TableFile(path ? std::fopen(path->c_str(), "r") : nullptr);
}

int next_non_blank(std::FILE *file) {
    int c;
    do c = std::getc(file);
    while (c != EOF && std::isspace(c));
    return c;
}

// A number in the classic notation, whatever the program's locale; false when none is there.
bool read_number(std::FILE *file, long double &value, bool integer) {
    int c = next_non_blank(file);
    std::string text;
    while (c != EOF && (std::isdigit(c) || (!integer && std::strchr(".eE+-", c) != nullptr) ||
                        (text.empty() && (c == '+' || c == '-')))) {
        text += static_cast<char>(c);
        c = std::getc(file);
    }
    if (c != EOF) std::ungetc(c, file);
    if (text.empty() || text.find_first_of("0123456789") == std::string::npos) return false;
    value = Mathematics::_atold(text.c_str());
    return true;
}

}  // namespace

bool Statistics::find_table_line(std::FILE *table, int n) {
    // The first line is that of 3 points; a table that ends early is reported as corrupt.
    for (int skipped = 0; skipped < n - kFewest; ++skipped) {
        int c;
        do c = std::getc(table);
        while (c != EOF && c != '\n');
        if (c == EOF) break;
    }
    long double head = 0;
    const bool read = read_number(table, head, true);
    const int after = std::getc(table);
    if (after != EOF) std::ungetc(after, table);
    if (!read || head != n || after != ')') {
        stat_exception(kTableCorrupt);
        return false;
    }
    return true;
}

// The first character read is the ")" of the head; each later value follows a comma.
bool Statistics::read_table_values(std::FILE *table, int count, long double *values) {
    for (int i = 1; i <= count; ++i) {
        const int c = next_non_blank(table);
        if (c == EOF || (i > 1 && c != ',') || !read_number(table, values[i - 1], false)) {
            stat_exception(kTableCorrupt);
            return false;
        }
    }
    return true;
}

long double Statistics::wsnorm_w(DataList &list) {
    const int n = list.count();
    const TableFile table = open_table(table_a1_path);
    if (!table) {
        stat_exception(kTableMissing);
        return 0;
    }
    sort(list, 0, n - 1);
    const long double total = sumx(list);
    const long double ss = sumxsq(list) - total * total / n;
    const int m = n / 2;
    if (!find_table_line(table.get(), n)) return 0;
    std::unique_ptr<long double[]> a(new long double[static_cast<std::size_t>(m)]);
    if (!read_table_values(table.get(), m, a.get())) return 0;
    long double b = 0;
    for (int i = 1; i <= m; ++i) b += a[i - 1] * (*list[n - i] - *list[i - 1]);
    return b * b / ss;
}

long double Statistics::wsnormtest(DataList &list, int alpha) {
    const int n = list.count();
    if (n < kFewest || n > kMost) {
        stat_exception(kBadCount);
        return 0;
    }
    const int column = alpha == 1 ? 1 : alpha == 2 ? 2 : alpha == 5 ? 3 : alpha == 10 ? 4 : 0;
    if (column == 0) {
        stat_exception(kBadAlpha);
        return 0;
    }
    const long double w = wsnorm_w(list);
    if (error) return 0;
    const TableFile table = open_table(table_a2_path);
    if (!table) {
        stat_exception(kTableMissing);
        return 0;
    }
    long double critical[4] = {};
    if (!find_table_line(table.get(), n) || !read_table_values(table.get(), column, critical))
        return 0;
    return w > critical[column - 1] ? 1 : 0;
}

}  // namespace quindar
