# SPDX-License-Identifier: MIT
"""Changes one operator, constant, condition or statement at a time in the formulas and the texts of numbers, builds
the unit tests of their room and runs them. The command fails if a mutant survives and tools/checks/mutants-explained.txt
does not explain it, and if an explained mutant is killed.

Use: mutation.py [--root ROOT] [--only FILE]... [--jobs N] [--seconds N] [--list] [--fresh]

Needs the packages of ./check. Works on a copy in ROOT/build/mutation and stores each verdict there until a file that
decided it changes. So an interrupted run can be continued, and after a change only the affected mutants run again.
"""

import argparse
import fcntl
import hashlib
import json
import os
import resource
import shutil
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass, field
from pathlib import Path

from mutants import Mutant, mutants_of
from sources import includes

COMPILER = "clang++-14"
# With the library's assertions, so that reading past the end of a text fails.
FLAGS = ["-std=c++20", "-O0", "-g0", "-w", "-ffp-contract=off", "-D_GLIBCXX_ASSERTIONS"]
# Headers that take most of the compile time are precompiled: the standard ones, and GoogleTest's for the tests.
TEST_HEADERS = {"sources": [], "plain": ["gmock/gmock.h", "gtest/gtest.h"]}
TEST_HEADERS["properties"] = [*TEST_HEADERS["plain"], "rapidcheck/gtest.h"]
# The same fixed seed as in the tests of the build.
ENVIRONMENT = {"RC_PARAMS": "seed=20240601 max_success=1000"}
# Processor time, because on a busy machine the wall clock would also end good runs. Unchanged tests take under 1 s.
TEST_SECONDS = 5
TEST_CLOCK_SECONDS = 120
MEMORY = 2 << 30
EXPLAINED = "tools/checks/mutants-explained.txt"


@dataclass(frozen=True)
class Room:
    """Sources and the unit tests that must fail when one of them changes."""

    sources: str
    tests: str
    links: tuple[str, ...] = ()


ROOMS = (Room("src/platform/numbers", "tests/platform/numbers"), Room("src/calc", "tests/calc", ("src/platform/numbers",)))


class Tree:
    """A copy of the sources and of their headers, so that the tree can be edited during the run."""

    def __init__(self, root: Path, folder: Path):
        self.folder = folder
        shutil.rmtree(folder, ignore_errors=True)
        for room in ROOMS:
            for name in (room.sources, room.tests, "tests/support"):
                if (root / name).is_dir():
                    shutil.copytree(root / name, folder / name, dirs_exist_ok=True)
        self.texts = {str(path.relative_to(folder)): path.read_text(encoding="utf-8")
                      for path in sorted(folder.rglob("*")) if path.suffix in (".h", ".cpp")}
        self.closures: dict[str, frozenset[str]] = {}

    def files(self, folder: str, suffix: str) -> list[str]:
        return [name for name in self.texts if name.startswith(folder + "/") and name.endswith(suffix)]

    def closure(self, name: str) -> frozenset[str]:
        """The file and everything that it includes, directly or not."""
        if name not in self.closures:
            seen, waiting = set(), [name]
            while waiting:
                at = waiting.pop()
                if at in seen:
                    continue
                seen.add(at)
                own = [found for _, found, quoted in includes(self.texts[at]) if quoted]
                waiting += [f"{top}/{found}" for found in own for top in ("src", "tests") if f"{top}/{found}" in self.texts]
            self.closures[name] = frozenset(seen)
        return self.closures[name]

    def kind(self, name: str) -> str:
        """The set of precompiled headers that a source uses."""
        if name.startswith("src/"):
            return "sources"
        return "properties" if any("rapidcheck" in self.texts[used] for used in self.closure(name)) else "plain"

    def library_headers(self) -> list[str]:
        """The standard headers that the sources include."""
        return sorted({found for name, text in self.texts.items() if name.startswith("src/")
                       for _, found, own in includes(text) if not own})

    def digest(self, names) -> str:
        digest = hashlib.sha256()
        for name in sorted(names):
            digest.update(f"{name}\0{self.texts[name]}\0".encode())
        return digest.hexdigest()


@dataclass
class Bench:
    """Compiles and links in one folder; `mutated` replaces the tree's file of that name."""

    tree: Tree
    folder: Path
    precompiled: Path
    mutated: str | None = None

    def place(self, name: str, text: str):
        shutil.rmtree(self.folder, ignore_errors=True)
        path = self.folder / "changed" / name
        path.parent.mkdir(parents=True)
        path.write_text(text, encoding="utf-8")
        self.mutated = name

    def object_of(self, name: str) -> Path:
        return self.folder / "objects" / (name + ".o")

    def compiled(self, name: str) -> tuple[Path | None, str]:
        """The object file of a source, or None and the compiler's output if it does not compile."""
        target = self.object_of(name)
        target.parent.mkdir(parents=True, exist_ok=True)
        path = self.folder / "changed" / name if name == self.mutated else self.tree.folder / name
        command = [COMPILER, *FLAGS, "-include-pch", str(self.precompiled / f"{self.tree.kind(name)}.pch")]
        command += [f"-I{self.folder / 'changed' / 'src'}", f"-I{self.tree.folder / 'src'}", f"-I{self.tree.folder / 'tests'}"]
        done = subprocess.run([*command, "-c", str(path), "-o", str(target)], capture_output=True, text=True, check=False)
        return (target if done.returncode == 0 else None), done.stderr

    def linked(self, name: str, objects: list[Path]) -> Path:
        target = self.folder / name
        libraries = ["-lgmock", "-lgtest", "-lgtest_main", "-lpthread"]
        if any("properties" in path.name for path in objects):
            libraries.insert(0, "-lrapidcheck")
        subprocess.run([COMPILER, "-fuse-ld=lld", *map(str, objects), *libraries, "-o", str(target)], check=True)
        return target


def passes(program: Path, seconds: int) -> bool:
    """Runs a test with limits on time and memory, because a mutant may loop forever or allocate without end."""
    def limit():
        resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))
        resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
        resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

    try:
        # In fixed order, so that a result can be reproduced.
        done = subprocess.run([program, "--gtest_brief=1", "--gtest_fail_fast"], env=os.environ | ENVIRONMENT,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=TEST_CLOCK_SECONDS,
                              cwd=program.parent, preexec_fn=limit, check=False)
    except subprocess.TimeoutExpired:
        return False
    return done.returncode == 0


@dataclass
class Workshop:
    """Holds the unchanged objects of every room and decides on the mutants one by one."""

    tree: Tree
    folder: Path
    seconds: int
    objects: dict[str, Path] = field(default_factory=dict)

    def prepare(self, jobs: int, rooms: list[Room]):
        """Compiles the unchanged sources. The tests of a room must pass before they can decide on mutants."""
        bench = Bench(self.tree, self.folder / "unchanged", self.folder / "precompiled")
        names = sorted({name for room in rooms for folder in (room.sources, room.tests, *room.links)
                        for name in self.tree.files(folder, ".cpp")})
        for kind in sorted({self.tree.kind(name) for name in names}):
            self.precompile(kind)
        with ThreadPoolExecutor(jobs) as pool:
            for name, (path, words) in zip(names, pool.map(lambda name: self.unchanged(bench, name), names)):
                if path is None:
                    sys.exit(f"mutation: {name} does not compile:\n{words}")
                self.objects[name] = path
        for room in rooms:
            tests = self.tree.files(room.tests, ".cpp")
            if not passes(bench.linked("tests", [self.objects[name] for name in tests + self.sources_of(room)]), self.seconds):
                sys.exit(f"mutation: the tests in {room.tests} fail on the unchanged sources")

    def precompile(self, kind: str):
        header = self.folder / "precompiled" / f"{kind}.h"
        text = "".join(f"#include <{name}>\n" for name in [*TEST_HEADERS[kind], *self.tree.library_headers()])
        if header.is_file() and header.read_text() == text and header.with_suffix(".pch").is_file():
            return
        header.parent.mkdir(parents=True, exist_ok=True)
        header.write_text(text)
        subprocess.run([COMPILER, *FLAGS, "-x", "c++-header", str(header), "-o", str(header.with_suffix(".pch"))],
                       check=True)

    def unchanged(self, bench: "Bench", name: str) -> tuple[Path | None, str]:
        """The object file of an unchanged source; an earlier one is reused if nothing that it includes has changed."""
        target = bench.object_of(name)
        stamp, key = target.with_suffix(".key"), f"{FLAGS}{self.tree.digest(self.tree.closure(name))}"
        if target.is_file() and stamp.is_file() and stamp.read_text() == key:
            return target, ""
        path, words = bench.compiled(name)
        if path is not None:
            stamp.write_text(key)
        return path, words

    def sources_of(self, room: Room) -> list[str]:
        return [name for folder in (room.sources, *room.links) for name in self.tree.files(folder, ".cpp")]

    def stages(self, room: Room, name: str) -> list[list[str]]:
        """The tests in the order in which they run: the one of the same path, then those of the room that see the file."""
        tests = self.tree.files(room.tests, ".cpp")
        stem = Path(name).stem
        mirrored = [test for test in tests if Path(test).stem == stem + "_test"]
        header = str(Path(name).with_suffix(".h"))
        seeing = [test for test in tests if {name, header} & self.tree.closure(test)]
        rest = [test for test in tests if test not in mirrored]
        if name.endswith(".h"):
            rest = [test for test in rest if test in seeing]
        return [stage for stage in (mirrored, rest) if stage]

    def keys(self, room: Room, name: str, mutant: Mutant) -> list[str]:
        """For each stage a key of everything that decides it: the change, the sources and the tests so far."""
        sources = {used for source in self.sources_of(room) for used in self.tree.closure(source)}
        keys, tests = [], set()
        for stage in self.stages(room, name):
            tests |= {used for test in stage for used in self.tree.closure(test)}
            own = hashlib.sha256(f"{FLAGS}{mutant.begin}:{mutant.end}:{mutant.text}".encode()).hexdigest()
            keys.append(f"{name}:{own}:{self.tree.digest(sources | tests)}")
        return keys

    def judge(self, bench: Bench, room: Room, name: str, mutant: Mutant) -> tuple[str, int]:
        """killed, survived or not compiled, and the stage that decided it."""
        bench.place(name, mutant.applied(self.tree.texts[name]))
        objects = {}
        for source in self.sources_of(room):
            objects[source] = self.objects[source]
            if name in self.tree.closure(source):
                objects[source], words = bench.compiled(source)
                if objects[source] is None:
                    return ("killed" if "static assertion failed" in words else "not compiled"), 0
        stages = self.stages(room, name)
        for number, stage in enumerate(stages):
            built = []
            for test in stage:
                if name not in self.tree.closure(test):
                    built.append(self.objects[test])
                    continue
                path, words = bench.compiled(test)
                if path is None:
                    return ("killed" if "static assertion failed" in words else "not compiled"), number
                built.append(path)
            if not passes(bench.linked(f"tests{number}", [*built, *objects.values()]), self.seconds):
                return "killed", number
        return "survived", len(stages) - 1


def read_explained(path: Path) -> dict[tuple[str, str, str], str]:
    """(file, line of code, change) -> why no test can fail. An entry is a block of lines: the file, the code,
    one or more changes, the reason."""
    explained = {}
    if not path.is_file():
        return explained
    lines = [line for line in path.read_text(encoding="utf-8").split("\n") if not line.startswith("#")]
    for block in "\n".join(lines).split("\n\n"):
        entry: dict[str, list[str]] = {}
        for line in block.strip().split("\n"):
            key, _, value = line.partition(": ")
            entry.setdefault(key.strip(), []).append(value.strip())
        if entry.keys() == {""}:
            continue
        if not {"file", "code", "change", "why"} == entry.keys():
            sys.exit(f"mutation: {path}: an entry needs file, code, change and why:\n{block}")
        for change in entry["change"]:
            explained[entry["file"][0], entry["code"][0], change] = " ".join(entry["why"])
    return explained


class Memory:
    """The verdicts of earlier calls; each new one is stored at once."""

    def __init__(self, path: Path, fresh: bool):
        self.path, self.lock, self.verdicts = path, threading.Lock(), {}
        if fresh:
            path.unlink(missing_ok=True)
        if path.is_file():
            for line in path.read_text(encoding="utf-8").splitlines():
                key, _, verdict = line.rpartition(" ")
                self.verdicts[key] = verdict.replace("-", " ")

    def find(self, keys: list[str]) -> str | None:
        """A mutant is killed if one stage killed it; it survives only if all stages let it pass."""
        known = [self.verdicts.get(key) for key in keys]
        return next((verdict for verdict in known if verdict), None)

    def keep(self, key: str, verdict: str):
        with self.lock, self.path.open("a", encoding="utf-8") as file:
            self.verdicts[key] = verdict
            file.write(f"{key} {verdict.replace(' ', '-')}\n")


def main() -> int:
    parser = argparse.ArgumentParser(description="Mutation check of the formulas and the texts of numbers.")
    parser.add_argument("--root", type=Path, default=Path(__file__).resolve().parents[2])
    parser.add_argument("--only", action="append", metavar="FILE", help="a source, or the end of its path")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--seconds", type=int, default=TEST_SECONDS, help="of the processor for one run of tests")
    parser.add_argument("--list", action="store_true", help="only prints the mutants")
    parser.add_argument("--fresh", action="store_true", help="forgets what earlier calls found")
    arguments = parser.parse_args()
    root = arguments.root.resolve()
    folder = root / "build" / "mutation"
    folder.mkdir(parents=True, exist_ok=True)

    lock = (folder / "lock").open("w")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit(f"mutation: another call works in {folder}")
    tree = Tree(root, folder / "tree")
    work = []
    for room in ROOMS:
        for name in tree.files(room.sources, ".h") + tree.files(room.sources, ".cpp"):
            if not arguments.only or any(name.endswith(only) for only in arguments.only):
                work += [(room, name, mutant) for mutant in mutants_of(tree.texts[name])]
    if arguments.list:
        for _, name, mutant in work:
            print(f"{name}:{mutant.line}: {mutant.change}    in: {mutant.code}")
        print(f"{len(work)} mutants")
        return 0
    return run(root, folder, tree, work, arguments)


def run(root: Path, folder: Path, tree: Tree, work: list, arguments: argparse.Namespace) -> int:
    begin = time.monotonic()
    memory = Memory(folder / "verdicts.txt", arguments.fresh)
    workshop = Workshop(tree, folder, arguments.seconds)
    workshop.prepare(arguments.jobs, [room for room in ROOMS if any(room == used for used, _, _ in work)])
    benches = threading.local()
    progress = {"done": 0}

    def judged(item) -> str:
        room, name, mutant = item
        keys = workshop.keys(room, name, mutant)
        verdict = memory.find(keys)
        if verdict is None:
            if not hasattr(benches, "own"):
                benches.own = Bench(tree, folder / f"bench-{threading.get_ident()}", folder / "precompiled")
            verdict, stage = workshop.judge(benches.own, room, name, mutant)
            memory.keep(keys[stage], verdict)
        progress["done"] += 1
        if progress["done"] % 50 == 0:
            print(f"mutation: {progress['done']} of {len(work)}, {time.monotonic() - begin:.0f} s", flush=True)
        return verdict

    with ThreadPoolExecutor(arguments.jobs) as pool:
        try:
            verdicts = list(pool.map(judged, work))
        except BaseException:
            pool.shutdown(cancel_futures=True)
            raise
        finally:
            for bench in folder.glob("bench-*"):
                shutil.rmtree(bench)
    return report(root, work, verdicts, begin)


def report(root: Path, work: list, verdicts: list[str], begin: float) -> int:
    explained = read_explained(root / EXPLAINED)
    files = sorted({name for _, name, _ in work})
    count = {name: {"killed": 0, "explained": 0, "survived": 0, "not compiled": 0} for name in files}
    complaints, met = [], set()
    # A line of code that occurs twice in a file has one entry, which is valid if one of its mutants survives.
    surviving = {(name, mutant.code, mutant.change) for (_, name, mutant), verdict in zip(work, verdicts)
                 if verdict == "survived"}
    for (_, name, mutant), verdict in zip(work, verdicts):
        key = (name, mutant.code, mutant.change)
        place = f"{name}:{mutant.line}: {mutant.change}    in: {mutant.code}"
        if key in explained:
            met.add(key)
            if verdict == "survived":
                verdict = "explained"
            elif key not in surviving:
                complaints.append(f"{verdict}, though explained: {place}")
        elif verdict == "survived":
            complaints.append(f"survived: {place}")
        count[name][verdict] += 1
    complaints += [f"explained, but there is no such mutant: {': '.join(key)}"
                   for key in explained if key[0] in files and key not in met]
    print(f"{'':44}" + "".join(f"{column:>14}" for column in ("killed", "explained", "survived", "not compiled")))
    for name in files:
        print(f"{name:44}" + "".join(f"{number:14}" for number in count[name].values()))
    totals = [sum(count[name][column] for name in files) for column in ("killed", "explained", "survived", "not compiled")]
    print(f"{'all':44}" + "".join(f"{number:14}" for number in totals))
    for line in complaints:
        print(line)
    print(f"mutation: {len(work)} mutants, {time.monotonic() - begin:.0f} s, {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
