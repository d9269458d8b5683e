#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The monkey on the real window, under a virtual display, and the same actions without a window.
# Use: tests/monkey/run_window.sh [ACTIONS [FIRST_SEED]]      20,000 actions by default
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")")
source "$root/tools/build.sh"
build_quietly dev
mkdir -p "$root/build/monkey"
cd "$root/build/monkey" # a script that reproduces a difference is written here
bin=$root/build/dev
LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb nice -n 10 xvfb-run -a -s "-screen 0 1280x1024x24" \
    python3 -B "$root/tests/monkey/window_agrees.py" --monkey "$bin/tests/mero-monkey" \
    --window "$bin/bin/mero" --batch "$bin/bin/mero-batch" --actions "${1:-20000}" --seed "${2:-1}"
