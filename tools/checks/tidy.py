# SPDX-License-Identifier: MIT
"""Runs clang-tidy on every source under src/, tests/, bench/ and fuzz/, several at a time.

A file that passed is remembered in ROOT/build/tidy until one of these changes: the file, a header of ours that it
includes, its compile command, its configuration, this program. src/ is checked by .clang-tidy, the other folders by
tests/.clang-tidy. The newest files are checked first.

Files of one folder are read together, as one source that includes them, because reading and walking the headers takes
most of the time of a small file. Where that fails, each is checked alone, so a finding is always that of the file.

The check fails when clang-tidy fails on a file, when a source has no compile command, when no source includes a
header, and when there are no sources.

Use: tidy.py ROOT PRESET...   (reads ROOT/build/PRESET/compile_commands.json; the first one that has a file counts)
"""

import hashlib
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from functools import cache
from pathlib import Path

from sources import FOLDERS, includes, source_files

CLANG_TIDY = "clang-tidy-14"
# The compile commands are gcc's, and clang does not know all of its warnings.
EXTRA = "-Wno-unknown-warning-option"
# Files that are read together. More save little, and the last ones would keep a single processor busy.
MOST_TOGETHER = 8
# In sources that are read together the analyzer reports objects that Qt owns: files that are read alone tell.
NOT_TOGETHER = "--checks=-clang-analyzer-cplusplus.NewDeleteLeaks"
# The analyzer takes the files that a source of this name includes for code, and not for headers.
UNIFIED = "UnifiedSource"
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S+cmake_pch\.hxx")


# What begins a definition in a namespace, up to its name; no name of a class's member, which "::" precedes.
TYPE = re.compile(r"(?:template <.*> )?(?:struct|class|enum class|enum|union) (\w+)")
DEFINITION = re.compile(r"[\w:<>,&*\[\]\" ]*?(?<!::)\b(\w+)\s*[({=\[;]")
NO_DEFINITION = re.compile(r"[\s#/})\]]|namespace\b|using (?:namespace|enum)\b|using [\w:]+;|TEST|BENCHMARK|INSTANTIATE|$")


def defined_names(text: str) -> set[str]:
    """The names that a source defines in its namespaces, which files that are read together must not share."""
    names = set()
    for line in text.splitlines():
        if not NO_DEFINITION.match(line):
            found = TYPE.match(line) or DEFINITION.match(line)
            if found:
                names.add(found.group(1))
    return names


class Tree:
    """The sources of a project with their compile commands."""

    def __init__(self, root: Path, presets: list[str]):
        self.root = root
        self.files = source_files(root)
        self.entries: dict[Path, dict] = {}
        for preset in presets:
            built = root / "build" / preset / "compile_commands.json"
            for entry in json.loads(built.read_text(encoding="utf-8")):
                self.entries.setdefault(Path(entry["file"]), entry)
        self.sources = [file for file in self.files if file in self.entries]
        self.included_by = cache(self._included_by)

    def _included_by(self, file: Path) -> list[Path]:
        """The project's headers that a file includes directly."""
        names = [name for _, name, own in includes(file.read_text(encoding="utf-8")) if own]
        folders = [file.parent, *(self.root / folder for folder in FOLDERS)]
        found = (next((folder / name for folder in folders if (folder / name).is_file()), None) for name in names)
        return [Path(os.path.normpath(path)) for path in found if path]

    def with_headers(self, file: Path) -> list[Path]:
        """The file and the project's headers that it includes, directly or not."""
        seen, waiting = set(), [file]
        while waiting:
            path = waiting.pop()
            if path not in seen:
                seen.add(path)
                waiting += self.included_by(path)
        return sorted(seen)

    def unseen(self) -> list[str]:
        """A line for each file that no run of clang-tidy reads."""
        seen = {path for file in self.sources for path in self.with_headers(file)}
        return [
            f"{file.relative_to(self.root)}: " + ("no source includes it" if file.suffix == ".h" else "no compile command")
            for file in self.files
            if file not in seen
        ]

    def config_of(self, file: Path) -> Path:
        return self.root / (".clang-tidy" if file.is_relative_to(self.root / "src") else "tests/.clang-tidy")

    def key_of(self, file: Path) -> str:
        """A name for everything that decides the verdict on one file."""
        digest = hashlib.sha256(self.entries[file]["command"].encode())
        for path in [Path(__file__), self.config_of(file), *self.with_headers(file)]:
            digest.update(hashlib.sha256(path.read_bytes()).digest())
        return digest.hexdigest()


def flags_of(command: str) -> str:
    """A compile command without what it reads and writes."""
    return re.sub(r" -(?:o|c|MF|MT) \S+", "", PRECOMPILED.sub("", command))


def together(tree: Tree, files: list[Path]) -> list[list[Path]]:
    """The files in groups that can be read as one source each."""
    groups: list[tuple[tuple, set[str], list[Path]]] = []
    for file in files:
        key = (file.parent, tree.config_of(file), flags_of(tree.entries[file]["command"]))
        names = defined_names(file.read_text(encoding="utf-8"))
        for of, taken, group in groups:
            if of == key and len(group) < MOST_TOGETHER and not taken & names:
                taken |= names
                group.append(file)
                break
        else:
            groups.append((key, set(names), [file]))
    return [group for _, _, group in groups]


class Commands:
    """A folder with one compile command a source, and one for each group of sources.

    The commands are without gcc's precompiled headers, which clang cannot read. Headers precompiled by clang save only
    an eighth of the time of a test: reading headers takes less than checking what they hold.
    """

    def __init__(self, tree: Tree, groups: list[list[Path]]):
        self.folder = tree.root / "build" / "tidy-commands"
        self.folder.mkdir(parents=True, exist_ok=True)
        for old in self.folder.glob(UNIFIED + "*"):
            old.unlink()
        entries = [
            {**tree.entries[file], "command": PRECOMPILED.sub("", tree.entries[file]["command"])}
            for file in tree.sources
        ]
        self.unified: dict[Path, Path] = {}  # by the first file of the group
        for group in groups:
            if len(group) > 1:
                source = self.folder / f"{UNIFIED}-{len(self.unified)}.cpp"
                lines = [f'#include "{file}"  // NOLINT(bugprone-suspicious-include)\n' for file in group]
                source.write_text("".join(lines), encoding="utf-8")
                self.unified[group[0]] = source
                entry = tree.entries[group[0]]
                command = f"{flags_of(entry['command'])} -c {source}"
                entries.append({"directory": entry["directory"], "file": str(source), "command": command})
        (self.folder / "compile_commands.json").write_text(json.dumps(entries, indent=1), encoding="utf-8")


def tidy(commands: Commands, config: Path, source: Path, *options: str) -> subprocess.CompletedProcess:
    """The finished check of one source."""
    command = [CLANG_TIDY, "--quiet", f"--extra-arg={EXTRA}", f"--config-file={config}", *options,
               "-p", str(commands.folder), str(source)]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def tidy_group(tree: Tree, commands: Commands, group: list[Path]) -> list[tuple[Path, str]]:
    """What was found in each file of a group; nothing in those that passed."""
    config = tree.config_of(group[0])
    unified = commands.unified.get(group[0])
    if unified and tidy(commands, config, unified, NOT_TOGETHER).returncode == 0:
        return [(file, "") for file in group]
    results = [(file, tidy(commands, config, file)) for file in group]
    return [(file, (result.stdout + result.stderr or "failed") if result.returncode else "") for file, result in results]


def check(root: Path, presets: list[str]) -> int:
    """Checks what has changed since it passed and prints what is wrong. Returns the exit status."""
    tree = Tree(root, presets)
    unseen = tree.unseen()
    for line in unseen:
        print(line)
    stamps = root / "build" / "tidy"
    stamps.mkdir(parents=True, exist_ok=True)
    keys = {file: tree.key_of(file) for file in tree.sources}
    waiting = [file for file, key in keys.items() if not (stamps / key).exists()]
    waiting.sort(key=lambda file: file.stat().st_mtime, reverse=True)
    print(f"tidy: {len(keys)} files, {len(waiting)} new or changed", flush=True)

    failed = 0
    if waiting:
        groups = together(tree, waiting)
        commands = Commands(tree, groups)
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            for results in pool.map(lambda group: tidy_group(tree, commands, group), groups):
                for file, found in results:
                    if not found:
                        (stamps / keys[file]).touch()
                        continue
                    failed += 1
                    print(f"{file.relative_to(root)}:\n{found}", flush=True)
    # Files that are gone are forgotten.
    for stamp in stamps.iterdir():
        if stamp.name not in keys.values():
            stamp.unlink()
    print(f"tidy: {len(keys)} files checked, {failed} failed, {len(unseen)} not read")
    return 1 if failed or unseen or not keys else 0


if __name__ == "__main__":
    sys.exit(check(Path(sys.argv[1]).resolve(), sys.argv[2:]))
