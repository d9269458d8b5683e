# SPDX-License-Identifier: MIT
"""Runs every script in a new program folder and compares trace, exit status and the files left in it.

Use: run_scripts.py --program PROGRAM [--window] [--accept] [--only NAME]...

A script NAME.mero has its expected trace in NAME.trace, where <folder> is the program's folder. Comments at its
beginning set options:
    # folder: KIND        kind of the program's folder (see FOLDERS); default: database and pages
    # name: TEXT          name of the program's folder
    # exit: STATUS        expected exit status; default 0
    # leaves: A | B       files that the run leaves in the folder; default none
    # needs: window       it saves a PDF file, which the window program makes: skipped where that was not built
Every examples/*.mero of the project is run too; its trace is in examples/ here. A script that fails writes
NAME.out beside its trace. --accept writes the traces instead: check each line before committing it.
With --window the scripts drive the real window, all of them under one virtual display.
"""

import argparse
import difflib
import json
import os
import shutil
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
CLOCK = "2026-11-20T14:05:09"
TIME_LIMIT_S = 120
SKIPPED = 77
NOBODY = 65534


def ordinary(folder: Path) -> None:
    shutil.copy(ROOT / "data" / "mero.mdb", folder)
    shutil.copytree(ROOT / "Webs", folder / "Webs")


def without_database(folder: Path) -> None:
    shutil.copytree(ROOT / "Webs", folder / "Webs")


def empty(folder: Path) -> None:
    del folder


def garbage_database(folder: Path) -> None:
    ordinary(folder)
    (folder / "mero.mdb").write_bytes(b"This is no database.\n" * 500)


def empty_database(folder: Path) -> None:
    ordinary(folder)
    (folder / "mero.mdb").write_bytes(b"")


def cut_database(folder: Path) -> None:
    ordinary(folder)
    whole = (folder / "mero.mdb").read_bytes()
    (folder / "mero.mdb").write_bytes(whole[: len(whole) // 4])


def folder_as_database(folder: Path) -> None:
    without_database(folder)
    (folder / "mero.mdb").mkdir()


def folder_as_report(folder: Path) -> None:
    ordinary(folder)
    (folder / "Mero_Test").mkdir()


def locked_report(folder: Path) -> None:
    ordinary(folder)
    (folder / "Mero_Test").write_text("what it held before")
    (folder / "Mero_Test").chmod(0o444)


def read_only(folder: Path) -> None:
    ordinary(folder)
    folder.chmod(0o555)


FOLDERS = {
    kind.__name__.replace("_", "-"): kind
    for kind in (ordinary, without_database, empty, garbage_database, empty_database, cut_database,
                 folder_as_database, folder_as_report, locked_report, read_only)
}
# Permissions do not restrict root: these then run as the user nobody, with windows in memory, because a display's
# access control would refuse that user.
NEEDS_ORDINARY_USER = {"locked-report", "read-only"}


@dataclass
class Script:
    path: Path
    trace: Path
    folder: str = "ordinary"
    name: str = "program"
    exit: int = 0
    leaves: list[str] | None = field(default_factory=list)  # None: any
    needs_window_program: bool = False


def read_script(path: Path, trace: Path) -> Script:
    script = Script(path, trace)
    for line in path.read_text(encoding="utf-8-sig", errors="replace").splitlines():
        if not line.startswith("#"):
            break
        key, _, value = line.lstrip("# ").partition(": ")
        value = value.strip()
        if key == "folder":
            script.folder = value
        elif key == "name":
            script.name = value
        elif key == "exit":
            script.exit = int(value)
        elif key == "leaves":
            script.leaves = [name.strip() for name in value.split("|")]
        elif key == "needs":
            script.needs_window_program = value == "window"
    return script


def all_scripts() -> list[Script]:
    own = [read_script(path, path.with_suffix(".trace")) for path in sorted(HERE.glob("*.mero"))]
    examples = [
        read_script(path, HERE / "examples" / (path.stem + ".trace"))
        for path in sorted((ROOT / "examples").glob("*.mero"))
    ]
    for example in examples:
        example.leaves = None
    return own + examples


def content(folder: Path) -> set[str]:
    return {path.name for path in folder.iterdir()}


def follow(program: Path, script: Script, window: bool) -> tuple[int, str, str, list[str]]:
    """Exit status, trace, diagnostics, names of the files that are new in the folder."""
    with tempfile.TemporaryDirectory(prefix="mero-scripts-") as scratch:
        Path(scratch).chmod(0o755)
        folder = Path(scratch).resolve() / script.name
        folder.mkdir()
        FOLDERS[script.folder](folder)
        before = content(folder)
        nobody = script.folder in NEEDS_ORDINARY_USER and os.geteuid() == 0
        if script.folder == "locked-report" and nobody:
            folder.chmod(0o777)
        options = ["--folder", str(folder), "--clock", CLOCK]
        command = [str(program), "--script", str(script.path), *options] if window else [
            str(program), "run", *options, str(script.path)]
        try:
            done = subprocess.run(command, capture_output=True, timeout=TIME_LIMIT_S, cwd="/", check=False,
                                  user=NOBODY if nobody else None,
                                  env=dict(os.environ, QT_QPA_PLATFORM="offscreen") if nobody else None)
        except subprocess.TimeoutExpired:
            return -1, "", f"no end within {TIME_LIMIT_S} s", []
        left = sorted(content(folder) - before)
        folder.chmod(0o755)
        trace = done.stdout.decode("utf-8", "backslashreplace")
        trace = trace.replace(json.dumps(str(folder), ensure_ascii=False)[1:-1], "<folder>")
        return done.returncode, trace, done.stderr.decode("utf-8", "backslashreplace"), left


def difference(expected: str, found: str) -> str:
    lines = difflib.unified_diff(expected.splitlines(), found.splitlines(), "expected", "found", lineterm="", n=1)
    return "\n".join(lines)


def check(program: Path, script: Script, window: bool, accept: bool) -> list[str]:
    """The errors found, one text each."""
    status, trace, diagnostics, left = follow(program, script, window)
    wrong = []
    if status != script.exit:
        wrong.append(f"exit status {status}, not {script.exit}: {diagnostics.strip()}")
    if script.leaves is not None and left != sorted(script.leaves):
        wrong.append(f"left behind {left}, not {sorted(script.leaves)}")
    if "Sanitizer" in diagnostics or "runtime error:" in diagnostics:
        wrong.append(diagnostics)
    out = script.trace.with_suffix(".out")
    expected = script.trace.read_text(encoding="utf-8") if script.trace.exists() else ""
    if accept:
        script.trace.write_text(trace, encoding="utf-8")
    elif trace != expected:
        out.write_text(trace, encoding="utf-8")
        wrong.append(difference(expected, trace))
    else:
        out.unlink(missing_ok=True)
    return wrong


def under_virtual_display() -> None:
    """Restarts this program under a separate virtual display, if it is not on one."""
    if os.environ.get("MERO_SCRIPTS_DISPLAY"):
        return
    if shutil.which("xvfb-run") is None:
        print("scripts: there is no xvfb-run")
        sys.exit(SKIPPED)
    os.environ["MERO_SCRIPTS_DISPLAY"] = "own"
    os.execvp("xvfb-run", ["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24", sys.executable, *sys.argv])


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", type=Path, required=True)
    parser.add_argument("--window", action="store_true")
    parser.add_argument("--accept", action="store_true")
    parser.add_argument("--only", action="append", default=[])
    arguments = parser.parse_args()
    program = arguments.program.resolve()
    if arguments.window:
        under_virtual_display()
    failed, skipped, followed = 0, 0, 0
    for script in all_scripts():
        if arguments.only and script.path.stem not in arguments.only:
            continue
        if script.needs_window_program and not (program.parent / "mero").exists():
            skipped += 1
            continue
        followed += 1
        wrong = check(program, script, arguments.window, arguments.accept)
        failed += 1 if wrong else 0
        for text in wrong:
            print(f"{script.path.name}: {text}")
    print(f"scripts: {followed} followed, {failed} failed, {skipped} skipped")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
