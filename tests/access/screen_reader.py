# SPDX-License-Identifier: MIT
"""The window as a screen reader sees it: over AT-SPI, on a separate bus and screen.

Importing it ends the program with a clear message if the tools are missing."""

import json
import os
import shutil
import subprocess
import sys
import time
import warnings
from pathlib import Path

MISSING = """access test: {} missing. It needs the accessibility bus and a screen of its own:
    apt-get install at-spi2-core gir1.2-atspi-2.0 python3-gi dbus-daemon xvfb xdotool"""
PRIVATE_BUS = "MERO_ACCESS_TEST_BUS"
PATIENCE_S = 20

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib
except (ImportError, ValueError):
    sys.exit(MISSING.format("python3-gi with the typelib of AT-SPI is"))
warnings.simplefilter("ignore", DeprecationWarning)

# Roles of controls that can be operated; labels, panels and cells are checked separately.
WORKED = {"push button", "radio button", "check box", "combo box", "text", "link", "table", "page tab", "spin button"}

failures: list[str] = []


def check(holds: bool, text: str) -> None:
    if not holds:
        failures.append(text)
        print("FAILED:", text, flush=True)


def on_a_bus_of_its_own() -> None:
    """Restarts this test on a private bus, so that no screen reader and no other test sees this program."""
    for tool in ("dbus-run-session", "Xvfb", "xdotool"):
        if shutil.which(tool) is None:
            sys.exit(MISSING.format(f"{tool} is"))
    if PRIVATE_BUS not in os.environ:
        os.environ[PRIVATE_BUS] = "1"
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])
    os.environ.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")


class Window:
    """The running program, driven by a script and observed over the accessibility bus."""

    def __init__(self, program: Path, *options: str):
        self.process = subprocess.Popen(
            [program, "--clock", "2026-11-20T14:05:09", *options],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)  # fmt: skip
        self.application = self.wait_for(self.find_application, "the program on the accessibility bus")

    @staticmethod
    def wait_for(look, what: str):
        end = time.monotonic() + PATIENCE_S
        while time.monotonic() < end:
            found = look()
            if found:
                return found
            time.sleep(0.05)
        sys.exit(f"access test: no {what} within {PATIENCE_S} s")

    def find_application(self):
        desktop = Atspi.get_desktop(0)
        return next((each for each in children(desktop) if each.get_process_id() == self.process.pid), None)

    def say(self, lines: str) -> list[dict]:
        """Performs lines of a script and returns what they print."""
        self.process.stdin.write(f'{lines}\necho "said"\n')
        self.process.stdin.flush()
        printed = []
        for line in self.process.stdout:
            printed.append(json.loads(line))
            if printed[-1] == {"echo": "said"}:
                return printed[:-1]
        sys.exit("access test: the program ended")

    def get(self, control: str) -> dict:
        return self.say(f"get {control}")[-1]

    def window(self, title: str):
        """The active window whose title begins with the text."""
        fronts = [each for each in children(self.application) if has(each, "SHOWING")]
        return next((each for each in reversed(fronts) if each.get_name().startswith(title)), None)

    def end(self) -> None:
        self.process.stdin.close()
        check(self.process.wait() == 0, "the program ends in order")


def children(accessible):
    found = (accessible.get_child_at_index(i) for i in range(accessible.get_child_count()))
    return [each for each in found if each is not None]


def has(accessible, state: str) -> bool:
    return accessible.get_state_set().contains(getattr(Atspi.StateType, state))


def walk(accessible):
    """Everything visible below, without the parts of lists and tables."""
    if not has(accessible, "SHOWING"):
        return
    yield accessible
    if accessible.get_role_name() not in ("combo box", "table", "text"):
        for child in children(accessible):
            yield from walk(child)


def worked_controls(window) -> list:
    return [each for each in walk(window) if is_worked(each)]


def is_worked(accessible) -> bool:
    # A page is a text that takes the focus, to read and scroll it.
    role = accessible.get_role_name()
    return role in WORKED or (role == "label" and has(accessible, "FOCUSABLE"))


def spoken_name(accessible) -> str:
    """The name that a screen reader says: of a list its label, otherwise the control's own name."""
    if accessible.get_role_name() == "combo box":
        labels = [relation.get_target(0).get_name() for relation in accessible.get_relation_set()
                  if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]  # fmt: skip
        return labels[0] if labels else ""
    return accessible.get_name()


def press(key: str, times: int = 1) -> None:
    if times > 0:
        subprocess.run(["xdotool", "key", "--delay", "6", *[key] * times], check=True)


class FocusWatch:
    """Records the controls that are reported to get the focus."""

    PATIENCE_S = 3

    def __init__(self):
        self.stations: list[str] = []
        self.listener = Atspi.EventListener.new(self.note)
        self.listener.register("object:state-changed:focused")

    def note(self, event) -> None:
        try:
            if event.detail1:
                self.stations.append(group_of(event.source))
        except GLib.Error:
            pass  # it no longer exists

    def press(self, key: str, times: int, wanted: set[str]) -> list[str]:
        """Presses a key several times, until all wanted controls had the focus; returns those that got it."""
        self.stations = []
        press(key, times)
        end = time.monotonic() + self.PATIENCE_S
        while not wanted <= set(self.stations) and time.monotonic() < end:
            count = len(self.stations)
            self.listen()
            if len(self.stations) > count:
                end = time.monotonic() + self.PATIENCE_S
            time.sleep(0.01)
        return self.stations

    @staticmethod
    def listen() -> None:
        """Processes the events received so far."""
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass

    def step(self, key: str) -> None:
        """Presses a key that moves the focus and waits until it has moved."""
        self.listen()
        count = len(self.stations)
        press(key)
        end = time.monotonic() + 1
        while len(self.stations) == count and time.monotonic() < end:
            self.listen()
            time.sleep(0.003)


def group_of(accessible) -> str:
    """The Tab key reaches one option of a group, and arrow keys the others; the same holds for tabs."""
    if accessible.get_role_name() in ("page tab", "page tab list"):
        return "tabs"
    if accessible.get_role_name() == "table cell":
        return f"table {accessible.get_parent().get_name()}"
    if accessible.get_role_name() == "radio button":
        return f"options {accessible.get_parent().get_name()}"
    return f"{accessible.get_role_name()} {spoken_name(accessible)}"


def text_of(accessible) -> str:
    return Atspi.Text.get_text(accessible, 0, Atspi.Text.get_character_count(accessible))


def by_name(window, role: str, name: str):
    found = [each for each in worked_controls(window)
             if each.get_role_name() == role and each.get_name() == name]  # fmt: skip
    if len(found) != 1:
        sys.exit(f"access test: {len(found)} controls are {role} {name!r}")
    return found[0]


def start_screen() -> subprocess.Popen:
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)  # fmt: skip
    os.environ["DISPLAY"] = ":" + server.stdout.readline().decode().strip()
    return server
