// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "chart_data.h"

namespace quindar {

namespace {

std::size_t cells(int a, int b) {
    return a > 0 && b > 0 ? static_cast<std::size_t>(a) * static_cast<std::size_t>(b) : 0;
}

}  // namespace

ChartData2D::ChartData2D(int layout, int sets, int points, double hole)
    : layout_(layout == 2 ? 2 : 1),
      sets_(sets > 0 ? sets : 0),
      points_(points > 0 ? points : 0),
      hole_(hole),
      xs_(layout_ == 1 ? cells(1, points_) : cells(sets_, points_), hole),
      ys_(cells(sets_, points_), hole) {}

std::size_t ChartData2D::x_slot(int set, int point) const {
    return layout_ == 1 ? static_cast<std::size_t>(point) : y_slot(set, point);
}

std::size_t ChartData2D::y_slot(int set, int point) const {
    return static_cast<std::size_t>(set) * static_cast<std::size_t>(points_) +
           static_cast<std::size_t>(point);
}

void ChartData2D::set_x(int set, int point, double x) {
    if (in_range(set, point)) xs_[x_slot(set, point)] = x;
}

void ChartData2D::set_y(int set, int point, double y) {
    if (in_range(set, point)) ys_[y_slot(set, point)] = y;
}

double ChartData2D::x(int set, int point) const {
    return in_range(set, point) ? xs_[x_slot(set, point)] : hole_;
}

double ChartData2D::y(int set, int point) const {
    return in_range(set, point) ? ys_[y_slot(set, point)] : hole_;
}

ChartGrid3D::ChartGrid3D(bool regular, int nx, int nz, double hole)
    : regular_(regular),
      nx_(nx > 0 ? nx : 0),
      nz_(nz > 0 ? nz : 0),
      hole_(hole),
      cells_(cells(nx_, nz_), hole) {}

ChartGrid3D ChartGrid3D::regular(int nx, int nz, double hole, double xStep, double zStep,
                                 double xOrigin, double zOrigin) {
    ChartGrid3D grid(true, nx, nz, hole);
    grid.x_step_ = xStep;
    grid.z_step_ = zStep;
    grid.x_origin_ = xOrigin;
    grid.z_origin_ = zOrigin;
    return grid;
}

ChartGrid3D ChartGrid3D::irregular(int nx, int nz, double hole) {
    ChartGrid3D grid(false, nx, nz, hole);
    grid.x_values_.assign(static_cast<std::size_t>(grid.nx_), 0.0);
    grid.z_values_.assign(static_cast<std::size_t>(grid.nz_), 0.0);
    return grid;
}

double ChartGrid3D::x_at(int ix) const {
    if (regular_) return x_origin_ + ix * x_step_;
    return ix >= 0 && ix < nx_ ? x_values_[static_cast<std::size_t>(ix)] : hole_;
}

double ChartGrid3D::z_at(int iz) const {
    if (regular_) return z_origin_ + iz * z_step_;
    return iz >= 0 && iz < nz_ ? z_values_[static_cast<std::size_t>(iz)] : hole_;
}

void ChartGrid3D::set_value(int ix, int iz, double value) {
    if (in_range(ix, iz))
        cells_[static_cast<std::size_t>(ix) * static_cast<std::size_t>(nz_) +
               static_cast<std::size_t>(iz)] = value;
}

double ChartGrid3D::value(int ix, int iz) const {
    return in_range(ix, iz) ? cells_[static_cast<std::size_t>(ix) * static_cast<std::size_t>(nz_) +
                                     static_cast<std::size_t>(iz)]
                            : hole_;
}

}  // namespace quindar
