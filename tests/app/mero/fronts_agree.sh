#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares the window and the program without a window, script by script: same trace, same exit status.
# Use: fronts_agree.sh MERO MERO_BATCH PROJECT_ROOT
set -euo pipefail

mero=$1 batch=$2 root=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0

for script in "$root"/examples/*.mero "$root"/tests/app/mero/scripts/*.mero; do
    for front in batch window; do
        # Each run has a new folder of the same name, so that paths in the trace are equal.
        mkdir "$work/folder"
        cp "$root/data/mero.mdb" "$work/folder"
        cp -r "$root/Webs" "$work/folder"
        status=0
        if [[ $front == batch ]]; then
            "$batch" run --folder "$work/folder" --clock 2026-11-20T14:05:09 "$script" \
                >"$work/$front.trace" 2>"$work/$front.err" || status=$?
        else
            timeout 100 "$mero" --folder "$work/folder" --clock 2026-11-20T14:05:09 --script "$script" \
                >"$work/$front.trace" 2>"$work/$front.err" || status=$?
        fi
        echo "exit status $status" >>"$work/$front.trace"
        (cd "$work/folder" && find . -type f | sort && find . -name 'Mero_*' -exec sha256sum {} +) \
            >>"$work/$front.trace"
        rm -r "$work/folder"
    done
    if ! diff -u "$work/batch.trace" "$work/window.trace"; then
        echo "the fronts differ: $script" >&2
        failures=$((failures + 1))
    fi
done
exit $((failures > 0))
