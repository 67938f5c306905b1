"""Every colour that a player's look can have, and the C++ header made of them.

The first three tones are tokens: the parts of the portrait are drawn in them, and a composed portrait has the tones of
the player in their place. They are colours fit to be seen, so the small pictures of the styles use them
unreplaced, as the neutral skin and the neutral hair.
"""

from collections import namedtuple

Skin = namedtuple("Skin", "base shade line lips")
Hair = namedtuple("Hair", "base shade light")

SKIN = Skin("#efc7a1", "#dba87f", "#a86f4c", "#b9695a")
HAIR = Hair("#6b4a2b", "#4d331c", "#8d6742")
BEARD = Hair("#6b4a2c", "#4d331d", "#8d6743")

SKINS = {
    "A": Skin("#f6d2b3", "#e6b491", "#b87f5f", "#c4736a"),
    "B": Skin("#e6bb7f", "#cf9d5f", "#98683a", "#b06c54"),
    "C": Skin("#b37a4c", "#96613a", "#673f24", "#8a4a3e"),
    "D": Skin("#75492f", "#5c3722", "#3a2114", "#a25e56"),
}

HAIRS = {
    "A": Hair("#26221f", "#100e0d", "#4a443f"),  # black
    "B": Hair("#4a2f1d", "#301c10", "#6c4a32"),  # dark brown
    "C": Hair("#7d5230", "#5c3a1f", "#a1744c"),  # chestnut
    "D": Hair("#b4521f", "#883a12", "#d97a3f"),  # ginger
    "E": Hair("#d9a441", "#b27f28", "#f1c973"),  # blond
    "F": Hair("#f0e2b6", "#cfbb85", "#fcf5dc"),  # platinum
    "G": Hair("#a3a7ab", "#7d8287", "#c9cdd0"),  # grey
    "H": Hair("#2f6fcb", "#1f4f99", "#64a0ee"),  # dyed
}

BEARDS = {letter: HAIRS[letter] for letter in "ABCDEFG"}

BOOTS = {  # upper, its shade, stripes, sole
    "A": ("#2b2d31", "#17181b", "#f2f2f2", "#6d7178"),
    "B": ("#f6f6f4", "#d3d5d8", "#30343b", "#8b9098"),
    "C": ("#d2302f", "#a01f20", "#ffffff", "#3a3d43"),
    "D": ("#2a66c4", "#1b4790", "#ffffff", "#3a3d43"),
    "E": ("#f4c81f", "#cd9f0c", "#2d2f33", "#3a3d43"),
    "F": ("#2f9e4f", "#1f7438", "#ffffff", "#3a3d43"),
    "G": ("#f07f1f", "#c45f0b", "#ffffff", "#3a3d43"),
    "H": ("#d84c9c", "#a83175", "#ffffff", "#3a3d43"),
}


def check():
    """Tokens are replaced one after the other, so none may be the colour of another part or of a palette."""
    tokens = [*SKIN, *HAIR, *BEARD]
    colours = {c for tones in [*SKINS.values(), *HAIRS.values()] for c in tones}
    if len(set(tokens)) != len(tokens) or colours & set(tokens):
        raise ValueError("a colour of the palettes is a token")


HEADER = """// Written by assets/make_pictures.py: change the palettes there.
#pragma once

#include <array>
#include <string_view>

namespace kalco {{

/// The tones of a skin, as "#rrggbb".
struct SkinTones {{
    std::string_view base, shade, line, lips;
}};

/// The tones of hair or of a beard, as "#rrggbb".
struct HairTones {{
    std::string_view base, shade, light;
}};

/// The colours that the parts of a portrait are drawn in. A composed portrait has the tones of the player in their
/// place. No token is a colour of a palette, so the order of replacing does not matter.
{tokens}

{palettes}

}}  // namespace kalco
"""


def header():
    def tones(value):
        return "{" + ", ".join(f'"{c}"' for c in value) + "}"

    def palette(note, kind, name, values):
        rows = "".join(f"    {kind}{tones(v)},  // {k}\n" for k, v in values.items())
        return f"/// {note}\ninline constexpr std::array<{kind}, {len(values)}> {name}{{{{\n{rows}}}}};"

    tokens = [("SkinTones", "skin_token", SKIN), ("HairTones", "hair_token", HAIR), ("HairTones", "beard_token", BEARD)]
    palettes = [
        palette("The four skins, by stored value.", "SkinTones", "skin_palette", SKINS),
        palette("The eight hair colours, by stored value.", "HairTones", "hair_palette", HAIRS),
        palette("The seven beard colours, by stored value.", "HairTones", "beard_palette", BEARDS),
    ]
    return HEADER.format(
        tokens="\n".join(f"inline constexpr {kind} {name}{tones(v)};" for kind, name, v in tokens),
        palettes="\n\n".join(palettes),
    )
