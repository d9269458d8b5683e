#!/bin/sh
# SPDX-License-Identifier: MIT
# The window program's manual page against a checker of such pages, and against the program's help.
# Use: manual_test.sh MERO PAGE
set -u

mero=$1
page=$2
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

if command -v mandoc >/dev/null; then
    mandoc -Tlint -Wwarning "$page" || fail "mandoc finds faults"
fi

plain=$(sed 's/\\-/-/g; s/\\f[BIR]//g' "$page")
options=$("$mero" --help | grep -oE -- '--[a-z][a-z-]*' | sort -u)
[ -n "$options" ] || fail "the help names no options"
for option in $options; do
    printf '%s\n' "$plain" | grep -qF -- "$option" || fail "$option is not in the page"
done

# Arguments that cannot be used are told in one line, before anything is shown.
told=$("$mero" --palette blue 2>&1)
status=$?
[ $status -eq 2 ] || fail "an unknown palette exits with $status"
[ "$told" = "mero: neither light nor dark: blue" ] || fail "an unknown palette is told as: $told"
[ $failures -eq 0 ]
