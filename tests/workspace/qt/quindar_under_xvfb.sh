#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# The real program on a virtual display: type a line, press F4, save with Ctrl+S through the
# save dialog, quit with Ctrl+Q, and find the answer in the saved document.
# Usage: quindar_under_xvfb.sh QUINDAR (run inside xvfb-run).
set -euo pipefail
program=$1
work=$(mktemp -d)
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$work"' EXIT
mkdir -p "$work/config/Quindar" "$work/data" "$work/runtime"
chmod 700 "$work/runtime"
printf '[OPTIONS]\r\nSound=0\r\n[TipOfTheDay]\r\nPos=-1\r\nStartup=0\r\n' >"$work/config/Quindar/Quindar.ini"
export XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/runtime
export QUINDAR_NO_SPLASH=1 LC_ALL=C

"$program" &
pid=$!
window=$(xdotool search --sync --onlyvisible --name '^Quindar' | head -n 1)
xdotool windowfocus --sync "$window"
sleep 0.5
xdotool type --delay 30 '2+3'
xdotool key F4
sleep 0.3
xdotool key ctrl+s
dialog=$(xdotool search --sync --onlyvisible --name 'Save Quindar File' | head -n 1)
xdotool windowfocus --sync "$dialog"
sleep 0.5
xdotool type --delay 10 "$work/typed.qnd"
xdotool key Return
for _ in $(seq 50); do [ -s "$work/typed.qnd" ] && break; sleep 0.1; done
xdotool windowfocus --sync "$window"
xdotool key ctrl+q
for _ in $(seq 50); do kill -0 "$pid" 2>/dev/null || break; sleep 0.1; done
if kill -0 "$pid" 2>/dev/null; then
    echo "the program did not end after Ctrl+Q" >&2
    ls -l "$work"
    exit 1
fi
wait "$pid"
if ! head -n 1 "$work/typed.qnd" | grep -q $'^2+3 = 5\r$'; then
    echo "the saved document does not start with \"2+3 = 5\"" >&2
    exit 1
fi
grep -q '^\[SETUP\]' "$work/typed.qnd"
echo "saved: $(head -n 1 "$work/typed.qnd")"
