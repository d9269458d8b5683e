# SPDX-License-Identifier: MIT
"""Runs clang-tidy on every source under src/, tests/, bench/ and fuzz/, several at a time.

A file that passed is remembered in ROOT/build/tidy until one of these changes: the file, a header of ours that it
includes, its compile command, its configuration, this program. src/ is checked by .clang-tidy, the other folders by
tests/.clang-tidy. The newest files are checked first.

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
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S+cmake_pch\.hxx")


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


def commands_for_clang(tree: Tree) -> Path:
    """A folder with one compile command a source, without gcc's precompiled headers, which clang cannot read.

    Headers precompiled by clang save only an eighth of the time of a test: reading headers takes less than checking
    what they hold.
    """
    folder = tree.root / "build" / "tidy-commands"
    folder.mkdir(parents=True, exist_ok=True)
    entries = [
        {**tree.entries[file], "command": PRECOMPILED.sub("", tree.entries[file]["command"])} for file in tree.sources
    ]
    (folder / "compile_commands.json").write_text(json.dumps(entries, indent=1), encoding="utf-8")
    return folder


def tidy(tree: Tree, database: Path, file: Path) -> subprocess.CompletedProcess:
    """The finished check of one file."""
    command = [CLANG_TIDY, "--quiet", f"--extra-arg={EXTRA}", f"--config-file={tree.config_of(file)}",
               "-p", str(database), str(file)]
    return subprocess.run(command, capture_output=True, text=True, check=False)


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
        database = commands_for_clang(tree)
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            for file, result in zip(waiting, pool.map(lambda name: tidy(tree, database, name), waiting)):
                if result.returncode == 0:
                    (stamps / keys[file]).touch()
                    continue
                failed += 1
                print(f"{file.relative_to(root)}:\n{result.stdout}{result.stderr}", flush=True)
    # Files that are gone are forgotten.
    for stamp in stamps.iterdir():
        if stamp.name not in keys.values():
            stamp.unlink()
    print(f"tidy: {len(keys)} files checked, {failed} failed, {len(unseen)} not read")
    return 1 if failed or unseen or not keys else 0


if __name__ == "__main__":
    sys.exit(check(Path(sys.argv[1]).resolve(), sys.argv[2:]))
