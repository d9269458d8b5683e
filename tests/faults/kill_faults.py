# SPDX-License-Identifier: MIT
"""The window is killed at random moments while somebody types and saves: the project file is always whole, the old or
the new one, and the recovery copy misses no more than the last seconds. Use: MERO_WINDOW=... kill_faults.py [KILLS]"""

import json
import os
import random
import subprocess
import sys
import tempfile
import time
from pathlib import Path

WINDOW = os.environ["MERO_WINDOW"]
ROOT = Path(os.environ["MERO_ROOT"])
# A copy is begun at most 3 s after a change; the rest is for a busy machine.
LONGEST_LOSS_S = 10
TYPING_S = 5.0


class Display:
    """A screen of its own, with the keys of a person."""

    def __init__(self):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                                       pass_fds=(write,), stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.name = ":" + number.readline().strip()

    def close(self):
        self.server.terminate()
        self.server.wait()


DIGITS = 4


def texts_of(document: bytes) -> int:
    """The number that was typed as the project's name."""
    return int(json.loads(document)["project"]["name"])


def number_in(copy: Path, typed: list[tuple[float, int]]) -> int:
    """The number that a recovery copy holds. It may be taken in the middle of a number: then the one before it."""
    name = json.loads(copy.read_bytes()).get("project", {}).get("name", "")
    if len(name) == DIGITS:
        return int(name)
    written = copy.stat().st_mtime
    return max((value for moment, value in typed if moment <= written), default=0)


def one_life(display: Display, home: Path, rng: random.Random, saves: bool) -> str:
    """Types rising numbers, saves now and then, is killed. One that does not save lives longer than work may be without
    a copy. Returns what is wrong, empty for nothing."""
    project = home / "p.mero.json"
    variables = dict(os.environ, DISPLAY=display.name, QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", HOME=str(home),
                     XDG_CONFIG_HOME=str(home / "config"), XDG_DATA_HOME=str(home / "data"))
    program = subprocess.Popen([WINDOW, "--folder", str(ROOT / "data"), str(project)], env=variables,
                               stderr=subprocess.DEVNULL)
    keys = ["xdotool"]

    def press(*arguments: str):
        subprocess.run([*keys, *arguments], env=variables, check=False, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)

    # Without a window manager the keys go where the focus was put.
    press("search", "--sync", "--onlyvisible", "--name", "p.mero.json", "windowfocus", "--sync")
    press("key", "ctrl+a", "type", "1000x")
    try:
        subprocess.run([*keys, "search", "--sync", "--name", r"p.mero.json \*"], env=variables, check=True,
                       stdout=subprocess.DEVNULL, timeout=30)
    except (subprocess.TimeoutExpired, subprocess.CalledProcessError):
        program.kill()
        program.wait()
        return "no key comes to the window"
    end = time.monotonic() + rng.uniform(0.0, TYPING_S) + (0.0 if saves else LONGEST_LOSS_S)
    typed: list[tuple[float, int]] = []
    saved = {texts_of(project.read_bytes())}
    number = max(saved)
    while time.monotonic() < end:
        number += 1
        press("key", "ctrl+a", "type", str(number))
        typed.append((time.time(), number))
        if saves and rng.random() < 0.3:
            saved.add(number)
            press("key", "ctrl+s")
    # Also in the middle of a save.
    if saves and rng.random() < 0.7:
        number += 1
        press("key", "ctrl+a", "type", str(number))
        saved.add(number)
        saver = subprocess.Popen([*keys, "key", "ctrl+s"], env=variables)
        time.sleep(rng.uniform(0.0, 0.06))
        program.kill()
        saver.wait()
    program.kill()
    killed = time.time()
    program.wait()

    try:
        in_file = texts_of(project.read_bytes())
    except (ValueError, KeyError, OSError) as error:
        return f"the project file is not whole: {error}"
    if in_file not in saved:
        return f"the project file has {in_file}, which was never saved"
    known = [in_file]
    for copy in (home / "data" / "mero" / "recovery").glob("*.json"):
        content = copy.read_bytes()
        if content:
            try:
                known.append(number_in(copy, typed))
            except (ValueError, KeyError) as error:
                return f"the recovery copy is not whole: {error}"
    long_ago = [value for moment, value in typed if killed - moment > LONGEST_LOSS_S]
    if long_ago and max(known) < max(long_ago):
        return f"{max(long_ago)} was typed {LONGEST_LOSS_S} s before the end and is lost; the last that is known is {max(known)}"
    return ""


def main() -> int:
    kills = int(sys.argv[1]) if len(sys.argv) > 1 else 200
    rng = random.Random(1)
    display = Display()
    failures = 0
    try:
        for kill in range(kills):
            with tempfile.TemporaryDirectory(prefix="mero-kill-") as folder:
                home = Path(folder)
                (home / "p.mero.json").write_text('{"project": {"name": "1000"}}')
                wrong = one_life(display, home, rng, saves=kill % 10 != 0)
            if wrong:
                print(f"kill {kill}: {wrong}")
                failures += 1
    finally:
        display.close()
    print(f"{kills} kills, {failures} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
