#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Reads every damaged copy of the rain database (more than 5,000) and prints the results.
# Use: tests/data/damage/run_long.sh [SEED]
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")")")
source "$root/tools/build.sh"
build_quietly dev
mkdir -p "$root/build/damage"
cd "$root/build/damage" # files that break a rule are kept here
time nice -n 19 "$root/build/dev/tests/mero-damage" "${1:-20261120}"
