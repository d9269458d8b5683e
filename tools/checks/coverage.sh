#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# How much of src the tests reach: builds with counters, runs all tests once, prints lines and branches of what is the
# program itself and of what only shows it (the widgets and the window layouts). Exit status 1 when one is below its mark.
# Use: tools/checks/coverage.sh            all of it
#      tools/checks/coverage.sh --report   only counts anew what the last run left
# The lines that no test reaches stand in build/coverage/report/index.html.
set -euo pipefail

root=$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/../..
root=$(readlink -f -- "$root")
source "$root/tools/build.sh"
build=$root/build/coverage

run_tests() {
    "$root/tools/packages.sh" run build check coverage
    build_quietly coverage
    find "$build" -name '*.gcda' -delete
    (cd "$root" && LC_ALL=C.UTF-8 ctest --preset coverage --no-tests=error -j "${JOBS:-$(nproc)}")
}

# Left out: branches that only an exception takes which the compiler adds to every call, and branches of lines
# without code of ours (the destructors behind a closing brace). gcc counts both, no test can mean them.
count() {
    gcovr --root "$root" --object-directory "$build" --filter "$root/src/" -j "$(nproc)" \
        --exclude-throw-branches --exclude-unreachable-branches --json "$build/counts.json" "$build"
    mkdir -p "$build/report"
    gcovr --root "$root" --add-tracefile "$build/counts.json" --json-summary "$build/summary.json" \
        --html-details "$build/report/index.html"
}

[[ ${1-} == --report ]] || run_tests
count
python3 -B "$root/tools/checks/coverage_table.py" "$build/summary.json"
