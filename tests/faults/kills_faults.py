# SPDX-License-Identifier: MIT
"""Programs are killed at random moments: no file is torn, and the next run leaves no temporary file behind.

MERO_KILLS is the number of kills of each kind, MERO_SEED chooses the moments; both are printed with the counts.
"""

import os
import random
import subprocess
import time
import unittest
from pathlib import Path
from typing import Callable

from program import BATCH, CLOCK, REPORT, ROOT, TIME_LIMIT_S, FaultTest, environment

KILLS = int(os.environ.get("MERO_KILLS", "15"))
SEED = int(os.environ.get("MERO_SEED", "20261120"))
PROJECT = str(ROOT / "examples/projekty/nadrz.json")
OLD = b"an old, complete file\n"


def leftovers(folder: Path) -> list[Path]:
    return list(folder.rglob(".mero-??????"))


class Kills(FaultTest):
    def kill_often(self, arguments: list[str], folder: Path, prepare: Callable[[], None],
                   check: Callable[[bool], None], program: Path = BATCH, **variables: str):
        """Kills the command KILLS times at moments from before its start to after its end, then runs it to its end.

        @param prepare called before each run
        @param check called after each run with whether it came to its end
        """
        moments = random.Random(SEED)
        command = [str(program), *arguments]

        def start() -> subprocess.Popen:
            return subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                    stderr=subprocess.DEVNULL, env=environment(**variables), cwd="/")

        prepare()
        begin = time.monotonic()
        self.assertEqual(start().wait(TIME_LIMIT_S), 0)
        duration = time.monotonic() - begin
        killed = orphans = 0
        for _ in range(KILLS):
            prepare()
            process = start()
            time.sleep(moments.uniform(0, 1.1 * duration))
            process.kill()
            ended = process.wait(TIME_LIMIT_S) == 0
            killed += not ended
            left = leftovers(folder)
            orphans += bool(left)
            self.assertLessEqual(len(left), 1, "the run has removed the temporary files of those before it")
            check(ended)
        prepare()
        self.assertEqual(start().wait(TIME_LIMIT_S), 0)
        check(True)
        self.assertEqual(leftovers(folder), [])
        print(f"{self.id().rsplit('.', 1)[-1]}: seed {SEED}, {KILLS} runs, {killed} killed before their end, "
              f"{orphans} with a temporary file, none torn, none left", flush=True)
        self.assertGreater(killed, 0)

    def whole(self, file: Path, complete: bytes) -> Callable[[bool], None]:
        def check(ended: bool):
            content = file.read_bytes()
            self.assertIn(content, [complete] if ended else [complete, OLD], f"{len(content)} bytes are torn")
        return check

    def test_sweeps(self):
        file = self.scratch / "out" / "rows.csv"
        file.parent.mkdir()
        arguments = ["sweep", PROJECT, "--vary", "facility.safety_factor=1:2:0.0001", "--out", str(file)]
        self.run_command([str(BATCH), *arguments])
        complete = file.read_bytes()
        self.assertEqual(complete.count(b"\n"), 10002)
        self.kill_often(arguments, file.parent, lambda: file.write_bytes(OLD), self.whole(file, complete))

    def test_plots(self):
        file = self.scratch / "out" / "plot.svg"
        file.parent.mkdir()
        arguments = ["sweep", PROJECT, "--vary", "facility.safety_factor=1:2:0.001", "--plot", str(file)]
        self.run_command([str(BATCH), *arguments])
        self.kill_often(arguments, file.parent, lambda: file.write_bytes(OLD), self.whole(file, file.read_bytes()))

    def test_designs(self):
        file = self.scratch / "out" / "report.html"
        file.parent.mkdir()
        arguments = ["design", PROJECT, "--clock", CLOCK, "--report", str(file)]
        self.run_command([str(BATCH), *arguments])
        self.kill_often(arguments, file.parent, lambda: file.write_bytes(OLD), self.whole(file, file.read_bytes()))

    def test_reports_of_the_forms(self):
        folder = self.folder()
        script = self.scratch / "s.mero"
        # The report is written again and again; the end removes it.
        script.write_text("\n".join([*REPORT, *["tab 0", "tab 3"] * 20]))
        first = self.scratch / "first.mero"
        first.write_text("\n".join(REPORT))
        report = folder / "Mero_"
        self.run_command([str(BATCH), "run", "--folder", str(folder), "--clock", CLOCK, str(first)])
        complete = report.read_bytes()

        def check(_: bool):
            self.assertTrue(not report.exists() or report.read_bytes() in (complete, OLD))

        self.kill_often(["run", "--folder", str(folder), "--clock", CLOCK, str(script)], folder,
                        lambda: report.write_bytes(OLD), check)

    def test_first_starts(self):
        programs = self.installed()
        home = self.scratch / "home"
        script = self.scratch / "s.mero"
        script.write_text("")
        originals = {path.relative_to(ROOT): path.read_bytes()
                     for path in [ROOT / "data/mero.mdb", *(ROOT / "Webs").rglob("*")] if path.is_file()}
        originals[Path("mero.mdb")] = originals.pop(Path("data/mero.mdb"))

        def remove_all():
            """The next start copies them again, as a first start does; the temporary files stay."""
            for name in originals:
                (home / "mero" / name).unlink(missing_ok=True)

        def check(ended: bool):
            there = {path.relative_to(home / "mero"): path.read_bytes() for path in (home / "mero").rglob("*")
                     if path.is_file() and not path.name.startswith(".mero-")}
            for name, content in there.items():
                self.assertEqual(content, originals[name], f"{name} is torn")
            if ended:
                self.assertEqual(there.keys(), originals.keys())

        self.kill_often(["run", str(script)], self.scratch, remove_all, check, programs / "mero-batch",
                        XDG_DATA_HOME=str(home))


if __name__ == "__main__":
    unittest.main()
