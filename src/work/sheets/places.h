#pragma once

#include <optional>

#include "disc/bars.h"
#include "disc/formation.h"
#include "disc/player_facts.h"
#include "disc/set_pieces.h"
#include "disc/team_names.h"
#include "work/sheets/field.h"

/// Where the fields of the sheets' rows are stored, in the form that the table of fields wants: by row and by place in
/// a run of columns.
namespace kalco {

/// A single byte of a field as a number.
FieldPlace byte_place(const Pieces& field, int byte);
/// Bits of the record of a row of the players.
FieldPlace record_bits_place(int row, const BitField& bits);

std::optional<FieldPlace> player_name_place(int row, int item);
/// None for the all-star and classic teams.
std::optional<FieldPlace> cost_place(int row, int item);
template <const BitField& bits>
std::optional<FieldPlace> record_place(int row, int /*item*/) {
    return record_bits_place(row, bits);
}
template <Skill which>
std::optional<FieldPlace> skill_place(int row, int /*item*/) {
    return record_bits_place(row, bits_of(which));
}

/// None for a name that the team lacks.
std::optional<FieldPlace> team_name_place(int team, NamePlace name);
template <NamePlace name>
std::optional<FieldPlace> team_name_place(int team, int /*item*/) {
    return team_name_place(team, name);
}
/// T1 to T6, counted from 0.
std::optional<FieldPlace> table_name_place(int team, int table);

/// A byte of a formation's columns: roles, X, Y.
template <int column>
std::optional<FieldPlace> formation_place(int row, int player) {
    return byte_place(formation_field(TeamRow(row)), column * outfield_players + player);
}
template <int bar>
std::optional<FieldPlace> bar_place(int row, int /*item*/) {
    return byte_place(bars_field(TeamRow(row)), bar);
}
template <int piece>
std::optional<FieldPlace> set_piece_place(int row, int /*item*/) {
    return byte_place(set_piece_field(TeamRow(row)), piece);
}
std::optional<FieldPlace> shirt_number_place(int row, int player);
std::optional<FieldPlace> link_place(int club, int player);

}  // namespace kalco
