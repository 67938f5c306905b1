#include "work/sheets/places.h"

#include "disc/links.h"
#include "disc/numbers.h"
#include "work/sheets/ids.h"

namespace kalco {
namespace {

constexpr int word_bits = 32;

/// `count` bytes of a field.
Pieces part_of(const Pieces& field, int first, int count) {
    const Piece& head = field[0];
    if (!field.split() || first + count <= head.bytes) return Piece{head.position + first, count};
    const int behind = first - head.bytes;
    if (behind >= 0) return Piece{field[1].position + behind, count};
    return {Piece{head.position + first, -behind}, Piece{field[1].position, count + behind}};
}

/// A range of bits of a field, with the bytes that it needs alone.
FieldPlace bits_place(const Pieces& field, int first_bit, int width) {
    const int first = first_bit / byte_bits;
    const int count = (first_bit + width - 1) / byte_bits - first + 1;
    return {part_of(field, first, count), {first_bit % byte_bits, width}};
}

}  // namespace

FieldPlace byte_place(const Pieces& field, int byte) {
    return {part_of(field, byte, 1), {0, byte_bits}};
}

FieldPlace record_bits_place(int row, const BitField& bits) {
    return bits_place(player_record_field(place_of_row(row)), word_bits * (bits.word - 1) + bits.bit, bits.width);
}

std::optional<FieldPlace> player_name_place(int row, int) {
    return FieldPlace{player_name_field(place_of_row(row))};
}

std::optional<FieldPlace> cost_place(int row, int) {
    const auto position = cost_position(place_of_row(row));
    return position ? std::optional(byte_place(Piece{*position, 1}, 0)) : std::nullopt;
}

std::optional<FieldPlace> team_name_place(int team, NamePlace name) {
    const auto field = name_field(Team(team), name);
    return field ? std::optional(FieldPlace{*field}) : std::nullopt;
}

std::optional<FieldPlace> table_name_place(int team, int table) {
    return team_name_place(team, static_cast<NamePlace>(static_cast<int>(NamePlace::t1) + table));
}

std::optional<FieldPlace> shirt_number_place(int row, int player) {
    const TeamRow team(row);
    const Pieces field = number_field(team);
    if (!is_nation(team_of(team))) return byte_place(field, player);
    constexpr int fields_in_word = 6;
    constexpr int field_bits = 5;
    return bits_place(field, word_bits * (player / fields_in_word) + field_bits * (player % fields_in_word),
                      field_bits);
}

std::optional<FieldPlace> link_place(int club, int player) {
    return FieldPlace{part_of(link_table_field(Club(club)), link_bytes * player, link_bytes)};
}

}  // namespace kalco
