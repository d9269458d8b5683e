# SPDX-License-Identifier: MIT
"""Measures the time from the start of the process to the first painted window, and the resident memory then, for mero
and for a bare window with four empty tabs. Run it on a separate X display:

    xvfb-run -a -s "-screen 0 1280x1024x24" python3 bench/app/start/start_bench.py build/bench [RUNS]

A single run only shows that the measurement works: nothing is compared with the limits then.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

LIMITS = {"time": 3.0, "memory": 1.5}


def measure(command: list[str], probe: Path, folder: str) -> tuple[float, float]:
    """Measures one start. Returns milliseconds and MiB."""
    environment = {**os.environ, "LD_PRELOAD": str(probe), "QT_QPA_PLATFORM": "xcb", "XDG_DATA_HOME": folder,
                   "XDG_CONFIG_HOME": folder}
    begin = time.perf_counter()
    with subprocess.Popen(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as process:
        line = process.stdout.readline()
        elapsed = (time.perf_counter() - begin) * 1000
    if not line.startswith(b"VmRSS:"):
        sys.exit(f"{command[0]} painted nothing")
    return elapsed, int(line.split()[1]) / 1024


def main() -> int:
    build = Path(sys.argv[1]).resolve()
    runs = int(sys.argv[2]) if len(sys.argv) > 2 else 25
    probe = build / "bench" / "libpaint_probe.so"
    programs = {"bare": [str(build / "bench" / "bare_window")], "mero": [str(build / "bin" / "mero")]}
    results = {name: [] for name in programs}
    with tempfile.TemporaryDirectory() as folder:
        for command in programs.values():  # warms the file cache
            measure(command, probe, folder)
        for _ in range(runs):
            for name, command in programs.items():
                results[name].append(measure(command, probe, folder))
    medians = {name: [statistics.median(column) for column in zip(*rows)] for name, rows in results.items()}
    for name, (elapsed, memory) in medians.items():
        print(f"{name}: {elapsed:6.1f} ms, {memory:5.1f} MiB (medians of {runs})")
    ratios = dict(zip(LIMITS, (own / bare for own, bare in zip(medians["mero"], medians["bare"]))))
    for what, ratio in ratios.items():
        print(f"{what}: {ratio:.2f} times the bare window's, limit {LIMITS[what]:.1f}")
    return 1 if runs > 1 and any(ratio > LIMITS[what] for what, ratio in ratios.items()) else 0


if __name__ == "__main__":
    sys.exit(main())
