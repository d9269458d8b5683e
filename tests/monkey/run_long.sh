#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The long form of the monkey: 1,000,000 actions (or ACTIONS) under the sanitizers.
# Use: tests/monkey/run_long.sh [ACTIONS [FIRST_SEED]]
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")")
source "$root/tools/build.sh"
build_quietly sanitize
mkdir -p "$root/build/monkey"
cd "$root/build/monkey" # a script that reproduces a fault is written here
time LC_ALL=C.UTF-8 UBSAN_OPTIONS=print_stacktrace=1 nice -n 19 \
    "$root/build/sanitize/tests/mero-monkey" --seed "${2:-1}" --actions "${1:-1000000}"
