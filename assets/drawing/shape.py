"""Shapes and the SVG text made of them.

A drawing is a list of Shape, lowest first. All of them are in portrait units (160 by 160, the head's axis at x = 80);
the small pictures scale the same drawings down. Only what SVG Tiny 1.2 knows is written: paths, plain fills and
strokes, opacity and gradients.
"""

import re
from dataclasses import dataclass

AXIS = 80
OUTLINE = "#a4adb9"  # mid grey: seen on a white window as on a dark one


@dataclass(frozen=True)
class Shape:
    """One path. `hull` tells that it belongs to the silhouette, which the soft outline follows."""

    d: str
    fill: str = "none"
    stroke: str = "none"
    width: float = 0
    opacity: float = 1
    hull: bool = True

    def svg(self):
        out = f'<path d="{self.d}" fill="{self.fill}"'
        if self.stroke != "none":
            out += f' stroke="{self.stroke}" stroke-width="{num(self.width)}"'
            out += ' stroke-linecap="round" stroke-linejoin="round"'
        if self.opacity != 1:
            out += f' opacity="{num(self.opacity)}"'
        return out + "/>"

    def outline(self, width):
        """This shape grown by `width` on every side, in the colour of the outline."""
        fill = "none" if self.fill == "none" else OUTLINE
        return Shape(self.d, fill, OUTLINE, self.width + 2 * width)


def fill(d, colour, opacity=1):
    return Shape(d, colour, opacity=opacity, hull=opacity == 1)


def line(d, colour, width, opacity=1):
    """A stroke inside the silhouette."""
    return Shape(d, stroke=colour, width=width, opacity=opacity, hull=False)


def rope(d, colour, width):
    """A stroke that is part of the silhouette, such as a lock of hair."""
    return Shape(d, stroke=colour, width=width)


def num(value):
    return f"{round(value, 2):g}"


def at(x, y):
    return f"{num(x)},{num(y)}"


def flip(d):
    """The path `d` (absolute M, L, C, Q, Z only) mirrored at the head's axis."""
    return re.sub(r"(-?[\d.]+),", lambda m: num(2 * AXIS - float(m.group(1))) + ",", d)


def both(d):
    """A path and its mirror image, as one path."""
    return d + " " + flip(d)


def sym(start, *segments):
    """A closed path of which the right half is given, from the axis to the axis.

    A segment is a list of points: one for a line, three for a cubic curve (two controls and the end).
    """
    letter = {1: "L", 3: "C"}
    out, here, back = f"M{at(*start)}", start, []
    for points in segments:
        out += " " + letter[len(points)] + " ".join(at(*p) for p in points)
        back.append([here, *points])
        here = points[-1]
    for points in reversed(back):
        mirrored = [(2 * AXIS - x, y) for x, y in reversed(points[:-1])]
        out += " " + letter[len(mirrored)] + " ".join(at(*p) for p in mirrored)
    return out + " Z"


def disc(x, y, rx, ry=None):
    ry = rx if ry is None else ry
    r = f"{num(rx)},{num(ry)}"
    return f"M{at(x - rx, y)} A{r} 0 1 1 {at(x + rx, y)} A{r} 0 1 1 {at(x - rx, y)} Z"


def scallop(points, bulge=0.62, tail=""):
    """A border of round bumps through `points` (clockwise), then `tail`, closed."""
    out = f"M{at(*points[0])}"
    for (x0, y0), (x1, y1) in zip(points, points[1:]):
        r = ((x1 - x0) ** 2 + (y1 - y0) ** 2) ** 0.5 * bulge
        out += f" A{num(r)},{num(r)} 0 0 1 {at(x1, y1)}"
    return out + " " + tail + " Z"


def svg(size, shapes, defs="", outline=0.0, place=""):
    """The text of a picture of `size` by `size`. `place` transforms the shapes; `outline` is in their units."""
    drawn = [s.outline(outline).svg() for s in shapes if s.hull and outline] + [s.svg() for s in shapes]
    if place:
        drawn = [f'<g transform="{place}">', *drawn, "</g>"]
    head = '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny"'
    head += f' width="{size}" height="{size}" viewBox="0 0 {size} {size}">'
    return "\n".join([head, *([f"<defs>{defs}</defs>"] if defs else []), *drawn, "</svg>", ""])
