// Written by assets/make_pictures.py: change the palettes there.
#pragma once

#include <array>
#include <string_view>

namespace kalco {

/// The tones of a skin, as "#rrggbb".
struct SkinTones {
    std::string_view base, shade, line, lips;
};

/// The tones of hair or of a beard, as "#rrggbb".
struct HairTones {
    std::string_view base, shade, light;
};

/// The colours that the parts of a portrait are drawn in. A composed portrait has the tones of the player in their
/// place. No token is a colour of a palette, so the order of replacing does not matter.
inline constexpr SkinTones skin_token{"#efc7a1", "#dba87f", "#a86f4c", "#b9695a"};
inline constexpr HairTones hair_token{"#6b4a2b", "#4d331c", "#8d6742"};
inline constexpr HairTones beard_token{"#6b4a2c", "#4d331d", "#8d6743"};

/// The four skins, by stored value.
inline constexpr std::array<SkinTones, 4> skin_palette{{
    SkinTones{"#f6d2b3", "#e6b491", "#b87f5f", "#c4736a"},  // A
    SkinTones{"#e6bb7f", "#cf9d5f", "#98683a", "#b06c54"},  // B
    SkinTones{"#b37a4c", "#96613a", "#673f24", "#8a4a3e"},  // C
    SkinTones{"#75492f", "#5c3722", "#3a2114", "#a25e56"},  // D
}};

/// The eight hair colours, by stored value.
inline constexpr std::array<HairTones, 8> hair_palette{{
    HairTones{"#26221f", "#100e0d", "#4a443f"},  // A
    HairTones{"#4a2f1d", "#301c10", "#6c4a32"},  // B
    HairTones{"#7d5230", "#5c3a1f", "#a1744c"},  // C
    HairTones{"#b4521f", "#883a12", "#d97a3f"},  // D
    HairTones{"#d9a441", "#b27f28", "#f1c973"},  // E
    HairTones{"#f0e2b6", "#cfbb85", "#fcf5dc"},  // F
    HairTones{"#a3a7ab", "#7d8287", "#c9cdd0"},  // G
    HairTones{"#2f6fcb", "#1f4f99", "#64a0ee"},  // H
}};

/// The seven beard colours, by stored value.
inline constexpr std::array<HairTones, 7> beard_palette{{
    HairTones{"#26221f", "#100e0d", "#4a443f"},  // A
    HairTones{"#4a2f1d", "#301c10", "#6c4a32"},  // B
    HairTones{"#7d5230", "#5c3a1f", "#a1744c"},  // C
    HairTones{"#b4521f", "#883a12", "#d97a3f"},  // D
    HairTones{"#d9a441", "#b27f28", "#f1c973"},  // E
    HairTones{"#f0e2b6", "#cfbb85", "#fcf5dc"},  // F
    HairTones{"#a3a7ab", "#7d8287", "#c9cdd0"},  // G
}};

}  // namespace kalco
