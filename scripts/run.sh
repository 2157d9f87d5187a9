#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds the two programs, and starts the desktop program when a
# display is there; without one it runs quindar-cli over the bundled tour.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
build_dir=${QUINDAR_BUILD_DIR:-build}
launcher=()
command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=${QUINDAR_BUILD_TYPE:-RelWithDebInfo} "${launcher[@]}" >/dev/null
cmake --build "$build_dir" --parallel "$(nproc)" --target quindar quindar-cli
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec "$build_dir/app/quindar/quindar" "$@"
fi
echo "No display (\$DISPLAY and \$WAYLAND_DISPLAY are unset): running quindar-cli over examples/tour.txt instead."
"$build_dir/app/quindar-cli/quindar-cli" examples/tour.txt
