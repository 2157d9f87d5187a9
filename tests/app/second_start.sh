#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# The real program, offscreen: a second start hands its file to the first and ends with 0
# before it writes anything; the first opens the file; a fault in the first leaves its report.
# Usage: second_start.sh QUINDAR DOCUMENT
set -euo pipefail
program=$1
document=$2
work=$(mktemp -d)
pid=
trap '[ -n "$pid" ] && kill -9 "$pid" 2>/dev/null; rm -rf "$work"' EXIT
mkdir -p "$work/config/Quindar" "$work/data" "$work/runtime" "$work/tmp"
chmod 700 "$work/runtime"
ini=$work/config/Quindar/Quindar.ini
printf '[OPTIONS]\r\nSound=0\r\n[TipOfTheDay]\r\nPos=-1\r\nStartup=0\r\n' >"$ini"
export XDG_CONFIG_HOME=$work/config XDG_DATA_HOME=$work/data XDG_RUNTIME_DIR=$work/runtime
export TMPDIR=$work/tmp QUINDAR_NO_SPLASH=1 LC_ALL=C QT_QPA_PLATFORM=offscreen

fail() { echo "$*" >&2; exit 1; }

"$program" &
pid=$!
socket=$work/runtime/quindar-$(id -u)
for _ in $(seq 100); do [ -S "$socket" ] && break; sleep 0.1; done
[ -S "$socket" ] || fail "the first start does not listen at $socket"
[ -f "$work/data/applications/quindar.desktop" ] || fail "the first start did not register .qnd"
[ -f "$work/data/mime/packages/quindar.xml" ] || fail "the first start did not register the MIME type"

# The second start: nothing it could write may change (the first keeps its own temporary
# files and its recent files).
before=$(find "$work/config" "$work/data" -type f -printf '%p %T@ %s\n' | sort)
start=$(date +%s%N)
"$program" "$document" || fail "the second start ended with $?"
took=$(( ($(date +%s%N) - start) / 1000000 ))
# The first opened the handed file, which puts it at the top of the recent files; on a busy
# machine that may take a moment.
for _ in $(seq 100); do grep -q "MRU0=$document" "$ini" && break; sleep 0.1; done
grep -q "MRU0=$document" "$ini" || fail "the first start did not open $document: $(cat "$ini")"
after=$(find "$work/config" "$work/data" -type f -not -path "$ini" -printf '%p %T@ %s\n' | sort)
[ "$(echo "$before" | grep -v "$ini")" = "$after" ] || fail "the second start changed files"

# A fault: the report goes to the user's data folder and the program dies of the signal.
kill -SEGV "$pid"
status=0
wait "$pid" || status=$?
pid=
[ "$status" -eq $((128 + 11)) ] || fail "the program ended with $status after SIGSEGV"
report=$work/data/Quindar/QuindarExceptions.txt
grep -q 'ACCESS_VIOLATION' "$report" || fail "no report of the fault"
tail -c 20 "$report" | grep -q 'End of report.' || fail "the report is not complete"
echo "second start handed over in $took ms; fault reported"
