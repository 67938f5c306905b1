#pragma once

#include "disc/image/position.h"
#include "editor/window/frmKalco.h"

/// The set-piece takers and the captain of the team chosen in cboSquadra: six bytes, each the row 0..10 of one of the
/// first eleven players.
namespace kalco {

inline constexpr int set_piece_bytes = set_piece_columns;
inline constexpr int set_piece_rows = 11;
/// Records of all teams lie one behind the other in the order of cboSeqSQ. The default team's stands two bytes past its
/// place.
inline constexpr UserOffset SetPieceBase = user_offset_of(2329057);
inline constexpr ImagePos default_team_set_pieces = 2329629;

/// The record of a row 0..86 of the list of 87 teams.
Pieces set_piece_field(int row);
/// The two digits of a pick.
std::string pick_digits(int row);

void connect_set_pieces(frmKalco& form);

void cboSquadra_Click(frmKalco& form);
/// Shows the picks of txtHex. A byte above 10 names no button: it leaves its column without a selected one, and stays
/// the column's pick.
void CAP_KICK(frmKalco& form);
void cmdCrea_Click(frmKalco& form);

}  // namespace kalco
