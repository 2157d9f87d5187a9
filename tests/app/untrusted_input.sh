#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# SPDX-FileCopyrightText: 2026 The Quindar developers
# quindar-cli over hostile documents, data files and targets: one case per run.
#   untrusted_input.sh CLI CASE WORK
# Each case fails with a message naming what went wrong; a crash or a hang fails too.
set -uo pipefail
cli=$1
case_name=$2
work=$3
rm -rf "$work"
mkdir -p "$work"
cd "$work" || exit 1

fail() {
    echo "FAIL: $*" >&2
    for stream in stdout stderr; do
        [ -f "$stream" ] && { echo "--- $stream ---" >&2; head -c 2000 "$stream" >&2; echo >&2; }
    done
    exit 1
}

# run ARGS...: runs the program with a time limit, output in stdout and stderr, status in $code.
run() {
    timeout 60 "$cli" "$@" >stdout 2>stderr
    code=$?
    [ "$code" -ge 124 ] && fail "ended by signal or time limit (status $code): $*"
    return 0
}

expect_code() { [ "$code" = "$1" ] || fail "status $code, expected $1"; }
expect_err() { grep -qF -- "$1" stderr || fail "standard error lacks: $1"; }
expect_out() { grep -qF -- "$1" stdout || fail "standard output lacks: $1"; }
expect_out_is() { [ "$(cat stdout)" = "$1" ] || fail "standard output is not: $1"; }

repeat() { printf "%${2}s" '' | tr ' ' "$1"; }

case $case_name in
long-token-derivative)
    run --derivative "$(repeat a 1024)" x 0
    expect_code 1
    expect_err "is not a function of x"
    printf 'f[x] = x*%s\r\n' "$(repeat 7 1500)" >long.txt
    run --derivative 'f[x]' x 0 long.txt
    [ "$code" = 1 ] || [ "$code" = 0 ] || fail "status $code"
    printf '[DECLARED FUNCTIONS]\r\nf[x]=x*%s\r\n' "$(repeat 7 1500)" >long.qnd
    run --derivative 'f[x]' x 0 long.qnd
    [ "$code" = 1 ] || [ "$code" = 0 ] || fail "status $code"
    ;;
data-file-not-regular)
    for path in / /dev/zero /dev/null "$work"; do
        printf 'MEAN[{%s}]\n' "$path" >in.txt
        run in.txt
        expect_code 1
        expect_err "1: Data File ' $path ' Could Not Be Located!"
    done
    ;;
data-file-reads-itself)
    printf 'MEAN[{%s/self.txt}] 1\n' "$work" >self.txt
    printf 'MEAN[{%s/self.txt}]\n' "$work" >in.txt
    run in.txt
    expect_code 1
    expect_err "Data File ' $work/self.txt ' Is Read By One Of Its Own Entries!"
    ;;
*)
    fail "unknown case $case_name"
    ;;
esac
exit 0
