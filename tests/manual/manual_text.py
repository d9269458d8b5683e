# SPDX-License-Identifier: MIT
"""The user manual as data: its examples, its tables of inputs and its command blocks.

An example is between the marks `<!-- příklad: NAME -->` and `<!-- konec příkladu -->`. In it, in reading order,

- a table headed `Pole | Zadejte` holds what the user does: a caption and a value in back quotes, or a caption alone
  with a word ("stiskněte", "klepněte") for a button, an option or a tick box;
- a table headed `Výsledek | Vyjde` holds what the program must show: a caption and the text in back quotes;
- a quotation `> **Informace:** „TEXT“` (or Upozornění, Chyba) is a message box.

Tables of inputs follow `<!-- vstupy: N -->`, where N is the number of the type, 0 for the first tab. After that of a type a
paragraph "Výsledky:" names its results: „CAPTION“ (UNIT).
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
MANUAL = ROOT / "docs" / "prirucka.md"
ICONS = {"Informace": "information", "Upozornění": "exclamation", "Chyba": "critical"}
VALUE = re.compile(r"`([^`]*)`")
MESSAGE = re.compile(r"> \*\*(\w+):\*\* „(.*)“$")


@dataclass
class Action:
    line: int
    caption: str
    value: str | None


@dataclass
class Result:
    line: int
    caption: str
    text: str


@dataclass
class Message:
    line: int
    icon: str
    text: str


@dataclass
class Example:
    name: str
    line: int
    steps: list[Action | Result | Message] = field(default_factory=list)


@dataclass
class Inputs:
    type_number: int
    line: int
    rows: list[tuple[int, list[str]]] = field(default_factory=list)


@dataclass
class Command:
    line: int
    arguments: str
    output: list[str] = field(default_factory=list)


def cells(line: str) -> list[str]:
    return [cell.strip() for cell in line.strip().strip("|").split("|")]


def value_of(cell: str) -> str | None:
    match = VALUE.search(cell)
    return match.group(1) if match else None


def examples(text: str) -> list[Example]:
    """All examples of a manual. ValueError with the line of an example of the wrong form."""
    found: list[Example] = []
    current, table = None, ""
    for number, line in enumerate(text.split("\n"), 1):
        if match := re.fullmatch(r"<!-- příklad: ([\w-]+) -->", line):
            current = Example(match.group(1), number)
            found.append(current)
        elif line == "<!-- konec příkladu -->":
            current = None
        elif current is None:
            continue
        elif not line.startswith("|"):
            table = ""
            if line.startswith(">"):
                current.steps.append(message_of(line, number))
        elif not table:
            table = {"Pole": "actions", "Výsledek": "results"}.get(cells(line)[0], "other")
        elif not line.startswith("|-") and table != "other":
            current.steps.append(row_of(cells(line), table, number))
    return found


def message_of(line: str, number: int) -> Message:
    match = MESSAGE.match(line)
    if not match or match.group(1) not in ICONS:
        raise ValueError(f"{number}: a quotation in an example is a message: {line}")
    return Message(number, ICONS[match.group(1)], match.group(2))


def row_of(row: list[str], table: str, number: int) -> Action | Result:
    if len(row) != 2 or not row[0]:
        raise ValueError(f"{number}: a row of an example has a caption and a value: {row}")
    value = value_of(row[1])
    if table == "actions":
        return Action(number, row[0], value)
    if value is None:
        raise ValueError(f"{number}: a result stands in back quotes: {row}")
    return Result(number, row[0], value)


def input_tables(text: str) -> list[Inputs]:
    found: list[Inputs] = []
    current = None
    for number, line in enumerate(text.split("\n"), 1):
        if match := re.fullmatch(r"<!-- vstupy: (\d) -->", line):
            current = Inputs(int(match.group(1)), number)
            found.append(current)
        elif current is not None and line.startswith("|"):
            if not line.startswith("|-") and cells(line)[0] != "Pole":
                current.rows.append((number, cells(line)))
        elif current is not None and current.rows:
            current = None
    return found


def results_told(text: str, line: int) -> list[tuple[str, str]]:
    """Caption and unit of each result in the first paragraph after that line that begins with "Výsledky:".

    A quotation before a colon is none of them.
    """
    rest = "\n".join(text.split("\n")[line:])
    paragraph = " ".join(rest[rest.index("\nVýsledky:"):].strip().split("\n\n")[0].split())
    return re.findall(r"„([^“]+)“(?: \(([^\s,;)]+))?(?=[,; )])", paragraph)


def commands(text: str) -> list[Command]:
    """The commands of ```console blocks with their output; a line "..." stands for any lines."""
    found: list[Command] = []
    inside = False
    for number, line in enumerate(text.split("\n"), 1):
        if line.startswith("```"):
            inside = line == "```console"
        elif inside and line.startswith("$ "):
            found.append(Command(number, line[2:]))
        elif inside and line.startswith("> "):
            found[-1].arguments += " " + line[2:]
        elif inside and found:
            found[-1].output.append(line)
    for command in found:
        command.arguments = command.arguments.replace("\\ ", "")
    return found
