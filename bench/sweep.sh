#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Measures the time and the peak memory of a sweep of 1,000,000 variants to CSV.
# Use: bench/sweep.sh [MERO_BATCH]   by default the program of the preset "bench"
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
batch=${1:-$root/build/bench/bin/mero-batch}
rows=$(mktemp)
trap 'rm -f "$rows"' EXIT

# measure NAME PROJECT VARIATIONS...: 1,000,000 variants each.
measure() {
    local name=$1 project=$2
    shift 2
    local variations=() each
    for each in "$@"; do variations+=(--vary "$each"); done
    python3 - "$name" "$rows" "$batch" sweep "$root/examples/projekty/$project" --out "$rows" "${variations[@]}" <<'PYTHON'
import os, resource, subprocess, sys, time
name, rows, *command = sys.argv[1:]
begin = time.monotonic()
subprocess.run(command, check=True, stderr=subprocess.DEVNULL)
wall = time.monotonic() - begin
used = resource.getrusage(resource.RUSAGE_CHILDREN)
lines = sum(block.count(b"\n") for block in iter(lambda f=open(rows, "rb"): f.read(1 << 20), b""))
print(f"{name:34} {lines - 1:9} rows, {os.path.getsize(rows) / 1e6:6.1f} MB: {wall:5.2f} s by the clock, "
      f"{used.ru_utime + used.ru_stime:5.2f} s of processor time ({used.ru_utime:.2f} + {used.ru_stime:.2f}), "
      f"{used.ru_maxrss / 1024:5.1f} MB of memory")
PYTHON
}

measure "tank, own rain" nadrz.json facility.safety_factor=1:1.999:0.001 facility.bottom_length_m=1:100.9:0.1
measure "trench, one station" ryha-s-drenem.json facility.trench_width_m=0.5:1.499:0.001 \
    facility.trench_height_m=0.5:1.499:0.001
measure "shaft, one station" sachta.json facility.filter_layer_m=0.1:1.099:0.001 \
    subsoil.filtration_coefficient_m_s=log:1e-6:1e-3:1000
measure "all types, stations, 1812 kf" vsechny-typy.json facility.type=all rain.station=all \
    subsoil.filtration_coefficient_m_s=log:1e-6:1e-3:1812
