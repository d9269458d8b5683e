#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks all controls of the real window over AT-SPI, as a screen reader sees them.

In every tab, panel and dialog each control that can be operated has a role and a unique name, the Tab key reaches
each enabled one, values can be read, and a button pressed over AT-SPI writes its result to a field.
Use: at_spi_test.py --program MERO
"""

import argparse
import sys
from collections import Counter
from pathlib import Path

from screen_reader import (
    Atspi, FocusWatch, Window, by_name, check, failures, group_of, has, on_a_bus_of_its_own, spoken_name,
    start_screen, text_of, worked_controls,
)  # fmt: skip

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
# States of the window: the script that leads there, the window, the minimum number of controls.
STATES = [
    ("inputs", "", "MERO", 18),
    ("rain", "click cmdEdit(0)", "Intenzity", 5),
    ("rain help", "click frmIntDialog.cmdEdit", "Intenzity", 7),
    ("back from rain", "close frmIntDialog", "MERO", 18),
    ("areas", SITE + "click cmdEdit(1)", "Střední", 8),
    ("back from areas", "close frmDialog", "MERO", 18),
    ("soil", "click cmdEdit(2)\ncell frmCoefDialog.fgCoefProp 2 2", "Součinitel", 2),
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


def check_focus_order(state: str, window, watch: FocusWatch) -> None:
    # The small arrow buttons beside a number take no focus: the arrow keys work in the number's field.
    wanted = {group_of(each) for each in worked_controls(window)
              if has(each, "SENSITIVE") and has(each, "FOCUSABLE")}  # fmt: skip
    # Links inside a page take the focus too.
    reached = watch.press("Tab", len(wanted) + 10, wanted)
    lost = wanted - set(reached)
    check(not lost, f"{state}: the Tab key never comes to {sorted(lost)}; it goes {reached}")


def check_values(program: Window) -> None:
    """A trench over AT-SPI: reads the inputs, presses the button, reads the results."""
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


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", type=Path, required=True)
    arguments = parser.parse_args()
    server = start_screen()
    try:
        program = Window(arguments.program.resolve(), "--script", "-")
        watch = FocusWatch()
        controls = 0
        for state, lines, title, least in STATES:
            program.say(lines)
            window = Window.wait_for(lambda title=title: program.window(title), f"window {title!r}")
            count = len(worked_controls(window))
            controls += count
            check(count >= least, f"{state}: only {count} controls")
            check_names(state, window)
            check_focus_order(state, window, watch)
        check_values(program)
        program.end()
    finally:
        server.terminate()
        server.wait()
    print(f"{len(STATES)} states, {controls} controls, {len(failures)} failures")
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    on_a_bus_of_its_own()
    main()
