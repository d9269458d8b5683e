#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures the test coverage of src: builds with counters, runs all tests once, prints lines and branches of the program
# itself and of the widgets and window layouts. Exit status 1 if one of these is below its limit.
# Use: tools/checks/coverage.sh            all of it
#      tools/checks/coverage.sh --report   only evaluates the last run again
# build/coverage/report/index.html shows the lines that no test reaches.
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

# Excludes the exception branches that the compiler adds to every call, and branches on lines without code of ours (the
# destructors at a closing brace). gcc counts both, but no test can aim at them.
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
