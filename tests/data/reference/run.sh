#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares our reader of databases with two others, Jackcess and mdbtools, on random databases that Jackcess writes.
# Use: tests/data/reference/run.sh [COUNT [SEED]]   (after `./check maven` and a build of the preset dev)
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")")")
count=${1:-2000}
seed=${2:-20261121}
target=$root/tools/rain-database/target
dump=$root/build/dev/tests/mero-jet-dump
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# In parts, because the files of one part take up to a megabyte each.
for ((first = 0; first < count; first += 100)); do
    part=$((count - first < 100 ? count - first : 100))
    rm -f "$folder"/*
    java -cp "$target/rain-database.jar:$target/test-classes" mero.rain.ReferenceDatabases \
        "$folder" "$part" "$((seed + first))"
    for ((number = 0; number < part; ++number)); do
        "$dump" "$folder/$number.mdb" >"$folder/$number.ours"
        if ! diff "$folder/$number.txt" "$folder/$number.ours" >"$folder/difference"; then
            cp "$folder/$number.mdb" "$root/build/reference.mdb"
            head -n 20 "$folder/difference"
            echo "database $number of seed $((seed + first)) is read otherwise; left in build/reference.mdb" >&2
            exit 1
        fi
    done
    python3 -B "$root/tests/data/reference/compare_exported.py" "$folder" "$part"
done
"$dump" "$root/data/mero.mdb" | grep -c '^table List' | grep -qx 92
echo "$count databases: Jackcess, mdbtools and our reader agree"
