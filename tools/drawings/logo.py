# SPDX-License-Identifier: MIT
"""The mark of the program: a drop above the layers of the soil, and its name."""
from canvas import FONT, SOIL, SOIL_LINE, TOPSOIL, WATER_LINE, Canvas

import cairo


def logo():
    c = Canvas(200, 100)
    ctx = c.ctx
    # layers of the soil, each wavier than the one above
    for y, color in ((58, TOPSOIL), (70, SOIL_LINE), (82, SOIL)):
        ctx.move_to(4, 94)
        ctx.line_to(4, y)
        ctx.curve_to(22, y - 7, 40, y + 7, 72, y)
        ctx.line_to(72, 94)
        ctx.close_path()
        ctx.set_source_rgb(*color)
        ctx.fill()
    # drop
    ctx.move_to(38, 6)
    ctx.curve_to(42, 24, 60, 34, 60, 50)
    ctx.curve_to(60, 63, 50, 71, 38, 71)
    ctx.curve_to(26, 71, 16, 63, 16, 50)
    ctx.curve_to(16, 34, 34, 24, 38, 6)
    ctx.close_path()
    ctx.set_source_rgb(1, 1, 1)
    ctx.set_line_width(5)
    ctx.stroke_preserve()
    ctx.set_source_rgb(*WATER_LINE)
    ctx.fill()
    ctx.arc(38, 50, 13, 1.7, 3.0)
    ctx.set_source_rgb(1, 1, 1)
    ctx.set_line_width(3)
    ctx.stroke()
    ctx.select_font_face(FONT, cairo.FONT_SLANT_NORMAL, cairo.FONT_WEIGHT_BOLD)
    ctx.set_font_size(34)
    ctx.set_source_rgb(*WATER_LINE)
    ctx.move_to(82, 62)
    ctx.show_text("MERO")
    c.text(140, 82, "vsakovací zařízení", "centre", size=11)
    return c
