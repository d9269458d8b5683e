#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Compares extremes and fits of measured rain with two published evaluations from the Python package index.
# Use: tests/rain/reference/run.sh [SERIES]   (after a build of the preset dev; needs the network the first time)
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")")")
venv=$root/build/rain-reference
if [[ ! -x $venv/bin/python ]]; then
    python3 -m venv "$venv"
    "$venv/bin/pip" install --quiet idf-analysis==0.4.1 lmoments3==1.0.8
fi
"$venv/bin/python" -B "$root/tests/rain/reference/compare.py" "$root/build/dev/bin/mero-batch" "${1:-5}"
