# SPDX-License-Identifier: MIT
"""Random lives on the real window: saved, opened in a fresh window, which must go on as the one that was saved.

Use: kept_window.py --lives MERO_KEPT_LIVES --window MERO [--count N] [--seed N]

Lives are worked in chunks, each by one run that goes on and one that opens; `new` lies between the lives of a chunk.
"""

import argparse
import difflib
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
CLOCK = "2026-11-20T14:05:09"
CHUNK = 10
TIME_LIMIT_S = 900
MARK = "from here on the same"
LEAVING = ["answer-save", "close frmIntDialog", "close frmDialog", "close frmCoefDialog"]


def compared(trace: list[str]) -> list[str]:
    """The lines after each mark, and projects that were refused or not taken whole."""
    lines = []
    counts = False
    for line in trace:
        if line.startswith('{"echo": ') and MARK in line:
            counts = True
        elif line.startswith('{"project": '):
            counts = False
            if '"refused"' in line or '"remarks": ["' in line:
                lines.append(line)
        if counts:
            lines.append(line)
    return lines


def run(window: Path, folder: Path, script: list[str], projects: Path) -> list[str]:
    """What is compared of a run in a new folder; its projects are kept in `projects`."""
    folder.mkdir()
    shutil.copy(ROOT / "data" / "mero.mdb", folder)
    shutil.copytree(ROOT / "Webs", folder / "Webs")
    for project in projects.glob("*.json"):
        shutil.copy(project, folder)
    path = folder.parent / "script.mero"
    path.write_text("\n".join(script) + "\n", encoding="utf-8", newline="")
    done = subprocess.run([str(window), "--script", str(path), "--folder", str(folder), "--clock", CLOCK],
                          capture_output=True, timeout=TIME_LIMIT_S, cwd="/", check=False)
    for project in folder.glob("projekt-*.json"):
        shutil.copy(project, projects)
    shutil.rmtree(folder)
    lines = compared(done.stdout.decode("utf-8", "backslashreplace").split("\n")[:-1])
    # What the window system says on standard error is not compared.
    reason = done.stderr.decode("utf-8", "backslashreplace")[-300:] if done.returncode else ""
    return [*lines, f"exit status {done.returncode}{reason}"]


def lines_of(path: Path) -> list[str]:
    # Texts contain carriage returns, which must stay.
    with open(path, encoding="utf-8", newline="\n") as file:
        return [line.removesuffix("\n") for line in file]


def scripts(seeds: list[int], lives: Path) -> tuple[list[str], list[str]]:
    """The script that goes on, and the one that opens."""
    going_on, opening = [], []
    for seed in seeds:
        before, after = lines_of(lives / f"{seed}.before"), lines_of(lives / f"{seed}.after")
        same = ["tab 1", f'echo "{MARK}"', *after]
        going_on += ["new", "answer-save", "tab 0", *before, f"save projekt-{seed}.json", *LEAVING, *same]
        opening += ["new", "answer-save", f"open projekt-{seed}.json", *same]
    return going_on, opening


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("--lives", type=Path, required=True)
    parser.add_argument("--window", type=Path, required=True)
    parser.add_argument("--count", type=int, default=200)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    start = time.monotonic()
    with tempfile.TemporaryDirectory(prefix="mero-kept-") as name:
        scratch = Path(name).resolve()
        lives, projects = scratch / "lives", scratch / "projects"
        lives.mkdir()
        projects.mkdir()
        subprocess.run([str(arguments.lives.resolve()), "--lives", str(arguments.count), "--seed",
                        str(arguments.seed), "--write", str(lives)], check=True, capture_output=True)
        seeds = list(range(arguments.seed, arguments.seed + arguments.count))
        for first in range(0, len(seeds), CHUNK):
            going_on, opening = scripts(seeds[first:first + CHUNK], lives)
            one = run(arguments.window.resolve(), scratch / "folder", going_on, projects)
            other = run(arguments.window.resolve(), scratch / "folder", opening, projects)
            if one != other or one[-1] != "exit status 0":
                print(f"lives from seed {seeds[first]}: the window that was opened differs")
                print("\n".join(list(difflib.unified_diff(one, other, "going on", "opened", lineterm="", n=2))[:60]))
                print(one[-1])
                return 1
    print(f"{arguments.count} lives on the real window, {time.monotonic() - start:.0f} s: what was opened went on "
          "as what was saved")
    return 0


if __name__ == "__main__":
    sys.exit(main())
