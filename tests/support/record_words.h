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
constexpr std::int64_t signed_word(std::int64_t bits) {
    bits &= 0xFFFFFFFF;
    return bits >= unit(31) ? bits - unit(32) : bits;
}

/// The first word; a height field of 7 is 155 cm, a number field of 0 number 1, and the sign is out of role.
constexpr std::int64_t first_word(std::int64_t low_bits, int height_field = 7, int number_field = 0, bool out = false) {
    return signed_word(low_bits + height_field * unit(20) + number_field * unit(26) + (out ? unit(31) : 0));
}

inline std::string skill_text(const DecodedPlayer& player, Skill skill) {
    return player.skill(skill).value_or("(unset)");
}

}  // namespace kalco::test
