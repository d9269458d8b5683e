#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes pictures of the running program.

Use: make_pictures.py [--program MERO]         the pictures of the user manual, into docs/pictures
     make_pictures.py --all [--program MERO] [--only WORD]
                                               every tab, panel and dialog, light and dark, 100 and 200 %, on a small
                                               and a large screen, with contact sheets, into build/screenshots
The default program is build/release/bin/mero. The names of the controls come from mero-tables of the development build,
or that of --tables. Needs the packages that `tools/packages.sh screenshots` installs.
The pictures show the manual's examples, so they show the numbers that it prints.
"""

import argparse
import signal
import subprocess
import sys
import time
from pathlib import Path

from screen import ROOT, Look, Program, Screen
from views import BOXES, MANUAL_PICTURES, VIEWS, Actions, Tables

COLOURS = 64
BETWEEN_KEYS_S = 1.0
# On a screen larger than this the window fills it.
SMALL_WIDTH = 1024
LOOKS = [Look(palette, scale, width, height)
         for palette in ("light", "dark")
         for scale in (100, 200)
         for width, height in ((1024, 768), (1900, 1060))]
LOOKS += [Look(scale_percent=150), Look(font_dpi=192), Look("dark", 200, 2560, 1600)]


def shrink(file: Path) -> None:
    """Stores a picture with few colours, to save space, and without dates, so that equal pictures are equal files."""
    subprocess.run(["convert", str(file), "-strip", "+dither", "-colors", str(COLOURS), "-define",
                    "png:compression-level=9", "-define", "png:exclude-chunks=date,time", f"PNG8:{file}"], check=True)


def take(program: Path, tables: Tables, look: Look, views, folder: Path) -> list[Path]:
    """Takes the pictures of the views on one screen; a view that starts over gets a fresh program."""
    files = []
    with Screen(look.width, look.height) as screen:
        for name, steps in views.items():
            with Program(screen, program, look) as running:
                if look.width > SMALL_WIDTH:
                    screen.fill()
                for lines, picture in steps:
                    running.perform(lines.lines(tables) if isinstance(lines, Actions) else lines)
                    if picture:
                        file = folder / f"{picture}.png"
                        screen.shoot(file)
                        files.append(file)
            print(f"{look.name}: {name}", flush=True)
        for name, keys in BOXES.items():
            with Program.for_person(screen, program, look):
                screen.active_window()
                for key in keys:
                    time.sleep(BETWEEN_KEYS_S)
                    screen.run("xdotool", "key", key)
                time.sleep(BETWEEN_KEYS_S)
                files.append(folder / f"{name}.png")
                screen.shoot(files[-1])
    return files


def contact_sheets(files: list[Path], folder: Path, look: Look) -> None:
    """Puts four pictures on a sheet, large enough to be read."""
    for number in range(0, len(files), 4):
        subprocess.run(["montage", *map(str, files[number:number + 4]), "-label", "%t", "-tile", "2x2", "-geometry",
                        "950x715>+4+4", "-background", "#808080", str(folder / f"sheet-{look.name}-{number // 4:02}.png")],
                       check=True)


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--all", action="store_true")
    parser.add_argument("--only", default="", help="only looks whose name holds this word")
    parser.add_argument("--program", type=Path, default=ROOT / "build" / "release" / "bin" / "mero")
    parser.add_argument("--tables", type=Path, default=ROOT / "build" / "dev" / "tests" / "mero-tables")
    options = parser.parse_args()
    # Ends the screen and the program too if this program is ended early.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    for needed in (options.program, options.tables):
        if not needed.is_file():
            print(f"make_pictures: there is no {needed}; build it, or tell --program or --tables", file=sys.stderr)
            return 2
    tables = Tables(str(options.tables.resolve()))
    if options.all:
        folder = ROOT / "build" / "screenshots"
        for look in (look for look in LOOKS if options.only in look.name):
            files = take(options.program, tables, look, VIEWS, folder / look.name)
            contact_sheets(files, folder, look)
        return 0
    for file in take(options.program, tables, Look(), MANUAL_PICTURES, ROOT / "docs" / "pictures"):
        shrink(file)
    return 0


if __name__ == "__main__":
    sys.exit(main())
