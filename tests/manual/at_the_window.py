#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Performs the manual's examples in the real window with mouse and keyboard, finding controls by their captions.

Use: tests/manual/at_the_window.py --program build/release/bin/mero [--only NAME] [--shots FOLDER]
Each example of docs/prirucka.md runs on a separate screen and bus. The controls are found by captions, roles and
positions from the accessibility bus. It takes some four minutes, so it is run by hand.
Needs what `tools/packages.sh check screenshots` installs, and the system's python3, which has pyatspi.
"""

import argparse
import contextlib
import os
import re
import signal
import subprocess
import sys
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path += [str(HERE), str(HERE.parents[1] / "tools" / "screenshots")]
from captions import RAINS, SOILS, SURFACES, TAB  # noqa: E402
from manual_text import MANUAL, Action, Example, Message, Result, examples  # noqa: E402
from screen import START_LIMIT_S, Look, Program, Screen  # noqa: E402

ACCESSIBILITY_BUS = "/usr/libexec/at-spi-bus-launcher"
PATIENCE_S = 6.0
EXAMPLE_LIMIT_S = 180
UNITS = r"m|m²|m³|mm|m/s|m³/s|h|min|l/s|l/\(s\.ha\)|l/s\.ha|cm²/m|1 : n"
AFTER_CLICK_S = 0.15


class NotFound(Exception):
    """A control named in the manual is not on the screen."""


def bare(name: str) -> str:
    """A caption without its colon and its unit: "Výška rýhy [m]", "Počet šachet:"."""
    name = re.sub(r":$", "", name.replace("&", "").strip())
    return re.sub(rf"(\s*\[[^\]]*\]|, ({UNITS}))$", "", name).strip()


class Eyes:
    """The controls that are on the screen now, by role and caption."""

    def __init__(self, pyatspi) -> None:
        self.pyatspi = pyatspi

    def walk(self, node, depth: int = 0):
        try:
            state = node.getState()
            if depth > 1 and not state.contains(self.pyatspi.STATE_SHOWING):
                return
            yield node
            # The cells of long tables are looked up separately.
            if node.getRoleName() in ("table", "list") and node.childCount > 400:
                return
            for i in range(node.childCount):
                if (child := node[i]) is not None:
                    yield from self.walk(child, depth + 1)
        except Exception:  # a control that disappeared meanwhile
            return

    def windows(self) -> list:
        """The program's windows, the topmost last."""
        for application in self.pyatspi.Registry.getDesktop(0):
            if application is not None and application.name == "mero":
                return [window for window in application if window is not None]
        return []

    def find(self, wanted, what: str):
        end = time.monotonic() + PATIENCE_S
        while time.monotonic() < end:
            for window in reversed(self.windows()):
                for node in self.walk(window, 1):
                    if wanted(node):
                        return node
            time.sleep(0.1)
        raise NotFound(what)

    def control(self, caption: str, *roles: str):
        """The control with the caption, or to the right of it."""
        end = time.monotonic() + PATIENCE_S
        while time.monotonic() < end:
            for window in reversed(self.windows()):
                nodes = list(self.walk(window, 1))
                fitting = [node for node in nodes if node.getRoleName() in roles]
                if named := [node for node in fitting if bare(node.name) == caption]:
                    return named[0]
                labels = [node for node in nodes if node.getRoleName() == "label" and bare(node.name) == caption]
                if beside := [node for label in labels for node in fitting if self.is_right_of(node, label)]:
                    return min(beside, key=lambda node: self.place(node)[0])
                if roles == ("combo box",) and len(fitting) == 1:  # the only one that fits
                    return fitting[0]
            time.sleep(0.1)
        raise NotFound(f"{caption} ({', '.join(roles)})")

    def is_right_of(self, node, label) -> bool:
        (x, y), (label_x, label_y) = self.place(node), self.place(label)
        return x > label_x and abs(y - label_y) < 12

    def box(self):
        """The message box that is open, or None."""
        for window in reversed(self.windows()):
            if window.getRoleName() in ("alert", "dialog") and any(
                    node.getRoleName() == "push button" and node.name == "OK" for node in self.walk(window, 1)):
                labels = [node.name for node in self.walk(window, 1) if node.getRoleName() == "label" and node.name]
                if labels:
                    return labels[-1]
        return None

    @staticmethod
    def text(node) -> str:
        field = node.queryText()
        return field.getText(0, field.characterCount)

    def place(self, node) -> tuple[int, int]:
        box = node.queryComponent().getExtents(self.pyatspi.DESKTOP_COORDS)
        return box.x + box.width // 2, box.y + box.height // 2


class Hands:
    """Mouse and keyboard."""

    def __init__(self, screen: Screen) -> None:
        self.screen = screen

    def click(self, place: tuple[int, int]) -> None:
        self.screen.run("xdotool", "mousemove", str(place[0]), str(place[1]), "click", "1")
        time.sleep(AFTER_CLICK_S)

    def type(self, text: str) -> None:
        self.screen.run("xdotool", "type", "--delay", "12", "--", text)
        time.sleep(AFTER_CLICK_S)

    def key(self, *names: str) -> None:
        self.screen.run("xdotool", "key", "--delay", "12", *names)
        time.sleep(AFTER_CLICK_S)


class Reader:
    """Performs the steps of one example and records differences."""

    def __init__(self, eyes: Eyes, hands: Hands) -> None:
        self.eyes, self.hands = eyes, hands
        self.wrong: list[str] = []
        self.line = 0

    def wait_for_window(self) -> None:
        end = time.monotonic() + START_LIMIT_S
        while not self.eyes.windows() and time.monotonic() < end:
            time.sleep(0.2)

    def do(self, step: Action | Result | Message) -> None:
        self.line = step.line
        if isinstance(step, Result):
            shown = self.eyes.text(self.eyes.control(step.caption, "text"))
            if shown != step.text:
                self.wrong.append(f"{step.line}: {step.caption}: {shown} instead of {step.text}")
        elif isinstance(step, Message):
            self.read_box(step)
        elif step.value is None:
            self.press(step.caption)
        elif step.caption in ("Stanice", "Periodicita", "Šachta z katalogu", "Typ vsakování"):
            self.pick(step)
        else:
            self.enter(step)

    def enter(self, step: Action) -> None:
        self.hands.click(self.eyes.place(self.eyes.control(step.caption, "text")))
        self.hands.key("ctrl+a")
        self.hands.type(step.value)
        self.hands.key("Tab")

    def pick(self, step: Action) -> None:
        box = self.eyes.control(step.caption, "combo box")
        self.hands.click(self.eyes.place(box))
        self.hands.type(step.value)
        self.hands.key("Return")
        time.sleep(AFTER_CLICK_S)

    def press(self, caption: str) -> None:
        eyes = self.eyes
        if caption.startswith(TAB):
            node = eyes.control(caption.removeprefix(TAB), "page tab")
        elif caption.startswith("Zadat u pole "):
            field = caption.removeprefix("Zadat u pole ")
            node = eyes.find(lambda n: n.getRoleName() == "push button" and n.name.startswith("Zadat") and
                             field in n.name, caption)
        elif caption.startswith((RAINS, SURFACES, SOILS)):
            node = self.tick(caption)
        elif caption == "Editovat":
            node = eyes.find(lambda n: n.getRoleName() == "push button" and n.name.startswith("Editovat"), caption)
        else:
            node = eyes.control(caption, "push button", "radio button", "check box")
        self.hands.click(eyes.place(node))

    def tick(self, caption: str):
        """The cell of the column "Výběr" in the row of a text."""
        prefix = next(prefix for prefix in (RAINS, SURFACES, SOILS) if caption.startswith(prefix))
        wanted = caption.removeprefix(prefix).removesuffix(" min")
        column = {RAINS: 0, SURFACES: 1, SOILS: 0}[prefix]
        rows = {RAINS: 9, SURFACES: 19, SOILS: 8}[prefix]
        end = time.monotonic() + PATIENCE_S
        while time.monotonic() < end:
            grid = self.eyes.find(lambda n: n.getRoleName() == "table" and n.queryTable().nRows == rows, caption)
            table = grid.queryTable()
            for row in range(rows):
                if (cell := table.getAccessibleAt(row, column)) is not None and cell.name == wanted:
                    return self.reach(grid, table, row, table.nColumns - 1)
            time.sleep(0.1)
        raise NotFound(caption)

    def reach(self, grid, table, row: int, column: int):
        """Scrolls until the cell can be clicked."""
        for _ in range(20):
            cell = table.getAccessibleAt(row, column)
            frame = grid.queryComponent().getExtents(self.eyes.pyatspi.DESKTOP_COORDS)
            box = cell.queryComponent().getExtents(self.eyes.pyatspi.DESKTOP_COORDS)
            if box.height > 0 and frame.y + box.height < box.y and box.y + box.height < frame.y + frame.height:
                return cell
            middle = (frame.x + frame.width // 2, frame.y + frame.height // 2)
            self.hands.screen.run("xdotool", "mousemove", *map(str, middle), "click",
                                  "5" if box.y + box.height >= frame.y + frame.height else "4")
            time.sleep(AFTER_CLICK_S)
        return table.getAccessibleAt(row, column)

    def read_box(self, step: Message) -> None:
        end = time.monotonic() + PATIENCE_S
        while (text := self.eyes.box()) is None and time.monotonic() < end:
            time.sleep(0.1)
        if text != step.text:
            self.wrong.append(f"{step.line}: the box says {text!r}, the manual {step.text!r}")
        if text is not None:
            self.hands.key("Return")


def perform(example: Example, program: Path, pyatspi, shots: Path | None) -> list[str]:
    with Screen(1280, 1024) as screen:
        environment = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        screen.environment.update(environment)
        with Program.for_person(screen, program, Look()):
            reader = Reader(Eyes(pyatspi), Hands(screen))
            try:
                reader.wait_for_window()
                for step in example.steps:
                    reader.do(step)
                if reader.eyes.box() is not None:
                    reader.wrong.append(f"{example.line}: a box that the manual does not tell: {reader.eyes.box()}")
            except NotFound as missing:
                reader.wrong.append(f"{reader.line}: not on the screen: {missing}")
            if shots:
                screen.shoot(shots / f"{example.name}.png", whole=True)
            return reader.wrong


def perform_alone(name: str, program: Path, shots: Path | None) -> int:
    """Performs one example on this process's bus."""
    launcher = subprocess.Popen([ACCESSIBILITY_BUS, "--launch-immediately"], stderr=subprocess.DEVNULL)
    try:
        time.sleep(1)
        import pyatspi  # connects to the bus when imported

        example = next(each for each in examples(MANUAL.read_text(encoding="utf-8")) if each.name == name)
        begin = time.monotonic()
        wrong = perform(example, program, pyatspi, shots)
        results = sum(isinstance(step, Result) for step in example.steps)
        print(f"{name}: {results} results, {time.monotonic() - begin:.0f} s, {'DIFFERS' if wrong else 'as printed'}")
        for line in wrong:
            print("   ", line)
        return len(wrong)
    finally:
        launcher.terminate()
        launcher.wait()


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", type=Path, required=True)
    parser.add_argument("--only", default="", help="only examples whose name holds this word")
    parser.add_argument("--shots", type=Path, help="where the last screen of each example is left")
    parser.add_argument("--alone", help=argparse.SUPPRESS)
    options = parser.parse_args()
    if options.alone:
        return perform_alone(options.alone, options.program.resolve(), options.shots) > 0
    failures = 0
    for example in examples(MANUAL.read_text(encoding="utf-8")):
        if options.only in example.name:
            command = ["dbus-run-session", "--", sys.executable, "-B", __file__, *sys.argv[1:], "--alone", example.name]
            failures += not succeeds(command)
    return failures > 0


def succeeds(command: list[str]) -> bool:
    """Runs one example; if it hangs, ends it with all processes it started."""
    run = subprocess.Popen(command, stderr=subprocess.DEVNULL, start_new_session=True)
    try:
        return run.wait(EXAMPLE_LIMIT_S) == 0
    except subprocess.TimeoutExpired:
        print(f"{command[-1]}: not done after {EXAMPLE_LIMIT_S} s", flush=True)
        return False
    finally:
        with contextlib.suppress(ProcessLookupError):
            os.killpg(run.pid, signal.SIGKILL)
        run.wait()


if __name__ == "__main__":
    sys.exit(main())
