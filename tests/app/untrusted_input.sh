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
in-place-not-regular)
    mkfifo pipe.txt
    run --in-place pipe.txt
    expect_code 2
    expect_err 'cannot write "pipe.txt": it is not a regular file'
    [ -p pipe.txt ] || fail "the pipe was replaced"
    if [ "$(id -u)" = 0 ] && mknod null.txt c 1 3 2>/dev/null; then
        run --in-place null.txt
        expect_code 2
        expect_err "it is not a regular file"
        [ -c null.txt ] || fail "the device was replaced"
    fi
    mkdir folder.qnd
    run --in-place folder.qnd
    expect_code 2
    expect_err "it is a folder"
    run /dev/zero
    expect_code 2
    expect_err 'cannot read "/dev/zero": it is a device'
    ;;
in-place-through-link)
    printf '1+1\n' >real.txt
    ln -s real.txt link.txt
    run --in-place link.txt
    expect_code 0
    [ -L link.txt ] || fail "the link was replaced"
    [ "$(cat real.txt)" = "1+1 = 2" ] || fail "the linked file was not updated"
    printf 'y = 3\r\n[SETUP]\r\nAnsPrecision=14\r\n' >real.qnd
    mkdir sub
    ln -s ../real.qnd sub/link.qnd
    run --in-place sub/link.qnd
    expect_code 0
    [ -L sub/link.qnd ] || fail "the document link was replaced"
    grep -q '^y = 3' real.qnd || fail "the linked document was not updated"
    grep -q '^\[DECLARED VARIABLES\]' real.qnd || fail "the linked document was not saved"
    ;;
in-place-read-only)
    # FILE CONTENT MESSAGE: the run is refused with MESSAGE and FILE keeps CONTENT.
    refused() {
        printf '%s' "$2" >"$1"
        chmod 444 "$1"
        run --in-place "$1"
        expect_code 2
        expect_err "$3"
        [ "$(cat "$1")" = "$2" ] || fail "read-only $1 was overwritten"
    }
    refused ro.txt '1+1' 'cannot write "ro.txt": it is read-only; the file is unchanged'
    refused ro.qnd 'y = 3' "is read only and can not be saved"
    ;;
in-place-keeps-owner-and-mode)
    printf '1+1\n' >kept.txt
    chmod 640 kept.txt
    [ "$(id -u)" = 0 ] && chown 65534:65534 kept.txt
    before=$(stat -c '%u:%g %a' kept.txt)
    run --in-place kept.txt
    expect_code 0
    [ "$(stat -c '%u:%g %a' kept.txt)" = "$before" ] || fail "owner, group or mode changed"
    # A file of another owner that this user may write: its owner cannot be kept, and the
    # run says so.
    if [ "$(id -u)" = 0 ] && command -v setpriv >/dev/null; then
        chmod 777 .
        printf '2+2\n' >theirs.txt
        chmod 666 theirs.txt
        timeout 60 setpriv --reuid=65534 --regid=65534 --clear-groups "$cli" --in-place theirs.txt \
            >stdout 2>stderr
        code=$?
        expect_code 0
        expect_err '"theirs.txt": the owner and group of the file could not be kept'
        [ "$(cat theirs.txt)" = "2+2 = 4" ] || fail "the file was not written"
    fi
    ;;
stale-temporaries)
    printf '1+1\n' >notes.txt
    # A process number that no process has, and one that is alive: this shell's.
    dead=999999
    while kill -0 "$dead" 2>/dev/null; do dead=$((dead + 1)); done
    : >".notes.txt.quindar-save-$dead-0badf00d.tmp"
    : >".notes.txt.quindar-save-$$-0badf00d.tmp"
    : >".other.txt.quindar-save-$dead-0badf00d.tmp"
    : >"notes.txt.Ab12Cd"
    run --in-place notes.txt
    expect_code 0
    [ ! -e ".notes.txt.quindar-save-$dead-0badf00d.tmp" ] || fail "a stale temporary file stayed"
    [ -e ".notes.txt.quindar-save-$$-0badf00d.tmp" ] || fail "a live process's file was removed"
    [ -e ".other.txt.quindar-save-$dead-0badf00d.tmp" ] || fail "another file's temporary was removed"
    [ -e "notes.txt.Ab12Cd" ] || fail "a file that is not ours was removed"
    ;;
save-failure-reasons)
    printf '1+1\n' >in.txt
    mkdir folder.qnd
    run --save folder.qnd in.txt
    expect_code 2
    expect_err 'cannot save "folder.qnd": Save File: File was not saved! (folder.qnd: it is a folder)'
    run --save missing/x.qnd in.txt
    expect_code 2
    expect_err "File was not saved! (missing/x.qnd: No such file or directory)"
    printf '1+1\n%.0s' $(seq 2000) >big.txt
    (ulimit -f 1 && timeout 60 "$cli" --save big.qnd big.txt >/dev/null 2>stderr)
    code=$?
    expect_code 2
    expect_err "File was not saved! (big.qnd: File too large)"
    [ ! -e big.qnd ] || fail "a cut document was left"
    ls -a | grep -q 'quindar-save' && fail "a temporary file was left"
    ;;
in-place-waits-for-lock)
    printf '1+1\n' >shared.txt
    flock shared.txt sleep 3 &
    holder=$!
    sleep 1
    timeout 60 "$cli" --in-place shared.txt >stdout 2>stderr &
    runner=$!
    sleep 1
    kill -0 "$holder" 2>/dev/null || fail "the lock holder ended too early to tell"
    [ "$(cat shared.txt)" = "1+1" ] || fail "the file was written while another run held it"
    wait "$runner"
    code=$?
    expect_code 0
    wait "$holder"
    [ "$(cat shared.txt)" = "1+1 = 2" ] || fail "the waiting run did not write its result"
    ;;
messages-one-line)
    printf 'ASIN[1+i]\nx\x07y\n2+\xc3\n' >in.txt
    run in.txt
    expect_code 1
    [ "$(wc -l <stderr)" = 3 ] || fail "a message spans lines"
    expect_err "1: You can not calculate the ASIN of a complex number in 'DEGREES' mode. You must change"
    expect_err "2: ' xU+0007y ' Could Not Be Identified"
    expect_err "3: ' U+00C3 ' is not a legitimate"
    run "$(printf 'no\033such.txt')"
    expect_code 2
    expect_err 'cannot open "noU+001Bsuch.txt"'
    LC_ALL=C grep -q "$(printf '\033')" stderr && fail "a control byte reached standard error"
    ;;
in-place-keeps-every-graph)
    # A hundred graphs with names of 32 characters: every one comes back, whole.
    {
        printf 'x = 2\r\n[SETUP]\r\nAnsPrecision=14\r\n[GRAPHS]\r\n'
        for n in $(seq 100); do printf 'Graph%d=Graph number %-19d\r\n' "$n" "$n"; done
        for n in $(seq 100); do printf '[Graph%d]\r\nFunction1=f[x]=x*%d\r\n' "$n" "$n"; done
    } >graphs.qnd
    run --in-place graphs.qnd
    expect_code 0
    [ "$(grep -c '^Graph[0-9]*=Graph number ' graphs.qnd)" = 100 ] || fail "graphs were dropped"
    [ "$(grep -c '^Function1=f\[x\]=x\*' graphs.qnd)" = 100 ] || fail "a graph lost its function"
    grep -q '^Graph100=Graph number 100' graphs.qnd || fail "the last graph was dropped"
    ;;
*)
    fail "unknown case $case_name"
    ;;
esac
exit 0
