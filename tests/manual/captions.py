# SPDX-License-Identifier: MIT
"""Maps captions of the window to controls, and rows of the manual to script lines."""

import csv

from manual_text import ROOT, Action, Example, Message, Result
from tables import Field, Tables

TABS = ("Základní informace", "Výpočet", "Popis technologie", "Výsledky")
DURATIONS = (5, 10, 15, 20, 30, 45, 60, 90, 120)
SOILS = "Výběr u zeminy "
SURFACES = "Výběr u povrchu "
RAINS = "Výběr u doby "
TAB = "Záložka "

BUTTONS = {
    "Zadat u pole Intenzita trvání deště": "cmdEdit(0)",
    "Zadat u pole Celková odvodňovaná plocha": "cmdEdit(1)",
    "Zadat u pole Součinitel filtrace (kf) podloží": "cmdEdit(2)",
    "Decenralizované": "optSelType(0)",
    "Centralizované": "optSelType(1)",
    "Výpočti": "cmdCalcul(#)",
    "Editovat": "cmdEdit(#)",
}
DIALOGS = {"cmdEdit(0)": "frmIntDialog", "cmdEdit(1)": "frmDialog", "cmdEdit(2)": "frmCoefDialog"}
# The user leaves these fields, for example with the Tab key; the number is then formatted.
FILTRATION = ("txtSoucFiltrace", "txtSoucFiltrPruleh")


def reference_rows(name: str, column: str) -> list[str]:
    with open(ROOT / "tests" / "data" / "expected" / name, encoding="utf-8") as file:
        return [row[column] for row in csv.DictReader(file, delimiter=";", quoting=csv.QUOTE_NONE)]


class Person:
    """A reader of the manual: keeps which window is open and which type is chosen."""

    def __init__(self, tables: Tables) -> None:
        self.tables = tables
        self.dialog = ""
        self.type_number = 0
        self.tab = 0

    def field(self, caption: str) -> Field:
        """The field of a caption, in any window. KeyError if there is none."""
        return self.tables.find(caption, self.type_number)

    def seen(self, caption: str) -> str:
        """The control of a caption that is on the screen now."""
        field = self.field(caption)
        on_first_tab = field in self.tables.inputs[0]
        if field.kind != "list" and (self.dialog or self.tab != (0 if on_first_tab else 1)):
            raise KeyError(f"{caption} is not on the screen here")
        return field.box

    def script(self, step: Action | Result | Message) -> list[str]:
        """The script lines of a step. KeyError for a caption that the window does not have."""
        if isinstance(step, Message):
            return []
        if isinstance(step, Result):
            return [f"get {self.seen(step.caption)}"]
        if step.value is None:
            return self.press(step.caption)
        if step.caption == "Typ vsakování":
            self.type_number = self.tables.types.index(step.value)
            return ["focus cboSelType", f'select cboSelType "{step.value}"']
        if step.caption in ("Dílčí plocha", "Součinitel odtoku"):
            box = {"Dílčí plocha": "txtPlocha", "Součinitel odtoku": "txtSoucinitel"}[step.caption]
            return [f'type frmDialog.{box} "{step.value}"']
        control = self.seen(step.caption)
        if self.field(step.caption).kind == "list":
            return [f'select {control} "{step.value}"']
        if control.startswith(FILTRATION):
            return [f'set {control} ""', f'type {control} "{step.value}"', f"leave {control}"]
        return [f'set {control} "{step.value}"']

    def press(self, caption: str) -> list[str]:
        if caption.startswith(TAB):
            self.tab = TABS.index(caption.removeprefix(TAB))
            return [f"tab {self.tab}"]
        for prefix, grid, column, rows in (
                (RAINS, "frmIntDialog.fgIntDeste", 2, [f"{t} min" for t in DURATIONS]),
                (SURFACES, "frmDialog.fgSoucPovrchOdtok", 3, reference_rows("surfaces.csv", "description")),
                (SOILS, "frmCoefDialog.fgCoefProp", 2, reference_rows("soils.csv", "name"))):
            if caption.startswith(prefix):
                return [f"cell {grid} {rows.index(caption.removeprefix(prefix)) + 1} {column}"]
        if caption == "Zapsat do tabulky":
            return ["click frmDialog.cmdZapsat"]
        if caption == "OK":
            return [f"click {self.confirm()}"]
        if caption == "Centralizované":
            self.type_number = self.tables.types.index("Vsakovací nádrže")
        option = self.tables.option(caption, self.type_number)
        control = option or BUTTONS[caption].replace("#", str(self.type_number))
        self.dialog = DIALOGS.get(control, self.dialog)
        return [f"click {control}"]

    def confirm(self) -> str:
        """The OK button of the open window or panel."""
        dialog, self.dialog = self.dialog, ""
        if not dialog:
            return f"cmdOK({self.type_number})"
        return f"{dialog}.OKButton" if dialog == "frmDialog" else f"{dialog}.cmdOK"


def script_of(example: Example, tables: Tables) -> list[str]:
    """The whole script: each step's lines after an echo of its line in the manual."""
    person = Person(tables)
    lines = []
    for step in example.steps:
        try:
            lines += [f'echo "{step.line}"', *person.script(step)]
        except (KeyError, ValueError) as error:
            raise ValueError(f"{step.line}: {error}") from error
    return lines
