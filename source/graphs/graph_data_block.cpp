// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "graph_data_block.h"

#include <charconv>
#include <cstddef>
#include <optional>
#include <vector>

namespace quindar {

namespace {

constexpr std::string_view kMagic = "QUINDAR GRAPH DATA 1";
constexpr std::string_view kEnd = "END GRAPH DATA";
// No chart of the program comes near this many cells; a larger count is a damaged file.
constexpr long long kMostCells = 100'000'000;

void append_number(std::string &out, double value) {
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, result.ptr);
}

void append_row(std::string &out, std::string_view head, const double *values, std::size_t n) {
    out += head;
    for (std::size_t i = 0; i < n; ++i) {
        out += ' ';
        append_number(out, values[i]);
    }
    out += "\r\n";
}

// The block's lines, one at a time, each split into words.
class BlockReader {
public:
    explicit BlockReader(std::string_view text) : rest(text) {}

    // The next line, without its line end; nullopt at the end of the text.
    std::optional<std::string_view> line() {
        if (rest.empty()) return std::nullopt;
        const std::size_t end = rest.find('\n');
        std::string_view found = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        if (!found.empty() && found.back() == '\r') found.remove_suffix(1);
        return found;
    }
    static std::vector<std::string_view> words(std::string_view line) {
        std::vector<std::string_view> out;
        while (!line.empty()) {
            const std::size_t start = line.find_first_not_of(' ');
            if (start == std::string_view::npos) break;
            line.remove_prefix(start);
            const std::size_t end = line.find(' ');
            out.push_back(line.substr(0, end));
            line.remove_prefix(end == std::string_view::npos ? line.size() : end);
        }
        return out;
    }
    // The words of the next line when it begins with head.
    std::optional<std::vector<std::string_view>> expect(std::string_view head) {
        const auto next = line();
        if (!next) return std::nullopt;
        auto list = words(*next);
        if (list.empty() || list.front() != head) return std::nullopt;
        return list;
    }
    std::string_view remaining() const { return rest; }

private:
    std::string_view rest;
};

bool to_number(std::string_view word, double &value) {
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
    return result.ec == std::errc() && result.ptr == word.data() + word.size();
}

bool to_count(std::string_view word, long long &value) {
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
    return result.ec == std::errc() && result.ptr == word.data() + word.size() && value >= 0;
}

// Words from index first on, as exactly n numbers.
bool numbers(const std::vector<std::string_view> &words, std::size_t first, long long n,
             std::vector<double> &out) {
    if (static_cast<long long>(words.size()) - static_cast<long long>(first) != n) return false;
    out.resize(static_cast<std::size_t>(n));
    for (std::size_t i = 0; i < out.size(); ++i)
        if (!to_number(words[first + i], out[i])) return false;
    return true;
}

// "NAME value" pairs at fixed places of a line: words[at] must be name, words[at + 1] a count.
bool named_count(const std::vector<std::string_view> &words, std::size_t at, std::string_view name,
                 long long &value) {
    return words.size() > at + 1 && words[at] == name && to_count(words[at + 1], value);
}

// Every value takes at least two characters (a digit and a blank), so a count that the rest
// of the text cannot hold is a damaged file, found before anything is allocated for it.
bool text_can_hold(const BlockReader &reader, long long values) {
    return static_cast<long long>(reader.remaining().size()) >= 2 * values;
}

bool fail(std::string &error, const char *why) {
    error = why;
    return false;
}

bool read_header(BlockReader &reader, std::string_view kind, std::string &error) {
    const auto magic = reader.line();
    if (!magic || *magic != kMagic) return fail(error, "not a graph file: no graph data block");
    const auto kindLine = reader.expect("KIND");
    if (!kindLine || kindLine->size() != 2 || (*kindLine)[1] != kind)
        return fail(error, "the graph data is not of this kind of graph");
    return true;
}

bool read_hole(BlockReader &reader, double &hole, std::string &error) {
    const auto line = reader.expect("HOLE");
    if (!line || line->size() != 2 || !to_number((*line)[1], hole))
        return fail(error, "the graph data is damaged: no hole value");
    return true;
}

bool read_end(BlockReader &reader, std::string_view &rest, std::string &error) {
    const auto end = reader.line();
    if (!end || *end != kEnd) return fail(error, "the graph data is cut short");
    rest = reader.remaining();
    return true;
}

}  // namespace

std::string data_block_text(const ChartData2D &data) {
    std::string out;
    out.append(kMagic).append("\r\nKIND 2D\r\n");
    out += "LAYOUT " + std::to_string(data.layout()) + " SETS " + std::to_string(data.sets()) +
           " POINTS " + std::to_string(data.points()) + "\r\nHOLE ";
    append_number(out, data.hole());
    out += "\r\n";
    std::vector<double> row(static_cast<std::size_t>(data.points()));
    if (data.layout() == 1) {
        for (int p = 0; p < data.points(); ++p) row[static_cast<std::size_t>(p)] = data.x(0, p);
        append_row(out, "X", row.data(), row.size());
    }
    for (int s = 0; s < data.sets(); ++s) {
        out += "SET " + std::to_string(s) + "\r\n";
        if (data.layout() == 2) {
            for (int p = 0; p < data.points(); ++p) row[static_cast<std::size_t>(p)] = data.x(s, p);
            append_row(out, "X", row.data(), row.size());
        }
        for (int p = 0; p < data.points(); ++p) row[static_cast<std::size_t>(p)] = data.y(s, p);
        append_row(out, "Y", row.data(), row.size());
    }
    out.append(kEnd).append("\r\n");
    return out;
}

std::string data_block_text(const ChartGrid3D &grid) {
    std::string out;
    out.append(kMagic).append("\r\nKIND 3D\r\n");
    out += std::string("GRID ") + (grid.is_regular() ? "REGULAR" : "IRREGULAR") + " NX " +
           std::to_string(grid.nx()) + " NZ " + std::to_string(grid.nz()) + "\r\nHOLE ";
    append_number(out, grid.hole());
    out += "\r\n";
    if (grid.is_regular()) {
        const double origin[2] = {grid.x_origin(), grid.z_origin()};
        const double step[2] = {grid.x_step(), grid.z_step()};
        append_row(out, "ORIGIN", origin, 2);
        append_row(out, "STEP", step, 2);
    } else {
        append_row(out, "XVALUES", grid.x_values().data(), grid.x_values().size());
        append_row(out, "ZVALUES", grid.z_values().data(), grid.z_values().size());
    }
    std::vector<double> row(static_cast<std::size_t>(grid.nz()));
    for (int ix = 0; ix < grid.nx(); ++ix) {
        for (int iz = 0; iz < grid.nz(); ++iz)
            row[static_cast<std::size_t>(iz)] = grid.value(ix, iz);
        append_row(out, "ROW " + std::to_string(ix), row.data(), row.size());
    }
    out.append(kEnd).append("\r\n");
    return out;
}

bool parse_data_block(std::string_view text, ChartData2D &data, std::string_view &rest,
                      std::string &error) {
    BlockReader reader(text);
    if (!read_header(reader, "2D", error)) return false;
    const auto shape = reader.expect("LAYOUT");
    long long layout = 0, sets = 0, points = 0;
    if (!shape || shape->size() != 6 || !to_count((*shape)[1], layout) ||
        (layout != 1 && layout != 2) || !named_count(*shape, 2, "SETS", sets) ||
        !named_count(*shape, 4, "POINTS", points) || sets * points > kMostCells ||
        sets > kMostCells || points > kMostCells)
        return fail(error, "the graph data is damaged: bad layout line");
    double hole = kHoleValue;
    if (!read_hole(reader, hole, error)) return false;
    if (!text_can_hold(reader, sets * points)) return fail(error, "the graph data is cut short");
    ChartData2D read(static_cast<int>(layout), static_cast<int>(sets), static_cast<int>(points),
                     hole);
    std::vector<double> row;
    const auto read_row = [&](std::string_view head) {
        const auto line = reader.expect(head);
        return line && numbers(*line, 1, points, row);
    };
    if (layout == 1) {
        if (!read_row("X")) return fail(error, "the graph data is damaged: bad X values");
        for (int p = 0; p < points; ++p) read.set_x(0, p, row[static_cast<std::size_t>(p)]);
    }
    for (int s = 0; s < sets; ++s) {
        const auto head = reader.expect("SET");
        long long index = -1;
        if (!head || head->size() != 2 || !to_count((*head)[1], index) || index != s)
            return fail(error, "the graph data is cut short or damaged: a set is missing");
        if (layout == 2) {
            if (!read_row("X")) return fail(error, "the graph data is damaged: bad X values");
            for (int p = 0; p < points; ++p) read.set_x(s, p, row[static_cast<std::size_t>(p)]);
        }
        if (!read_row("Y")) return fail(error, "the graph data is damaged: bad Y values");
        for (int p = 0; p < points; ++p) read.set_y(s, p, row[static_cast<std::size_t>(p)]);
    }
    if (!read_end(reader, rest, error)) return false;
    data = std::move(read);
    return true;
}

bool parse_data_block(std::string_view text, ChartGrid3D &grid, std::string_view &rest,
                      std::string &error) {
    BlockReader reader(text);
    if (!read_header(reader, "3D", error)) return false;
    const auto shape = reader.expect("GRID");
    long long nx = 0, nz = 0;
    if (!shape || shape->size() != 6 || ((*shape)[1] != "REGULAR" && (*shape)[1] != "IRREGULAR") ||
        !named_count(*shape, 2, "NX", nx) || !named_count(*shape, 4, "NZ", nz) || nx > kMostCells ||
        nz > kMostCells || nx * nz > kMostCells)
        return fail(error, "the graph data is damaged: bad grid line");
    const bool regular = (*shape)[1] == "REGULAR";
    double hole = kHoleValue;
    if (!read_hole(reader, hole, error)) return false;
    if (!text_can_hold(reader, nx * nz)) return fail(error, "the graph data is cut short");
    std::vector<double> row;
    const auto read_row = [&](std::string_view head, long long n) {
        const auto line = reader.expect(head);
        return line && numbers(*line, 1, n, row);
    };
    ChartGrid3D read = ChartGrid3D::irregular(0, 0, hole);
    if (regular) {
        if (!read_row("ORIGIN", 2)) return fail(error, "the graph data is damaged: no origin");
        const double xOrigin = row[0], zOrigin = row[1];
        if (!read_row("STEP", 2)) return fail(error, "the graph data is damaged: no step");
        read = ChartGrid3D::regular(static_cast<int>(nx), static_cast<int>(nz), hole, row[0],
                                    row[1], xOrigin, zOrigin);
    } else {
        read = ChartGrid3D::irregular(static_cast<int>(nx), static_cast<int>(nz), hole);
        if (!read_row("XVALUES", nx)) return fail(error, "the graph data is damaged: bad X values");
        read.x_values() = row;
        if (!read_row("ZVALUES", nz)) return fail(error, "the graph data is damaged: bad Z values");
        read.z_values() = row;
    }
    for (int ix = 0; ix < nx; ++ix) {
        const auto line = reader.expect("ROW");
        long long index = -1;
        if (!line || line->size() < 2 || !to_count((*line)[1], index) || index != ix ||
            !numbers(*line, 2, nz, row))
            return fail(error, "the graph data is cut short or damaged: a row is missing");
        for (int iz = 0; iz < nz; ++iz) read.set_value(ix, iz, row[static_cast<std::size_t>(iz)]);
    }
    if (!read_end(reader, rest, error)) return false;
    grid = std::move(read);
    return true;
}

}  // namespace quindar
