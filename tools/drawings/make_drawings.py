#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the pictures of the description pages and the logo into Webs/Desc_soubory.

Needs python3-cairo, python3-pil and the DejaVu Sans font. Give a folder to draw into another one.
"""
import sys
from pathlib import Path

from PIL import Image

from logo import logo
from sections import SECTIONS

DEFAULT_FOLDER = Path(__file__).resolve().parents[2] / "Webs" / "Desc_soubory"


def as_image(canvas):
    data = bytes(canvas.surface.get_data())
    return Image.frombuffer("RGB", (canvas.width, canvas.height), data, "raw", "BGRX",
                            canvas.surface.get_stride(), 1)


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else DEFAULT_FOLDER
    folder.mkdir(parents=True, exist_ok=True)
    for number, draw in SECTIONS.items():
        # 96 colours are plenty for line drawings and make small files.
        picture = as_image(draw()).quantize(96, dither=Image.Dither.NONE)
        picture.save(folder / f"rez_{number:02}.png", optimize=True)
    as_image(logo()).quantize(64, dither=Image.Dither.NONE).save(folder / "logo.gif", optimize=True)


if __name__ == "__main__":
    main()
