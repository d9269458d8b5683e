# SPDX-License-Identifier: MIT
"""The rooms of src/, read from its CMakeLists.txt files: which target compiles a file, and what the target links.

A room is a folder with a CMakeLists.txt that defines targets. Folders below it without such a file belong to it.
Read are add_subdirectory, mero_library, add_library, add_executable, target_sources and target_link_libraries;
conditions are ignored, so the rooms of the window count in every build.
"""

import re
from collections.abc import Iterator
from dataclasses import dataclass, field
from pathlib import Path, PurePosixPath

TOKEN = re.compile(
    r"""
    (?P<space>\s+|\#\[\[.*?\]\]|\#[^\n]*)
    | (?P<bracket>[()])
    | "(?P<quoted>(?:\\.|[^"\\])*)"
    | (?P<word>[^\s()"\#]+)
    """,
    re.VERBOSE | re.DOTALL,
)
SCOPES = {"PUBLIC", "PRIVATE", "INTERFACE"}
KINDS = {"STATIC", "SHARED", "MODULE", "OBJECT", "INTERFACE", "WIN32", "MACOSX_BUNDLE", "EXCLUDE_FROM_ALL"}
QT_TARGET = re.compile(r"^Qt\d?::\w+$")


@dataclass
class Target:
    """A library or a program under src/. Paths are relative to src/."""

    name: str
    folder: str
    is_program: bool
    sources: set[str] = field(default_factory=set)
    links: dict[str, int] = field(default_factory=dict)  # name: line of the CMakeLists.txt
    private: set[str] = field(default_factory=set)  # the links that do not pass to those who link this target

    @property
    def file(self) -> str:
        return f"src/{self.folder}/CMakeLists.txt".replace("//", "/")


def commands(text: str) -> Iterator[tuple[str, list[tuple[str, int]]]]:
    """(name in lower case, [(argument, line)]) of each CMake command."""
    name, depth, line, arguments = "", 0, 1, []
    for match in TOKEN.finditer(text):
        token = match["word"] if match["quoted"] is None else match["quoted"]
        if match["bracket"] == "(":
            depth += 1
        elif match["bracket"] == ")":
            depth -= 1
            if depth == 0:
                yield name.lower(), arguments
                arguments = []
        elif token is not None and depth == 0:
            name = token
        elif token is not None:
            arguments.append((token, line))
        line += match.group().count("\n")


def sections(arguments: list[tuple[str, int]], keywords: set[str]) -> dict[str, list[tuple[str, int]]]:
    """The arguments after each keyword; those before the first one under ""."""
    found: dict[str, list[tuple[str, int]]] = {"": []}
    current = ""
    for argument, line in arguments:
        if argument in keywords:
            current = argument
            found.setdefault(current, [])
        else:
            found[current].append((argument, line))
    return found


class Rooms:
    """The targets under src/, in the order in which CMake defines them."""

    def __init__(self, root: Path):
        self.src = root / "src"
        self.targets: dict[str, Target] = {}
        self.folders: set[str] = set()
        self._aliases: dict[str, str] = {}
        self._read("")
        self.position = {name: index for index, name in enumerate(self.targets)}

    def _read(self, folder: str):
        file = self.src / folder / "CMakeLists.txt"
        if folder in self.folders or not file.is_file():
            return
        self.folders.add(folder)
        for name, arguments in commands(file.read_text(encoding="utf-8")):
            if not arguments:
                continue
            first, rest = arguments[0][0], arguments[1:]
            if name == "add_subdirectory":
                self._read((PurePosixPath(folder) / first).as_posix())
            elif name == "mero_library":
                parts = sections(rest, {"SOURCES", "LINKS"})
                target = self._define(first, folder, False, parts.get("SOURCES", []))
                target.links.update(parts.get("LINKS", []))
            elif name == "add_library" and rest and rest[0][0] == "ALIAS":
                self._aliases[first] = rest[1][0]
            elif name in ("add_library", "add_executable") and all(word != "IMPORTED" for word, _ in rest):
                self._define(first, folder, name == "add_executable", rest)
            elif name in ("target_sources", "target_link_libraries") and first in self.targets:
                self._extend(self.targets[first], name, sections(rest, SCOPES), folder)

    def _define(self, name: str, folder: str, is_program: bool, sources: list[tuple[str, int]]) -> Target:
        target = self.targets[name] = Target(name, folder, is_program)
        target.sources = {self._path(folder, source) for source, _ in sources if source not in KINDS}
        return target

    def _extend(self, target: Target, command: str, parts: dict[str, list[tuple[str, int]]], folder: str):
        for scope, arguments in parts.items():
            if command == "target_sources":
                target.sources |= {self._path(folder, source) for source, _ in arguments}
                continue
            target.links.update(arguments)
            if scope == "PRIVATE":
                target.private |= {link for link, _ in arguments}

    @staticmethod
    def _path(folder: str, source: str) -> str:
        source = source.replace("${CMAKE_CURRENT_SOURCE_DIR}/", "").replace("${CMAKE_CURRENT_LIST_DIR}/", "")
        return (PurePosixPath(folder) / source).as_posix()

    def target(self, link: str) -> Target | None:
        """The target under src/ that is linked by this name, None when it is none of ours."""
        return self.targets.get(self._aliases.get(link, link))

    def sees(self, target: Target) -> set[str]:
        """Everything that the target links, directly or through the public links of another, and itself."""
        seen = {target.name}
        waiting = list(target.links)
        while waiting:
            name = waiting.pop()
            other = self.target(name)
            name = other.name if other else name
            if name not in seen:
                seen.add(name)
                waiting += [link for link in other.links if link not in other.private] if other else []
        return seen

    def sees_qt(self, target: Target) -> bool:
        return any(QT_TARGET.match(name) for name in self.sees(target))

    def room_of(self, path: str) -> str | None:
        """The folder of the room that a file lies in, None when it lies in none."""
        for folder in PurePosixPath(path).parents:
            name = "" if folder.as_posix() == "." else folder.as_posix()
            if name in self.folders:
                return name if self.targets_in(name) else None
        return None

    def targets_in(self, folder: str) -> list[Target]:
        return [target for target in self.targets.values() if target.folder == folder]

    def owner(self, path: str) -> Target | None:
        """The target that a file belongs to, None when there is none.

        A file belongs to the target that lists it. A header that none lists goes with the source of the same name,
        else it belongs to the first library of its room, or to the program of a room without a library.
        """
        room = self.room_of(path)
        if room is None:
            return None
        here = self.targets_in(room)
        names = [path]
        if path.endswith(".h"):
            names.append(path.removesuffix(".h") + ".cpp")
        for name in names:
            for target in here:
                if name in target.sources:
                    return target
        if not path.endswith(".h"):
            return None
        return next((target for target in here if not target.is_program), here[0])
