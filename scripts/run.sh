#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what is missing, builds, and runs quindar-cli over the bundled tour.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
bash scripts/build.sh
"${QUINDAR_BUILD_DIR:-build}/app/quindar-cli/quindar-cli" examples/tour.txt
