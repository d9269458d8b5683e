#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Pictures of every tab, panel and dialog of the window, to be looked at one by one.

Use: tools/screens.py [--program FILE] [--out FOLDER] [--look NAME]... [--scene NAME]...
A look is a screen's size, a scale and a palette; without --look or --scene all of them are taken.
Each runs on a screen of its own (Xvfb) and needs ImageMagick's import.
"""

import argparse
import json
import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
SETTLE_S = 0.25

# Screen, environment, palette.
LOOKS = {
    "small-light": ("1024x768", {}, "light"),
    "small-dark": ("1024x768", {}, "dark"),
    "large-light": ("1920x1200", {}, "light"),
    "large-dark": ("1920x1200", {}, "dark"),
    "small-double-light": ("1024x768", {"QT_SCALE_FACTOR": "2"}, "light"),
    "small-double-dark": ("1024x768", {"QT_SCALE_FACTOR": "2"}, "dark"),
    "large-double-light": ("2560x1600", {"QT_SCALE_FACTOR": "2"}, "light"),
    "large-double-dark": ("2560x1600", {"QT_SCALE_FACTOR": "2"}, "dark"),
    "small-large-font": ("1024x768", {"QT_FONT_DPI": "192"}, "light"),
    "large-large-font": ("2560x1600", {"QT_FONT_DPI": "192"}, "dark"),
    "small-half-more": ("1024x768", {"QT_SCALE_FACTOR": "1.5"}, "light"),
}


def example(name: str) -> list[str]:
    """The lines of an example up to its report."""
    lines = (ROOT / "examples" / f"{name}.mero").read_text(encoding="utf-8").splitlines()
    lines = [line for line in lines if line and not line.startswith("#")]
    return lines[: lines.index("tab 3")]


SITE = example("plosne-vsakovani")
# The lines of a script; "shot NAME" takes a picture.
SCENES = {
    "inputs": ["shot inputs-empty", *SITE, "tab 0", "shot inputs", "tab 2", "shot technology", "tab 3", "shot report"],
    "rain": [
        "click cmdEdit(0)", "shot rain-empty",
        'select frmIntDialog.cboSelStanice "Brno"', 'select frmIntDialog.cboSelPeriod "0.2"', "shot rain",
        "cell frmIntDialog.fgIntDeste 3 2", "cell frmIntDialog.fgIntDeste 4 1", "shot rain-editor",
        "click frmIntDialog.cmdEdit", "shot rain-help",
    ],
    "area": [
        "click cmdEdit(1)", "shot area-empty", "cell frmDialog.fgSoucPovrchOdtok 8 3", "type frmDialog.txtPlocha 800",
        "key frmDialog.txtPlocha Enter", "cell frmDialog.fgSoucPovrchOdtok 4 3", "set frmDialog.txtPlocha 300",
        "click frmDialog.cmdZapsat", "shot area", "cell frmDialog.fgZapisTab 1 1", "shot area-editor",
    ],
    "soil": ["click cmdEdit(2)", "shot soil", "cell frmCoefDialog.fgCoefProp 2 2", "shot soil-picked"],
    "types": ["tab 1", "shot types-none"],
    "surface": [*SITE, "shot surface"],
    "swale": [*example("prulehy"), "shot swale"],
    "combined": [*example("kombinovany-objekt-skrceny-odtok"), "shot combined", "click cmdEdit(3)", "shot combined-pipes"],
    "trench": [*example("ryha-s-drenem"), "shot trench", "click cmdEdit(4)", "shot trench-pipes"],
    "shaft-a": [*example("sachta-kruhova-a"), "shot shaft-a"],
    "shaft-b": [*example("sachta-obdelnikova"), "shot shaft-b"],
    "tank": [*example("nadrz-s-usazovanim"), "shot tank"],
}  # fmt: skip


def shoot(program: Path, look: str, names: list[str], out: Path) -> None:
    size, settings, palette = LOOKS[look]
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", "1", "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)  # fmt: skip
    try:
        display = ":" + server.stdout.readline().decode().strip()
        environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb", **settings}
        for name in names:
            with tempfile.TemporaryDirectory() as folder:
                # The report is written into the program's folder.
                shutil.copy(program.parent / "mero.mdb", folder)
                shutil.copytree(program.parent / "Webs", Path(folder) / "Webs")
                perform(program, Path(folder), palette, environment, SCENES[name], out / look)
    finally:
        server.terminate()
        server.wait()


def perform(program: Path, folder: Path, palette: str, environment: dict, lines: list[str], out: Path) -> None:
    out.mkdir(parents=True, exist_ok=True)
    window = subprocess.Popen(
        [program, "--folder", folder, "--palette", palette, "--clock", "2026-11-20T14:05:09", "--script", "-"],
        stdin=subprocess.PIPE, stdout=subprocess.PIPE, env=environment, text=True)  # fmt: skip

    def say(line: str) -> None:
        window.stdin.write(line + "\n")
        window.stdin.flush()

    for line in lines:
        if not line.startswith("shot "):
            say(line)
            continue
        say("echo shot")
        while json.loads(window.stdout.readline() or '{"echo": "shot"}') != {"echo": "shot"}:
            pass
        time.sleep(SETTLE_S)
        subprocess.run(["import", "-window", "root", out / f"{line.split()[1]}.png"], env=environment, check=True)
    window.stdin.close()
    window.stdout.read()
    if window.wait() != 0:
        sys.exit(f"screens: the program ended with {window.returncode}")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--program", type=Path, default=ROOT / "build/release/bin/mero")
    parser.add_argument("--out", type=Path, default=ROOT / "build/screens")
    parser.add_argument("--look", action="append", choices=LOOKS)
    parser.add_argument("--scene", action="append", choices=SCENES)
    arguments = parser.parse_args()
    for tool in ("Xvfb", "import"):
        if shutil.which(tool) is None:
            sys.exit(f"screens: {tool} is missing (apt-get install xvfb imagemagick)")
    for look in arguments.look or LOOKS:
        shoot(arguments.program.resolve(), look, arguments.scene or list(SCENES), arguments.out)
        print(f"screens: {arguments.out / look}")


if __name__ == "__main__":
    main()
