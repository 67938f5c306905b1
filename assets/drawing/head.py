"""The head that hair and beards are drawn on, its bust, and the card behind a portrait."""

from .palette import HAIR, SKIN
from .shape import both, disc, fill, line, sym

SHIRT, SHIRT_SHADE, COLLAR = "#3b78b8", "#2c5d92", "#f4f6f8"
PLAIN, PLAIN_SHADE = "#c3ccd6", "#a9b4c1"

FACE = sym(
    (80, 26),
    [(99, 26), (112, 39), (112, 61)],
    [(112, 70), (111.5, 79), (109, 87)],
    [(105, 100), (94, 113), (80, 113)],
)


def ears():
    return [
        fill(disc(47.5, 74, 6.5, 10), SKIN.base),
        fill(disc(112.5, 74, 6.5, 10), SKIN.base),
        line(both("M45,70 C48,69 50,72 48,76"), SKIN.shade, 2),
    ]


def neck():
    down = [(94, 123)], [(95, 129), (102, 131), (112, 134)], [(104, 148), (90, 154), (80, 154)]
    return [
        fill(sym((80, 96), [(94, 96)], *down), SKIN.base),
        fill(sym((80, 104), [(94, 104)], [(94, 112)], [(91, 119), (86, 122), (80, 122)]), SKIN.shade),
    ]


def face():
    return [
        fill(FACE, SKIN.base),
        fill("M103,37 C109,43 112,51 112,61 C112,70 111.5,79 109,87 C105,100 94,113 80,113 "
             "C94,107 101,98 103,86 C106,70 108,52 103,37 Z", SKIN.shade, 0.55),
        fill(disc(68, 71, 5.4, 3.9) + " " + disc(92, 71, 5.4, 3.9), "#ffffff"),
        fill(disc(68.3, 71, 3.1, 3.5) + " " + disc(91.7, 71, 3.1, 3.5), "#33261f"),
        fill(disc(69.4, 69.8, 1) + " " + disc(92.8, 69.8, 1), "#ffffff"),
        line("M62,69.6 C64,66.6 71,66 74,69.6 M86,69.6 C89,66 96,66.6 98,69.6", SKIN.line, 1.7),
        line("M60,62.5 C63,59 70,58 75,60.8 M85,60.8 C90,58 97,59 100,62.5", HAIR.shade, 3.4),
        line("M80.5,72 C81.5,78 84.5,81 84,83.5 C83.5,86 79,86.4 76.6,84.8", SKIN.line, 1.9, 0.75),
    ]


def mouth():
    return [
        line("M70.5,96.5 C75,100.3 85,100.3 89.5,96.5", SKIN.lips, 2.7),
        line("M76,103.4 C78.5,104.4 81.5,104.4 84,103.4", SKIN.shade, 1.8),
    ]


def shirt():
    return [
        fill(sym((80, 139), [(89, 139), (96, 134), (99, 127)], [(105, 130), (112, 131), (118, 133)],
                 [(133, 138), (141, 147), (143, 160)], [(80, 160)]), SHIRT),
        fill("M118,133 C133,138 141,147 143,160 L124,160 C124,150 123,141 118,133 Z", SHIRT_SHADE, 0.8),
        line("M36,158 C36,154 35.4,151 34.4,148", SHIRT_SHADE, 2),
        line("M61,127 C64,135 70,141.5 80,141.5 C90,141.5 96,135 99,127", COLLAR, 5.4),
    ]


def bust():
    """The small shoulders of the pictures of hair styles."""
    return [
        fill(sym((80, 124), [(92, 124)], [(97, 119), (104, 122), (112, 125)], [(118, 127), (121, 130), (122, 135)],
                 [(80, 135)]), PLAIN),
        fill("M112,125 C118,127 121,130 122,135 L110,135 Z", PLAIN_SHADE),
        fill(sym((80, 129), [(87, 129), (93, 126), (95, 120)], [(94, 112)], [(80, 108)]), SKIN.base),
        fill(sym((80, 104), [(94, 104)], [(94, 112)], [(91, 119), (86, 122), (80, 122)]), SKIN.shade),
    ]


def portrait_head():
    return neck() + shirt() + ears() + face() + mouth()


def card():
    """The background of a portrait: neither pale nor dark hair is lost on it."""
    right = [(146, 0)], [(154, 0), (160, 6), (160, 14)], [(160, 146)], [(160, 154), (154, 160), (146, 160)], [(80, 160)]
    return [fill(sym((80, 0), *right), "url(#card)")]


CARD_DEFS = (
    '<linearGradient id="card" gradientUnits="userSpaceOnUse" x1="0" y1="0" x2="0" y2="160">'
    '<stop offset="0" stop-color="#b9cbdb"/><stop offset="1" stop-color="#8fa9c0"/></linearGradient>'
)
