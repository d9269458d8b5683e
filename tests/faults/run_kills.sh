#!/bin/sh
# SPDX-License-Identifier: MIT
# The long form of the kill tests: kills sweeps, plots, designs, reports and first starts COUNT times each.
# Use: tests/faults/run_kills.sh [COUNT [SEED]], after the preset dev or release was built.
set -eu

root=$(cd "$(dirname "$0")/../.." && pwd)
batch=$root/build/release/bin/mero-batch
[ -x "$batch" ] || batch=$root/build/dev/bin/mero-batch
MERO_ROOT=$root MERO_BATCH=$batch MERO_KILLS=${1:-500} MERO_SEED=${2:-20261120} \
    exec python3 -B "$root/tests/faults/kills_faults.py" -v
