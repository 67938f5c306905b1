#include "work/portrait.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "disc/player_facts.h"
#include "work/portrait_palette.h"

namespace kalco {
namespace {

std::size_t count(std::string_view text, std::string_view what) {
    std::size_t found = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos; at = text.find(what, at + 1)) ++found;
    return found;
}

bool holds(std::string_view text, std::string_view what) {
    return text.find(what) != std::string_view::npos;
}

std::vector<std::string_view> names_of(const Looks& looks) {
    std::vector<std::string_view> names;
    for (const EmbeddedFile* part : parts_of(looks)) names.push_back(part->name);
    return names;
}

using Names = std::vector<std::string_view>;

const Looks curly{.skin = 1, .hair_style = "C2", .hair_colour = 4, .beard_style = "G", .beard_colour = 3};

template <typename Act>
void with_every_look(const Act& act) {
    for (int value = 0; value < 32; ++value) {
        const auto style = static_cast<std::size_t>(value);
        act(Looks{.skin = value % 4,
                  .hair_style = std::string(hair_style_texts[style]),
                  .hair_colour = value % 8,
                  .beard_style = std::string(beard_texts[style % 7]),
                  .beard_colour = value / 4 % 7});
    }
}

TEST(PortraitParts, HaveADrawingForEveryStyleOfTheDisc) {
    std::set<std::string> expected{"card", "head"};
    for (const auto style : hair_style_texts) {
        expected.insert("hair-" + std::string(style) + "-back");
        expected.insert("hair-" + std::string(style) + "-front");
    }
    for (const auto style : beard_texts) expected.insert("beard-" + std::string(style));
    std::set<std::string> names;
    for (const EmbeddedFile& part : portrait_parts()) names.emplace(part.name);
    EXPECT_EQ(names, expected);
    EXPECT_TRUE(std::ranges::is_sorted(portrait_parts(), {}, &EmbeddedFile::name));
}

TEST(PortraitParts, AreWholeDocuments) {
    for (const EmbeddedFile& part : portrait_parts()) {
        EXPECT_TRUE(part.text.starts_with("<svg xmlns=\"http://www.w3.org/2000/svg\"")) << part.name;
        EXPECT_TRUE(part.text.ends_with("</svg>\n")) << part.name;
    }
}

TEST(Portrait, LiesInLayersFromTheCardToTheHair) {
    EXPECT_EQ(names_of(curly), (Names{"card", "hair-C2-back", "head", "beard-G", "hair-C2-front"}));
}

TEST(Portrait, LeavesOutWhatIsNotDrawn) {
    EXPECT_EQ(names_of({}), (Names{"card"}));
    EXPECT_EQ(names_of({.skin = 0}), (Names{"card", "head"}));
    EXPECT_EQ(names_of({.skin = 0, .hair_style = "Z9", .beard_style = "H"}), (Names{"card", "head"}));
    // Short hair has nothing behind the head, and the first beard is none.
    EXPECT_EQ(names_of({.skin = 0, .hair_style = "B1", .beard_style = "A"}), (Names{"card", "head", "hair-B1-front"}));
}

TEST(Portrait, IsOneDocumentInThePlayersTones) {
    const std::string svg = portrait_svg(curly);
    EXPECT_EQ(count(svg, "<svg"), 1U);
    EXPECT_EQ(count(svg, "</svg>"), 1U);
    for (const auto tone :
         {skin_palette[1].base, skin_palette[1].shade, skin_palette[1].line, skin_palette[1].lips, hair_palette[4].base,
          hair_palette[4].shade, beard_palette[3].base, beard_palette[3].shade, beard_palette[3].light}) {
        EXPECT_TRUE(holds(svg, tone)) << tone;
    }
    EXPECT_FALSE(holds(svg, skin_palette[0].base));
    EXPECT_TRUE(holds(svg, "url(#card)"));
}

TEST(Portrait, KeepsNoTokenInAnyLook) {
    with_every_look([](const Looks& looks) {
        const std::string svg = portrait_svg(looks);
        for (const auto token : {skin_token.base, skin_token.shade, skin_token.line, skin_token.lips}) {
            EXPECT_FALSE(holds(svg, token)) << looks.hair_style << token;
        }
        for (const HairTones& tones : {hair_token, beard_token}) {
            for (const auto token : {tones.base, tones.shade, tones.light}) {
                EXPECT_FALSE(holds(svg, token)) << looks.hair_style << token;
            }
        }
    });
}

TEST(Portrait, TakesTheFirstTonesForAColourThatItDoesNotKnow) {
    Looks odd = curly;
    odd.skin = 9;
    odd.hair_colour = -1;
    odd.beard_colour = 7;
    Looks first = curly;
    first.skin = first.hair_colour = first.beard_colour = 0;
    EXPECT_EQ(portrait_svg(odd), portrait_svg(first));
    EXPECT_EQ(portrait_use(odd), portrait_use(first));
}

TEST(PortraitOfAPage, RefersToSymbolsThatExist) {
    const std::string symbols = portrait_symbols();
    EXPECT_EQ(count(symbols, "<symbol id="), portrait_parts().size());
    with_every_look([&symbols](const Looks& looks) {
        const std::string use = portrait_use(looks);
        EXPECT_EQ(count(use, "<use href="), parts_of(looks).size());
        for (const EmbeddedFile* part : parts_of(looks)) {
            const std::string id = "\"p-" + std::string(part->name) + '"';
            EXPECT_EQ(count(symbols, "<symbol id=" + id), 1U);
            EXPECT_TRUE(holds(use, "<use href=\"#" + id.substr(1)));
        }
    });
}

TEST(PortraitOfAPage, TakesItsTonesFromClasses) {
    const std::string style = portrait_style();
    EXPECT_TRUE(holds(style, ".s1{--a:#e6bb7f;--b:#cf9d5f;--c:#98683a;--d:#b06c54}"));
    EXPECT_TRUE(holds(style, ".h7{--h:#2f6fcb;--i:#1f4f99;--j:#64a0ee}"));
    EXPECT_TRUE(holds(style, ".b6{--x:#a3a7ab;--y:#7d8287;--z:#c9cdd0}"));
    const std::string symbols = portrait_symbols();
    for (const char variable : std::string("abcdhijxyz")) {
        EXPECT_TRUE(holds(symbols, std::string("\"var(--") + variable + ")\"")) << variable;
    }
    EXPECT_FALSE(holds(symbols, skin_token.base));
    EXPECT_TRUE(portrait_use(curly).starts_with("<svg class=\"face s1 h4 b3\""));
}

}  // namespace
}  // namespace kalco
