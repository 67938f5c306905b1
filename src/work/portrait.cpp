#include "work/portrait.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

#include "work/portrait_palette.h"

namespace kalco {
namespace {

/// The drawing without its element <svg>.
std::string_view body_of(const EmbeddedFile& part) {
    const std::string_view svg = part.text;
    const std::size_t begin = svg.find('>') + 1;
    return svg.substr(begin, svg.rfind("</svg>") - begin);
}

const EmbeddedFile* part_named(std::string_view name) {
    const auto parts = portrait_parts();
    const auto found = std::ranges::lower_bound(parts, name, {}, &EmbeddedFile::name);
    return found != parts.end() && found->name == name ? &*found : nullptr;
}

constexpr std::size_t tone_count = 10;
using Tones = std::array<std::string_view, tone_count>;

constexpr Tones tones_of(const SkinTones& skin, const HairTones& hair, const HairTones& beard) {
    return {skin.base,  skin.shade, skin.line,  skin.lips,   hair.base,
            hair.shade, hair.light, beard.base, beard.shade, beard.light};
}

constexpr Tones tokens = tones_of(skin_token, hair_token, beard_token);
/// The same as names of CSS variables.
constexpr std::string_view variables = "abcdhijxyz";

template <typename Palette>
constexpr const auto& in_palette(const Palette& palette, int value) {
    return palette[value >= 0 && value < static_cast<int>(palette.size()) ? static_cast<std::size_t>(value) : 0];
}

/// Adds `drawing` with `colour(i)` in the place of each token.
template <typename Colour>
void add_coloured(std::string& text, std::string_view drawing, const Colour& colour) {
    constexpr std::size_t colour_length = 7;
    for (std::size_t hash = 0; (hash = drawing.find('#')) != std::string_view::npos;) {
        const auto* const token = std::ranges::find(tokens, drawing.substr(hash, colour_length));
        text += drawing.substr(0, hash);
        if (token == tokens.end()) {
            text += '#';
            drawing.remove_prefix(hash + 1);
        } else {
            text += colour(static_cast<std::size_t>(token - tokens.begin()));
            drawing.remove_prefix(hash + colour_length);
        }
    }
    text += drawing;
}

void add_variables(std::string& text, std::string_view selector, std::size_t first,
                   std::initializer_list<std::string_view> tones) {
    text += selector;
    char mark = '{';
    for (const std::string_view tone : tones) {
        text += mark;
        text += "--";
        text += variables[first++];
        text += ':';
        text += tone;
        mark = ';';
    }
    text += "}\n";
}

std::string class_named(char letter, std::size_t value) {
    return std::string(".") + letter + std::to_string(value);
}

template <typename Palette>
char digit_in(const Palette& palette, int value) {
    return static_cast<char>('0' + (&in_palette(palette, value) - palette.data()));
}

}  // namespace

std::vector<const EmbeddedFile*> parts_of(const Looks& looks) {
    std::vector<const EmbeddedFile*> parts;
    const auto add = [&parts](const std::string& name) {
        const EmbeddedFile* part = part_named(name);
        if (part != nullptr && body_of(*part).find('<') != std::string_view::npos) parts.push_back(part);
    };
    add("card");
    if (looks.skin < 0) return parts;
    add("hair-" + looks.hair_style + "-back");
    add("head");
    add("beard-" + looks.beard_style);
    add("hair-" + looks.hair_style + "-front");
    return parts;
}

std::string portrait_svg(const Looks& looks) {
    const Tones tones = tones_of(in_palette(skin_palette, looks.skin), in_palette(hair_palette, looks.hair_colour),
                                 in_palette(beard_palette, looks.beard_colour));
    const std::string side = std::to_string(portrait_side);
    std::string text = R"(<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width=")" + side +
                       R"(" height=")" + side + R"(" viewBox="0 0 )" + side + ' ' + side + "\">";
    for (const EmbeddedFile* part : parts_of(looks)) {
        add_coloured(text, body_of(*part), [&](std::size_t i) { return std::string(tones[i]); });
    }
    return text + "</svg>\n";
}

std::string portrait_symbols() {
    const std::string side = std::to_string(portrait_side);
    std::string text;
    for (const EmbeddedFile& part : portrait_parts()) {
        text += R"(<symbol id="p-)";
        text += part.name;
        text.append(R"(" viewBox="0 0 )").append(side).append(" ").append(side).append(R"(">)");
        add_coloured(text, body_of(part),
                     [](std::size_t i) { return std::string("var(--").append(1, variables[i]).append(")"); });
        text += "</symbol>\n";
    }
    return text;
}

std::string portrait_style() {
    std::string text;
    for (std::size_t i = 0; i < skin_palette.size(); ++i) {
        const SkinTones& skin = skin_palette[i];
        add_variables(text, class_named('s', i), 0, {skin.base, skin.shade, skin.line, skin.lips});
    }
    for (std::size_t i = 0; i < hair_palette.size(); ++i) {
        const HairTones& hair = hair_palette[i];
        add_variables(text, class_named('h', i), 4, {hair.base, hair.shade, hair.light});
    }
    for (std::size_t i = 0; i < beard_palette.size(); ++i) {
        const HairTones& beard = beard_palette[i];
        add_variables(text, class_named('b', i), 7, {beard.base, beard.shade, beard.light});
    }
    return text;
}

std::string portrait_use(const Looks& looks) {
    std::string text = "<svg class=\"face s";
    text += digit_in(skin_palette, looks.skin);
    text += " h";
    text += digit_in(hair_palette, looks.hair_colour);
    text += " b";
    text += digit_in(beard_palette, looks.beard_colour);
    text += R"(" aria-hidden="true">)";
    for (const EmbeddedFile* part : parts_of(looks)) {
        text += R"(<use href="#p-)";
        text += part->name;
        text += "\"/>";
    }
    return text + "</svg>";
}

}  // namespace kalco
