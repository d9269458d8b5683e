# SPDX-License-Identifier: MIT
"""Draws the program's mark: a drop sinking into the layers of the soil, on a plate with round corners.

One geometry for the icon in all sizes, as pixels and as SVG, and for the logo of the report. A mark is a list of
(colour, path); a path is a list of ("M" | "L", x, y), ("C", x1, y1, x2, y2, x, y) and ("Z",).
"""
import cairo

SKY = (0.91, 0.955, 0.995)
EDGE = (0.62, 0.74, 0.86)
TOPSOIL = (0.56, 0.42, 0.26)
SUBSOIL = (0.72, 0.59, 0.41)
GRAVEL = (0.86, 0.78, 0.63)
DROP = (0.08, 0.36, 0.66)
WHITE = (1.0, 1.0, 1.0)

# Distance of the control points of a quarter circle from its ends, in radii.
ARC = 0.5523

GRID = 64
SMALL_SIZES = (16, 22, 24)
SIZES = (*SMALL_SIZES, 32, 48, 64, 128, 256)


def plate(low, high, radius):
    """A square with round corners."""
    k = radius * (1 - ARC)
    return [("M", low + radius, low), ("L", high - radius, low),
            ("C", high - k, low, high, low + k, high, low + radius), ("L", high, high - radius),
            ("C", high, high - k, high - k, high, high - radius, high), ("L", low + radius, high),
            ("C", low + k, high, low, high - k, low, high - radius), ("L", low, low + radius),
            ("C", low, low + k, low + k, low, low + radius, low), ("Z",)]


def layer(low, high, radius, top, wave=0.0):
    """The part of the plate below `top`, with a wave of height `wave` as its upper edge. `top` lies below the corners."""
    k = radius * (1 - ARC)
    third = (high - low) / 3
    return [("M", low, top), ("C", low + third, top - wave, high - third, top + wave, high, top),
            ("L", high, high - radius), ("C", high, high - k, high - k, high, high - radius, high),
            ("L", low + radius, high), ("C", low + k, high, low, high - k, low, high - radius), ("Z",)]


def drop(x, tip, bottom, radius, grown=0.0):
    """A drop with its tip at the top, enlarged by a rim of width `grown`."""
    y = bottom - radius
    r = radius + grown
    top = tip - 1.2 * grown
    k = r * ARC
    return [("M", x, top), ("C", x + 0.22 * r, top + 0.45 * (y - top), x + r, y - 0.75 * r, x + r, y),
            ("C", x + r, y + k, x + k, y + r, x, y + r), ("C", x - k, y + r, x - r, y + k, x - r, y),
            ("C", x - r, y - 0.75 * r, x - 0.22 * r, top + 0.45 * (y - top), x, top), ("Z",)]


def gleam(x, y, r, width):
    """The highlight of the drop: a crescent along its lower left side."""
    inner = r - width
    k, j = r * ARC, inner * ARC
    return [("M", x - r, y), ("C", x - r, y + k, x - k, y + r, x, y + r), ("L", x, y + inner),
            ("C", x - j, y + inner, x - inner, y + j, x - inner, y), ("Z",)]


def mark():
    """The mark on a grid of 64: for 32 pixels and more."""
    low, high, radius = 4, 60, 9
    return [(EDGE, plate(low, high, radius)), (SKY, plate(low + 1, high - 1, radius - 1)),
            (TOPSOIL, layer(low, high, radius, 36, 3)), (SUBSOIL, layer(low, high, radius, 43.5, -3)),
            (GRAVEL, layer(low, high, radius, 51, 2)), (WHITE, drop(32, 9, 51, 14.5, 2)),
            (DROP, drop(32, 9, 51, 14.5)), (WHITE, gleam(32, 36.5, 10, 2.4))]


def small_mark(size):
    """The mark for 16 to 24 pixels: every straight edge lies between two pixels."""
    low = 1
    high = size - 1
    radius = 2 if size < 20 else 3
    topsoil, subsoil = {16: (9, 12), 22: (12, 17), 24: (14, 19)}[size]
    tip, bottom, width = {16: (2.2, 13, 4.2), 22: (2.6, 18, 5.6), 24: (2.8, 20, 6.2)}[size]
    return [(SKY, plate(low, high, radius)), (TOPSOIL, layer(low, high, radius, topsoil)),
            (SUBSOIL, layer(low, high, radius, subsoil)), (WHITE, drop(size / 2, tip, bottom, width, 0.9)),
            (DROP, drop(size / 2, tip, bottom, width))]


def draw(ctx, shapes):
    """Paints a mark; the context sets position and size."""
    for color, path in shapes:
        ctx.new_path()
        for command, *numbers in path:
            {"M": ctx.move_to, "L": ctx.line_to, "C": ctx.curve_to, "Z": ctx.close_path}[command](*numbers)
        ctx.set_source_rgb(*color)
        ctx.fill()


def icon(size):
    """The icon as a picture of the given size with a transparent background."""
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, size, size)
    ctx = cairo.Context(surface)
    if size in SMALL_SIZES:
        draw(ctx, small_mark(size))
    else:
        ctx.scale(size / GRID, size / GRID)
        draw(ctx, mark())
    return surface


def as_svg(shapes, size):
    """The mark as an SVG file."""
    def number(value):
        return f"{value:.3f}".rstrip("0").rstrip(".")

    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 {size} {size}">',
             "  <title>MERO</title>"]
    for color, path in shapes:
        data = " ".join(command + " ".join(number(value) for value in numbers) for command, *numbers in path)
        fill = "#" + "".join(f"{round(part * 255):02x}" for part in color)
        lines.append(f'  <path fill="{fill}" d="{data}"/>')
    return "\n".join([*lines, "</svg>", ""])
