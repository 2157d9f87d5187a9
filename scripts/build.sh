#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Configures and builds the project into build/ (or $QUINDAR_BUILD_DIR).
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${QUINDAR_BUILD_DIR:-build}
launcher=()
# A compiler cache keeps rebuilds of the Qt layers short; the tree is built the same without it.
command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=${QUINDAR_BUILD_TYPE:-RelWithDebInfo} "${launcher[@]}" "$@" >/dev/null
cmake --build "$build_dir" --parallel "$(nproc)"
