# SPDX-License-Identifier: MIT
"""Runs mero on a virtual screen (Xvfb with a window manager), controls it by a script and takes pictures."""

import json
import os
import shutil
import subprocess
import tempfile
import time
from dataclasses import dataclass
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
CLOCK = "2026-11-20T14:05:09"
START_LIMIT_S = 20
# Time for the window manager to place a new window and for the program to paint it.
SETTLE_S = 0.35


@dataclass(frozen=True)
class Look:
    """Screen size, scale and colours of the program."""

    palette: str = "light"
    scale_percent: int = 100
    width: int = 1024
    height: int = 768
    font_dpi: int = 96

    @property
    def name(self) -> str:
        fonts = "" if self.font_dpi == 96 else f"-font{self.font_dpi}"
        return f"{self.palette}-{self.scale_percent}{fonts}-{self.width}x{self.height}"


class Screen:
    """An X server without a monitor, on a free display number."""

    def __init__(self, width: int, height: int) -> None:
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{width}x{height}x24", "-nolisten", "tcp"],
            pass_fds=(write,), stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.display = ":" + number.readline().strip()
        self.environment = {**os.environ, "DISPLAY": self.display, "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
                            # Nothing of the user's own is read or written.
                            "XDG_CONFIG_HOME": "/proc/nowhere", "XDG_DATA_HOME": "/proc/nowhere"}
        self.environment.pop("WAYLAND_DISPLAY", None)
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def __enter__(self) -> "Screen":
        # A window that opens before the window manager runs does not get the focus.
        self.answer("get_desktop")
        return self

    def __exit__(self, *_) -> None:
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def run(self, *arguments: str) -> str:
        return subprocess.run(arguments, env=self.environment, check=True, capture_output=True, text=True).stdout

    def shoot(self, file: Path, whole: bool = False) -> None:
        """A picture of the active window, or of the whole screen."""
        time.sleep(SETTLE_S)
        window = "root" if whole else self.active_window()
        file.parent.mkdir(parents=True, exist_ok=True)
        self.run("import", "-silent", "-window", window, str(file))

    def fill(self) -> None:
        """Makes the active window as large as the screen."""
        self.run("xdotool", "windowsize", "--sync", self.active_window(), "100%", "100%")

    def active_window(self) -> str:
        return self.answer("getactivewindow")

    def answer(self, question: str) -> str:
        """Waits for the window manager's answer and returns it."""
        end = time.monotonic() + START_LIMIT_S
        while time.monotonic() < end:
            done = subprocess.run(["xdotool", question], env=self.environment, capture_output=True, text=True,
                                  check=False)
            if done.returncode == 0:
                return done.stdout.strip()
            time.sleep(0.1)
        raise RuntimeError(f"the window manager does not answer: {question}")


class Program:
    """mero on a screen, in a folder of its own, controlled by script lines or by a person."""

    @classmethod
    def for_person(cls, screen: Screen, program: Path, look: Look) -> "Program":
        return cls(screen, program, look, scripted=False)

    def __init__(self, screen: Screen, program: Path, look: Look, scripted: bool = True) -> None:
        self.scripted = scripted
        self.work = tempfile.TemporaryDirectory()
        folder = Path(self.work.name) / "mero"
        folder.mkdir()
        shutil.copy(ROOT / "data" / "mero.mdb", folder)
        shutil.copytree(ROOT / "Webs", folder / "Webs")
        environment = {**screen.environment, "QT_SCALE_FACTOR": str(look.scale_percent / 100),
                       "QT_FONT_DPI": str(look.font_dpi)}
        arguments = [str(program), "--folder", str(folder), "--clock", CLOCK, "--palette", look.palette]
        if scripted:
            arguments += ["--script", "-"]
        self.process = subprocess.Popen(arguments, env=environment, stderr=subprocess.DEVNULL, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        text=True, encoding="utf-8")
        self.steps = 0

    def __enter__(self) -> "Program":
        if self.scripted:
            self.perform([])
        return self

    def __exit__(self, *_) -> None:
        self.process.stdin.close()
        if not self.scripted:
            self.process.terminate()
        try:
            self.process.wait(START_LIMIT_S)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.work.cleanup()

    def perform(self, lines: list[str]) -> list[dict]:
        """Runs the lines and returns their trace. RuntimeError if the program ended or refused a line."""
        self.steps += 1
        mark = {"echo": f"step {self.steps}"}
        self.process.stdin.write("\n".join([*lines, f'echo "step {self.steps}"']) + "\n")
        self.process.stdin.flush()
        trace = []
        for line in self.process.stdout:
            event = json.loads(line)
            if event == mark:
                return trace
            if "refused" in event:
                raise RuntimeError(f"refused: {event}")
            trace.append(event)
        raise RuntimeError(f"the program ended after {trace}")

