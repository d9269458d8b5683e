# SPDX-License-Identifier: MIT
"""Starts the programs under real faults and acts on them step by step.

MERO_BATCH and, where the window was built, MERO_WINDOW name the programs, MERO_ROOT the source tree.
"""

import functools
import json
import os
import shutil
import subprocess
import tempfile
import threading
import unittest
from pathlib import Path

ROOT = Path(os.environ["MERO_ROOT"])
BATCH = Path(os.environ["MERO_BATCH"])
WINDOW = Path(os.environ["MERO_WINDOW"]) if os.environ.get("MERO_WINDOW") else None
CLOCK = "2026-11-20T14:05:09"
TIME_LIMIT_S = 60
NOBODY = 65534

# A report without any input: only the type is needed.
TYPE = ["tab 1", "click optSelType(0)", "select cboSelType 4"]
REPORT = [*TYPE, "tab 3"]


def fronts() -> list[str]:
    return ["batch"] + (["window"] if WINDOW else [])


def command(front: str, script: str, *options: str, programs: Path | None = None) -> list[str]:
    """@param programs the folder of the programs, the build's by default"""
    if front == "batch":
        return [str(programs / "mero-batch" if programs else BATCH), "run", *options, script]
    return [str(programs / "mero" if programs else WINDOW), "--script", script, *options]


def environment(**changes: str | None) -> dict[str, str]:
    variables = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8",
                     XDG_CONFIG_HOME="/proc/nowhere")
    variables |= {name: value for name, value in changes.items() if value is not None}
    for name, value in changes.items():
        if value is None:
            variables.pop(name, None)
    return variables


def ordinary_user() -> dict[str, int]:
    """Arguments for subprocess to run as an ordinary user, because the superuser is never denied access."""
    return {"user": NOBODY, "group": NOBODY} if os.geteuid() == 0 else {}


class FaultTest(unittest.TestCase):
    """A test with a scratch folder, and a program's folder in it."""

    def setUp(self):
        self.new_scratch()

    def new_scratch(self):
        scratch = tempfile.TemporaryDirectory(prefix="mero faults ěš ", ignore_cleanup_errors=True)
        self.addCleanup(scratch.cleanup)
        self.scratch = Path(scratch.name).resolve()
        self.scratch.chmod(0o755)

    def folder(self, name: str = "program") -> Path:
        folder = self.scratch / name
        folder.mkdir()
        shutil.copy(ROOT / "data" / "mero.mdb", folder)
        shutil.copytree(ROOT / "Webs", folder / "Webs")
        return folder

    def installed(self) -> Path:
        """Installs the programs like a package. Returns their folder."""
        prefix = self.scratch / "usr"
        for place, files in (("bin", [BATCH] + ([WINDOW] if WINDOW else [])),
                             ("share/mero", [ROOT / "data" / "mero.mdb"])):
            (prefix / place).mkdir(parents=True)
            for file in files:
                shutil.copy(file, prefix / place)
        shutil.copytree(ROOT / "Webs", prefix / "share/mero/Webs")
        return prefix / "bin"

    def run_command(self, arguments: list[str], **options) -> subprocess.CompletedProcess:
        """Returns the outputs as texts. Fails on a crash, a hang and a sanitizer's report."""
        options.setdefault("env", environment())
        options.setdefault("stdin", subprocess.DEVNULL)
        for stream in ("stdout", "stderr"):
            options.setdefault(stream, subprocess.PIPE)
        done = subprocess.run(arguments, timeout=TIME_LIMIT_S, check=False, cwd="/", **options)
        done.stdout = (done.stdout or b"").decode("utf-8", "backslashreplace")
        done.stderr = (done.stderr or b"").decode("utf-8", "backslashreplace")
        self.assertGreaterEqual(done.returncode, 0, f"{arguments[0]} crashed: {done.stderr}")
        self.assertNotRegex(done.stderr, "Sanitizer|runtime error:|terminate called")
        return done

    def run_script(self, front: str, lines: list[str], folder: Path, status: int = 0, **options) -> list[dict]:
        """The events of the trace."""
        script = self.scratch / f"{front}.mero"
        script.write_bytes(b"\n".join(line.encode() if isinstance(line, str) else line for line in lines) + b"\n")
        script.chmod(0o644)
        done = self.run_command(
            command(front, str(script), "--folder", str(folder), "--clock", CLOCK), **options)
        self.assertEqual(done.returncode, status, done.stderr)
        return [json.loads(line) for line in done.stdout.splitlines()]


def on_each_front(test):
    """Runs the test once for each front, with the front's name and a new scratch folder."""
    @functools.wraps(test)
    def on_all(self):
        for front in fronts():
            with self.subTest(front=front):
                self.new_scratch()
                test(self, front)
    return on_all


class Running:
    """A running program that performs lines step by step, so that a test can change something in between."""

    def __init__(self, front: str, folder: Path, *options: str, user: dict[str, int] | None = None,
                 **variables: str | None):
        arguments = command(front, "-", "--folder", str(folder), *(options or ("--clock", CLOCK)))
        self.process = subprocess.Popen(arguments, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, env=environment(**variables), cwd="/", **(user or {}))
        self.limit = threading.Timer(TIME_LIMIT_S, self.process.kill)
        self.limit.start()
        self.steps = 0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.stdin.close()
        self.process.wait()
        self.limit.cancel()
        self.process.stdout.close()

    def do(self, *lines: str) -> list[dict]:
        """Performs the lines and returns their trace events. The program may end during them."""
        self.steps += 1
        self.process.stdin.write(("\n".join([*lines, f"echo step-{self.steps}"]) + "\n").encode())
        self.process.stdin.flush()
        events = []
        for line in self.process.stdout:
            event = json.loads(line)
            if event == {"echo": f"step-{self.steps}"}:
                break
            events.append(event)
        return events

    def end(self) -> int:
        """Closes the script. Returns the exit status."""
        self.process.stdin.close()
        return self.process.wait()


def messages(events: list[dict]) -> list[str]:
    return [event["message"] for event in events if "message" in event]


def saved(events: list[dict]) -> list[str]:
    return [event["saved"] for event in events if "saved" in event]
