#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Random lives on the real window, under a virtual display: saved, opened in a fresh window, compared.
# Use: tests/monkey/kept_window.sh [LIVES [FIRST_SEED]]      200 lives by default
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")")
source "$root/tools/build.sh"
build_quietly dev
bin=$root/build/dev
LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb nice -n 10 xvfb-run -a -s "-screen 0 1280x1024x24" \
    python3 -B "$root/tests/monkey/kept_window.py" --lives "$bin/tests/mero-kept-lives" --window "$bin/bin/mero" \
    --count "${1:-200}" --seed "${2:-1}"
