# SPDX-License-Identifier: MIT
"""The list of pictures: script lines or actions of an example, and the name of the picture that is taken after them.

Each view starts with a fresh program and shows an example of the user manual.
"""

import sys
from dataclasses import dataclass

from screen import ROOT

sys.path.insert(0, str(ROOT / "tests" / "manual"))
from captions import Person  # noqa: E402
from manual_text import MANUAL, Action, examples  # noqa: E402
from tables import Tables  # noqa: E402

EXAMPLES = {example.name: example for example in examples(MANUAL.read_text(encoding="utf-8"))}
RAIN, AREAS, SOIL = (f"Zadat u pole {field}" for field in (
    "Intenzita trvání deště", "Celková odvodňovaná plocha", "Součinitel filtrace (kf) podloží"))


@dataclass(frozen=True)
class Actions:
    """The actions of an example: all, or up to the OK of the dialog that a button opens, or up to a button's Nth press."""

    name: str
    before_ok_of: str = ""
    until_press: str = ""
    times: int = 1

    def lines(self, tables: Tables) -> list[str]:
        """As script lines; the tables name the controls."""
        person = Person(tables)
        lines: list[str] = []
        opened = ""
        presses = 0
        for step in EXAMPLES[self.name].steps:
            if not isinstance(step, Action):
                continue
            if step.caption.startswith("Zadat"):
                opened = step.caption
            if self.before_ok_of and step.caption == "OK" and opened == self.before_ok_of:
                return lines
            if self.until_press and step.caption == self.until_press:
                presses += 1
                if presses == self.times:
                    return lines
            lines += person.script(step)
        return lines


Steps = list[tuple[list[str] | Actions, str]]


def finished(name: str, *pictures: tuple[int, str]) -> Steps:
    """Runs an example to its end, then shows its tabs."""
    first, *rest = pictures
    steps: Steps = [(Actions(name), ""), ([f"tab {first[0]}"], first[1])]
    return steps + [([f"tab {tab}"], picture) for tab, picture in rest]


MANUAL_PICTURES: dict[str, Steps] = {
    "surface": [
        (Actions("plosne-vsakovani", before_ok_of=RAIN), "okno-dest"),
    ],
    "areas": [(Actions("plosne-vsakovani", before_ok_of=AREAS), "okno-plochy")],
    "soil": [(Actions("plosne-vsakovani", before_ok_of=SOIL), "okno-zemina")],
    "surface panel": finished("plosne-vsakovani", (0, "zakladni-informace"), (1, "panel-plosne"), (3, "vysledky")),
    "swales": finished("prulehy", (1, "panel-prulehy"), (2, "popis-technologie")),
    "combined": finished("kombinovany-objekt", (1, "panel-kombinovany")),
    "trench": [(Actions("ryha-s-drenem", until_press="OK", times=4), "panel-ryha")],
    "shaft": finished("sachty", (1, "panel-sachta")),
    "tank": finished("nadrz", (1, "panel-nadrz")),
}

VIEWS: dict[str, Steps] = {
    "start": [
        ([], "01-inputs-empty"),
        (["click cmdEdit(0)"], "02-rain-empty"),
        (["click frmIntDialog.cmdEdit"], "03-rain-help"),
        (["close frmIntDialog", "click cmdEdit(1)"], "04-areas-empty"),
        (["close frmDialog", "click cmdEdit(2)"], "05-soil"),
        (["close frmCoefDialog", "tab 1"], "06-design-empty"),
        (["click optSelType(0)"], "07-design-no-type"),
    ],
    "rain": [
        (Actions("plosne-vsakovani", before_ok_of=RAIN), "08-rain-station"),
        (["cell frmIntDialog.fgIntDeste 2 1"], "09-rain-editor"),
    ],
    "areas": [
        (Actions("plosne-vsakovani", before_ok_of=AREAS), "10-areas-entries"),
        (["cell frmDialog.fgZapisTab 1 4"], "11-areas-marked"),
        (["cell frmDialog.fgZapisTab 2 1"], "12-areas-editor"),
    ],
    "soil": [(Actions("plosne-vsakovani", before_ok_of=SOIL), "13-soil-picked")],
    "surface": finished("plosne-vsakovani", (0, "14-inputs"), (1, "15-surface"), (2, "16-surface-page"),
                        (3, "17-surface-report")),
    "swales": finished("prulehy", (1, "18-swale"), (2, "19-swale-page"), (3, "20-swale-report")),
    "combined": finished("kombinovany-objekt", (1, "21-combined"), (2, "22-combined-page"), (3, "23-combined-report")),
    "throttled": [
        (Actions("kombinovany-objekt-skrceny-odtok", until_press="OK", times=3), "24-combined-pipes"),
        (["click cmdOK(3)", "click cmdCalcul(3)"], "25-combined-throttled"),
    ],
    "trench": [
        (Actions("ryha-s-drenem", until_press="Drenáž"), "26-trench"),
        (["click chkSelPretok(4)"], "27-trench-pipes-empty"),
    ],
    "drain": [
        (Actions("ryha-s-drenem", until_press="OK", times=4), "28-trench-pipes"),
        (["click cmdOK(4)", "click cmdCalcul(4)"], "29-trench-drain"),
        (["tab 2"], "30-trench-page"),
        (["tab 3"], "31-trench-report"),
    ],
    "shaft": [
        (Actions("sachty", until_press="kruhový"), "32-shaft-empty"),
        (["click optSelTypSachty(0)", "click optSelTypPudy5(0)"], "33-shaft-round"),
        (["click optSelTypSachty(1)", "select cboTypSachty 2", "set txtNezamrzHlPritok 1", "set txtVyskaFiltrVrstvy 0.5",
          "click cmdCalcul(5)"], "34-shaft-rectangular"),
    ],
    "shaft with sand": finished("sachty", (1, "35-shaft-sand"), (2, "36-shaft-page"), (3, "37-shaft-report")),
    "tank": finished("nadrz", (1, "38-tank"), (2, "39-tank-page"), (3, "40-tank-report")),
    "absurd": [
        (Actions("nadrz"), ""),
        (["set txtHloubkaNadrz 1000000", "click cmdCalcul(6)"], "41-tank-absurd"),
    ],
}

# Keys that open message boxes. A script would answer these at once.
BOXES: dict[str, list[str]] = {"hlaseni": ["ctrl+Tab", "ctrl+Tab"]}
