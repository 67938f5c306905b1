#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "work/embedded.h"

/// A player's face, composed as SVG out of card, head, hair and beard.
namespace kalco {

/// What a portrait shows. A colour outside its palette is that of 0; a style without a drawing is left out.
struct Looks {
    int skin = -1;             ///< Below 0: no face, the empty card.
    std::string hair_style{};  ///< "A1" and so on; empty for none.
    int hair_colour = 0;
    std::string beard_style{};  ///< "A" and so on; empty for none.
    int beard_colour = 0;

    friend bool operator==(const Looks&, const Looks&) = default;
};

/// Side of a portrait's square, in the units of its drawing.
inline constexpr int portrait_side = 160;

/// The parts of the face, lowest first; a part where nothing is drawn is left out.
std::vector<const EmbeddedFile*> parts_of(const Looks& looks);

/// The portrait as a document of its own, without anything that SVG Tiny 1.2 lacks.
std::string portrait_svg(const Looks& looks);

/// For pages with many portraits, where each refers to parts that stand there once. The page holds portrait_symbols()
/// in an element <svg> and portrait_style() in its style sheet; then portrait_use() is one face.
std::string portrait_symbols();
/// CSS: classes with the tones of the skins, hairs and beards.
std::string portrait_style();
/// An element <svg class="face ...">, to be sized by the page.
std::string portrait_use(const Looks& looks);

}  // namespace kalco
