# SPDX-License-Identifier: MIT
"""Prints the table of tools/checks/coverage.sh: lines and branches of each folder of src, and of the two parts that
have limits. Exit status 1 if a part is below its limit.

Use: coverage_table.py SUMMARY   (what gcovr --json-summary writes)
"""

import json
import re
import sys
from collections import defaultdict
from dataclasses import dataclass
from pathlib import Path


@dataclass
class Count:
    lines: int = 0
    reached_lines: int = 0
    branches: int = 0
    reached_branches: int = 0

    def add(self, entry: dict):
        self.lines += entry["line_total"]
        self.reached_lines += entry["line_covered"]
        self.branches += entry["branch_total"]
        self.reached_branches += entry["branch_covered"]

    def shown(self, name: str) -> str:
        return (f"{name:28}{self.reached_lines:7} of {self.lines:6} lines {percent(self.reached_lines, self.lines):6.1f} %"
                f"{self.reached_branches:8} of {self.branches:6} branches"
                f" {percent(self.reached_branches, self.branches):6.1f} %")


@dataclass(frozen=True)
class Part:
    name: str
    is_view: bool
    least_lines: float
    least_branches: float


PARTS = (Part("the program", False, 95, 90), Part("widgets and layouts", True, 85, 0))
VIEW = re.compile(r"src/(qt|forms/\w+/layout)/")


def percent(reached: int, all_of_them: int) -> float:
    return 100.0 * reached / all_of_them if all_of_them else 100.0


def table(files: list[dict]) -> tuple[list[str], bool]:
    """The lines to print, and whether every part reaches its limits."""
    folders: dict[str, Count] = defaultdict(Count)
    parts = {part: Count() for part in PARTS}
    for entry in files:
        folders[str(Path(entry["filename"]).parent)].add(entry)
        for part, count in parts.items():
            if part.is_view == bool(VIEW.match(entry["filename"])):
                count.add(entry)
    shown = [count.shown(name) for name, count in sorted(folders.items())]
    good = True
    for part, count in parts.items():
        lines, branches = percent(count.reached_lines, count.lines), percent(count.reached_branches, count.branches)
        reaches = lines >= part.least_lines and branches >= part.least_branches
        good = good and reaches
        marks = f"{part.least_lines} % of lines" + (f", {part.least_branches} % of branches" if part.least_branches else "")
        shown.append(f"{count.shown(part.name)}   {'reaches' if reaches else 'IS BELOW'} {marks}")
    return shown, good


def main() -> int:
    shown, good = table(json.loads(Path(sys.argv[1]).read_text(encoding="utf-8"))["files"])
    print("\n".join(shown))
    return 0 if good else 1


if __name__ == "__main__":
    sys.exit(main())
