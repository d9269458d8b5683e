#!/bin/sh
# SPDX-License-Identifier: MIT
# The command line of mero: output and refused arguments before a window opens.
# Use: command_line_test.sh MERO
mero=$1
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
failures=0

# check NAME STATUS OUT ERR ARGUMENT...: exit status, and texts in standard output and standard error ("" for none).
check() {
    name=$1
    wanted=$2
    out=$3
    err=$4
    shift 4
    # Without a display: opening a window would fail.
    env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR="$scratch" "$mero" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null
    status=$?
    if [ "$status" -ne "$wanted" ]; then
        echo "$name: status $status, not $wanted"
        failures=$((failures + 1))
    fi
    for stream in out err; do
        text=$out
        [ $stream = out ] || text=$err
        if [ -n "$text" ] && ! grep -qF -- "$text" "$scratch/$stream" || [ -z "$text" ] && [ -s "$scratch/$stream" ]; then
            echo "$name: $stream is: $(cat "$scratch/$stream")"
            failures=$((failures + 1))
        fi
    done
}

check "help" 0 "usage: mero " "" --help
check "version" 0 "mero " "" --version
check "unknown option" 2 "" "mero: " --wrong
check "missing script" 2 "" "mero: cannot read the script $scratch/none.mero" --script "$scratch/none.mero"
check "a folder as script" 2 "" "mero: cannot read the script $scratch" --script "$scratch"
check "missing folder" 2 "" "no such folder" --folder "$scratch/none"
check "bad clock" 2 "" "yesterday" --clock yesterday
check "one file for a PDF" 2 "" "--export-pdf needs a report file and the file to make" --export-pdf report
check "a PDF of nothing" 1 "" "" --export-pdf "$scratch/none" "$scratch/none.pdf"
[ ! -e "$scratch/none.pdf" ] || failures=$((failures + 1))

# A PDF file replaces an old one when it is complete, and never the report itself.
echo '<html><body>zpráva</body></html>' >"$scratch/report"
echo old >"$scratch/old.pdf"
check "a PDF over the report" 1 "" "" --export-pdf "$scratch/report" "$scratch/./report"
grep -q zpráva "$scratch/report" || failures=$((failures + 1))
check "no PDF of nothing" 1 "" "" --export-pdf "$scratch/none" "$scratch/old.pdf"
[ "$(cat "$scratch/old.pdf")" = old ] || failures=$((failures + 1))
check "a PDF over an old one" 0 "" "" --export-pdf "$scratch/report" "$scratch/old.pdf"
[ "$(head -c 4 "$scratch/old.pdf")" = %PDF ] || failures=$((failures + 1))
[ -z "$(find "$scratch" -name '.mero-*')" ] || failures=$((failures + 1))

[ "$failures" -eq 0 ]
