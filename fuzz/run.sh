#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the fuzz targets and runs one, or all of them one after another.
# Use: fuzz/run.sh TARGET|all SECONDS        e.g. fuzz/run.sh script 600
# The corpus is kept in build/fuzz/corpus/TARGET; a finding is stored in build/fuzz/findings/TARGET and ends the
# run with an error. To keep a finding as a test, minimize it (build/sanitize/fuzz/fuzz_TARGET -minimize_crash=1
# -runs=10000 FILE) and put it into fuzz/regressions/TARGET under a descriptive name.
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
source "$root/tools/build.sh"
if [[ $# -ne 2 || ! $2 =~ ^[0-9]+$ ]]; then
    sed -n '3,3s/^# //p' "${BASH_SOURCE[0]}" >&2
    exit 2
fi

targets=("$1")
if [[ $1 == all ]]; then
    targets=()
    for folder in "$root"/fuzz/seeds/*/; do targets+=("$(basename "$folder")"); done
fi

build_quietly sanitize fuzz_all
# The fuzzer exits without removing its temporary files.
export TMPDIR=$root/build/fuzz/tmp
trap 'rm -rf -- "$TMPDIR"' EXIT
mkdir -p "$TMPDIR"
for target in "${targets[@]}"; do
    program=$root/build/sanitize/fuzz/fuzz_$target
    if [[ ! -x $program ]]; then
        echo "there is no fuzz target $target" >&2
        exit 2
    fi
    corpus=$root/build/fuzz/corpus/$target findings=$root/build/fuzz/findings/$target
    mkdir -p "$corpus" "$findings"
    options=(-max_total_time="$2" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$findings/")
    dictionary=$root/fuzz/dictionaries/$target.dict
    [[ ! -f $dictionary ]] || options+=(-dict="$dictionary")
    # Up to 16 edits of the shipped file from the start.
    # Painting many pages takes longer than the view, several times so with sanitizers.
    [[ $target != view ]] || options+=(-timeout=30)
    [[ $target != rain_file ]] || options+=(-len_control=0 -max_len=160)
    echo "-- $target"
    log=$root/build/fuzz/$target.log
    if ! LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1 nice -n 19 "$program" "${options[@]}" \
        "$corpus" "$root/fuzz/seeds/$target" "$root/fuzz/regressions/$target" >"$log" 2>&1; then
        tail -n 60 "$log"
        echo "$target: a finding; all of the output is in $log, the input in $findings" >&2
        exit 1
    fi
    grep -E '^#[0-9]+\s+DONE|number_of_executed_units|average_exec_per_sec|slowest_unit|peak_rss' "$log"
done
