# SPDX-License-Identifier: MIT
"""Performs random actions on the real window and on the program without a window, and compares both.

Use: window_agrees.py --monkey MERO_MONKEY --window MERO --batch MERO_BATCH [--actions N] [--seed N]

One half of the actions are lives of up to 500 actions, of which many end with the program, the other half are lives
of 2000 that do not end. Both programs perform each of them in a new folder of the same name. The whole trace, the
exit status, and the names and bytes of the files must be equal. A PDF copy contains its time, so only its name is
compared. A difference is printed with the shortest script found for it, written to monkey-window-SEED.mero.
"""

import argparse
import difflib
import hashlib
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
CLOCK = "2026-11-20T14:05:09"
TIME_LIMIT_S = 600
SHORT_LIFE = 500
LONG_LIFE = 2000
MOST_TRIALS = 150
UNUSABLE = 2


def left_behind(folder: Path) -> list[str]:
    lines = []
    for path in sorted(folder.rglob("*")):
        if path.is_file():
            bytes_of_it = b"" if path.suffix == ".pdf" else path.read_bytes()
            lines.append(f"{os.fsencode(path.relative_to(folder))!r} {hashlib.sha256(bytes_of_it).hexdigest()}")
    return lines


class Fronts:
    def __init__(self, window: Path, batch: Path, scratch: Path):
        self.commands = {"without a window": [str(batch), "run"], "with its window": [str(window), "--script"]}
        self.scratch = scratch

    def run(self, front: str, script: Path) -> list[str]:
        """Trace, exit status and files, one line each."""
        folder = self.scratch / "folder"
        folder.mkdir()
        shutil.copy(ROOT / "data" / "mero.mdb", folder)
        shutil.copytree(ROOT / "Webs", folder / "Webs")
        command = [*self.commands[front], str(script), "--folder", str(folder), "--clock", CLOCK]
        try:
            done = subprocess.run(command, capture_output=True, timeout=TIME_LIMIT_S, cwd="/", check=False)
            lines = done.stdout.decode("utf-8", "backslashreplace").splitlines()
            lines.append(f"exit status {done.returncode}")
            if done.returncode not in (0, 1):
                lines.append(done.stderr.decode("utf-8", "backslashreplace"))
        except subprocess.TimeoutExpired:
            lines = [f"no end within {TIME_LIMIT_S} s"]
        lines += left_behind(folder)
        shutil.rmtree(folder)
        return lines

    def difference(self, script: Path) -> list[str]:
        one, other = (self.run(front, script) for front in self.commands)
        fault = [line for line in one if line in ("exit status 2", f"no end within {TIME_LIMIT_S} s")]
        return fault or list(difflib.unified_diff(one, other, *self.commands, lineterm="", n=2))


def kind_of(difference: list[str]) -> str:
    """The kind of a difference. A script that became unusable because lines were removed has none."""
    return "" if not difference else difference[0] if len(difference) == 1 else "the fronts differ"


def shortest(fronts: Fronts, lines: list[str], path: Path, kind: str) -> list[str]:
    """Removes smaller and smaller pieces as long as the fault is of the same kind."""
    trials = 0
    piece = len(lines) // 2
    while piece > 0 and trials < MOST_TRIALS:
        at = 0
        while at < len(lines) and trials < MOST_TRIALS:
            shorter = lines[:at] + lines[at + piece:]
            path.write_text("".join(shorter), encoding="utf-8", newline="")
            trials += 1
            if kind_of(fronts.difference(path)) == kind:
                lines = shorter
            else:
                at += piece
        piece //= 2
    path.write_text("".join(lines), encoding="utf-8", newline="")
    return lines


def live(arguments: argparse.Namespace, fronts: Fronts, seed: int, kind: str, actions: int) -> int:
    """The number of actions of that life; -1 when the fronts differ."""
    script = fronts.scratch / "life.mero"
    told = subprocess.run(
        [str(arguments.monkey), "--write", str(script), "--life", kind, "--seed", str(seed), "--actions", str(actions)],
        capture_output=True, check=True, text=True)
    difference = fronts.difference(script)
    if not difference:
        return int(told.stdout.split()[0])
    print(f"seed {seed}, {kind} life: the fronts differ")
    print("\n".join(difference[:60]))
    # Newlines must not be converted, because texts contain carriage returns.
    with open(script, encoding="utf-8", newline="\n") as file:
        lines = list(file)
    kept = Path(f"monkey-window-{seed}.mero").resolve()
    lines = shortest(fronts, lines, kept, kind_of(difference))
    print(f"a short script that shows it, left in {kept}:\n{''.join(lines[:60])}")
    print("\n".join(fronts.difference(kept)[:60]))
    return -1


def main() -> int:
    parser = argparse.ArgumentParser()
    for program in ("--monkey", "--window", "--batch"):
        parser.add_argument(program, type=Path, required=True)
    parser.add_argument("--actions", type=int, default=900)
    parser.add_argument("--seed", type=int, default=1)
    arguments = parser.parse_args()
    start = time.monotonic()
    done = {"short": 0, "endless": 0}
    lives = 0
    with tempfile.TemporaryDirectory(prefix="mero-monkey-") as scratch:
        fronts = Fronts(arguments.window.resolve(), arguments.batch.resolve(), Path(scratch).resolve())
        for kind, of_a_life in (("endless", LONG_LIFE), ("short", SHORT_LIFE)):
            wanted = arguments.actions // 2 if kind == "endless" else arguments.actions - done["endless"]
            while done[kind] < wanted:
                actions = live(arguments, fronts, arguments.seed + lives, kind, min(of_a_life, wanted - done[kind]))
                if actions < 0:
                    return 1
                done[kind] += actions
                lives += 1
    print(f"{sum(done.values())} actions in {lives} lives, {time.monotonic() - start:.0f} s: the fronts agree")
    return 0


if __name__ == "__main__":
    sys.exit(main())
