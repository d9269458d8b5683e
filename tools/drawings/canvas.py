# SPDX-License-Identifier: MIT
"""Drawing surface of the section drawings: materials, water, dimension lines, labels with subscripts."""
import math
import random
import re

import cairo

FONT = "DejaVu Sans"
INK = (0.13, 0.13, 0.15)
GREY = (0.45, 0.45, 0.48)
WATER = (0.75, 0.87, 0.96)
WATER_LINE = (0.08, 0.36, 0.66)
SOIL = (0.95, 0.91, 0.83)
SOIL_LINE = (0.72, 0.63, 0.49)
TOPSOIL = (0.79, 0.70, 0.55)
GRASS = (0.29, 0.55, 0.24)
GRAVEL = (0.93, 0.93, 0.92)
SAND = (0.98, 0.93, 0.74)
CONCRETE = (0.82, 0.83, 0.85)
WHITE = (1, 1, 1)


class Canvas:
    """A picture in pixels, origin at the top left."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.surface = cairo.ImageSurface(cairo.FORMAT_RGB24, width, height)
        self.ctx = cairo.Context(self.surface)
        self.ctx.set_source_rgb(*WHITE)
        self.ctx.paint()

    def save(self, path):
        self.surface.write_to_png(str(path))

    # --- shapes ---------------------------------------------------------------------------------

    def path(self, points, closed=True):
        self.ctx.new_path()
        for x, y in points:
            self.ctx.line_to(x, y)
        if closed:
            self.ctx.close_path()

    def polygon(self, points, fill=None, stroke=None, width=1.0):
        self.path(points)
        if fill:
            self.ctx.set_source_rgb(*fill)
            self.ctx.fill_preserve()
        if stroke:
            self.stroke(stroke, width)
        self.ctx.new_path()

    def rectangle(self, x1, y1, x2, y2, fill=None, stroke=None, width=1.0):
        self.polygon([(x1, y1), (x2, y1), (x2, y2), (x1, y2)], fill, stroke, width)

    def line(self, *points, color=INK, width=1.0, dash=None):
        self.path(points, closed=False)
        self.stroke(color, width, dash)

    def circle(self, x, y, radius, fill=None, stroke=None, width=1.0, dash=None):
        self.ctx.new_path()
        self.ctx.arc(x, y, radius, 0, 2 * math.pi)
        if fill:
            self.ctx.set_source_rgb(*fill)
            self.ctx.fill_preserve()
        if stroke:
            self.stroke(stroke, width, dash)
        self.ctx.new_path()

    def stroke(self, color, width, dash=None):
        self.ctx.set_source_rgb(*color)
        self.ctx.set_line_width(width)
        self.ctx.set_dash(dash or [])
        self.ctx.stroke()
        self.ctx.set_dash([])

    def clipped(self, points, draw):
        self.ctx.save()
        self.path(points)
        self.ctx.clip()
        draw()
        self.ctx.restore()

    # --- materials ------------------------------------------------------------------------------

    def hatched(self, points, fill, color, spacing=14, width=0.8):
        """Parallel lines at 45 degrees over a fill."""
        self.polygon(points, fill)
        xs = [p[0] for p in points]
        ys = [p[1] for p in points]
        rise = max(ys) - min(ys)

        def lines():
            x = min(xs) - rise
            while x < max(xs):
                self.line((x, max(ys)), (x + rise, min(ys)), color=color, width=width)
                x += spacing

        self.clipped(points, lines)

    def soil(self, points):
        self.hatched(points, SOIL, SOIL_LINE, spacing=18, width=0.6)

    def concrete(self, points):
        self.hatched(points, CONCRETE, GREY, spacing=6, width=0.7)
        self.polygon(points, stroke=INK, width=1.2)

    def grains(self, points, fill, radius, spacing, color=GREY, seed=7):
        """Grains of gravel (rings) or sand (dots), at the same places in every run."""
        self.polygon(points, fill)
        xs = [p[0] for p in points]
        ys = [p[1] for p in points]
        dice = random.Random(seed)

        def scatter():
            y = min(ys)
            row = 0
            while y < max(ys) + spacing:
                x = min(xs) + (spacing / 2 if row % 2 else 0)
                while x < max(xs) + spacing:
                    px = x + dice.uniform(-0.2, 0.2) * spacing
                    py = y + dice.uniform(-0.2, 0.2) * spacing
                    if radius > 1.5:
                        self.circle(px, py, radius * dice.uniform(0.75, 1.1), stroke=color, width=0.8)
                    else:
                        self.circle(px, py, radius, fill=color)
                    x += spacing
                y += spacing * 0.86
                row += 1

        self.clipped(points, scatter)

    def gravel(self, points):
        self.grains(points, GRAVEL, radius=3.6, spacing=10)

    def sand(self, points):
        self.grains(points, SAND, radius=0.9, spacing=6, color=SOIL_LINE)

    def topsoil(self, points):
        self.polygon(points, TOPSOIL)

    def grass(self, *points):
        """Blades of grass along a line of points."""
        for (x1, y1), (x2, y2) in zip(points, points[1:]):
            count = max(1, int(math.hypot(x2 - x1, y2 - y1) / 6))
            for i in range(count):
                x = x1 + (x2 - x1) * (i + 0.5) / count
                y = y1 + (y2 - y1) * (i + 0.5) / count
                self.line((x, y), (x - 1.5, y - 5), color=GRASS, width=1.1)
                self.line((x, y), (x + 2, y - 4), color=GRASS, width=1.1)

    # --- water ----------------------------------------------------------------------------------

    def water(self, points):
        self.polygon(points, WATER)

    def level(self, x1, x2, y, mark_x, dash=None):
        """Water level with the triangle symbol on it."""
        self.line((x1, y), (x2, y), color=WATER_LINE, width=1.5, dash=dash)
        self.polygon([(mark_x - 6, y - 10), (mark_x + 6, y - 10), (mark_x, y - 1)], WHITE, WATER_LINE, 1.2)
        self.line((mark_x - 5, y + 4), (mark_x + 5, y + 4), color=WATER_LINE, width=1)

    def flow(self, *points, color=WATER_LINE, width=1.6):
        """Arrow along a line of points."""
        self.line(*points, color=color, width=width)
        self.head(points[-2], points[-1], color, 7)

    def head(self, start, end, color, size):
        angle = math.atan2(end[1] - start[1], end[0] - start[0])
        left, right = angle + math.pi - 0.38, angle + math.pi + 0.38
        self.polygon([end, (end[0] + size * math.cos(left), end[1] + size * math.sin(left)),
                      (end[0] + size * math.cos(right), end[1] + size * math.sin(right))], color)

    def rain(self, x1, x2, y1, y2, step=34):
        x = x1
        while x <= x2:
            self.flow((x, y1), (x - 6, y2), width=1.2)
            x += step

    def seepage(self, xs, y1, y2):
        for x in xs:
            self.flow((x, y1), (x, y2), width=1.4)

    # --- labels and dimensions ------------------------------------------------------------------

    def runs(self, label, size):
        """A label as runs of text: "$h_r$" is a symbol in italics with its subscript."""
        for i, part in enumerate(label.split("$")):
            if i % 2 == 0:
                if part:
                    yield part, False, size, 0
                continue
            for symbol, subscript in re.findall(r"([^_]+?)(?:_([^\s_]+))?(?=\s|$)", part):
                yield symbol, True, size, 0
                if subscript:
                    yield subscript, False, size * 0.75, size * 0.25

    def select(self, italic, size, bold=False):
        self.ctx.select_font_face(FONT, cairo.FONT_SLANT_ITALIC if italic else cairo.FONT_SLANT_NORMAL,
                                  cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
        self.ctx.set_font_size(size)

    def label_width(self, label, size, bold=False):
        width = 0
        for text, italic, run_size, _ in self.runs(label, size):
            self.select(italic, run_size, bold)
            width += self.ctx.text_extents(text).x_advance
        return width

    def text(self, x, y, label, align="left", size=12, color=INK, backed=False, bold=False):
        """A label with its baseline at y; `backed` clears the background behind it."""
        width = self.label_width(label, size, bold)
        x -= {"left": 0, "centre": width / 2, "right": width}[align]
        if x < 0 or x + width > self.width or y > self.height or y < size:
            raise ValueError("label leaves the picture: " + label)
        if backed:
            self.rectangle(x - 3, y - size, x + width + 3, y + size * 0.35, WHITE)
        for text, italic, run_size, drop in self.runs(label, size):
            self.select(italic, run_size, bold)
            self.ctx.set_source_rgb(*color)
            self.ctx.move_to(x, y + drop)
            self.ctx.show_text(text)
            x += self.ctx.text_extents(text).x_advance
        self.ctx.new_path()

    def note(self, target, at, label, align="left", backed=False):
        """A label with a thin leader line to the part that it names."""
        self.line((at[0], at[1]), target, color=INK, width=0.8)
        self.circle(target[0], target[1], 2, fill=INK)
        gap = {"left": 4, "centre": 0, "right": -4}[align]
        self.text(at[0] + gap, at[1] + 4, label, align, backed=backed)

    def across(self, x1, x2, y, label, reach=(), backed=True, below=False):
        """Horizontal dimension; `reach` are the heights that the extension lines come from."""
        for x, start in zip((x1, x2), reach):
            self.line((x, start), (x, y + (6 if y > start else -6)), color=GREY, width=0.7)
        self.line((x1, y), (x2, y), color=INK, width=0.9)
        self.tick(x1, y)
        self.tick(x2, y)
        self.text((x1 + x2) / 2, y + (16 if below else -6), label, "centre", backed=backed)

    def down(self, x, y1, y2, label, reach=(), side="right", backed=True, at=None):
        """Vertical dimension with its label beside it; a line feed separates the lines of the label."""
        for y, start in zip((y1, y2), reach):
            self.line((start, y), (x + (6 if x > start else -6), y), color=GREY, width=0.7)
        self.line((x, y1), (x, y2), color=INK, width=0.9)
        self.tick(x, y1)
        self.tick(x, y2)
        lines = label.split("\n")
        y = (at if at is not None else (y1 + y2) / 2) + 4 - 7.5 * (len(lines) - 1)
        for part in lines:
            self.text(x + (8 if side == "right" else -8), y, part, "left" if side == "right" else "right",
                      backed=backed)
            y += 15

    def tick(self, x, y):
        self.line((x - 4, y + 4), (x + 4, y - 4), color=INK, width=1.4)
