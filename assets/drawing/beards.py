"""The seven beard styles: "A" is clean shaven. The lips are drawn again over what covers the mouth."""

from .palette import BEARD, SKIN
from .shape import both, fill, line, sym

# Cheek line, from below the nose out to the sideburn, and the jaw from there to the chin.
CHEEK = [(86, 88.5), (92, 89), (95, 94)], [(99, 92), (104, 84), (106.5, 70)], [(112.2, 68)]
MOUSTACHE = sym((80, 88.6), [(86, 86.6), (93, 89), (97.5, 98.5)], [(92, 97), (86, 95.4), (80, 95.4)])
LIPS = line("M73,97.6 C76,99.6 84,99.6 87,97.6", SKIN.lips, 2.6)


def jaw(low, wide=0.0):
    """The jaw line from the ear to the chin, reaching down to `low`."""
    return [(113 + wide, 80), (111.5 + wide, 88), (108 + wide, 95)], [(102 + wide, low - 8), (92, low), (80, low)]


def stubble():
    return [fill(sym((80, 88.6), *CHEEK, *jaw(112.6, -1.6)), BEARD.base, 0.36), LIPS]


def moustache():
    return [
        fill(MOUSTACHE, BEARD.base),
        line("M80,89.5 L80,94.5 M75,89.8 C72,91 70,92.6 68,95 M85,89.8 C88,91 90,92.6 92,95", BEARD.shade, 1.3),
    ]


def goatee():
    ring = sym((80, 88.4), [(88, 87), (95, 90), (96.5, 98)], [(97.5, 108), (91, 118.5), (80, 119)])
    return [
        fill(ring, BEARD.base),
        fill(sym((80, 95), [(86, 95), (89.5, 96), (90, 98)], [(88, 103.5), (84, 104.2), (80, 104.2)]), SKIN.base),
        line("M80,107.5 L80,116 M74,107 C74.5,111 75.5,113.5 77,115.5 M86,107 C85.5,111 84.5,113.5 83,115.5",
             BEARD.shade, 1.4),
        LIPS,
    ]


def sideburns():
    chop = "M112.4,64 L106,65 C106.5,76 104,86 96,94 C95,98 97,102 100,104.5 C106,99 111.4,90 112.6,78 Z"
    return [fill(both(chop), BEARD.base), line(both("M109.5,72 C109,82 105.5,91 100,98"), BEARD.shade, 1.5)]


def full():
    return [
        fill(sym((80, 88.6), *CHEEK, *jaw(119, 0.8)), BEARD.base),
        fill("M113.6,70 C113.8,84 112.5,90 108.8,95 C102.8,111 92,119 80,119 "
             "C96,112 103,100 107,86 Z", BEARD.shade, 0.6),
        fill(sym((80, 95.2), [(86, 95.2), (90, 96), (91, 98)], [(88, 102.6), (84, 103), (80, 103)]), SKIN.base),
        line("M80,89.5 L80,94 M70,106 C71.5,110 73.5,113 76,115 M90,106 "
             "C88.5,110 86.5,113 84,115", BEARD.shade, 1.4),
        LIPS,
    ]


def long_beard():
    tip = [(114, 84), (114, 96), (112, 105)], [(109, 121), (96, 138), (80, 140)]
    return [
        fill(sym((80, 88.6), *CHEEK, *tip), BEARD.base),
        fill("M113.2,70 C114,84 114,96 112,105 C109,121 96,138 80,140 "
             "C94,126 104,108 107,86 Z", BEARD.shade, 0.6),
        fill(sym((80, 95.8), [(86, 95.8), (89, 96.4), (90, 98)], [(88, 102.2), (84, 102.6), (80, 102.6)]), SKIN.base),
        line("M80,110 L80,134 M70,107 C70,117 73,126 77,131 M90,107 C90,117 87,126 83,131 "
             "M60,101 C60,111 64,121 70,128 M80,89.5 L80,94", BEARD.shade, 1.6),
        line("M64,100 C64,108 66,116 69,122", BEARD.light, 1.8),
        LIPS,
    ]


STYLES = {"A": lambda: [], "B": stubble, "C": moustache, "D": goatee, "E": sideburns, "F": full, "G": long_beard}
