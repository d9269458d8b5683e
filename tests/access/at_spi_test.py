#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Walks all controls of the real window as a screen reader does, over AT-SPI.

In every tab, panel and dialog each control that can be worked has a role and a name of its own, the Tab key reaches
each that is enabled, values can be read, and a button that is pressed over AT-SPI leaves its result in a field.
Use: at_spi_test.py --program MERO
"""

import argparse
import json
import os
import shutil
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

MISSING = """at_spi_test: {} missing. This test needs the accessibility bus and a screen of its own:
    apt-get install at-spi2-core gir1.2-atspi-2.0 python3-gi dbus-daemon xvfb xdotool"""
PRIVATE_BUS = "MERO_AT_SPI_TEST_BUS"
PATIENCE_S = 10

try:
    import gi

    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
except (ImportError, ValueError):
    sys.exit(MISSING.format("python3-gi with the typelib of AT-SPI is"))

# What can be worked, by its role; labels, panels and cells are checked in their own way.
WORKED = {
    "push button", "radio button", "check box", "combo box", "text", "link", "table", "page tab", "spin button",
    "document text", "document frame", "document web",
}  # fmt: skip

SITE = """
set txtProjName "Zkouška"
click cmdEdit(0)
select frmIntDialog.cboSelStanice "Brno"
select frmIntDialog.cboSelPeriod "0.2"
cell frmIntDialog.fgIntDeste 3 2
click frmIntDialog.cmdOK
click cmdEdit(1)
cell frmDialog.fgSoucPovrchOdtok 8 3
type frmDialog.txtPlocha "800"
key frmDialog.txtPlocha Enter
click frmDialog.OKButton
set txtSoucFiltrace "1e-4"
set txtHPV "4"
"""
# The states of the window: what leads there, its window, how many controls it has at least.
STATES = [
    ("inputs", "", "MERO", 18),
    ("rain", "click cmdEdit(0)", "Intenzity", 5),
    ("rain help", "click frmIntDialog.cmdEdit", "Intenzity", 7),
    ("back from rain", "close frmIntDialog", "MERO", 18),
    ("areas", SITE + "click cmdEdit(1)", "Střední", 8),
    ("back from areas", "close frmDialog", "MERO", 18),
    ("soil", "click cmdEdit(2)", "", 2),
    ("design", "close frmCoefDialog\ntab 1\nclick optSelType(0)", "MERO", 6),
    ("surface", "select cboSelType 1", "MERO", 8),
    ("swale", "select cboSelType 2", "MERO", 12),
    ("swale and trench", "select cboSelType 3\nclick chkSelPretok(3)", "MERO", 22),
    ("trench", "select cboSelType 4\nclick chkSelPretok(4)", "MERO", 20),
    ("shaft", "select cboSelType 5\nclick optSelTypPudy5(1)", "MERO", 24),
    ("tank", "click optSelType(1)", "MERO", 16),
    ("technology", "tab 2", "MERO", 5),
    ("report", "tab 3", "MERO", 7),
]  # fmt: skip

failures: list[str] = []


def check(holds: bool, text: str) -> None:
    if not holds:
        failures.append(text)
        print("FAILED:", text, flush=True)


class Window:
    """The running program: a script's hand on one side, the accessibility bus on the other."""

    def __init__(self, program: Path):
        self.process = subprocess.Popen(
            [program, "--clock", "2026-11-20T14:05:09", "--script", "-"],
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
        sys.exit(f"at_spi_test: no {what} within {PATIENCE_S} s")

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
        sys.exit("at_spi_test: the program ended")

    def get(self, control: str) -> dict:
        return self.say(f"get {control}")[-1]

    def window(self, title: str):
        """The window in front whose title begins so."""
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
    """Everything below, the parts of lists and tables left out."""
    yield accessible
    if accessible.get_role_name() not in ("combo box", "table", "text"):
        for child in children(accessible):
            yield from walk(child)


def worked_controls(window) -> list:
    return [each for each in walk(window)
            if each.get_role_name() in WORKED and has(each, "SHOWING") and has(each, "VISIBLE")]  # fmt: skip


def spoken_name(accessible) -> str:
    """What a reader says: a list is called by its label, everything else by its own name."""
    if accessible.get_role_name() == "combo box":
        labels = [relation.get_target(0).get_name() for relation in accessible.get_relation_set()
                  if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]  # fmt: skip
        return labels[0] if labels else ""
    return accessible.get_name()


def check_names(state: str, window) -> None:
    names = Counter()
    for control in worked_controls(window):
        name, role = spoken_name(control), control.get_role_name()
        check(bool(name.strip()), f"{state}: a {role} without a name ({control.get_name()!r})")
        check("&" not in name and "\n" not in name, f"{state}: the name {name!r} is not what one says")
        check(any(letter.isalpha() for letter in name), f"{state}: the name {name!r} has no word in it")
        names[name, role] += 1
        if role == "table":
            check_cells(state, control)
        if role in ("text", "table") and has(control, "SENSITIVE") and not has(control, "FOCUSABLE"):
            check(False, f"{state}: {name} cannot get the focus")
    for (name, role), count in names.items():
        check(count == 1, f"{state}: {count} controls are {role} {name!r}")


def check_cells(state: str, table) -> None:
    grid = table.get_table_iface()
    headings = [grid.get_column_header(column).get_name() for column in range(grid.get_n_columns())]
    check(all(headings), f"{state}: columns without headings: {headings}")
    for row in range(min(3, grid.get_n_rows())):
        for column, heading in enumerate(headings):
            cell = grid.get_accessible_at(row, column)
            where = f"{state}: cell {row} {column} of {table.get_name()}"
            check(bool(cell.get_name()), f"{where} says nothing")
            check(cell.get_description().startswith(heading), f"{where} does not say its column")


def press(key: str) -> None:
    subprocess.run(["xdotool", "key", key], check=True)


def focused(window):
    """The control with the focus; in a table that is the table."""
    return next((each for each in walk(window) if each.get_role_name() in WORKED and has(each, "FOCUSED")), None)


def group_of(accessible) -> str:
    """One option of a group stands for all: the others are reached by arrows. So does one tab."""
    if accessible.get_role_name() == "page tab":
        return "tabs"
    if accessible.get_role_name() == "radio button":
        return f"options {accessible.get_parent().get_name()}"
    return f"{accessible.get_role_name()} {spoken_name(accessible)}"


def check_focus_order(state: str, window) -> None:
    # The small arrows beside a number cannot be entered: the number itself knows the arrow keys.
    wanted = {group_of(each) for each in worked_controls(window)
              if has(each, "SENSITIVE") and has(each, "FOCUSABLE")}  # fmt: skip
    reached: list[str] = []
    # Links inside of a page are stations of their own.
    for _ in range(2 * len(wanted) + 15):
        press("Tab")
        time.sleep(0.03)
        control = focused(window)
        station = "nothing" if control is None else group_of(control)
        if reached and station == reached[0] and len(set(reached)) >= len(wanted):
            break
        reached.append(station)
    lost = wanted - set(reached)
    check(not lost, f"{state}: the Tab key never comes to {sorted(lost)}; it goes {reached}")


def text_of(accessible) -> str:
    return Atspi.Text.get_text(accessible, 0, Atspi.Text.get_character_count(accessible))


def by_name(window, role: str, name: str):
    found = [each for each in worked_controls(window)
             if each.get_role_name() == role and each.get_name() == name]  # fmt: skip
    if len(found) != 1:
        sys.exit(f"at_spi_test: {len(found)} controls are {role} {name!r}")
    return found[0]


def check_values(program: Window) -> None:
    """The trench by AT-SPI: inputs are read, the button is pressed, its results are read."""
    program.say("tab 1\nclick optSelType(0)\nselect cboSelType 4\nset txtPorVyplne(4) 0.35\nset txtSirkaRyhy(4) 0.8\n"
                "set txtVyskaRyhy(4) 1.2")  # fmt: skip
    window = program.window("MERO")
    check(text_of(by_name(window, "text", "Šířka rýhy (střední), m")) == "0.8", "an input is read")
    length = by_name(window, "text", "Délka vsakovací rýhy, m")
    check(length.get_description() == "výsledek", "a result says that it is one")
    check(text_of(length) == "", "nothing is calculated yet")
    button = by_name(window, "push button", "Výpočti")
    check(Atspi.Action.get_action_name(button, 0) == "Press", "a button can be pressed")
    Atspi.Action.do_action(button, 0)
    Window.wait_for(lambda: text_of(length) != "", "result of the button")
    check(text_of(length) == program.get("txtDelkaRyhy(4)")["text"], "the result is what the field shows")
    check(float(text_of(length)) > 0, "the trench has a length")

    pipes = by_name(window, "check box", "Drenáž")
    edit = by_name(window, "push button", "Editovat: Drenáž")
    before = has(pipes, "CHECKED")
    program.say("click chkSelPretok(4)")
    check(has(pipes, "CHECKED") != before, "a tick is told")
    check(has(edit, "SENSITIVE") == has(pipes, "CHECKED"), "what is disabled is told")


def start_screen() -> subprocess.Popen:
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)  # fmt: skip
    os.environ["DISPLAY"] = ":" + server.stdout.readline().decode().strip()
    return server


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", type=Path, required=True)
    arguments = parser.parse_args()
    for tool in ("dbus-run-session", "Xvfb", "xdotool"):
        if shutil.which(tool) is None:
            sys.exit(MISSING.format(f"{tool} is"))
    os.environ.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb", NO_AT_BRIDGE="1")
    server = start_screen()
    try:
        program = Window(arguments.program)
        controls = 0
        for state, lines, title, least in STATES:
            program.say(lines)
            window = Window.wait_for(lambda title=title: program.window(title), f"window {title!r}")
            count = len(worked_controls(window))
            controls += count
            check(count >= least, f"{state}: only {count} controls")
            check_names(state, window)
            check_focus_order(state, window)
        check_values(program)
        program.end()
    finally:
        server.terminate()
        server.wait()
    print(f"{len(STATES)} states, {controls} controls, {len(failures)} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    # A bus of its own: neither the user's screen reader nor another test hears this program.
    if PRIVATE_BUS not in os.environ and shutil.which("dbus-run-session"):
        os.environ[PRIVATE_BUS] = "1"
        os.execvp("dbus-run-session", ["dbus-run-session", "--", sys.executable, *sys.argv])
    main()
