# SPDX-License-Identifier: MIT
"""Finds and reads the project's files for the checks: lists of files, code without comments and texts, includes."""

import re
from pathlib import Path

FOLDERS = ("src", "tests", "bench", "fuzz")
SCRIPT_FOLDERS = (*FOLDERS, "cmake", "docs", "packaging", "tools")
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:<(?P<system>[^>]+)>|"(?P<own>[^"]+)")', re.MULTILINE)
# One expression for all, because the first one that begins wins: a quote in a comment begins no text, slashes in a text
# begin no comment. A ' between digits groups them (10'000).
COMMENT_OR_TEXT = re.compile(
    r"""
    //(?:\\\n|[^\n])*
    | /\*.*?\*/
    | R"(?P<delimiter>[^()\s\\]{0,16})\(.*?\)(?P=delimiter)"
    | "(?:\\.|[^"\\\n])*"
    | (?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'
    """,
    re.VERBOSE | re.DOTALL,
)


def source_files(root: Path) -> list[Path]:
    """Every .h and .cpp file of the project, sorted."""
    found = (path for folder in FOLDERS for path in (root / folder).rglob("*"))
    return sorted(path for path in found if path.suffix in (".h", ".cpp"))


def script_files(root: Path) -> list[Path]:
    """Every shell, Python and CMake file of the project, sorted."""
    found = [path for folder in SCRIPT_FOLDERS for path in (root / folder).rglob("*") if "target" not in path.parts]
    scripts = [path for path in found if path.suffix in (".sh", ".py", ".cmake") or path.name == "CMakeLists.txt"]
    roots = [root / name for name in ("CMakeLists.txt", "check", "start", ".ci/run")]
    return sorted(scripts + [path for path in roots if path.is_file()])


def code_only(text: str) -> str:
    """The text with comments and texts emptied; every line keeps its number."""
    return COMMENT_OR_TEXT.sub(lambda match: '""' + "\n" * match.group().count("\n"), text)


def includes(text: str) -> list[tuple[int, str, bool]]:
    """(line, name, own) of every include; `own` is true if it is written with quotes."""
    found = []
    for match in INCLUDE.finditer(text):
        line = text.count("\n", 0, match.start("own" if match["own"] else "system")) + 1
        found.append((line, match["own"] or match["system"], match["own"] is not None))
    return found
