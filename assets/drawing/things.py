"""Boots, colour swatches and the program's icon."""

from math import cos, pi, sin

from .shape import at, disc, fill, line, sym


def lock(tones):
    """A tied lock of hair, in a 64 by 64 box."""
    mass = ("M24,10 L40,10 C41,17 51,21 53,31 C54.5,40 47,45 45,53 C44.4,56 44.6,58 45.4,60 "
            "C40,59.6 37.4,57.6 36.6,55 "
            "C34.6,58 31,60.4 26.6,61 C27.6,58 27.4,56 26,53.6 C23.4,56.4 19.6,57.6 15.6,57 "
            "C18,54 17.4,51 15.4,47 "
            "C11,38 10,30 15.6,22.6 C19,18.4 23,15.6 24,10 Z")
    return [
        fill(mass, tones.base),
        line("M28,14 C26,22 19,25 19.6,34 C20,40 24,44 24,50 M32,14 C32,23 27,28 28.6,37 C30,44 34,47 32.6,55 "
             "M36,14 C38,23 46,26 45.6,34 C45.2,41 40,45 39.6,52", tones.shade, 1.8),
        line("M32.6,22 C36,26 39.6,29 39,35", tones.light, 2.4),
        fill("M22.6,4.6 C26,3 38,3 41.4,4.6 L41.4,11.4 C38,13 26,13 22.6,11.4 Z", "#5d6b7a"),
        line("M23.4,8 C27,9 37,9 40.6,8", "#8797a8", 1.4),
    ]


def beard_swatch(tones):
    """A full beard without its face: 64 wide about the axis of the portrait, 64 high."""
    beard = sym((80, 22), [(86, 20), (94, 22), (98, 27)], [(100, 22), (101, 15), (101.5, 9)], [(106.5, 9)],
                [(108, 20), (108, 31), (104, 40)], [(99, 51), (90, 58), (80, 58)])
    # Anticlockwise, so it is a hole.
    mouth = sym((80, 39.6), [(85, 39.4), (89, 38), (91, 34)], [(89, 32), (84, 31), (80, 32)])
    return [
        fill(beard + " " + mouth, tones.base),
        line("M80,45 L80,53.5 M69.6,44 C71,48 73,51 75,52.6 M90.4,44 C89,48 87,51 85,52.6 M60,36 "
             "C61,42 64,46 67,49 "
             "M100,36 C99,42 96,46 93,49 M80,23.6 L80,28.4", tones.shade, 1.6),
        line("M56.6,20 C56.4,26 57,31 58.6,35", tones.light, 2.2),
    ]


def boot(upper, shade, stripe, sole):
    """A football boot seen from its outer side, in a 64 by 64 box."""
    body = ("M5.4,24 C6,20 10,18.4 12.4,20.4 C17,24 22,22.6 25.6,17.4 C27.4,15.4 30.6,15.8 32,18 "
            "C36,25 43,29.6 50,32 "
            "C57.6,34.6 61.6,38 61.6,43 C61.6,46 60,47.6 57,47.6 L9,47.6 C6,47.6 4.6,46 4.8,43 "
            "C5.2,36 4.6,30 5.4,24 Z")
    studs = ("M8,47 L17.6,47 L16,55 L10,55 Z M19.6,47 L27,47 L25.6,53.6 L21,53.6 Z M36,47 L43.6,47 L42.4,54.6 "
             "L37.4,54.6 Z "
             "M45.6,47 L52.6,47 L51.4,54.6 L47,54.6 Z M54.4,47 L60,46.6 L58.4,53 L55.6,53 Z")
    return [
        fill(studs, sole),
        fill(body, upper),
        fill("M4.9,40 C20,44.6 46,45 61.4,41.4 C62,45.6 60,47.6 57,47.6 L9,47.6 "
             "C6,47.6 4.6,46 4.9,40 Z", shade),
        fill("M5.4,24 C6,20 10,18.4 12.4,20.4 C13.4,27 13,33 10.6,41.6 L4.9,40 C5.2,34 4.6,30 5.4,24 Z", shade),
        fill("M19,42.6 C20,35 23,29.6 27.4,25.4 L31,29 C27.4,32.6 25.4,37 25,43 Z M29.4,43.2 "
             "C30,37.6 32,33.4 35,31 L39,33.6 "
             "C36.6,36 35.4,39 35.2,43.4 Z", stripe),
        line("M30.4,22.4 L35,18.8 M34.2,26.4 L38.8,22.8 M38.8,29.6 L43.2,26", stripe, 2),
        line("M7,47.6 L58.6,47.6", sole, 2.4),
    ]


def polygon(points):
    return "M" + " L".join(at(*p) for p in points) + " Z"


def around(x, y, r, degrees):
    a = (degrees - 90) * pi / 180
    return x + r * cos(a), y + r * sin(a)


def icon():
    """A disc whose hub is a football, 128 by 128."""
    x = y = 64
    ball, ink = 35, "#20303f"
    shapes = [
        fill(disc(x, y, 61), "#1d4f86"),
        fill(disc(x, y, 57.5), "url(#disc)"),
    ]
    gleam = ["#ff9fb4", "#ffd98a", "#b9efb0", "#9fd4ff", "#c9b6ff"]
    for start in (22, 202):
        for i, colour in enumerate(gleam):
            p, q = around(x, y, 57.5, start + 10 * i), around(x, y, 57.5, start + 10 * i + 10.4)
            shapes.append(fill(f"M{at(x, y)} L{at(*p)} A57.5,57.5 0 0 1 {at(*q)} Z", colour, 0.8))
    shapes += [fill(disc(x, y, ball + 5), "#1d4f86"), fill(disc(x, y, ball), "#ffffff")]
    inner = [around(x, y, 14.5, i * 72) for i in range(5)]
    for i in range(5):
        a = i * 72
        left, right = around(x, y, ball, a - 20), around(x, y, ball, a + 20)
        patch = [around(x, y, 29, a - 19), around(x, y, 23.5, a), around(x, y, 29, a + 19), right]
        shapes.append(fill(f"{polygon([left, *patch])[:-2]} A{ball},{ball} 0 0 0 {at(*left)} Z", ink))
        shapes.append(line(f"M{at(*inner[i])} L{at(*around(x, y, 24, a))}", ink, 3))
        shapes.append(line(f"M{at(*around(x, y, 29, a + 19))} L{at(*around(x, y, 29, a + 53))}", ink, 3))
    return [*shapes, fill(polygon(inner), ink)]


ICON_DEFS = (
    '<linearGradient id="disc" gradientUnits="userSpaceOnUse" x1="20" y1="10" x2="108" y2="118">'
    '<stop offset="0" stop-color="#dfe9f2"/><stop offset="0.5" stop-color="#a9bccd"/>'
    '<stop offset="1" stop-color="#e6eef5"/></linearGradient>'
)
