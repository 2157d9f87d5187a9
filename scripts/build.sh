#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Configures and builds the project into build/ (or $QUINDAR_BUILD_DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${QUINDAR_BUILD_DIR:-build}
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=${QUINDAR_BUILD_TYPE:-RelWithDebInfo} "$@" >/dev/null
cmake --build "$build_dir" --parallel "$(nproc)"
