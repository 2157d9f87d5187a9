#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the fuzz programs alone with AddressSanitizer and UndefinedBehaviorSanitizer into
# build-asan/ (or $QUINDAR_FUZZ_BUILD_DIR) and runs each for $QUINDAR_FUZZ_SECONDS (20) seconds
# from seed $QUINDAR_FUZZ_SEED (1). Any sanitizer report, crash or broken promise fails.
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${QUINDAR_FUZZ_BUILD_DIR:-build-asan}
seconds=${QUINDAR_FUZZ_SECONDS:-20}
seed=${QUINDAR_FUZZ_SEED:-1}
targets=(fuzz_expression fuzz_document fuzz_data_file)
launcher=()
command -v ccache >/dev/null 2>&1 && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache -DCMAKE_C_COMPILER_LAUNCHER=ccache)
cmake -S . -B "$build_dir" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQUINDAR_SANITIZE=ON \
    -DQUINDAR_BUILD_BENCHMARKS=OFF "${launcher[@]}" >/dev/null
cmake --build "$build_dir" --parallel "$(nproc)" --target "${targets[@]}"
export ASAN_OPTIONS=${ASAN_OPTIONS:-abort_on_error=1:detect_leaks=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
for target in "${targets[@]}"; do
    # A hang is a finding too: the run may take its time and a margin, no more.
    timeout $((seconds + 120)) "$build_dir/tests/fuzz/$target" --seconds "$seconds" --seed "$seed"
done
