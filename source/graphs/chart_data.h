// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The computed values of a drawn graph, as the chart gets them: a 2-D store addressed by set
// and point, and a 3-D grid addressed by (ix, iz). Every cell starts as the hole value, the
// number that means "no point here".

#include <cstddef>
#include <vector>

namespace quindar {

inline constexpr double kHoleValue = 1e308;

class ChartData2D {
public:
    // Layout 1: all sets share one X array; layout 2: each set has its own X values.
    ChartData2D(int layout, int sets, int points, double hole = kHoleValue);

    int layout() const { return layout_; }
    int sets() const { return sets_; }
    int points() const { return points_; }
    double hole() const { return hole_; }
    // Cells already holding the old hole keep that number; only later reads compare with it.
    void set_hole(double value) { hole_ = value; }

    // Writes outside the store are ignored. In layout 1 an X write lands in the shared array,
    // whichever set it names.
    void set_x(int set, int point, double x);
    void set_y(int set, int point, double y);
    double x(int set, int point) const;
    double y(int set, int point) const;

    bool in_range(int set, int point) const {
        return set >= 0 && set < sets_ && point >= 0 && point < points_;
    }

    friend bool operator==(const ChartData2D &, const ChartData2D &) = default;

private:
    std::size_t x_slot(int set, int point) const;
    std::size_t y_slot(int set, int point) const;

    int layout_;
    int sets_;
    int points_;
    double hole_;
    std::vector<double> xs_;
    std::vector<double> ys_;
};

// A grid of nx by nz cells. Regular: positions from an origin and a step on each axis.
// Irregular: positions from X and Z arrays that the builder fills.
class ChartGrid3D {
public:
    static ChartGrid3D regular(int nx, int nz, double hole, double xStep, double zStep,
                               double xOrigin, double zOrigin);
    static ChartGrid3D irregular(int nx, int nz, double hole);

    bool is_regular() const { return regular_; }
    int nx() const { return nx_; }
    int nz() const { return nz_; }
    double hole() const { return hole_; }
    double x_origin() const { return x_origin_; }
    double z_origin() const { return z_origin_; }
    double x_step() const { return x_step_; }
    double z_step() const { return z_step_; }

    // The position of column ix and row iz on the horizontal axes.
    double x_at(int ix) const;
    double z_at(int iz) const;
    // The arrays of an irregular grid (empty for a regular one).
    std::vector<double> &x_values() { return x_values_; }
    std::vector<double> &z_values() { return z_values_; }
    const std::vector<double> &x_values() const { return x_values_; }
    const std::vector<double> &z_values() const { return z_values_; }

    // Writes outside the grid are ignored; reads outside give the hole.
    void set_value(int ix, int iz, double value);
    double value(int ix, int iz) const;
    bool in_range(int ix, int iz) const { return ix >= 0 && ix < nx_ && iz >= 0 && iz < nz_; }

    friend bool operator==(const ChartGrid3D &, const ChartGrid3D &) = default;

private:
    ChartGrid3D(bool regular, int nx, int nz, double hole);

    bool regular_;
    int nx_;
    int nz_;
    double hole_;
    double x_origin_ = 0.0, z_origin_ = 0.0, x_step_ = 0.0, z_step_ = 0.0;
    std::vector<double> x_values_, z_values_;
    std::vector<double> cells_;
};

}  // namespace quindar
