#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian packages the build and the tests need, only those that are missing.
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config
    libintelrdfpmath-dev libmpfr-dev libgmp-dev
    libgtest-dev libbenchmark-dev libmuparser-dev ccache
    qt6-base-dev qt6-svg-dev qt6-multimedia-dev qt6-qpa-plugins libgl-dev librsvg2-bin
    qt6-charts-dev qt6-datavisualization-dev libqt6opengl6-dev qt6-declarative-dev
    xvfb xauth xdotool fonts-dejavu-core fonts-liberation poppler-utils shared-mime-info
)

missing=()
for p in "${packages[@]}"; do
    dpkg -s "$p" >/dev/null 2>&1 || missing+=("$p")
done

if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    sudo_cmd=()
    [ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
    export DEBIAN_FRONTEND=noninteractive
    "${sudo_cmd[@]}" apt-get update -qq
    "${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
