#pragma once

#include <cstdint>
#include <string>

#include "disc/player_record.h"

/// Words of player records by their bits.
namespace kalco::test {

constexpr std::int64_t unit(int bit) {
    return std::int64_t{1} << bit;
}

/// The signed value of a word of unsigned bits.
inline std::int64_t signed_word(std::int64_t bits) {
    return words_of_record(record_of_words({bits, 0, 0}))[0];
}

/// The first word; a height field of 7 is 155 cm, a number field of 0 number 1, and the sign is out of role.
inline std::int64_t first_word(std::int64_t low_bits, int height_field = 7, int number_field = 0, bool out = false) {
    Words words{low_bits, 0, 0};
    store_bits(words, height_bits, height_field);
    store_bits(words, number_bits, number_field);
    store_bits(words, out_of_role_bits, out ? 1 : 0);
    return words[0];
}

/// What the decoder shows as values; throws where it shows nothing.
inline PlayerValues values_of_texts(const DecodedPlayer& player) {
    PlayerValues values;
    values.role = value_of(role_texts, player.role.value());
    values.hair_style = value_of(hair_style_texts, player.hair_style.value());
    values.hair_colour = value_of(hair_colour_texts, player.hair_colour.value());
    values.beard_style = value_of(beard_texts, player.beard_style);
    values.beard_colour = value_of(beard_texts, player.beard_colour);
    values.height = std::stoi(player.height.value());
    values.number = std::stoi(player.number.value());
    values.in_role = player.out_of_role.value() == "No";
    values.skin = value_of(skin_texts, player.skin.value());
    values.build = value_of(build_texts, player.build.value());
    values.age = std::stoi(player.age.value());
    values.boots = value_of(boots_texts, player.boots.value());
    values.foot = value_of(foot_texts, player.foot.value());
    for (std::size_t i = 0; i < skill_count; ++i) values.skills[i] = std::stoi(player.skills[i].value());
    return values;
}

inline std::string skill_text(const DecodedPlayer& player, Skill skill) {
    return player.skill(skill).value_or("(unset)");
}

}  // namespace kalco::test
