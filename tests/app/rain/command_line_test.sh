#!/bin/sh
# SPDX-License-Identifier: MIT
# The reader's command line: exit statuses, and only a complete table on standard output.
set -u
reader=$1
database=$2
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
failures=0

# expect STATUS FILE TABLE
expect() {
    "$reader" "$2" "$3" >"$work/out" 2>"$work/err"
    status=$?
    if [ "$status" -ne "$1" ]; then
        echo "exit status $status, expected $1: $2 $3"
        failures=1
    fi
    if [ "$(wc -l <"$work/err")" -ne $((status != 0)) ]; then
        echo "not one line for one failure: $(head -c 200 "$work/err")"
        failures=1
    fi
    if [ "$status" -ne 0 ] && [ -s "$work/out" ]; then
        echo "a failed read printed: $(head -c 200 "$work/out")"
        failures=1
    fi
}

expect 0 "$database" List84
[ "$(head -n 1 "$work/out")" = "mero-rain 1" ] && [ "$(tail -n 1 "$work/out")" = "end 9" ] || {
    echo "the table is not whole"
    failures=1
}
expect 0 "$database" lIST84
expect 3 "$work/missing.mdb" List84
expect 3 "$work" List84
echo "no database" >"$work/text.mdb"
expect 3 "$work/text.mdb" List84
expect 4 "$database" List93
expect 4 "$database" ""

# The library prints diagnostics when a page is missing; the header counts rows that are missing.
head -c $((38 * 4096)) "$database" >"$work/cut.mdb"
"$reader" "$work/cut.mdb" List84 >"$work/out" 2>/dev/null && { echo "a cut file was read"; failures=1; }
[ -s "$work/out" ] && { echo "the library printed into the output"; failures=1; }

"$reader" "$database" >"$work/out" 2>"$work/err"
[ $? -eq 2 ] || { echo "missing argument: wrong exit status"; failures=1; }
grep -q "^usage: mero-rain FILE TABLE" "$work/err" || { echo "no usage"; failures=1; }

"$reader" "$database" List84 >/dev/full 2>/dev/null
[ $? -eq 5 ] || { echo "a full output was not noticed"; failures=1; }
exit $failures
