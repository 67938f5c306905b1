#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "disc/player_facts.h"

/// Player records as values. Two readings lie side by side: what is stored (unpack_player, stored_bits; masks, nothing
/// lost) and what the editor shows (decode_player).
namespace kalco {

inline constexpr int player_record_bytes = 12;

/// The three words of a record as signed numbers.
using Words = std::array<std::int64_t, 3>;

/// The words of a record's 12 bytes in file order. Missing bytes count as 0.
Words words_of_record(std::string_view record);
/// The 12 bytes of three words: the low 32 bits of each, little-endian.
std::string record_of_words(const Words& words);

/// What the field holds, from 0 up, without its base.
int stored_bits(const Words& words, const BitField& field);
int stored_bits(std::string_view record, const BitField& field);
/// Stores the low bits of the value in the field and leaves all others alone.
void store_bits(Words& words, const BitField& field, int value);
void store_bits(std::string& record, const BitField& field, int value);

/// What the decoder finds, as the texts of the fields. Where it skips or does not reach a field, that is unset and the
/// editor keeps what it showed.
struct DecodedPlayer {
    std::optional<std::string> role, hair_style, hair_colour;
    std::string beard_style = "A";
    std::string beard_colour = "A";
    bool beard_style_shown = false;   ///< Its picture is shown.
    bool beard_colour_shown = false;  ///< Likewise.
    std::optional<std::string> height, number, out_of_role;
    std::optional<std::string> skin, build, age, boots, foot;
    std::array<std::optional<std::string>, skill_count> skills;
    bool stopped = false;  ///< The decoding stopped at the picked digit of a negative quotient.

    const std::optional<std::string>& skill(Skill which) const { return skills[static_cast<std::size_t>(which)]; }
};

/// Decodes by repeated division, not by masking: a bit that clean data never sets shows in the fields below it.
DecodedPlayer decode_player(const Words& words);

/// The values of a record's fields: places in the tables (0 for a text that no table knows), and numbers with their
/// base.
struct PlayerValues {
    std::int64_t role = 0, hair_style = 0, hair_colour = 0, beard_style = 0, beard_colour = 0;
    std::int64_t height = lowest_height, number = 1;
    bool in_role = true;  ///< The field "out of role" reads "No".
    std::int64_t skin = 0, build = 0, age = lowest_age, boots = 0;
    std::int64_t foot = 0;  ///< Both bits: 3.
    std::array<std::int64_t, skill_count> skills{12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12};
    std::array<std::int64_t, spare_count> spare{};  ///< By spare_bits; the editor always writes 0.

    std::int64_t& skill(Skill which) { return skills[static_cast<std::size_t>(which)]; }
    std::int64_t skill(Skill which) const { return skills[static_cast<std::size_t>(which)]; }

    friend bool operator==(const PlayerValues&, const PlayerValues&) = default;
};

/// Sums without checks: a value too large for its field runs into the next one. An attack outside 12..19 counts as 12,
/// a foot outside 0..3 as 0.
Words pack_player(const PlayerValues& values);
/// What is stored, by masks. pack_player gives the same words again, spare bits too.
PlayerValues unpack_player(const Words& words);

/// The place of a text in a table, 0 when the table does not know it.
template <std::size_t n>
std::int64_t value_of(const std::array<std::string_view, n>& table, std::string_view text) {
    for (std::size_t value = 0; value < n; ++value) {
        if (table[value] == text) return static_cast<std::int64_t>(value);
    }
    return 0;
}

/// The three groups of a record's list entry: its characters 1 to 11, 13 to 23 and the last 11.
std::array<std::string, 3> groups_of_entry(std::string_view entry);

/// The list entry of three groups.
std::string entry_of_groups(const std::array<std::string, 3>& groups);

/// The signed little-endian word of a group of four bytes ("56 24 E6 25"). Error 5 when the group has fewer.
std::int64_t word_of_group(std::string_view group);

/// The digits of a word in file order, without blanks ("5624E625"). Errors as for word_digits.
std::string file_order_digits(std::int64_t word);

}  // namespace kalco
