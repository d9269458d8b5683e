#!/bin/sh
# SPDX-License-Identifier: MIT
# The manual page against a checker of such pages, and against the help of the commands.
# Use: manual_test.sh MERO_BATCH PAGE
set -u

batch=$1
page=$2
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

if command -v mandoc >/dev/null; then
    mandoc -Tlint -Wwarning "$page" || fail "mandoc finds faults"
elif command -v groff >/dev/null; then
    [ -z "$(groff -man -Tutf8 -ww -z "$page" 2>&1)" ] || fail "groff finds faults"
fi

# Options stand in the page with their hyphens escaped.
plain=$(sed 's/\\-/-/g; s/\\f[BIR]//g' "$page")
for command in run design sweep stations; do
    for option in $("$batch" $command --help | grep -oE -- '--[a-z][a-z-]*' | sort -u) $command; do
        printf '%s\n' "$plain" | grep -qF -- "$option" || fail "$command: $option is not in the page"
    done
done
[ $failures -eq 0 ]
