# SPDX-License-Identifier: MIT
"""Rules of the source tree that no compiler checks. Prints FILE:LINE: what is wrong; exit status 1 when anything is.

Use: rules.py ROOT
"""

import re
import sys
from pathlib import Path

from sources import code_only, includes, script_files, source_files

MAX_LINES = 450
LICENCE = "SPDX-License-Identifier: MIT"

# What each room of src/ may include, besides itself. The longest matching prefix counts.
# `numbers` is also the home of the run-time error type.
NUMBERS = ("platform/numbers",)
CORE = ("calc", "data", "report", "platform")
ROOMS = {
    "platform/numbers": (),
    "qt": ("platform", "picture"),
    "platform": NUMBERS,
    "calc": NUMBERS,
    "picture": ("calc", *NUMBERS),
    "data": ("calc", "platform"),
    "design": ("calc", "data", "platform"),
    "report": ("calc", "data", "platform"),
    "project": (*CORE, "design"),
    "sweep": (*CORE, "picture", "design", "project"),
    "forms": (*CORE, "picture", "qt"),
    "automation": (*CORE, "forms"),
    "app": (*CORE, "design", "project", "sweep", "forms", "automation", "qt"),
}

QT_INCLUDE = re.compile(r"^(Qt\w*/)?Q\w+$|^(Qt\w+/)?q[a-z0-9_]+\.h$")
QT_LINK = re.compile(r"\bQt6?::\w+")
NUMBER_TEXT = re.compile(
    r"\b(?:sto(?:f|d|ld)|strto(?:f|d|ld)|ato(?:f|i|l|ll)|s?n?scanf|v?(?:f|s|sn|as|d)?printf|to_string|to_wstring"
    r"|setlocale|uselocale|imbue|setprecision|toFloat|toDouble)\s*(?:<[^<>]*>)?\s*\(|\bstd::(?:locale|fixed|scientific)\b"
)


def is_qt_room(path: str) -> bool:
    """May this file (relative to src/) see Qt: the Qt platform, window layouts, the window's main program?"""
    return (
        path.startswith(("qt/", "app/mero/"))
        or path == "app/mero.cpp"
        or (path.startswith("forms/") and "/layout/" in path)
    )


def room_of(path: str) -> str | None:
    """The room of a path relative to src/, None when it lies in none."""
    matching = [room for room in ROOMS if path.startswith(room + "/")]
    return max(matching, key=len, default=None)


def may_include(path: str, included: str) -> bool:
    """May the file `path` include the header `included` (both relative to src/)?"""
    room, other = room_of(path), room_of(included)
    if room is None or other is None:
        return False
    if other == "qt" and not is_qt_room(path):
        return False
    if room == other:
        return True
    return any(other == below or other.startswith(below + "/") for below in ROOMS[room])


def check_include(root: Path, path: str, name: str, own: bool) -> str | None:
    """What is wrong with an include of a file under src/, None when nothing is."""
    if QT_INCLUDE.match(name):
        return None if is_qt_room(path) else f"Qt ({name}) outside qt, forms/**/layout and app/mero"
    if name.endswith(".moc"):
        return None
    if not own:
        return f'<{name}> is a header of ours: write it in quotes' if (root / "src" / name).is_file() else None
    if not (root / "src" / name).is_file():
        return f'"{name}" is no path from src/'
    if not may_include(path, name):
        return f'"{name}" lies above or beside {room_of(path) or "src"}: includes go only downwards'
    return None


def check_source(root: Path, file: Path) -> list[str]:
    """Everything that is wrong with one .h or .cpp file."""
    name = file.relative_to(root).as_posix()
    text = file.read_text(encoding="utf-8")
    found = []
    first, _, rest = text.partition("\n")
    if first != f"// {LICENCE}":
        found.append(f"{name}:1: opens without // {LICENCE}")
    elif not rest.startswith("//"):
        found.append(f"{name}:2: no comment says what the file is for")
    lines = text.count("\n")
    if lines > MAX_LINES:
        found.append(f"{name}:{lines}: {lines} lines, more than {MAX_LINES}")
    if file.suffix == ".h" and "#pragma once" not in text:
        found.append(f"{name}:1: a header without #pragma once")
    if not name.startswith("src/"):
        return found

    path = name.removeprefix("src/")
    if room_of(path) is None:
        found.append(f"{name}:1: lies in no room of src/ ({', '.join(ROOMS)})")
    for line, included, own in includes(text):
        if wrong := check_include(root, path, included, own):
            found.append(f"{name}:{line}: {wrong}")
    if room_of(path) != "platform/numbers":
        for line, code in enumerate(code_only(text).split("\n"), 1):
            if match := NUMBER_TEXT.search(code):
                word = match.group().rstrip("( ")
                found.append(f"{name}:{line}: {word}: texts of numbers are made and read in platform/numbers only")
    return found


def check_links(root: Path, file: Path) -> list[str]:
    """Qt links of a CMakeLists.txt outside the rooms of Qt."""
    path = file.relative_to(root / "src").as_posix()
    if is_qt_room(path):
        return []
    return [
        f"src/{path}:{number}: links {match.group()} outside qt, forms/**/layout and app/mero"
        for number, line in enumerate(file.read_text(encoding="utf-8").split("\n"), 1)
        if (match := QT_LINK.search(line.split("#")[0]))
    ]


def check_licence(root: Path, file: Path) -> list[str]:
    """A script or a build file whose first line, or the one below #!, does not tell its licence."""
    lines = file.read_text(encoding="utf-8").split("\n")
    line = lines[1:2] if lines[0].startswith("#!") else lines[:1]
    return [] if line == [f"# {LICENCE}"] else [f"{file.relative_to(root).as_posix()}:1: opens without # {LICENCE}"]


def check_tree(root: Path) -> list[str]:
    """Everything that is wrong in the tree, one line each."""
    found = [wrong for file in source_files(root) for wrong in check_source(root, file)]
    found += [wrong for file in sorted((root / "src").rglob("CMakeLists.txt")) for wrong in check_links(root, file)]
    found += [wrong for file in script_files(root) for wrong in check_licence(root, file)]
    return found


def main() -> int:
    root = Path(sys.argv[1]).resolve()
    found = check_tree(root)
    for wrong in found:
        print(wrong)
    print(f"rules: {len(source_files(root))} files, {len(found)} breaches")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
