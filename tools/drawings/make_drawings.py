#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the pictures of the description pages and the logo into Webs/Desc_soubory, the icon into packaging/icons.

Needs python3-cairo, python3-pil and the DejaVu Sans font. Give a folder to draw everything into another one.
"""
import sys
from pathlib import Path

from PIL import Image

from logo import logo
from mark import GRID, SIZES, as_svg, icon, mark
from sections import SECTIONS

ROOT = Path(__file__).resolve().parents[2]


def as_image(canvas):
    data = bytes(canvas.surface.get_data())
    return Image.frombuffer("RGB", (canvas.width, canvas.height), data, "raw", "BGRX",
                            canvas.surface.get_stride(), 1)


def make_icons(folder):
    """Writes the icon as icon themes expect it: a folder for each pixel size and one for the scalable file."""
    for size in SIZES:
        place = folder / f"{size}x{size}" / "apps"
        place.mkdir(parents=True, exist_ok=True)
        surface = icon(size)
        picture = Image.frombuffer("RGBa", (size, size), bytes(surface.get_data()), "raw", "BGRa",
                                   surface.get_stride(), 1)
        picture.convert("RGBA").save(place / "mero.png", optimize=True)
    place = folder / "scalable" / "apps"
    place.mkdir(parents=True, exist_ok=True)
    (place / "mero.svg").write_text(as_svg(mark(), GRID), encoding="utf-8")


def main():
    base = Path(sys.argv[1]) if len(sys.argv) > 1 else ROOT
    make_icons(base / "packaging" / "icons")
    folder = base / "Webs" / "Desc_soubory"
    folder.mkdir(parents=True, exist_ok=True)
    for number, draw in SECTIONS.items():
        # 96 colours are enough for line drawings and make small files.
        picture = as_image(draw()).quantize(96, dither=Image.Dither.NONE)
        picture.save(folder / f"rez_{number:02}.png", optimize=True)
    as_image(logo()).quantize(64, dither=Image.Dither.NONE).save(folder / "logo.gif", optimize=True)


if __name__ == "__main__":
    main()
