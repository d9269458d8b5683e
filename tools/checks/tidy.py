# SPDX-License-Identifier: MIT
"""clang-tidy on the sources under src/, several at a time; a file that passed is remembered until it, a header
that it includes, its compile command, .clang-tidy or this file changes. The tests are left out: the analyzer needs up
to half a minute for each of them.

Use: tidy.py ROOT [SECONDS]   (needs ROOT/build/dev/compile_commands.json)

The newest files come first. After SECONDS no further file is begun; what is left is said and waits for the next call.
"""

import hashlib
import json
import os
import re
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from sources import includes

CLANG_TIDY = "clang-tidy-14"
PRECOMPILED = re.compile(r"-Winvalid-pch|-include \S+cmake_pch\.hxx")


def with_headers(root: Path, file: Path) -> list[Path]:
    """The file and the project's headers that it includes, directly or not."""
    seen, waiting = [], [file]
    while waiting:
        path = waiting.pop()
        if path in seen or not path.is_file():
            continue
        seen.append(path)
        waiting += [root / "src" / name for _, name, own in includes(path.read_text(encoding="utf-8")) if own]
    return sorted(seen)


def commands_for_clang(root: Path) -> Path:
    """A folder with the build's compile commands, less gcc's precompiled headers, which clang cannot read."""
    built = root / "build" / "dev" / "compile_commands.json"
    entries = json.loads(built.read_text(encoding="utf-8"))
    for entry in entries:
        entry["command"] = PRECOMPILED.sub("", entry["command"])
    folder = root / "build" / "tidy-commands"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / built.name).write_text(json.dumps(entries, indent=1), encoding="utf-8")
    return folder


def key_of(root: Path, entry: dict) -> str:
    """A name for everything that decides the verdict on one file."""
    digest = hashlib.sha256(entry["command"].encode())
    for path in [Path(__file__), root / ".clang-tidy", *with_headers(root, Path(entry["file"]))]:
        digest.update(hashlib.sha256(path.read_bytes()).digest())
    return digest.hexdigest()


def tidy(database: Path, file: str, deadline: float) -> subprocess.CompletedProcess | None:
    """The finished check of one file, None when there was no time left to begin it."""
    if time.monotonic() > deadline:
        return None
    # The compile commands are gcc's: clang does not know all its warnings.
    command = [CLANG_TIDY, "--quiet", "--extra-arg=-Wno-unknown-warning-option", "-p", str(database), file]
    return subprocess.run(command, capture_output=True, text=True, check=False)


def main() -> int:
    root = Path(sys.argv[1]).resolve()
    deadline = time.monotonic() + (float(sys.argv[2]) if len(sys.argv) > 2 else float("inf"))
    database = commands_for_clang(root)
    entries = json.loads((database / "compile_commands.json").read_text(encoding="utf-8"))
    stamps = root / "build" / "tidy"
    stamps.mkdir(parents=True, exist_ok=True)

    keys = {entry["file"]: key_of(root, entry) for entry in entries if Path(entry["file"]).is_relative_to(root / "src")}
    waiting = [file for file, key in keys.items() if not (stamps / key).exists()]
    print(f"tidy: {len(keys)} files, {len(waiting)} new or changed", flush=True)

    waiting.sort(key=lambda file: os.stat(file).st_mtime, reverse=True)

    failed = left = 0
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for file, result in zip(waiting, pool.map(lambda name: tidy(database, name, deadline), waiting)):
            if result is None:
                left += 1
                continue
            if result.returncode == 0:
                (stamps / keys[file]).touch()
                continue
            failed += 1
            print(f"{Path(file).relative_to(root)}:\n{result.stdout}{result.stderr}", flush=True)
    if left:
        print(f"tidy: the time is up; {left} files are left for the next call")
    # What no source has any more is forgotten.
    for stamp in stamps.iterdir():
        if stamp.name not in keys.values():
            stamp.unlink()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
