"""Curls, long hair, tied hair and braids. Each function gives (back layer, front layer)."""

from math import cos, pi, sin

from .hair_short import cap, shaved
from .palette import HAIR, SKIN
from .shape import both, disc, fill, line, rope, scallop, sym

BAND, BAND_SHADE = "#d8433b", "#a92d29"


def ring(x, y, rx, ry, start, end, count):
    """`count` + 1 points of an ellipse, clockwise from `start` to `end` (degrees, 0 is to the right)."""
    angles = [(start + (end - start) * i / count) * pi / 180 for i in range(count + 1)]
    return [(x + rx * cos(a), y + ry * sin(a)) for a in angles]


def curl(x, y, size=3.4):
    return f"M{x - size:g},{y:g} C{x - size:g},{y - size:g} {x + size:g},{y - size:g} {x + size:g},{y:g} " \
           f"C{x + size:g},{y + size * 0.8:g} {x - 1:g},{y + size * 0.8:g} {x - 0.6:g},{y:g}"


def curls(places, size=3.4):
    return line(" ".join(curl(x, y, size) for x, y in places), HAIR.shade, 1.6)


def headband(low):
    """A ribbon across the forehead, 9 wide, its lower edge at `low`."""
    ribbon = sym((80, low - 10), [(93, low - 10), (110, low - 7), (116, low - 2)], [(116, low + 7)],
                 [(109, low + 1), (93, low - 1), (80, low - 1)])
    seam = (f"M47,{low + 4} C56,{low - 1} 69,{low - 2.4:g} 80,{low - 2.4:g} "
            f"C91,{low - 2.4:g} 104,{low - 1} 113,{low + 4}")
    return [fill(ribbon, BAND), line(seam, BAND_SHADE, 1.5)]


def curly():
    hairline = [(107, 72), (104, 58), (95, 51.5), (84, 53), (74, 50.5), (64, 53), (56, 57)]
    front = scallop(ring(80, 51, 37, 36, 146, 394, 11) + hairline, 0.56)
    return [], [
        fill(front, HAIR.base),
        curls([(62, 30), (75, 25), (89, 26), (101, 35), (53, 45), (68, 41), (82, 40), (95, 45), (108, 50)]),
    ]


def afro():
    back = [fill(scallop(ring(80, 54, 50, 46, 130, 410, 19), 0.56), HAIR.base)]
    front = fill(sym((80, 16), [(110, 16), (120, 40), (116, 76)], [(111, 76), (108, 70), (107, 64)],
                     [(106, 54), (98, 47), (80, 47)]), HAIR.base)
    spots = [(54, 26), (70, 18), (88, 18), (105, 26), (115, 41), (119, 58), (45, 41), (41, 58), (62, 34), (80, 31),
             (98, 34)]
    return back, [front, curls(spots, 3.6)]


def long_straight():
    drape = ("M80,17 C104,14 119,32 119,60 C119.6,80 126,113 124,133 C120,136 115,136 112,133 "
             "C110,100 112,80 108,64 C104,52 88,48 80,28 Z")
    behind = sym((80, 20), [(108, 20), (118, 40), (119, 70)], [(120, 96), (121, 116), (121, 133)], [(80, 133)])
    return [fill(behind, HAIR.shade)], [
        fill(both(drape), HAIR.base),
        line("M80,18 L80,28", HAIR.shade, 2),
        line(both("M90,31 C104,42 114,56 114,76 C115,98 117,116 118,130"), HAIR.shade, 1.7),
        line(both("M94,22 C106,27 113,38 115,52"), HAIR.light, 2.3),
    ]


def long_wavy():
    wave = ("M66,21 C80,10 108,14 116,34 C124,46 115,56 121,68 C128,80 117,90 123,102 C127,112 120,122 112,124 "
            "C106,120 110,110 107,102 C103,92 113,84 109,72 C108,60 100,54 92,51 C80,48 70,42 65,34 "
            "C62,46 54,50 52,62 C50,72 56,82 51,92 C47,102 53,112 47,122 C38,122 33,112 37,102 "
            "C42,92 32,82 38,70 C43,58 37,48 44,38 C48,28 56,22 66,21 Z")
    back = [fill("M48,60 L112,60 L113,118 C100,126 60,126 47,118 Z", HAIR.shade)]
    return back, [
        fill(wave, HAIR.base),
        line("M65,34 C64,29 65,25 67,21.5", HAIR.shade, 2),
        line("M72,33 C84,42 104,44 111,58 C116,68 110,80 115,92 C118,102 114,110 114,117 "
             "M57,40 C46,50 50,60 45,70 C41,80 48,92 43,102 C41,108 42,114 43,117", HAIR.shade, 1.8),
        line("M78,21.5 C92,21 104,28 109,38", HAIR.light, 2.4),
    ]


def headband_long():
    back = [fill(sym((80, 18), [(106, 18), (117, 38), (119, 64)], [(121, 84), (124, 96), (127, 104)],
                     [(118, 112), (108, 112), (100, 106)], [(80, 106)]), HAIR.base),
            line(both("M113,84 C114,94 116,100 118,104"), HAIR.shade, 1.7)]
    crown = sym((80, 16), [(102, 16), (116, 30), (117.4, 56)], [(119, 70), (120, 80), (123, 92)],
                [(116, 96), (111, 92), (109.6, 84)],
                [(110, 70), (110, 56), (106, 48)], [(80, 40)])
    return back, [
        fill(crown, HAIR.base),
        line("M80,33 L80,21 M70,34 C71,29 72.5,25 74,22 M90,34 C89,29 87.5,25 86,22 M60,37 C62,31 64,27 67,24.5 "
             "M100,37 C98,31 96,27 93,24.5",
             HAIR.shade, 1.7),
        line(both("M114,64 C114.4,74 115.6,82 117,89"), HAIR.shade, 1.6),
        *headband(48),
    ]


def mullet():
    tail = ("M108,66 C112,84 116,96 124,108 L117,107 L120,118 L111,114 L111,124 L102,116 L98,123 L92,114 L80,114 "
            "L80,66 Z")
    top = sym((80, 17), [(86, 11)], [(90, 17)], [(99, 14)], [(101, 21)], [(110, 22)], [(109, 31)], [(117, 36)],
              [(113.6, 45)],
              [(115, 54), (115, 66), (114, 74)], [(111, 76), (108.6, 73), (108, 69)], [(107, 58), (104, 53), (101, 51)],
              [(96, 58)], [(91, 50)], [(86, 58)], [(80, 50)])
    return [fill(both(tail), HAIR.base), line(both("M110,88 C112,98 114,106 116,112 M104,98 "
                                                   "L107,113"), HAIR.shade, 1.8)], [
        fill(top, HAIR.base),
        line(both("M85,42 L86,27 M95,44 L98,31 M104,49 L108,39"), HAIR.shade, 1.7),
    ]


def pulled_back():
    """Hair combed tight to the back of the head, where it is tied."""
    return [
        fill(cap(21, 33.2, 68, 42, (103, 47)), HAIR.base),
        line("M80,40 L80,25 M70,40.6 C71.5,34 74,29 76,26 M90,40.6 C88.5,34 86,29 84,26 M60,45 "
             "C62,36 66,30 70,27 M100,45 C98,36 94,30 90,27 "
             "M52,58 C53,47 56,38 61,32 M108,58 C107,47 104,38 99,32", HAIR.shade, 1.6),
    ]


def ponytail():
    tail = ("M92,24 C104,10 128,12 136,34 C144,58 134,78 138,98 C140,106 136,114 130,118 "
            "C131,110 128,106 124,102 C116,88 122,68 118,52 "
            "C115,42 106,36 96,34 Z")
    back = [
        fill(tail, HAIR.base),
        line("M108,24 C120,26 128,38 128,56 C128,74 126,88 131,104 M118,22 "
             "C128,28 133,40 133,56", HAIR.shade, 1.8),
        fill("M97,16 L107,24 L101,33 L91,25 Z", BAND),
    ]
    return back, pulled_back()


def bun():
    back = [
        fill(disc(80, 14.5, 15, 12.5), HAIR.base),
        line("M69,15 C72,7 86,4 91,11 M73,19 C76,12 85,11 88,16", HAIR.shade, 1.8),
        fill("M69,21 C75,25.5 85,25.5 91,21 L92.5,27 C85,31 75,31 67.5,27 Z", BAND),
    ]
    return back, pulled_back()


def braid():
    beads = [(117, 84, 8, 7.5), (119, 95, 8, 7.5), (119.5, 106, 7.5, 7), (119, 116.5, 6.6, 6.4)]
    plaits = " ".join(
        f"M{x - rx + 1:g},{y - 2:g} C{x - 3:g},{y + ry - 2:g} {x:g},{y + ry - 2:g} {x:g},{y + ry - 1:g} "
        f"C{x:g},{y + ry - 2:g} {x + 3:g},{y + ry - 2:g} {x + rx - 1:g},{y - 2:g}" for x, y, rx, ry in beads)
    tail = "M113,123 L123,123 C124,129 122,133 117,136 C113,132 112,128 113,123 Z"
    mass = ("M47,70 C45,50 50,33 62,25 C74,16 96,16 106,28 C116,40 116,60 122,76 C121,82 114,84 109,79 "
            "C109,64 106,54 99,50 C82,52 68,46 62,36 C60,46 54,52 52.4,64 C52,69 49,72 47,70 Z")
    return [], [
        fill(tail, HAIR.base),
        *[fill(disc(*bead), HAIR.base) for bead in reversed(beads)],
        line(plaits, HAIR.shade, 1.7),
        fill("M112.5,120 L124,120 L124,125 L112.5,125 Z", BAND),
        fill(mass, HAIR.base),
        line("M62,36 C62,31 64,27 67,23 M69,36 C82,44 98,42 108,54 C112,60 113,68 115,76 "
             "M74,28 C88,33 102,36 110,48", HAIR.shade, 1.7),
    ]


def dreads():
    behind = "M114,50 C119,80 121,100 121.5,120 M105,50 C109,80 110,100 110.5,126 M96,50 C98,80 99,100 99.5,128"
    locks = [
        "M80,24 C96,26 112,40 115,60 C116,80 114,96 117,112",
        "M84,22 C104,22 120,40 122,62 C124,82 122,94 126,104",
        "M80,27 C90,32 104,42 107.5,58 C109,72 106,88 108.5,101",
    ]
    wraps = ("M112.5,82 L118,80 M112.5,92 L118,90 M113,102 L118.6,100 M104.5,74 L110,72 M104,84 L109.6,82 "
             "M104.4,94 L110,92 M120,76 L125.6,74 M120.6,86 L126,84 M121.4,96 L127,94")
    crown = sym((80, 19), [(100, 19), (113, 34), (115, 60)], [(108, 62)], [(106, 52), (92, 46), (80, 36)])
    return [rope(both(behind), HAIR.shade, 7.5)], [
        fill(crown, HAIR.base),
        fill(both("M106,50 L120,50 L122,94 L109,96 Z"), HAIR.shade),
        *[rope(both(lock), HAIR.base, 7) for lock in locks],
        *[line(both(lock), HAIR.shade, 1.4) for lock in locks],
        line(both(wraps), HAIR.light, 1.3, 0.8),
    ]


def cornrows():
    """Plaits along the skull, the scalp seen between them, with loose ends behind the ears."""
    parts = ("M75,45 C76,38 77.6,30 79,25 M64,46.5 C66,39 70,31 75,26 M56,51 C58,42 63,33 71,27 M51,62 "
             "C52,54 54,47 58,40")
    ends = "M50,66 C47,78 49,88 47,98 M54.5,92 C52,96 53,102 52,106"
    return [rope(both(ends), HAIR.base, 5)], [
        fill(cap(24, 33, 70, 45, (103, 48)), HAIR.base),
        line(both(parts), SKIN.base, 1.8),
    ]


def flat_top():
    box = "M52.5,52 L51,14 C51,9 54,7 58,7 L102,7 C106,7 109,9 109,14 L107.5,52 L103,47 L57,47 Z"
    return [], [
        shaved(0.55),
        fill(box, HAIR.base),
        fill("M51,15 C51,9 54,7 58,7 L102,7 C106,7 109,9 109,15 C92,12.5 68,12.5 51,15 Z", HAIR.light, 0.8),
        line("M60,22 L60,27 M70,19 L70,24 M80,22 L80,27 M90,19 L90,24 M100,22 L100,27 M65,32 L65,37 M75,30 "
             "L75,35 M85,32 L85,37 M95,30 L95,35", HAIR.shade, 1.8),
    ]


def twists():
    inner, outer = ring(80, 56, 28, 28, 186, 354, 13), ring(80, 56, 43, 43, 183, 357, 13)
    sprouts = " ".join(f"M{a[0]:.1f},{a[1]:.1f} L{b[0]:.1f},{b[1]:.1f}" for a, b in zip(inner, outer))
    fore = "M60,44 L57,54 M67,42 L65,53 M75,41 L74,52 M84,41 L85,52 M92,42 L94,53 M100,44 L103,54"
    return [rope(sprouts, HAIR.base, 7)], [
        fill(cap(23, 33.4, 70, 45, (103, 49)), HAIR.base),
        rope(fore, HAIR.base, 5),
        line(sprouts, HAIR.shade, 1.5),
        line(fore, HAIR.shade, 1.3),
    ]


def headband_afro():
    puff = scallop(ring(80, 35, 45, 29, 160, 380, 15), 0.56)
    sides = both("M116,46 C119,58 118,70 113.6,79 C110,79 108,74 107.6,68 C108,60 107,54 105,49 Z")
    return [fill(puff, HAIR.base)], [
        fill(sides, HAIR.base),
        fill(sym((80, 12), [(104, 12), (118, 26), (117, 46)], [(80, 44)]), HAIR.base),
        curls([(56, 24), (70, 17), (86, 17), (102, 23), (46, 35), (63, 33), (79, 30), (95, 32), (112, 35)]),
        *headband(49),
    ]
