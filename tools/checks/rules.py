# SPDX-License-Identifier: MIT
"""Checks rules of the source tree that no compiler checks. Prints FILE:LINE: what is wrong; exit status 1 if anything is.

A file under src/ may include a header only if its target links the header's target, directly or through others.
Both come from the CMakeLists.txt files (rooms.py), so the links are the one statement of the layers.

Use: rules.py ROOT
"""

import re
import sys
from pathlib import Path

from rooms import QT_TARGET, Rooms, Target
from sources import code_only, includes, script_files, source_files

MAX_LINES = 450
LICENCE = "SPDX-License-Identifier: MIT"

# The rooms that may link Qt: the widgets, the layouts of the forms, the program with the window.
QT_ROOM = re.compile(r"qt|forms/(.+/)?layout|app/mero")
NUMBER_ROOM = "platform/numbers"
QT_INCLUDE = re.compile(r"^(Qt\w*/)?Q\w+$|^(Qt\w+/)?q[a-z0-9_]+\.h$")
NUMBER_TEXT = re.compile(
    r"\b(?:sto(?:f|d|ld)|strto(?:f|d|ld)|ato(?:f|i|l|ll)|s?n?scanf|v?(?:f|s|sn|as|d)?printf|to_string|to_wstring"
    r"|setlocale|uselocale|imbue|setprecision|toFloat|toDouble)\s*(?:<[^<>]*>)?\s*\(|\bstd::(?:locale|fixed|scientific)\b"
)
USING = re.compile(r"^\s*using (?!enum |namespace )[\w:]+::(\w+);", re.MULTILINE)


def unused_names(code: str) -> list[tuple[int, str]]:
    """(line, name) of each name that a using declaration brings in and nothing else mentions. clang-tidy looks for
    them only in files that it reads alone."""
    return [(code.count("\n", 0, match.start(1)) + 1, match.group(1)) for match in USING.finditer(code)
            if len(re.findall(rf"\b{match.group(1)}\b", code)) == 1]


def check_include(rooms: Rooms, target: Target, name: str, own: bool) -> str | None:
    """What is wrong with an include of a file of `target`, None when nothing is."""
    if QT_INCLUDE.match(name):
        return None if rooms.sees_qt(target) else f"{target.name} links no Qt, so it cannot include {name}"
    if name.endswith(".moc"):
        return None
    is_ours = (rooms.src / name).is_file()
    if not own:
        return f"<{name}> is a header of ours: write it in quotes" if is_ours else None
    if not is_ours:
        return f'"{name}" is no path from src/'
    owner = rooms.owner(name)
    if owner is None:
        return f'"{name}" belongs to no target'
    if owner.name not in rooms.sees(target):
        return f'"{name}" belongs to {owner.name}, which {target.name} does not link'
    return None


def check_source(root: Path, rooms: Rooms, file: Path) -> list[str]:
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
    target = rooms.owner(path)
    if target is None:
        room = rooms.room_of(path)
        found.append(f"{name}:1: " + (f"no target of src/{room} compiles it" if room else "lies in no room of src/"))
    else:
        for line, included, own in includes(text):
            if wrong := check_include(rooms, target, included, own):
                found.append(f"{name}:{line}: {wrong}")
    only_code = code_only(text)
    if file.suffix == ".cpp":
        for line, unused in unused_names(only_code):
            found.append(f"{name}:{line}: {unused} is brought in and not used")
    if target is None or target.folder != NUMBER_ROOM:
        for line, code in enumerate(only_code.split("\n"), 1):
            if match := NUMBER_TEXT.search(code):
                word = match.group().rstrip("( ")
                found.append(f"{name}:{line}: {word}: texts of numbers are made and read in {NUMBER_ROOM} only")
    return found


def included_targets(rooms: Rooms, files: list[Path]) -> dict[str, set[str]]:
    """For each target the targets whose headers its files include."""
    found: dict[str, set[str]] = {name: set() for name in rooms.targets}
    for file in files:
        if target := rooms.owner(file.relative_to(rooms.src).as_posix()):
            names = [name for _, name, _ in includes(file.read_text(encoding="utf-8"))]
            found[target.name] |= {owner.name for name in names if (owner := rooms.owner(name))}
    return found


def check_link(rooms: Rooms, target: Target, link: str, included: set[str]) -> str | None:
    """What is wrong with a link of a target, None when nothing is."""
    other = rooms.target(link)
    if not QT_ROOM.fullmatch(target.folder) and (QT_TARGET.match(link) or (other and rooms.sees_qt(other))):
        return f"{target.name} links {link}: only qt, forms/**/layout and app/mero may link Qt"
    if other is None:
        return None
    if rooms.position[other.name] >= rooms.position[target.name]:
        return f"{target.name} links {link}, which is added later: links go only downwards"
    if other.folder != target.folder and any(beside.is_program for beside in rooms.targets_in(other.folder)):
        return f"{target.name} links {link}, which is a part of the program in src/{other.folder}"
    if other.name not in included:
        return f"{target.name} links {link}, but includes no header of it"
    return None


def check_links(rooms: Rooms, files: list[Path]) -> list[str]:
    """Everything that is wrong with the links between the targets under src/."""
    included = included_targets(rooms, files)
    return [
        f"{target.file}:{line}: {wrong}"
        for target in rooms.targets.values()
        for link, line in target.links.items()
        if (wrong := check_link(rooms, target, link, included[target.name]))
    ]


def check_licence(root: Path, file: Path) -> list[str]:
    """What is wrong with the licence line of a script or a build file: the first line, or the one below #!."""
    lines = file.read_text(encoding="utf-8").split("\n")
    line = lines[1:2] if lines[0].startswith("#!") else lines[:1]
    return [] if line == [f"# {LICENCE}"] else [f"{file.relative_to(root).as_posix()}:1: opens without # {LICENCE}"]


def check_tree(root: Path) -> list[str]:
    """Everything that is wrong in the tree, one line each."""
    rooms = Rooms(root)
    files = source_files(root)
    found = [wrong for file in files for wrong in check_source(root, rooms, file)]
    found += check_links(rooms, [file for file in files if file.is_relative_to(rooms.src)])
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
