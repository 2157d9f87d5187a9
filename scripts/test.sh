#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds, and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/build.sh
ctest --test-dir "${QUINDAR_BUILD_DIR:-build}" --output-on-failure --parallel "$(nproc)"
# The fuzz programs under AddressSanitizer and UndefinedBehaviorSanitizer, a bounded time each.
bash scripts/fuzz.sh
