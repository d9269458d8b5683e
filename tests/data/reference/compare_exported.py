# SPDX-License-Identifier: MIT
"""Compares what our reader printed of databases with what mdb-export prints: rows, whole numbers and texts.

mdb-export prints other numbers with few digits, "??" for a character beyond the first plane of Unicode,
and rows that have moved to another page behind the others, even deleted ones. So each row that we read has to be
among those that it prints.
"""

import csv
import io
import os
import re
import struct
import subprocess
import sys
from collections import Counter
from pathlib import Path

ENVIRONMENT = {name: value for name, value in os.environ.items() if not name.startswith("MDB")} | {"LC_ALL": "C.UTF-8"}


def number(text: str) -> float:
    return struct.unpack(">d", bytes.fromhex(text))[0]


def tables(file: Path):
    """Yields name, columns and rows as our reader printed them."""
    name, columns, rows = None, [], []
    for line in file.read_text(encoding="utf-8").splitlines()[1:]:
        kind, _, rest = line.partition(" ") if not line.startswith("row") else ("row", "", line[4:])
        if kind == "table":
            if name is not None:
                yield name, columns, rows
            name, columns, rows = rest, [], []
        elif kind == "column":
            columns.append(rest)
        else:
            rows.append(rest.split("\t"))
    if name is not None:
        yield name, columns, rows


def exported(database: Path, table: str) -> list[list[str]]:
    done = subprocess.run(["mdb-export", "-H", "-b", "strip", str(database), table], capture_output=True, check=True,
                          env=ENVIRONMENT)
    return list(csv.reader(io.StringIO(done.stdout.decode("utf-8"), newline="")))


def same(ours: str, theirs: str) -> bool:
    if ours == "-":
        return theirs == ""
    if ours.startswith("'"):
        return re.sub("[\U00010000-\U0010ffff]", "??", ours[1:]) == theirs
    if len(ours) == 16 and theirs != "":
        value = number(ours)
        if abs(value) > 2**31 and re.search(r"\.\d{4}$", theirs):
            return True  # it prints large negative currencies wrongly
        return abs(float(theirs) - value) <= 1e-5 * abs(value)
    return True  # dates, memos, flags: printed in forms of their own


def agree(ours: list[str], theirs: list[str]) -> bool:
    return all(same(one, other) for one, other in zip(ours, theirs))


def compare(database: Path, printed: Path) -> Counter:
    tally = Counter()
    for name, columns, rows in tables(printed):
        if re.search("[\U00010000-\U0010ffff]", name):
            tally["tables that mdb-export does not find"] += 1
            continue
        theirs = exported(database, name)
        if len(theirs) < len(rows):
            tally["tables of which mdb-export prints a part"] += 1
            continue
        for ours in rows:
            if not any(agree(ours, row) for row in theirs):
                raise SystemExit(f"{database}: {name}: mdb-export does not print the row {ours}")
        tally["tables compared"] += 1
        tally["values compared"] += len(rows) * len(columns)
    return tally


def main() -> None:
    folder, count = Path(sys.argv[1]), int(sys.argv[2])
    tally = sum((compare(folder / f"{k}.mdb", folder / f"{k}.ours") for k in range(count)), Counter())
    print(", ".join(f"{number} {what}" for what, number in sorted(tally.items())))
    if 10 * tally["tables compared"] < 9 * sum(number for what, number in tally.items() if what.startswith("tables")):
        raise SystemExit("too few tables could be compared")


if __name__ == "__main__":
    main()
