// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "grid_smoothing.h"

namespace quindar {

void smooth_grid(ChartGrid3D &grid, double weight) {
    // Means come from the values before smoothing, whatever order the cells are visited in.
    const ChartGrid3D before = grid;
    for (int iz = 0; iz < grid.nz(); ++iz)
        for (int ix = 0; ix < grid.nx(); ++ix) {
            const double own = before.value(ix, iz);
            if (own == before.hole()) continue;
            double sum = 0.0;
            int count = 0;
            for (int dz = -1; dz <= 1; ++dz)
                for (int dx = -1; dx <= 1; ++dx) {
                    if ((dx == 0 && dz == 0) || !before.in_range(ix + dx, iz + dz)) continue;
                    const double next = before.value(ix + dx, iz + dz);
                    if (next == before.hole()) continue;
                    sum += next;
                    ++count;
                }
            if (count > 0) grid.set_value(ix, iz, (1.0 - weight) * own + weight * sum / count);
        }
}

}  // namespace quindar
