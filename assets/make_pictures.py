#!/usr/bin/env python3
"""Writes every picture of Kalco: assets/pictures with the resource file that lists them, assets/portrait,
assets/kalco.svg and the palettes' header. Run it after a change in assets/drawing; what it writes is kept in the repository.
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True

from drawing import beards, hair, head, palette, things  # noqa: E402
from drawing.shape import svg  # noqa: E402

ASSETS = Path(__file__).resolve().parent
HEADER = ASSETS.parent / "src" / "work" / "portrait_palette.h"

SMALL, LARGE, ICON = 64, 160, 128
STYLE_PLACE = "translate(-7.2,0.4) scale(0.49)"  # from the tallest crest to the bust
BEARD_PLACE = "translate(-11.2,-12.2) scale(0.54)"  # skull to the tip of the longest beard
SWATCH_PLACE = "translate(-48,0)"


def style_picture(style):
    back, front = style()
    shapes = back + head.bust() + head.ears() + head.face() + head.mouth() + front
    return svg(SMALL, shapes, outline=2.6, place=STYLE_PLACE)


def beard_picture(style):
    shapes = head.ears() + head.face() + head.mouth() + [hair.short.shaved(0.3)] + style()
    return svg(SMALL, shapes, outline=2.2, place=BEARD_PLACE)


def beard_swatch(tones):
    return svg(SMALL, things.beard_swatch(tones), outline=1.2, place=SWATCH_PLACE)


def pictures():
    """Every small picture by the name that the window asks for."""
    out = {name: style_picture(style) for name, style in hair.STYLES.items()}
    out |= {name: svg(SMALL, things.lock(t), outline=1.2) for name, t in palette.HAIRS.items()}
    out |= {name * 2: beard_picture(style) for name, style in beards.STYLES.items()}
    out |= {name * 2 + "1": beard_swatch(t) for name, t in palette.BEARDS.items()}
    out |= {name + "S": svg(SMALL, things.boot(*colours), outline=1.2) for name, colours in palette.BOOTS.items()}
    return out


def parts():
    """The parts of a portrait, to be drawn as card, hair back, head, beard, hair front."""
    out = {"card": svg(LARGE, head.card(), defs=head.CARD_DEFS), "head": svg(LARGE, head.portrait_head())}
    for name, style in hair.STYLES.items():
        back, front = style()
        out |= {f"hair-{name}-back": svg(LARGE, back), f"hair-{name}-front": svg(LARGE, front)}
    return out | {f"beard-{name}": svg(LARGE, style()) for name, style in beards.STYLES.items()}


def resources(names):
    """The window's resources. The parts of the portrait are not among them: they are compiled into the core."""
    out = ["<RCC>", '    <qresource prefix="/pictures">']
    out += [f'        <file alias="{name}.svg">pictures/{name}.svg</file>' for name in names]
    out += ["    </qresource>"]
    out += ['    <qresource prefix="/icon">', '        <file alias="kalco.svg">kalco.svg</file>', "    </qresource>"]
    return "\n".join([*out, "</RCC>", ""])


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def main():
    palette.check()
    folders = {"pictures": pictures(), "portrait": parts()}
    for folder, drawn in folders.items():
        for old in (ASSETS / folder).glob("*.svg"):
            old.unlink()
        for name, text in drawn.items():
            write(ASSETS / folder / f"{name}.svg", text)
    write(ASSETS / "kalco.svg", svg(ICON, things.icon(), defs=things.ICON_DEFS))
    write(ASSETS / "pictures.qrc", resources(folders["pictures"]))
    write(HEADER, palette.header())


if __name__ == "__main__":
    main()
