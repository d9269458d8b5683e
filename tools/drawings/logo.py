# SPDX-License-Identifier: MIT
"""Draws the logo of the report and of the description pages: the program's mark and its name."""
import cairo

from canvas import FONT, WATER_LINE, Canvas
from mark import draw, mark


def logo():
    c = Canvas(200, 100)
    ctx = c.ctx
    ctx.save()
    ctx.translate(-6, 2)
    ctx.scale(1.5, 1.5)
    draw(ctx, mark())
    ctx.restore()
    ctx.select_font_face(FONT, cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_BOLD)
    ctx.set_font_size(32)
    ctx.set_source_rgb(*WATER_LINE)
    ctx.move_to(92, 59)
    ctx.show_text("MERO")
    c.text(144, 79, "vsakovací zařízení", "centre", size=11)
    return c
