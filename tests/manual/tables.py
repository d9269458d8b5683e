# SPDX-License-Identifier: MIT
"""The program's tables of inputs, results, texts and verdicts, as mero-tables writes them.

A field's text when the program starts is its `opening`; a choice has options instead. Captions are without their colons.
"""

import json
import subprocess
from dataclasses import dataclass

# Fields of the first tab that show a result, with the caption where it differs from the result's.
SHOWN_RESULTS = {
    "reduced_area_m2": ("txtOdvodNepPlocha", None),
    "critical_intensity_l_s_ha": ("txtSelIntDeste", "Intenzita trvání deště"),
    "inflow_l_s": ("txtOdtokDoVsak", None),
}
# Lists of the rain window, and groups of options: they have several controls.
LISTS = {"rain.station": "frmIntDialog.cboSelStanice", "rain.periodicity": "frmIntDialog.cboSelPeriod"}
OPTIONS = {"facility.soil": "optSelTypPudy#", "facility.shape": "optSelTypSachty", "facility.variant": "optSelTypPudy5"}


@dataclass(frozen=True)
class Field:
    caption: str
    unit: str
    box: str
    opening: str = ""
    kind: str = "text"
    options: tuple[str, ...] = ()
    usual: str = ""

    def row(self) -> tuple[str, str, str, str]:
        """Caption, unit, default and usual values as the manual's tables of inputs print them."""
        default = "–" if self.kind in ("choice", "truth") else f"`{self.opening}`" if self.opening else "prázdné"
        return self.caption, self.unit or "–", default, self.usual


def field_of(row: dict, type_number: int) -> Field:
    path = row.get("path", "")
    box = LISTS.get(path) or OPTIONS.get(path, "").replace("#", str(type_number)) or row["box"]
    return Field(row["caption"].rstrip(":"), row.get("unit", ""), box, row.get("opening", ""), row.get("kind", "text"),
                 tuple(row.get("options", ())), row.get("usual", ""))


class Tables:
    """The tables of the program at that path."""

    def __init__(self, program: str) -> None:
        found = json.loads(subprocess.run([program], capture_output=True, check=True, encoding="utf-8").stdout)
        self.types = ("", *(each["name"] for each in found["types"]))
        self.verdicts: dict[str, str] = found["verdicts"]
        site = [field_of(row, 0) for row in found["texts"] + found["site"]]
        self.lists = [field for field in site if field.kind == "list"]
        results = found["results"]
        # Inputs by the number of the type, those of the first tab at 0.
        self.inputs = [[field for field in site if field.kind != "list"] + [
            Field(caption or results[name]["caption"], results[name]["unit"], box)
            for name, (box, caption) in SHOWN_RESULTS.items()]]
        self.results: list[list[Field]] = [[]]
        for number, each in enumerate(found["types"], 1):
            fields = {}  # two inputs of one box are one field
            for row in each["inputs"]:
                field = field_of(row, number)
                fields.setdefault(field.box, field)
            self.inputs.append(list(fields.values()))
            self.results.append([field_of(row, number) for row in each["results"]])

    def captions(self) -> list[str]:
        """Each caption beside a field, a list or a group of options, and of each option."""
        found = [field.caption for field in self.lists]
        for fields in self.inputs + self.results:
            for field in fields:
                found += [field.caption, *field.options]
        return found

    def find(self, caption: str, type_number: int) -> Field:
        """The field of a caption on the first tab or on the type's panel. KeyError if there is none."""
        for fields in (self.inputs[0], self.inputs[type_number], self.results[type_number], self.lists):
            for field in fields:
                if field.caption == caption:
                    return field
        raise KeyError(f"no field is called {caption}")

    def option(self, caption: str, type_number: int) -> str | None:
        """The control of an option or a check box of the type's panel."""
        for field in self.inputs[type_number]:
            if field.kind == "truth" and field.caption == caption:
                return field.box
            if caption in field.options:
                return f"{field.box}({field.options.index(caption)})"
        return None
