"""clang-tidy on the sources under src/, several at a time; a file that passed is remembered until it, a header
that it includes, its compile command or .clang-tidy changes.

Use: tidy.py ROOT   (needs ROOT/build/dev/compile_commands.json)
"""

import hashlib
import json
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from sources import includes

CLANG_TIDY = "clang-tidy-14"


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


def key_of(root: Path, entry: dict) -> str:
    """A name for everything that decides the verdict on one file."""
    digest = hashlib.sha256(entry["command"].encode())
    for path in [root / ".clang-tidy", *with_headers(root, Path(entry["file"]))]:
        digest.update(hashlib.sha256(path.read_bytes()).digest())
    return digest.hexdigest()


def tidy(database: Path, file: str) -> subprocess.CompletedProcess:
    return subprocess.run(
        [CLANG_TIDY, "--quiet", "-p", str(database), file], capture_output=True, text=True, check=False
    )


def main() -> int:
    root = Path(sys.argv[1]).resolve()
    database = root / "build" / "dev"
    entries = json.loads((database / "compile_commands.json").read_text(encoding="utf-8"))
    stamps = root / "build" / "tidy"
    stamps.mkdir(parents=True, exist_ok=True)

    keys = {entry["file"]: key_of(root, entry) for entry in entries if Path(entry["file"]).is_relative_to(root / "src")}
    waiting = [file for file, key in keys.items() if not (stamps / key).exists()]
    print(f"tidy: {len(keys)} files, {len(waiting)} new or changed", flush=True)

    failed = 0
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        for file, result in zip(waiting, pool.map(lambda name: tidy(database, name), waiting)):
            if result.returncode == 0:
                (stamps / keys[file]).touch()
                continue
            failed += 1
            print(f"{Path(file).relative_to(root)}:\n{result.stdout}{result.stderr}", flush=True)
    # What no source has any more is forgotten.
    for stamp in stamps.iterdir():
        if stamp.name not in keys.values():
            stamp.unlink()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
